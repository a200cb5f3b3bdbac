#include "tour/Walk.h"

#include "records/Data_Paths.h"
#include "tour/Story.h"
#include "tour/Windows.h"

#include <QFile>

using namespace Windows;

namespace {

const QString Fill_Blank_Question =
    Told("This action will copy the message of composer box to the blank list items. The messages of rest of "
         "the numbers remain unchanged.\n\nDo you want to continue?",
         "Die verfasste Nachricht wird in die Einträge ohne Nachricht kopiert. Die Nachrichten der übrigen Nummern "
         "bleiben unverändert.\n\nMöchten Sie fortfahren?");
const QString Fill_Selected_Question =
    Told("This action will copy the above message to the selected numbers in the list. The messages of rest "
         "of the numbers remain unchanged.\n\nDo you want to continue?",
         "Die Nachricht oben wird in die ausgewählten Nummern der Liste kopiert. Die Nachrichten der übrigen Nummern "
         "bleiben unverändert.\n\nMöchten Sie fortfahren?");
const QString Continue_Question = Told("Are you sure you want to continue", "Möchten Sie wirklich fortfahren?");
const QString Yes = Told("Yes", "Ja");
const QString No = Told("No", "Nein");
const QString Total_Items = Told("Total Items : ", "Einträge gesamt: ");

QByteArray Content_Of(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw Tour_Failed(path + " can not be read");
    return file.readAll();
}

} // namespace

void Walk::Go(const QString& phone_path)
{
    Story::Write_Files(m_folder);
    Choose_The_Phone(phone_path);
    Keep_Exclusion_Lists();
    Keep_Templates();
    Fill_The_List();
    Edit_The_List();
    Export_The_Contacts();
    Send_The_List();
    Look_At_Sent_Items();
    Look_At_Templates();
    Look_At_The_Rest();
}

void Walk::Choose_The_Phone(const QString& phone_path)
{
    Take_Picture(Main, "main-window");
    Click(Main, "_NO_Device_Ticker");
    Take_Picture(Connection, "connection-info");
    Click(Connection, "Continue_Btn");
    Click_Row_With(Phone_Wizard, "idPortList", phone_path);
    Take_Picture(Please_Wait, "please-wait");
    Await_Gone(Please_Wait);
    Take_Picture(Phone_Wizard, "phone-wizard");
    Leave(Phone_Wizard, "_Select_Btn");
}

void Walk::Add_Number(const QString& number)
{
    Type(Main, "_numberEdit", number);
    Click(Main, "Add_Number");
    Await_Until("the number field to be empty", [&] { return Text_Of(Main, "_numberEdit").isEmpty(); });
}

// Two numbers without a message, one of which the exclusion list gets hold of only when it is sent to; then a file.
void Walk::Fill_The_List()
{
    Add_Number("+447700900123");
    Add_Number(Story::Moved_Member);
    for (const auto* option : {"_Skip_Duplicate_Chk", "_Exclusion_Chk", "_Save_Sent_Item_Chk", "_Save_Templates_Chk",
                               "_Delayed_Delivry_Chk"})
        Click(Main, option);
    Retype(Main, "_delayed_msg_count_combo", "2");
    Retype(Main, "_delayed_time_combo", Told("10 Seconds", "10 Sekunden"));
    Click(Main, "View_Templates_Btn");
    Click_Row_With(Templates, "idTemplateList", Story::Rehearsal);
    Leave(Templates, "Use_template_Btn");
    Await_Text(Main, "_messageEdit", Story::Rehearsal);
    Click(Main, "Load_Number");
    Take_Picture(Import_Question, "import-question");
    Click(Import_Question, "NOPressed");
    Choose_File(Story::Members_File, "file-to-open");
    Await_Text(Main, "_gsm_list_count", Told("Total Numbers : 6", "Nummern gesamt: 6"));
    Click(Main, "Fill_Msg_Btn");
    Click(Fill, "_fill_msg_blank");
    Take_Picture(Fill, "fill-list");
    Click(Fill, "OKPressed");
    Take_Picture(Message_Box, "question");
    Press_In_Box(Yes, Fill_Blank_Question);
    Await_Gone(Fill);
}

