#include "gui/Every_Window.h"

#include "engine/Composer_Rules.h"
#include "records/Exclusion_Files.h"
#include "records/Exclusion_Trouble.h"
#include "toolkit/PleaseWait_Modeless.h"
#include "windows/exclusion/Exclusion_Wizard.h"
#include "windows/list/Fill_Msg_In_List.h"
#include "windows/list/Send_Msg_Info.h"
#include "windows/list/Update_Num_SMS.h"
#include "windows/list/Update_Sel_Num_SMS.h"
#include "windows/main/Help_Wnd.h"
#include "windows/main/Load_Num_Info.h"
#include "windows/main/Long_SMS_Dlg.h"
#include "windows/main/Send_Modeless.h"
#include "windows/phone/Connection_Info.h"
#include "windows/phone/Phone_List_Wnd.h"
#include "windows/stores/Export_Option.h"
#include "windows/stores/Open_Export_Log.h"
#include "windows/stores/Sent_Items.h"
#include "windows/stores/Templates.h"
#include "windows/stores/UpdateTemp.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>

namespace {

const char* const Longest_Count = "1600 Characters (Each Message will now consume 23 SMS)";

template <typename Widget>
Widget& In(QWidget& window, const char* name)
{
    auto* widget = window.findChild<Widget*>(QLatin1String(name));
    if (!widget)
        qFatal("there is no %s in %s", name, qPrintable(window.objectName()));
    return *widget;
}

void Set_Label(QWidget& window, const char* name, const QString& text)
{
    In<QLabel>(window, name).setText(text);
}

QWidget& Main_Window_With_Everything(CorvaneAppDelegate& main)
{
    In<QTableView>(main, "idExclusionTableView").show();
    In<QCheckBox>(main, "_Delayed_Delivry_Chk").setChecked(true);
    Set_Label(main, "_Msg_char_count", Longest_Count);
    Set_Label(main, "_gsm_list_count", "Total Numbers : 1000000");
    Set_Label(main, "_Device_Name_Ticker", "usb-Sierra_Wireless_EM7455-if03");
    Exclusion_Files::Applied_Numbers applied;
    applied.unusable_lists = QStringList(5, QString(50, u'W'));
    Set_Label(main, "_Exclusion_Trouble", Exclusion_Trouble(applied));
    In<QLabel>(main, "_Exclusion_Trouble").show();
    return main;
}

QWidget& Progress_In_A_Pause(CorvaneAppDelegate& /*main*/)
{
    auto& window = *Send_Modeless::defaultInstance();
    Set_Label(window, "_curr_msg_cnt", "Initializing mobile phone device to send sms ...");
    Set_Label(window, "_tot_msg_cnt", "1000000");
    Set_Label(window, "_current_send_msg", QString(20, u'0') + " is Excluded.");
    Set_Label(window, "_pause_timer", "Pausing the process for 1 Hour 59 Minute 59 Seconds.");
    return window;
}

QWidget& Notice_Of_A_Long_Message(CorvaneAppDelegate& /*main*/)
{
    auto& window = *Long_SMS_Dlg::defaultInstance();
    Set_Label(window, "_Msg_Val", Composer_Rules::Long_SMS_Text(true));
    return window;
}

QWidget& Connection_Help(CorvaneAppDelegate& /*main*/)
{
    auto& window = *Connection_Info::defaultInstance();
    window.Show_Advice(
        {{"This computer shows no serial port of a phone or modem yet. When the phone is connected, it takes "
          "some seconds until there is one.",
          {}},
         {"Your account may not use serial ports. Let somebody who may add it to the group:",
          "sudo usermod -aG dialout somebody"}});
    return window;
}

QWidget& Wizard_With_A_Device(CorvaneAppDelegate& /*main*/)
{
    auto& window = *Phone_List_Wnd::defaultInstance();
    window.Insert_port_in_List("/dev/serial/by-id/usb-" + QString(300, u'L') + "-if00-port0");
    return window;
}

QWidget& Edit_Of_One(CorvaneAppDelegate& /*main*/)
{
    auto& window = *Update_Num_SMS::defaultInstance();
    Set_Label(window, "m_st_msg_cnt", Longest_Count);
    return window;
}

QWidget& Edit_Of_The_Selected(CorvaneAppDelegate& /*main*/)
{
    auto& window = *Update_Sel_Num_SMS::defaultInstance();
    Set_Label(window, "m_st_msg_cnt", Longest_Count);
    Set_Label(window, "m_st_num_cnt", "Total Selected Numbers : 1000000");
    return window;
}

QWidget& Templates_With_Notices(CorvaneAppDelegate& /*main*/)
{
    auto& window = *Templates::defaultInstance();
    In<QLabel>(window, "_notice").show();
    Set_Label(window, "_notice",
              "Templates that could not be saved the last time are in the list again. They are saved when this window "
              "closes.\nThe templates stored so far can not be read. They are kept in a file of their own when this "
              "list is saved.\nChanges can not be saved at present: the folder "
              "/home/somebody/.local/share/corvane/Resources/CORVANE_DATA can not be written to.");
    return window;
}

QWidget& Template_Editor(CorvaneAppDelegate& /*main*/)
{
    auto& window = *UpdateTemp::defaultInstance();
    Set_Label(window, "m_st_msg_cnt", "1600 Characters");
    return window;
}

QWidget& Export_That_Nothing_Opens(CorvaneAppDelegate& /*main*/)
{
    auto& window = *Open_Export_Log::defaultInstance();
    In<QLabel>(window, "_notice").show();
    return window;
}

QWidget& Exclusion_Lists(CorvaneAppDelegate& /*main*/)
{
    auto& wizard = *Exclusion_Wizard::defaultInstance();
    wizard.Show_Hide_First_Screen(false);
    return wizard;
}

QWidget& Exclusion_Name(CorvaneAppDelegate& main)
{
    Exclusion_Lists(main);
    Exclusion_Wizard::defaultInstance()->AddNew_Btn();
    return *Exclusion_Wizard::defaultInstance();
}

QWidget& Exclusion_Numbers(CorvaneAppDelegate& main)
{
    auto& wizard = Exclusion_Name(main);
    In<QLineEdit>(wizard, "m_ex_list_name_edit").setText("Customers of the northern region, without Scotland");
    Exclusion_Wizard::defaultInstance()->Next_Btn();
    Set_Label(wizard, "m_st_num_count", "Total Numbers : 1000000");
    return wizard;
}

template <class Window>
QWidget& Shared(CorvaneAppDelegate& /*main*/)
{
    return *Window::defaultInstance();
}

template <class Window>
QWidget& Made_Over(CorvaneAppDelegate& main)
{
    return *new Window(&main);
}

} // namespace

