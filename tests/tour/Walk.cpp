#include "tour/Walk.h"

#include "tour/Story.h"
#include "tour/Visitor.h"
#include "tour/Windows.h"

// The way through the main window and its list; the lists of exclusions and templates are in Walk_Stores.cpp, the
// sending in Walk_Sending.cpp.

using namespace Windows;

namespace {

const QString Fill_Blank_Question =
    QStringLiteral("This action will copy the message of composer box to the blank list items. The messages of rest of "
                   "the numbers remain unchanged.\n\nDo you want to continue?");
const QString Fill_Selected_Question =
    QStringLiteral("This action will copy the above message to the selected numbers in the list. The messages of rest "
                   "of the numbers remain unchanged.\n\nDo you want to continue?");

const QString Total = QStringLiteral("Total Numbers : %1");
const QString Count_Label = QStringLiteral("_gsm_list_count");
const QString List = QStringLiteral("idTableView");

} // namespace

Walk::Walk(Visitor& visitor, QString folder) : m_visitor(visitor), m_folder(std::move(folder)) {}

void Walk::Choose_The_Phone(const QString& phone_path)
{
    m_visitor.Take_Picture(Main, QStringLiteral("main-window"));
    m_visitor.Click(Main, QStringLiteral("_NO_Device_Ticker"));
    m_visitor.Take_Picture(Connection, QStringLiteral("connection-info"));
    m_visitor.Click(Connection, QStringLiteral("Continue_Btn"));
    m_visitor.Click_Row_With(Phone_Wizard, QStringLiteral("idPortList"), phone_path);
    m_visitor.Take_Picture(Please_Wait, QStringLiteral("please-wait"));
    m_visitor.Await_Gone(Please_Wait);
    m_visitor.Take_Picture(Phone_Wizard, QStringLiteral("phone-wizard"));
    m_visitor.Click(Phone_Wizard, QStringLiteral("_Select_Btn"));
    m_visitor.Await_Gone(Phone_Wizard);
}

void Walk::Add_Number(const QString& number)
{
    m_visitor.Type(Main, QStringLiteral("_numberEdit"), number);
    m_visitor.Click(Main, QStringLiteral("Add_Number"));
    m_visitor.Await_Until(QStringLiteral("the number field to be empty"),
                          [&] { return m_visitor.Text_Of(Main, QStringLiteral("_numberEdit")).isEmpty(); });
}

// Two numbers without a message, one of which the exclusion list gets hold of only when it is sent to; then a file.
void Walk::Fill_The_List()
{
    Add_Number(QStringLiteral("+447700900123"));
    Add_Number(Story::Moved_Member);
    Tick_The_Options();
    m_visitor.Click(Main, QStringLiteral("View_Templates_Btn"));
    m_visitor.Click_Row_With(Templates, QStringLiteral("idTemplateList"), Story::Rehearsal);
    m_visitor.Click(Templates, QStringLiteral("Use_template_Btn"));
    m_visitor.Await_Gone(Templates);
    m_visitor.Await_Text(Main, QStringLiteral("_messageEdit"), Story::Rehearsal);
    m_visitor.Click(Main, QStringLiteral("Load_Number"));
    m_visitor.Take_Picture(Import_Question, QStringLiteral("import-question"));
    m_visitor.Click(Import_Question, QStringLiteral("NOPressed"));
    m_visitor.Choose_File(Story::Members_File, QStringLiteral("file-to-open"));
    m_visitor.Await_Text(Main, Count_Label, Total.arg(6));
    m_visitor.Click(Main, QStringLiteral("Fill_Msg_Btn"));
    m_visitor.Click(Fill, QStringLiteral("_fill_msg_blank"));
    m_visitor.Take_Picture(Fill, QStringLiteral("fill-list"));
    m_visitor.Click(Fill, QStringLiteral("OKPressed"));
    m_visitor.Take_Picture(Message_Box, QStringLiteral("question"));
    m_visitor.Press_In_Box(QStringLiteral("Yes"), Fill_Blank_Question);
    m_visitor.Await_Gone(Fill);
}

