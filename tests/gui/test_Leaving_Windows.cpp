#include "gui/Leaving_Program.h"
#include "platform/Text_Files.h"

#include <atomic>

using testing::IsEmpty;

namespace {

const QByteArray Records = "\a1\vone\ad\vDelivered\n\a2\vtwo\ad\v\n";
const QByteArray Rewritten = "\a1\vone\ad\v\n\a2\vtwo\ad\v\n";
const QByteArray Texts = "one\ntwo\n" + QByteArray(1590, 'x') + '\n';

// Three recipients, two sent items and three templates, left while a window is open or at work: without another box or
// dialog, and with the files as they were unless they were being written.
class Leaving_Windows : public Leaving_Program
{
public:
    Leaving_Windows()
    {
        Start();
        Add_Recipients();
        m_program->Delegate().Redisplay_Recipients();
        Write_Bytes(Sent_Item_Path, Records);
        Write_Bytes(Templates_Path, Texts);
    }

    using Leaving_Program::A_Box_Is_Open;
    using Leaving_Program::A_Panel_Is_Open;
    using Leaving_Program::Click;
    using Leaving_Program::Is_Shown;
    using Leaving_Program::m_program;
    using Leaving_Program::user;
    QPlainTextEdit& Composer() { return The<QPlainTextEdit>("_messageEdit"); }

    QString In_Folder(const char* name) const { return m_folder.filePath(name); }
    /// A file of so many numbers.
    QString Numbers_File(int count)
    {
        QByteArray lines;
        for (int number = 0; number < count; ++number)
            lines += QByteArray::number(100000 + number) + '\n';
        Write_Bytes(In_Folder("numbers.txt"), lines);
        return In_Folder("numbers.txt");
    }

    /// In the exclusion wizard, at the numbers of a new list, one of which is there and selected.
    void In_A_New_Exclusion_List(const std::function<void(QWidget&)>& meanwhile)
    {
        When_Filled(user, "Exclusion_Wizard", [meanwhile](QWidget& wizard) {
            Click_In(wizard, "m_addnew_btn");
            In<QLineEdit>(wizard, "m_ex_list_name_edit").setText("Staff");
            Click_In(wizard, "m_next_btn");
            In<QLineEdit>(wizard, "m_loadnum_edit").setText("123");
            Click_In(wizard, "m_add_num_btn");
            In<QTableView>(wizard, "m_ex_num_list").selectRow(0);
            meanwhile(wizard);
        });
        Click("View_ExclusionWizrd_Btn");
    }

    // In these windows a row is selected and a button pressed.
    void In_Sent_Items(int row, const char* button) { In_A_Store("Sent_Items", "Sent_Item_Btn", row, button); }
    void In_Templates(int row, const char* button) { In_A_Store("Templates", "View_Templates_Btn", row, button); }

protected:
    static void Expect_Files_As_They_Were()
    {
        EXPECT_EQ(Bytes_Of(Sent_Item_Path), Records);
        EXPECT_EQ(Bytes_Of(Templates_Path), Texts);
    }

    /// Until the program ends.
    void Hold_The_Sent_Items()
    {
        Start_Worker("holds the file", [this] {
            const File_Lock lock(Sent_Item_Path);
            m_is_held = true;
            Wait_Seconds(1000);
        });
        EXPECT_TRUE(Serve_Until([this] { return m_is_held.load(); }));
    }

    std::atomic<bool> m_is_held{false};

private:
    void In_A_Store(const char* window, const char* opener, int row, const char* button)
    {
        When_Filled(user, window, [row, button](QWidget& store) {
            store.findChild<QTableView*>()->selectRow(row);
            Click_In(store, button);
        });
        Click(opener);
    }

