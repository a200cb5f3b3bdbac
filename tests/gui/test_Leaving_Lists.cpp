#include "device/Chosen_Device.h"
#include "engine/Job_State.h"
#include "gui/Leaving_Program.h"
#include "windows/exclusion/Exclusion_Wizard.h"

#include <QFile>
#include <QFileDialog>
#include <QTemporaryDir>

using testing::IsEmpty;

namespace {

// The program with three recipients, left while one of the windows around their list is open or at work: each time
// without another box or dialog.
class Leaving_Lists : public Leaving_Program
{
protected:
    Leaving_Lists()
    {
        Start();
        for (const char* number : {"111", "222", "333"})
            m_program->Delegate().Create_Num_Msg_List(QLatin1String(number), QStringLiteral("Hello"));
        m_program->Delegate().Redisplay_Recipients();
    }

    static bool A_Panel_Is_Open() { return qobject_cast<QFileDialog*>(QApplication::activeModalWidget()) != nullptr; }

    /// A file of so many numbers.
    QString Numbers_File(int count)
    {
        QByteArray lines;
        for (int number = 0; number < count; ++number)
            lines += QByteArray::number(100000 + number) + '\n';
        QFile file(m_folder.filePath("numbers.txt"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(lines), lines.size());
        return file.fileName();
    }

    void Open_Exclusion_Wizard(const std::function<void(QWidget&)>& meanwhile)
    {
        user.When_Opens("Exclusion_Wizard", [meanwhile](QWidget& wizard) {
            EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
            meanwhile(wizard);
        });
        Click("View_ExclusionWizrd_Btn");
    }

    /// In the wizard, up to the numbers of a new list.
    static void Begin_New_List(QWidget& wizard)
    {
        Click_In(wizard, "m_addnew_btn");
        wizard.findChild<QLineEdit*>("m_ex_list_name_edit")->setText("Staff");
        Click_In(wizard, "m_next_btn");
    }

    static void Add_Number(QWidget& wizard)
    {
        wizard.findChild<QLineEdit*>("m_loadnum_edit")->setText("123");
        Click_In(wizard, "m_add_num_btn");
    }

    QTemporaryDir m_folder;
};

TEST_F(Leaving_Lists, With_The_Question_Before_An_Import_Open_Imports_And_Removes_Nothing)
{
    Leave_When(Is_Shown("Load_Num_Info"), [this] { Click("Load_Number"); });
    EXPECT_EQ(m_recipients_at_the_end, 3);
    EXPECT_THAT(user.Was_Shown(), IsEmpty());
}

TEST_F(Leaving_Lists, With_The_Panel_Of_An_Import_Open)
{
    user.When_Opens("Load_Num_Info", [](QWidget& dialog) { Click_In(dialog, "NOPressed"); });
    Leave_When(A_Panel_Is_Open, [this] { Click("Load_Number"); });
    EXPECT_EQ(m_recipients_at_the_end, 3);
}

TEST_F(Leaving_Lists, While_A_File_Is_Imported)
{
    constexpr int Many = 3'000'000; // so that the end is not near when the first have been counted
    const QString path = Numbers_File(Many);
    Leave_When([this] { return The<QLabel>("_gsm_list_count").text() != QStringLiteral("Total Numbers : 3"); },
               [this, path] { m_program->Delegate().Load_NUM_Thread(path); });
    EXPECT_LT(m_recipients_at_the_end, Many);
    EXPECT_THAT(user.Was_Shown(), IsEmpty());
}

TEST_F(Leaving_Lists, With_The_Sheet_Of_An_Unread_File_Still_There)
{
    Leave_When([this] { return Is_Shown("PleaseWait_Modeless")() && Workers_Running() == 0; },
               [this] { m_program->Delegate().Load_NUM_Thread(m_folder.filePath("none.txt")); });
    EXPECT_THAT(user.Was_Shown(), IsEmpty());
}

TEST_F(Leaving_Lists, With_The_Panel_Of_An_Export_Open_Writes_Nothing)
{
    Leave_When(A_Panel_Is_Open, [this] { Click("Export_Btn"); });
    EXPECT_THAT(user.Was_Shown(), IsEmpty());
}

TEST_F(Leaving_Lists, With_The_Offer_To_Open_An_Export_Open)
{
    const QString path = m_folder.filePath("list.txt");
    user.Will_Do([path](QDialog* panel) {
        auto* name = panel->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        name->setText(path);
        QTest::keyClick(name, Qt::Key_Return);
    });
    Leave_When(Is_Shown("Open_Export_Log"), [this] { Click("Export_Btn"); });
    EXPECT_TRUE(QFile::exists(path));
}

TEST_F(Leaving_Lists, With_The_Fill_Dialog_And_Its_Question_Open_Fills_Nothing)
{
    The<QPlainTextEdit>("_messageEdit").setPlainText("new");
    user.When_Opens("Fill_Msg_In_List", [](QWidget& dialog) { Click_In(dialog, "OKPressed"); });
    user.Will_Leave_It_Open();
    Leave_When(A_Box_Is_Open, [this] {
        Click("Fill_Msg_Btn");
        EXPECT_EQ(m_program->Delegate().Recipients().At(0).Message, QStringLiteral("Hello"));
    });
    EXPECT_EQ(user.Was_Shown().size(), 1);
}

TEST_F(Leaving_Lists, With_The_Edit_Dialog_Open)
{
    The<QTableView>("idTableView").selectRow(1);
    Leave_When(Is_Shown("Update_Num_SMS"), [this] { m_program->Delegate().doubleClickInTable(); });
}

TEST_F(Leaving_Lists, In_The_Second_Before_The_Selected_Numbers_Are_Shown)
{
    Set_Pace(1);
    The<QTableView>("idTableView").selectAll();
    bool is_asked_for = false;
    Leave_When([&] { return is_asked_for; },
               [&] {
                   is_asked_for = true;
                   Click("Update_Sel_Msgs_Btn");
               });
}

TEST_F(Leaving_Lists, With_The_Selected_Numbers_Shown)
{
    The<QTableView>("idTableView").selectAll();
    Leave_When(Is_Shown("Update_Sel_Num_SMS"), [this] { Click("Update_Sel_Msgs_Btn"); });
}

TEST_F(Leaving_Lists, While_The_Exclusion_Lists_Come_In)
{
    Set_Pace(1);
    Leave_When([] { return Is_Shown("Exclusion_Wizard")() && Workers_Running() > 0; },
               [this] { Click("View_ExclusionWizrd_Btn"); });
}

TEST_F(Leaving_Lists, With_Unsaved_Exclusions_And_The_Question_About_Them_Open)
{
    user.Will_Leave_It_Open();
    Leave_When(A_Box_Is_Open, [this] {
        Open_Exclusion_Wizard([](QWidget& wizard) {
            Begin_New_List(wizard);
            Add_Number(wizard);
            Click_In(wizard, "m_back_btn");
        });
    });
    EXPECT_EQ(user.Was_Shown().size(), 1);
}

TEST_F(Leaving_Lists, With_A_Number_Of_An_Exclusion_List_Being_Edited)
{
    Leave_When(Is_Shown("Update_Ex_Num"), [this] {
        Open_Exclusion_Wizard([](QWidget& wizard) {
            Begin_New_List(wizard);
            Add_Number(wizard);
            wizard.findChild<QTableView*>("m_ex_num_list")->selectRow(0);
            Click_In(wizard, "m_update_num_btn");
        });
    });
}

TEST_F(Leaving_Lists, While_An_Exclusion_List_Takes_A_File_In)
{
    const QString path = Numbers_File(300000);
    Leave_When(Is_Shown("PleaseWait_Modeless"), [this, path] {
        Open_Exclusion_Wizard([path](QWidget& wizard) {
            Begin_New_List(wizard);
            wizard.findChild<QLineEdit*>("m_loadfile_edit")->setText(path);
            Click_In(wizard, "m_load_btn");
        });
    });
    EXPECT_THAT(user.Was_Shown(), IsEmpty());
}

TEST_F(Leaving_Lists, With_The_Panel_Of_The_Exclusion_Wizard_Open)
{
    Leave_When(A_Panel_Is_Open, [this] {
        Open_Exclusion_Wizard([](QWidget& wizard) {
            Begin_New_List(wizard);
            Click_In(wizard, "m_browse_btn");
        });
    });
}

TEST_F(Leaving_Lists, With_The_Offer_Before_Sending_Open_Sends_Nothing)
{
    const Virtual_Phone phone;
    sel_port_bsd_str = QString::fromStdString(phone.Path());
    The<QPlainTextEdit>("_messageEdit").setPlainText("new");
    m_program->Delegate().Set_Previous_Composer_Message(QString());
    Leave_When(Is_Shown("Send_Msg_Info"), [this] { Click("_sent_btn"); });
    EXPECT_THAT(phone.Inbox(), IsEmpty());
    EXPECT_THAT(user.Was_Shown(), IsEmpty());
}

TEST_F(Leaving_Lists, In_A_Pause_Of_A_Job)
{
    const Virtual_Phone phone;
    sel_port_bsd_str = QString::fromStdString(phone.Path());
    The<QCheckBox>("_Delayed_Delivry_Chk").click();
    EXPECT_EQ(The<QComboBox>("_delayed_msg_count_combo").currentText(), QStringLiteral("15"));
    EXPECT_EQ(The<QComboBox>("_delayed_time_combo").currentText(), QStringLiteral(" 2  Minutes"));
    The<QComboBox>("_delayed_msg_count_combo").setCurrentIndex(0);
    Leave_When([] { return Pause_Timer_Running.load(); }, [this] { Click("_sent_btn"); });
    EXPECT_EQ(phone.Inbox().size(), 1U);
    EXPECT_THAT(user.Was_Shown(), IsEmpty());
}

} // namespace
