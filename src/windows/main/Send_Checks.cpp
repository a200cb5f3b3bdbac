#include "windows/main/Send_Checks.h"

#include "device/Chosen_Device.h"
#include "engine/Job_State.h"
#include "platform/Log_Line.h"
#include "platform/String_Helpers.h"
#include "platform/Waiting.h"
#include "texts/Texts.h"
#include "toolkit/Main_Window.h"
#include "toolkit/Message_Boxes.h"
#include "windows/list/List_Dialogs.h"

#include <exception>
#include <utility>

namespace {

// The results of the send-time dialog; any other code means that nothing is to be sent.
constexpr int List_Was_Filled = 1;
constexpr int Send_List_As_It_Is = 0;

// Says why nothing is sent, and puts the focus where that can be fixed. Returns false, for the failed check.
bool Refuse(Main_Window& window, const QString& text, Main_Window::Field field)
{
    window.Tell_And_Focus(text, field);
    return false;
}

bool A_Device_Is_Selected()
{
    if (!sel_port_bsd_str.isEmpty())
        return true;
    Show_MessageBox(Texts::Sending::No_Device);
    return false;
}

bool No_Number_Is_Left_Over(Main_Window& window, const Send_Choices& choices)
{
    return Trim_Str(choices.number_text).isEmpty() ||
           Refuse(window, Texts::Sending::Number_Left_Over, Main_Window::Field::Number);
}

bool The_List_Has_Items(Main_Window& window)
{
    return window.Recipients().Count() > 0 || Refuse(window, Texts::Main::List_Empty, Main_Window::Field::Number);
}

bool Delayed_Delivery_Is_Complete(Main_Window& window, const Send_Choices& choices)
{
    if (!choices.delayed_delivery)
        return true;
    const QString text = Texts::Sending::No_Delivery_Values;
    if (Trim_Str(choices.batch_size).isEmpty())
        return Refuse(window, text, Main_Window::Field::Batch_Size);
    return !Trim_Str(choices.pause_choice).isEmpty() || Refuse(window, text, Main_Window::Field::Pause_Choice);
}

bool Blank_Messages_Are_Meant(Main_Window& window)
{
    return !window.Blank_Msg_Chk() || Show_YES_NO_MessageBox(Texts::Sending::Blank_Messages);
}

bool Ask_About_Composer_Text(Main_Window& window)
{
    try {
        const int answer = Ask_Send_Msg_Info(window);
        return answer == List_Was_Filled || answer == Send_List_As_It_Is;
    } catch (const std::exception& failure) {
        Show_NSLog_Message(QString::fromLocal8Bit(failure.what()));
        return true;
    }
}

// A composer text that has been offered for the list is not offered again until it changes, whatever the answer was.
bool Composer_Text_Is_Settled(Main_Window& window)
{
    if (window.Previous_Composer_Message() == Message_IS)
        return true;
    window.Set_Previous_Composer_Message(Message_IS);
    return Ask_About_Composer_Text(window) && !Program_Is_Exiting(); // leaving ends the dialog as well
}

} // namespace

std::optional<Send_Order> Take_Send_Order(Main_Window& window)
{
    Send_Choices choices = window.Read_Send_Choices();
    if (!A_Device_Is_Selected() || !No_Number_Is_Left_Over(window, choices) || !The_List_Has_Items(window))
        return std::nullopt;
    Message_IS = choices.composer_text;
    if (!Delayed_Delivery_Is_Complete(window, choices) || !Blank_Messages_Are_Meant(window) ||
        !Composer_Text_Is_Settled(window))
        return std::nullopt;
    return Send_Order{sel_port_bsd_str, Cus_SMS_Num_STR, std::move(choices), window.Recipients(), {}};
}
