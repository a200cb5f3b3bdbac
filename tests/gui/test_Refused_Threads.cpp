#include "doctor/Phone_Search.h"
#include "gui/Sending_Program.h"
#include "platform/Text_Files.h"
#include "records/Exclusion_Files.h"
#include "support/Refused_Threads.h"
#include "windows/phone/Phone_List_Wnd.h"

// The whole program on a system that refuses it a thread: whichever of those it asks for, and whether later ones are
// refused as well. What was asked for is done, or is told not to have been begun; and the same can be done again.

using And_Later = Refused_Threads::And_Later;

constexpr char Not_Started[] = "\nThe messages could not be sent, because the computer is too busy to start another "
                               "task. Please close other programs and try again.";

class Refused : public Sending_Program
{
protected:
    /// Does the work once for every thread that it asks for, which is refused.
    void At_Every_Thread(const std::function<void()>& work)
    {
        constexpr int Most = 30;
        for (const And_Later later : {And_Later::Are_Given, And_Later::Are_Refused}) {
            int asked_for = Most;
            for (int first = 1; first <= asked_for && !HasFailure(); ++first) {
                SCOPED_TRACE(first);
                const Refused_Threads refused(first, later);
                work();
                asked_for = std::min(Most, refused.Asked_For());
                Await_Workers(); // one that has done its work may still be on its way out
                Expect_That_All_Is_Quiet();
            }
        }
    }

    /// Sends two messages with a pause between them, or hears that this can not be begun.
    void Send_Two(const Way& way)
    {
        phone->Forget();
        Fill_The_List(way, 2);
        The<QCheckBox>("_Delayed_Delivry_Chk").click();
        The<QComboBox>("_delayed_msg_count_combo").setCurrentText("1");
        The<QComboBox>("_delayed_time_combo").setCurrentText("5  Seconds");
        std::string told;
        user.Will_Handle([&](QMessageBox& box) {
            told = box.text().toStdString();
            QTest::mouseClick(box.findChild<QAbstractButton*>(), Qt::LeftButton);
        });
        Press_Send();
        EXPECT_TRUE(Serve_Until([] { return sms_thread_var == 0 && Workers_Running() == 0; }, 60));
        Slow_Down(1);
        auto expected = Everything(way);
        expected.resize(told == Not_Started ? 0 : 2);
        EXPECT_TRUE(told == Not_Started || told == Box::Completed) << told;
        EXPECT_EQ(Inbox(), expected);
    }

    void Send_At_Every_Thread(const Way& way)
    {
        Phone_Moods moods;
        moods.m_text_only = way.m_text_mode;
        Get_A_Phone(moods);
        Select_The_Phone();
        At_Every_Thread([&] { Send_Two(way); });
        Send_Two(way);
        EXPECT_EQ(Inbox().size(), 2U);
    }

    static void Await_Workers()
    {
        EXPECT_TRUE(Serve_Until([] { return ph_find_thread == 0 && Workers_Running() == 0; }));
    }

    /// Opens a window by its button of the main window and does something in it, which closes it.
    void In_Window(const char* name, const char* button, const std::function<void(QWidget&)>& meanwhile)
    {
        When_Filled(user, name, meanwhile);
        Click(button);
        Await_Workers();
    }

    QTemporaryDir m_folder;
};

TEST_F(Refused, A_Job_Sends_All_Or_Says_That_It_Can_Not)
{
    Send_At_Every_Thread({});
    Send_At_Every_Thread({.m_text_mode = true, .m_unicode = true, .m_flash = false});
}

TEST_F(Refused, The_Wizard_Searches_Probes_And_Selects)
{
    At_Every_Thread([this] {
        Visit_Wizard([this] {
            Click_In_Wizard("_Search_Btn");
            Await_Workers();
            auto& table = In<QTableView>(*Phone_List_Wnd::defaultInstance(), "idPortList");
            const QRect row = table.visualRect(Row_Of(QString::fromStdString(phone->Path())));
            QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, row.center());
            Await_Workers();
            EXPECT_EQ(Details(), Usual_Details());
            Click_In_Wizard("_Select_Btn");
            EXPECT_FALSE(Wizard_Is_Open());
        });
        EXPECT_EQ(sel_port_bsd_str.toStdString(), phone->Path());
    });
}

TEST_F(Refused, An_Import_Takes_Every_Number)
{
    const QString path = m_folder.filePath("numbers.txt");
    ASSERT_TRUE(Replace_File(path, "111\n222\n333\n"));
    At_Every_Thread([&] {
        Click("Reset_Btn");
        m_delegate->Load_NUM_Thread(path);
        Await_Workers();
        EXPECT_EQ(Numbers(), (QStringList{"111", "222", "333"}));
        EXPECT_TRUE(The<QPushButton>("_sent_btn").isEnabled());
    });
}