void Walk::Edit_The_List()
{
    // The message grows beyond what one SMS holds, which the notice tells while it is typed.
    Click_Row_With(Main, "idTableView", Story::Concert_Helper, Row_Click::Open);
    Type(Edit_One_Window, "m_msg_str", Story::About_The_Concert);
    Take_Picture(Long_Message, "long-message");
    Click(Long_Message, "OKPressed");
    Await_Text(Edit_One_Window, "m_msg_str", Story::Rehearsal + Story::About_The_Concert);
    Take_Picture(Edit_One_Window, "edit-one");
    Leave(Edit_One_Window, "OKPressed");
    Click_Row_With(Main, "idTableView", Story::Soloists.at(0));
    Click_Row_With(Main, "idTableView", Story::Soloists.at(1), Row_Click::Add_To_Selection);
    Click(Main, "Update_Sel_Msgs_Btn");
    Type(Edit_Selected_Window, "m_msg_str", Story::To_The_Soloists);
    Await_Text(Edit_Selected_Window, "m_msg_str", Story::To_The_Soloists);
    Take_Picture(Edit_Selected_Window, "edit-selected");
    Click(Edit_Selected_Window, "OKPressed");
    Press_In_Box(Yes, Fill_Selected_Question);
    Await_Gone(Edit_Selected_Window);
    Take_Picture(Main, "list-filled");
}

void Walk::Export_The_Contacts()
{
    Click(Main, "Export_Btn");
    Choose_File("recipients", "file-to-save");
    Take_Picture(Export_Done, "export-done");
    Leave(Export_Done, "CancelPressed");
    Expect_In_File(m_folder + "/recipients.txt", Story::Contacts_Export());
}

void Walk::Keep_Exclusion_Lists()
{
    Click(Main, "View_ExclusionWizrd_Btn");
    Name_New_List(Story::Moved_Away);
    // Two numbers from a file and one typed by hand, with a slip that is put right.
    Click(Exclusions, "m_browse_btn");
    Choose_File(Story::Moved_Away_File, "file-of-numbers");
    Click(Exclusions, "m_load_btn");
    Await_Text(Exclusions, "m_st_num_count", Told("Total Numbers : 2", "Nummern gesamt: 2"));
    Type(Exclusions, "m_loadnum_edit", "07700900339");
    Click(Exclusions, "m_add_num_btn");
    Click_Row_With(Exclusions, "m_ex_num_list", "07700900339");
    Click(Exclusions, "m_update_num_btn");
    Retype(Exclusion_Number, "m_ex_num_str", "07700900333");
    Await_Text(Exclusion_Number, "m_ex_num_str", "07700900333");
    Take_Picture(Exclusion_Number, "exclusion-edit-number");
    Leave(Exclusion_Number, "OKPressed");
    Take_Picture(Exclusions, "exclusion-numbers");
    Finish_List();
    Name_New_List(Story::Committee);
    Type(Exclusions, "m_loadnum_edit", "07700900999");
    Click(Exclusions, "m_add_num_btn");
    Finish_List();
    Click_Row_With(Exclusions, "m_exclusion_list", Story::Moved_Away);
    Click(Exclusions, "m_addlist_btn");
    Click(Exclusions, "m_saveapplied_btn");
    Press_In_Box(Yes, Continue_Question);
    Take_Picture(Exclusions, "exclusion-lists");
    Leave(Exclusions, "m_cancel_btn");
    Expect_In_File(Exclusion_Index_Path, (Story::Moved_Away + '\n' + Story::Committee + '\n').toUtf8());
    Expect_In_File(Applied_Exclusion_Path, (Story::Moved_Away + '\n').toUtf8());
    Expect_In_File(Exclusion_Folder_Path + '/' + Story::Moved_Away + ".ZOVA",
                   "07700900111\n07700900222\n07700900333\n");
}

void Walk::Name_New_List(const QString& name)
{
    Click(Exclusions, "m_addnew_btn");
    Type(Exclusions, "m_ex_list_name_edit", name);
    Await_Text(Exclusions, "m_ex_list_name_edit", name);
    if (name == Story::Moved_Away)
        Take_Picture(Exclusions, "exclusion-name");
    Click(Exclusions, "m_next_btn");
}

void Walk::Finish_List()
{
    Click(Exclusions, "m_finish_btn");
    Press_In_Box(Yes, Continue_Question);
}

