#include "sending/Send_Checks.h"

#include "app/basics/Log_Line.h"
#include "app/basics/String_Helpers.h"
#include "app/shared/Globals.h"
#include "app/shared/Message_Boxes.h"
#include "dialogs/List_Dialogs.h"
#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"

#include <exception>

namespace {

// What the send-time dialog ends with; any other code means that nothing is to be sent.
constexpr int List_Was_Filled = 1;
constexpr int Send_List_As_It_Is = 0;

const QString& No_Device_Text()
{
    static const auto text =
        QStringLiteral("Either Mobile Device is not connected properly or No Mobile Phone Device is "
                       "selected.\n\nPlease use Mobile Phone Connection Wizard for finding device or "
                       "establishing connection.");
    return text;
}

const QString& Blank_Messages_Question()
{
    static const auto text =
        QStringLiteral("\nYou have composed no text message yet for any of the contacts in the entire "
                       "list. This action will send blank message to all the contacts in list.\n\n"
                       "Are you sure you want to continue?");
    return text;
}

// Tells why nothing is sent, and puts the focus where that can be mended. Answers no, for the check that failed.
bool Refuse(Main_Window& window, const QString& text, Main_Window::Field field)
{
    Show_MessageBox(text);
    Run_On_Interface_Thread([&] { window.Focus(field); });
    return false;
}

Send_Order Read_Form(Main_Window& window)
{
    Send_Order order;
    Run_On_Interface_Thread([&] {
        order.device_path = sel_port_bsd_str;
        order.service_centre = Cus_SMS_Num_STR;
        order.choices = window.Read_Send_Choices();
    });
    return order;
}

bool A_Device_Is_Selected(const Send_Order& order)
{
    if (!order.device_path.isEmpty())
        return true;
    Show_MessageBox(No_Device_Text());
    return false;
}

bool No_Number_Is_Left_Over(Main_Window& window, const Send_Choices& choices)
{
    return Trim_Str(choices.number_text).isEmpty() ||
           Refuse(window, QStringLiteral("Please insert entered number to the list."), Main_Window::Field::Number);
}

bool The_List_Has_Items(Main_Window& window)
{
    int count = 0;
    Run_On_Interface_Thread([&] { count = window.Recipients().Count(); });
    return count > 0 ||
           Refuse(window, QStringLiteral("Phone numbers-Messages list is empty."), Main_Window::Field::Number);
}

void Take_Composer_Text(const Send_Choices& choices)
{
    Run_On_Interface_Thread([&] { Message_IS = choices.composer_text; });
}

bool Delayed_Delivery_Is_Complete(Main_Window& window, const Send_Choices& choices)
{
    if (!choices.delayed_delivery)
        return true;
    const auto text = QStringLiteral("No values have been selected in 'Delayed Delivery Options'.");
    if (Trim_Str(choices.batch_size).isEmpty())
        return Refuse(window, text, Main_Window::Field::Batch_Size);
    return !Trim_Str(choices.pause_choice).isEmpty() || Refuse(window, text, Main_Window::Field::Pause_Choice);
}

bool Blank_Messages_Are_Meant(Main_Window& window)
{
    bool is_blank = false;
    Run_On_Interface_Thread([&] { is_blank = window.Blank_Msg_Chk(); });
    return !is_blank || Show_YES_NO_MessageBox(Blank_Messages_Question());
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

// A composer text that is offered for the list once is not offered again before it changes, whatever the answer was.
bool Composer_Text_Is_Settled(Main_Window& window)
{
    bool is_settled = true;
    Run_On_Interface_Thread([&] {
        if (window.Previous_Composer_Message() == Message_IS)
            return;
        window.Set_Previous_Composer_Message(Message_IS);
        is_settled = Ask_About_Composer_Text(window);
    });
    return is_settled && !Program_Is_Exiting(); // leaving ends the dialog as well
}

void Take_Lists(Main_Window& window, Send_Order& order)
{
    Run_On_Interface_Thread([&] {
        order.recipients = window.Recipients();
        order.exclusions = window.Exclusions();
    });
}

} // namespace

std::optional<Send_Order> Take_Send_Order(Main_Window& window)
{
    Send_Order order = Read_Form(window);
    if (!A_Device_Is_Selected(order) || !No_Number_Is_Left_Over(window, order.choices) || !The_List_Has_Items(window))
        return std::nullopt;
    Take_Composer_Text(order.choices);
    if (!Delayed_Delivery_Is_Complete(window, order.choices) || !Blank_Messages_Are_Meant(window))
        return std::nullopt;
    if (!Composer_Text_Is_Settled(window))
        return std::nullopt;
    Take_Lists(window, order);
    return order;
}