void Walk::Tick_The_Options()
{
    for (const auto* option : {"_Skip_Duplicate_Chk", "_Exclusion_Chk", "_Save_Sent_Item_Chk", "_Save_Templates_Chk",
                               "_Delayed_Delivry_Chk"})
        m_visitor.Click(Main, QString::fromLatin1(option));
    m_visitor.Retype(Main, QStringLiteral("_delayed_msg_count_combo"), QStringLiteral("2"));
    m_visitor.Retype(Main, QStringLiteral("_delayed_time_combo"), QStringLiteral("10 Seconds"));
}

void Walk::Edit_The_List()
{
    Edit_One();
    Edit_Selected();
    m_visitor.Take_Picture(Main, QStringLiteral("list-filled"));
}

// The message grows beyond what one SMS holds, which the notice tells while it is typed.
void Walk::Edit_One()
{
    m_visitor.Click_Row_With(Main, List, Story::Concert_Helper, Visitor::Row_Click::Open);
    m_visitor.Type(Edit_One_Window, QStringLiteral("m_msg_str"), Story::About_The_Concert);
    m_visitor.Take_Picture(Long_Message, QStringLiteral("long-message"));
    m_visitor.Click(Long_Message, QStringLiteral("OKPressed"));
    m_visitor.Await_Text(Edit_One_Window, QStringLiteral("m_msg_str"), Story::Rehearsal + Story::About_The_Concert);
    m_visitor.Take_Picture(Edit_One_Window, QStringLiteral("edit-one"));
    m_visitor.Click(Edit_One_Window, QStringLiteral("OKPressed"));
    m_visitor.Await_Gone(Edit_One_Window);
}

void Walk::Edit_Selected()
{
    m_visitor.Click_Row_With(Main, List, Story::Soloists.at(0));
    m_visitor.Click_Row_With(Main, List, Story::Soloists.at(1), Visitor::Row_Click::Add_To_Selection);
    m_visitor.Click(Main, QStringLiteral("Update_Sel_Msgs_Btn"));
    m_visitor.Type(Edit_Selected_Window, QStringLiteral("m_msg_str"), Story::To_The_Soloists);
    m_visitor.Await_Text(Edit_Selected_Window, QStringLiteral("m_msg_str"), Story::To_The_Soloists);
    m_visitor.Take_Picture(Edit_Selected_Window, QStringLiteral("edit-selected"));
    m_visitor.Click(Edit_Selected_Window, QStringLiteral("OKPressed"));
    m_visitor.Press_In_Box(QStringLiteral("Yes"), Fill_Selected_Question);
    m_visitor.Await_Gone(Edit_Selected_Window);
}

void Walk::Export_The_Contacts()
{
    const QString file = QStringLiteral("recipients.txt");
    m_visitor.Click(Main, QStringLiteral("Export_Btn"));
    m_visitor.Choose_File(QStringLiteral("recipients"), QStringLiteral("file-to-save"));
    m_visitor.Take_Picture(Export_Done, QStringLiteral("export-done"));
    m_visitor.Click(Export_Done, QStringLiteral("CancelPressed"));
    m_visitor.Await_Gone(Export_Done);
    Expect_In_File(m_folder + u'/' + file, Story::Contacts_Export());
}

void Walk::Look_At_The_Rest()
{
    m_visitor.Click(Main, QStringLiteral("Help_Btn"));
    m_visitor.Take_Picture(Help, QStringLiteral("help"));
    m_visitor.Click(Help, QStringLiteral("OKPressed"));
    m_visitor.Await_Gone(Help);
    m_visitor.Click(Main, QStringLiteral("Exit_Btn"));
    m_visitor.Take_Picture(Message_Box, QStringLiteral("exit-question"));
    m_visitor.Press_In_Box(QStringLiteral("No"), QStringLiteral("Do you really want to exit from 'Corvane'?"));
}