void Walk::Keep_Templates()
{
    Click(Main, "View_Templates_Btn");
    for (const QString& text : {Story::Rehearsal, Story::Thanks}) {
        Click(Templates, "AddNew_Btn");
        Type(Template, "m_templ_msg_str", text);
        Await_Text(Template, "m_templ_msg_str", text);
        Take_Picture(Template, "template");
        Leave(Template, "OKPressed");
    }
    Await_Text(Templates, "_templ_list_count", Total_Items + "2");
    Leave(Templates, "Cancel_Btn");
}

void Walk::Send_The_List()
{
    // What the composer holds is not in the list, so the program asks first; the list is to be sent as it stands.
    Retype(Main, "_messageEdit", Story::Not_To_Be_Sent);
    Await_Text(Main, "_messageEdit", Story::Not_To_Be_Sent);
    m_day_before_sending = QDate::currentDate();
    Click(Main, "_sent_btn");
    Take_Picture(Before_Sending, "before-sending");
    Click(Before_Sending, "ContinuePressed");
    Take_Picture(Progress, "preparing");
    Await_Text(Progress, "_curr_msg_cnt", "3 / 6");
    Take_Picture(Progress, "progress");
    Await_Text(Progress, "_pause_timer", Told("Pausing the process for ", "Pause: noch "));
    Take_Picture(Progress, "pausing");
    Await_Text(Progress, "_curr_msg_cnt", "4 / 6");
    Take_Picture_With_What_Is_Over(Main, "sending");
    const QString result = Text_Of_Box();
    Take_Picture(Message_Box, "completed");
    printf("box      %s\n", qPrintable(result.trimmed()));
    Press_In_Box("OK", Told("Message Sending Process Completed.", "Der Versand ist abgeschlossen."));
}

void Walk::Look_At_Sent_Items()
{
    Click(Main, "Sent_Item_Btn");
    Await_Text(Sent_Items, "_sent_list_count", Total_Items + "5");
    Click_Row_With(Sent_Items, "idSendList", Story::Concert_Helper);
    Await_Text(Sent_Items, "_Mess_det_edit", Told("Number\t: ", "Nummer:\t") + Story::Concert_Helper);
    Take_Picture(Sent_Items, "sent-items");
    Export(Sent_Items, "Export_In_Html_RD", "sent.html", "export-format");
    Expect_In_File(m_folder + "/sent.html", Story::Sent_Items_Page);
    Leave(Sent_Items, "Cancel_Btn");
    Expect_In_File(Sent_Item_Path, Story::Sent_Items); // closing has written it anew
}

void Walk::Look_At_Templates()
{
    Click(Main, "View_Templates_Btn");
    Await_Text(Templates, "_templ_list_count", Total_Items + "4");
    Click_Row_With(Templates, "idTemplateList", Story::Thanks);
    Take_Picture(Templates, "templates");
    Export(Templates, "Export_In_Text_RD", "templates.txt", {});
    Expect_In_File(m_folder + "/templates.txt", Story::Templates_Export());
    Leave(Templates, "Cancel_Btn");
    Expect_In_File(Templates_Path, Story::Templates());
}

void Walk::Look_At_The_Rest()
{
    Click(Main, "Help_Btn");
    Take_Picture(Help, "help");
    Leave(Help, "OKPressed");
    Click(Main, "Exit_Btn");
    Take_Picture(Message_Box, "exit-question");
    Press_In_Box(No, Told("Do you really want to exit from 'Corvane'?", "Möchten Sie Corvane wirklich beenden?"));
}

void Walk::Export(const QString& window, const QString& format, const QString& file_name, const QString& picture)
{
    Click(window, "Export_Btn");
    Click(Export_Format, format);
    if (!picture.isEmpty())
        Take_Picture(Export_Format, picture);
    Click(Export_Format, "OKPressed");
    Choose_File(file_name, "file-to-save");
    Leave(Export_Done, "CancelPressed");
}

void Walk::Expect_In_File(const QString& path, const QByteArray& content)
{
    const QByteArray found = Content_Of(path);
    if (found != content)
        throw Tour_Failed(path + " holds " + QString::fromLatin1(found.toPercentEncoding(" ")) + " instead of " +
                          QString::fromLatin1(content.toPercentEncoding(" ")));
    printf("file     %s holds what it must\n", qPrintable(path));
}

void Walk::Expect_In_File(const QString& path, QByteArray (*content)(const QDate&))
{
    const bool is_of_day_before = Content_Of(path) == content(m_day_before_sending);
    Expect_In_File(path, content(is_of_day_before ? m_day_before_sending : QDate::currentDate()));
}
