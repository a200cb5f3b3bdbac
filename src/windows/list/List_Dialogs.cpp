#include "windows/list/List_Dialogs.h"

#include "engine/Job_State.h"
#include "texts/Texts.h"
#include "toolkit/Main_Window.h"
#include "toolkit/Message_Boxes.h"
#include "toolkit/Plain_Text_Edit.h"
#include "windows/list/Fill_Msg_In_List.h"
#include "windows/list/Send_Msg_Info.h"
#include "windows/list/Update_Num_SMS.h"
#include "windows/list/Update_Sel_Num_SMS.h"

void Open_Fill_Dialog(Main_Window& window)
{
    if (window.Recipients().Count() == 0) {
        window.Tell_And_Focus(Texts::Main::List_Empty, Main_Window::Field::Number);
        return;
    }
    Message_IS = window.Read_Send_Choices().composer_text;
    if (Message_IS.isEmpty()) {
        window.Tell_And_Focus(Texts::Message_Missing, Main_Window::Field::Composer);
        return;
    }
    if (Message_IS.size() > Longest_Message) {
        Message_IS.truncate(Longest_Message);
        window.Set_Composer_Text(Message_IS);
    }
    if (Fill_Msg_In_List::defaultInstance()->Open_Dialog(window) != 1)
        return;
    window.Set_Previous_Composer_Message(Message_IS);
    window.Redisplay_Recipients();
}

void Open_Update_Selected(Main_Window& window)
{
    if (window.Recipients().Count() == 0)
        Show_MessageBox(Texts::Main::List_Empty);
    else if (window.Selected_Recipient_Rows().empty())
        Show_MessageBox(Texts::Main::None_Selected);
    else
        Update_Sel_Num_SMS::defaultInstance()->Open_Dialog(window);
}

void Open_Edit_Dialog(Main_Window& window, int row)
{
    if (row < 0 || row >= window.Recipients().Count())
        return;
    if (Update_Num_SMS::defaultInstance()->Open_Dialog(window, row) == 1)
        window.Redisplay_Recipients();
}

int Ask_Send_Msg_Info(Main_Window& window)
{
    return Send_Msg_Info::defaultInstance()->Open_Dialog(window);
}