TEST_F(Refused, A_Large_List_Is_Cleared)
{
    At_Every_Thread([this] {
        for (int number = 0; number < 1000; ++number)
            m_delegate->Create_Num_Msg_List(QString::number(100000 + number), "Hello");
        m_delegate->Redisplay_Recipients();
        Select_Rows({0, 1, 2});
        Click("Clear_Sel_Btn");
        EXPECT_EQ(m_delegate->Recipients().Count(), 997);
        user.Will_Press("Yes");
        Click("Clear_All_Btn");
        EXPECT_EQ(m_delegate->Recipients().Count(), 0);
    });
}

TEST_F(Refused, The_Stores_Are_Shown_Changed_And_Written_Back)
{
    struct
    {
        const char* window;
        const char* button;
        const QString& path;
        QByteArray before;
        QByteArray after;
    } const stores[] = {
        {"Sent_Items", "Sent_Item_Btn", Sent_Item_Path, "\a1\vone\ad\v\n\a2\vtwo\ad\v\n", "\a2\vtwo\ad\v\n"},
        {"Templates", "View_Templates_Btn", Templates_Path, "one\ntwo\n", "two\n"}};
    for (const auto& store : stores) {
        SCOPED_TRACE(store.window);
        At_Every_Thread([&] {
            ASSERT_TRUE(Replace_File(store.path, store.before));
            In_Window(store.window, store.button, [](QWidget& window) {
                EXPECT_EQ(window.findChild<QTableView*>()->model()->rowCount(), 2);
                window.findChild<QTableView*>()->selectRow(0);
                Click_In(window, "Clear_Sel_Btn");
                Click_In(window, "Cancel_Btn");
            });
            EXPECT_EQ(Read_File(store.path).value_or("unreadable"), store.after);
        });
    }
}

TEST_F(Refused, The_Exclusion_Wizard_Shows_Changes_And_Applies_Its_Lists)
{
    Tick("_Exclusion_Chk");
    At_Every_Thread([this] {
        ASSERT_TRUE(Exclusion_Files::Write_Index({}) && Exclusion_Files::Write_Applied({}));
        In_Window("Exclusion_Wizard", "View_ExclusionWizrd_Btn", [this](QWidget& wizard) {
            Click_In(wizard, "m_addnew_btn");
            In<QLineEdit>(wizard, "m_ex_list_name_edit").setText("Staff");
            Click_In(wizard, "m_next_btn");
            In<QLineEdit>(wizard, "m_loadnum_edit").setText("123456");
            Click_In(wizard, "m_add_num_btn");
            user.Will_Press("Yes");
            Click_In(wizard, "m_finish_btn");
            Await_Workers();
            Click_In(wizard, "m_addAll_list_btn");
            user.Will_Press("Yes");
            Click_In(wizard, "m_saveapplied_btn");
            Click_In(wizard, "m_cancel_btn");
        });
        EXPECT_EQ(Exclusion_Files::Read_Index(), QStringList{"Staff"});
        EXPECT_EQ(Exclusion_Files::Read_Applied(), QStringList{"Staff"});
        EXPECT_EQ(Exclusion_Files::Read_List("Staff").Count(), 1);
        EXPECT_EQ(m_delegate->Exclusions().Count(), 1);
        Exclusion_Files::Delete_List("Staff");
    });
    EXPECT_TRUE(Exclusion_Files::Write_Index({}) && Exclusion_Files::Write_Applied({}));
}

TEST_F(Refused, The_List_Is_Exported)
{
    const QString path = m_folder.filePath("list.txt");
    Fill_The_List({}, 2);
    At_Every_Thread([&] {
        QFile::remove(path);
        Will_Enter_Path(user, path);
        In_Window("Open_Export_Log", "Export_Btn", [](QWidget& dialog) { Click_In(dialog, "CancelPressed"); });
        EXPECT_TRUE(
            Read_File(path).value_or("unreadable").endsWith(m_delegate->Recipients().At(1).Number.toUtf8() + "\n"));
    });
}

TEST_F(Refused, The_Selected_Numbers_Get_Their_Message)
{
    At_Every_Thread([this] {
        Fill_The_List({}, 2);
        Select_Rows({1});
        user.Will_Press("Yes");
        In_Window("Update_Sel_Num_SMS", "Update_Sel_Msgs_Btn", [](QWidget& dialog) {
            EXPECT_EQ(dialog.findChild<QTableView*>()->model()->rowCount(), 1);
            dialog.findChild<QPlainTextEdit*>("m_msg_str")->setPlainText("Changed");
            Click_In(dialog, "OKPressed");
        });
        EXPECT_EQ(m_delegate->Recipients().At(1).Message, "Changed");
    });
}