    QTemporaryDir m_folder;
};

// ---- A window is open, and what it would do is not done

struct Moment
{
    const char* name;
    std::function<bool()> is_there;
    void (*lead)(Leaving_Windows& it);
    int boxes = 0; ///< that are open
};

class Leaving_A_Window : public Leaving_Windows, public testing::WithParamInterface<Moment>
{
};

TEST_P(Leaving_A_Window, That_Is_Open_Changes_Nothing)
{
    for (int box = 0; box < GetParam().boxes; ++box)
        user.Will_Leave_It_Open();
    Leave_When(GetParam().is_there, [this] { GetParam().lead(*this); });
    EXPECT_EQ(user.Was_Shown().size(), GetParam().boxes);
    EXPECT_EQ(m_recipients_at_the_end, 3);
    Expect_Files_As_They_Were();
}

using It = Leaving_Windows;
const Moment Moments[] = {
    {"Notice", &It::A_Box_Is_Open, [](It& it) { it.Click("Add_Number"); }, 1},
    {"Question", &It::A_Box_Is_Open, [](It& it) { it.Click("Clear_All_Btn"); }, 1},
    {"Help", It::Is_Shown("Help_Wnd"), [](It& it) { it.Click("Help_Btn"); }},
    {"Notice_Of_A_Long_Message", It::Is_Shown("Long_SMS_Dlg"),
     [](It& it) { it.Composer().insertPlainText(QString(161, u'a')); }},
    {"Question_Before_An_Import", It::Is_Shown("Load_Num_Info"), [](It& it) { it.Click("Load_Number"); }},
    {"Panel_Of_An_Import", &It::A_Panel_Is_Open,
     [](It& it) {
         Will_Click_In(it.user, "Load_Num_Info", "NOPressed");
         it.Click("Load_Number");
     }},
    {"Sheet_Of_An_Unread_File", [] { return It::Is_Shown("PleaseWait_Modeless")() && Workers_Running() == 0; },
     [](It& it) { it.m_program->Delegate().Load_NUM_Thread(it.In_Folder("none.txt")); }},
    {"Panel_Of_An_Export", &It::A_Panel_Is_Open, [](It& it) { it.Click("Export_Btn"); }},
    {"Offer_To_Open_An_Export", It::Is_Shown("Open_Export_Log"),
     [](It& it) {
         Will_Enter_Path(it.user, it.In_Folder("list.txt"));
         it.Click("Export_Btn");
         EXPECT_TRUE(QFile::exists(it.In_Folder("list.txt")));
     }},
    {"Editor_Of_A_Recipient", It::Is_Shown("Update_Num_SMS"),
     [](It& it) {
         it.m_program->Delegate().findChild<QTableView*>("idTableView")->selectRow(1);
         it.m_program->Delegate().doubleClickInTable();
     }},
    {"Question_Of_The_Fill_Dialog", &It::A_Box_Is_Open,
     [](It& it) {
         it.Composer().setPlainText("new");
         Will_Click_In(it.user, "Fill_Msg_In_List", "OKPressed");
         it.Click("Fill_Msg_Btn");
         EXPECT_EQ(it.m_program->Delegate().Recipients().At(0).Message, "Hello");
     },
     1},
    {"Exclusion_Wizard_Whose_Lists_Come_In", [] { return It::Is_Shown("Exclusion_Wizard")() && Workers_Running() > 0; },
     [](It& it) {
         Set_Pace(1);
         it.Click("View_ExclusionWizrd_Btn");
     }},
    {"Question_About_Unsaved_Exclusions", &It::A_Box_Is_Open,
     [](It& it) { it.In_A_New_Exclusion_List([](QWidget& wizard) { Click_In(wizard, "m_back_btn"); }); }, 1},
    {"Editor_Of_An_Excluded_Number", It::Is_Shown("Update_Ex_Num"),
     [](It& it) { it.In_A_New_Exclusion_List([](QWidget& wizard) { Click_In(wizard, "m_update_num_btn"); }); }},
    {"Panel_Of_The_Exclusion_Wizard", &It::A_Panel_Is_Open,
     [](It& it) { it.In_A_New_Exclusion_List([](QWidget& wizard) { Click_In(wizard, "m_browse_btn"); }); }},
    {"Question_Before_All_Is_Cleared", &It::A_Box_Is_Open, [](It& it) { it.In_Sent_Items(0, "Clear_All_Btn"); }, 1},
    {"Editor_Of_A_Template", It::Is_Shown("UpdateTemp"), [](It& it) { it.In_Templates(1, "Update_Btn"); }},
    {"Question_About_A_Text_Too_Long", &It::A_Box_Is_Open,
     [](It& it) {
         it.Composer().setPlainText(QString(100, u'c'));
         it.In_Templates(2, "Use_template_Btn");
         EXPECT_EQ(it.Composer().toPlainText().size(), 100);
     },
     1},
    {"Notice_Of_A_Long_Message_Over_The_Templates", It::Is_Shown("Long_SMS_Dlg"),
     [](It& it) { it.In_Templates(2, "Use_template_Btn"); }}, // which are written once more, and the same
    {"Choice_Of_An_Export", It::Is_Shown("Export_Option"), [](It& it) { it.In_Templates(0, "Export_Btn"); }},
    {"Panel_Of_An_Export_Of_Sent_Items", &It::A_Panel_Is_Open,
     [](It& it) {
         Will_Click_In(it.user, "Export_Option", "OKPressed");
         it.In_Sent_Items(0, "Export_Btn");
     }},
    {"Offer_To_Open_Exported_Sent_Items", It::Is_Shown("Open_Export_Log"),
     [](It& it) {
         Will_Click_In(it.user, "Export_Option", "OKPressed");
         Will_Enter_Path(it.user, it.In_Folder("list.txt"));
         it.In_Sent_Items(0, "Export_Btn");
         EXPECT_TRUE(QFile::exists(it.In_Folder("list.txt")));
     }},
};
INSTANTIATE_TEST_SUITE_P(, Leaving_A_Window, testing::ValuesIn(Moments),
                         [](const auto& row) { return std::string(row.param.name); });

// ---- Something is being done

TEST_F(Leaving_Windows, While_A_File_Is_Imported)
{
    constexpr int Many = 3'000'000; // so that the end is not near when the first have been counted
    const QString path = Numbers_File(Many);
    Leave_When([this] { return The<QLabel>("_gsm_list_count").text() != "Total Numbers : 3"; },
               [this, path] { m_program->Delegate().Load_NUM_Thread(path); });
    EXPECT_LT(m_recipients_at_the_end, Many);
    EXPECT_THAT(user.Was_Shown(), IsEmpty());
}

TEST_F(Leaving_Windows, In_The_Second_Before_The_Selected_Numbers_Are_Shown)
{
    The<QTableView>("idTableView").selectAll();
    Leave_Just_After("Update_Sel_Msgs_Btn");
}

TEST_F(Leaving_Windows, While_An_Exclusion_List_Takes_A_File_In)
{
    const QString path = Numbers_File(300000);
    Leave_When(Is_Shown("PleaseWait_Modeless"), [this, path] {
        In_A_New_Exclusion_List([path](QWidget& wizard) {
            In<QLineEdit>(wizard, "m_loadfile_edit").setText(path);
            Click_In(wizard, "m_load_btn");
        });
    });
    EXPECT_THAT(user.Was_Shown(), IsEmpty());
}

TEST_F(Leaving_Windows, With_The_Offer_Before_Sending_Open_Sends_Nothing)
{
    const Virtual_Phone phone;
    sel_port_bsd_str = QString::fromStdString(phone.Path());
    Composer().setPlainText("new");
    m_program->Delegate().Set_Previous_Composer_Message(QString());
    Leave_When(Is_Shown("Send_Msg_Info"), [this] { Click("_sent_btn"); });
    EXPECT_THAT(phone.Inbox(), IsEmpty());
    EXPECT_THAT(user.Was_Shown(), IsEmpty());
}

TEST_F(Leaving_Windows, In_A_Pause_Of_A_Job)
{
    const Virtual_Phone phone;
    sel_port_bsd_str = QString::fromStdString(phone.Path());
    The<QCheckBox>("_Delayed_Delivry_Chk").click();
    EXPECT_EQ(The<QComboBox>("_delayed_msg_count_combo").currentText(), "15");
    EXPECT_EQ(The<QComboBox>("_delayed_time_combo").currentText(), " 2  Minutes");
    The<QComboBox>("_delayed_msg_count_combo").setCurrentIndex(0);
    Leave_When([] { return Pause_Timer_Running.load(); }, [this] { Click("_sent_btn"); });
    EXPECT_EQ(phone.Inbox().size(), 1U);
    EXPECT_THAT(user.Was_Shown(), IsEmpty());
}

TEST_F(Leaving_Windows, In_The_Second_Before_The_Sent_Items_Are_Shown)
{
    Leave_Just_After("Sent_Item_Btn");
    Expect_Files_As_They_Were();
}

TEST_F(Leaving_Windows, With_The_Sent_Items_Shown_And_Some_Deleted)
{
    bool is_deleted = false;
    Leave_When([&] { return is_deleted; },
               [&] {
                   When_Filled(user, "Sent_Items", [&](QWidget& window) {
                       window.findChild<QTableView*>()->selectRow(0);
                       Click_In(window, "Clear_Sel_Btn");
                       is_deleted = true;
                   });
                   Click("Sent_Item_Btn");
               });
    Expect_Files_As_They_Were();
}

TEST_F(Leaving_Windows, While_The_List_Comes_In_From_A_File_That_Is_Held)
{
    Hold_The_Sent_Items();
    Leave_When(Is_Shown("PleaseWait_Modeless"), [this] { Click("Sent_Item_Btn"); });
    Expect_Files_As_They_Were();
}

TEST_F(Leaving_Windows, While_The_Window_Writes_Its_List_Which_It_Still_Does)
{
    Leave_When([&] { return m_is_held && Is_Shown("PleaseWait_Modeless")(); },
               [&] {
                   When_Filled(user, "Sent_Items", [&](QWidget& window) {
                       Hold_The_Sent_Items();
                       Click_In(window, "Cancel_Btn");
                   });
                   Click("Sent_Item_Btn");
               });
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), Rewritten);
}

} // namespace