const std::vector<Sight>& Every_Window()
{
    static const std::vector<Sight> sights = {
        {"main window", [](CorvaneAppDelegate& main) -> QWidget& { return main; }},
        {"main window with everything", Main_Window_With_Everything},
        {"help", Made_Over<Help_Wnd>},
        {"import question", Made_Over<Load_Num_Info>},
        {"connection help", Connection_Help},
        {"connection wizard", Wizard_With_A_Device},
        {"notice of a long message", Notice_Of_A_Long_Message},
        {"progress", Progress_In_A_Pause},
        {"please wait", Made_Over<PleaseWait_Modeless>},
        {"fill", Shared<Fill_Msg_In_List>},
        {"before sending", Shared<Send_Msg_Info>},
        {"edit of one", Edit_Of_One},
        {"edit of the selected", Edit_Of_The_Selected},
        {"sent items", Shared<Sent_Items>},
        {"templates", Shared<Templates>},
        {"templates with notices", Templates_With_Notices},
        {"template editor", Template_Editor},
        {"export option", Shared<Export_Option>},
        {"export done", Shared<Open_Export_Log>},
        {"export that nothing opens", Export_That_Nothing_Opens},
        {"exclusion lists", Exclusion_Lists},
        {"name of an exclusion list", Exclusion_Name},
        {"numbers of an exclusion list", Exclusion_Numbers},
        {"edit of an excluded number",
         [](CorvaneAppDelegate&) -> QWidget& {
             return In<QDialog>(*Exclusion_Wizard::defaultInstance(), "Update_Ex_Num");
         }},
    };
    return sights;
}
