#include "gui/Leaving_Program.h"
#include "windows/phone/Phone_List_Wnd.h"

using testing::ElementsAre;
using testing::IsEmpty;

// Left with a job, a search or a probe under way, a box or a dialog open: each time without another box.
class Leaving : public Leaving_Program
{
protected:
    Leaving()
    {
        Command_Line command_line;
        command_line.device_paths = {QString::fromStdString(m_phone.Path())};
        Start(command_line);
    }
    ~Leaving() override { m_program.reset(); }

    void Expect_Nothing_Left() override
    {
        Leaving_Program::Expect_Nothing_Left();
        EXPECT_EQ(Descriptors_On(m_phone.Path()), 0);
    }

    void Press_Send()
    {
        sel_port_bsd_str = QString::fromStdString(m_phone.Path());
        Add_Recipients();
        Click("_sent_btn");
    }

    void Open_Wizard()
    {
        Will_Click_In(user, "Connection_Info", "Continue_Btn");
        Click("Search_All_Modem");
    }

    /// Opens the wizard and picks the phone's row; what it is asked from then on takes the described second each.
    void Open_Wizard_And_Probe()
    {
        user.When_Opens("Phone_List_Wnd", [this](QWidget& wizard) {
            Set_Pace(1);
            Pick_The_Phone(wizard);
        });
        Open_Wizard();
    }

    void Pick_The_Phone(const QWidget& wizard) const
    {
        auto& table = In<QTableView>(wizard, "idPortList");
        table.selectRow(Row_With(table, QString::fromStdString(m_phone.Path()), 1).row());
    }

    Virtual_Phone m_phone;
};

TEST_F(Leaving, The_Users_Yes_Ends_The_Program)
{
    user.Will_Press("Yes");
    m_leave = [this] { m_program->Delegate().close(); };
    Leave_When([] { return true; }, [] {});
}

TEST_F(Leaving, In_The_Second_Before_The_Long_Message_Notice)
{
    Set_Pace(1);
    Leave_When([this] { return The<QLabel>("_Msg_char_count").text() == "161 Characters"; },
               [this] { The<QPlainTextEdit>("_messageEdit").insertPlainText(QString(161, u'a')); });
}

TEST_F(Leaving, While_A_Job_Prepares_The_Phone)
{
    Set_Pace(1);
    Leave_When([this] { return !m_phone.Heard().empty(); }, [this] { Press_Send(); });
    EXPECT_THAT(user.Was_Shown(), IsEmpty());
}

TEST_F(Leaving, While_A_Job_Is_At_Its_First_Message)
{
    Leave_When([this] { return m_phone.Inbox().size() == 1; }, [this] { Press_Send(); });
    EXPECT_THAT(user.Was_Shown(), IsEmpty());
    EXPECT_EQ(m_phone.Inbox().size(), 1U);
}

TEST_F(Leaving, With_The_Jobs_Last_Word_Still_Open)
{
    user.Will_Leave_It_Open();
    Leave_When(A_Box_Is_Open, [this] { Press_Send(); });
    EXPECT_EQ(m_phone.Inbox().size(), 3U);
}

// The window can be closed until the progress window stands over it: the question then waits behind that.
TEST_F(Leaving, By_The_Close_Button_Between_Send_And_The_Progress_Window)
{
    Set_Pace(5);
    user.Will_Leave_The_Others_Open();
    m_leave = [] {
        const auto windows = QApplication::topLevelWidgets();
        for (auto* window : windows) {
            if (auto* box = qobject_cast<QMessageBox*>(window))
                box->defaultButton()->click();
        }
    };
    Leave_When([] { return Is_Shown("Send_Modeless")() && A_Box_Is_Open(); },
               [this] {
                   Press_Send();
                   m_program->Delegate().close();
               });
    EXPECT_THAT(user.Was_Shown(), ElementsAre("\nDo you really want to exit from 'Corvane'?"));
}

TEST_F(Leaving, With_The_Connection_Screen_Open)
{
    Leave_When(Is_Shown("Connection_Info"), [this] { Click("Search_All_Modem"); });
}

TEST_F(Leaving, In_The_Second_Before_The_Wizard_Opens)
{
    user.When_Opens("Connection_Info", [](QWidget& window) {
        Set_Pace(1);
        Click_In(window, "Continue_Btn");
    });
    Leave_When(
        [] {
            const auto* rows = Phone_List_Wnd::defaultInstance()->findChild<QTableView*>("idPortList");
            return rows->model()->rowCount() > 0;
        },
        [this] { Click("Search_All_Modem"); });
}

TEST_F(Leaving, With_The_Wizard_Open)
{
    Leave_When(Is_Shown("Phone_List_Wnd"), [this] { Open_Wizard(); });
}

TEST_F(Leaving, While_A_Device_Is_Probed)
{
    Leave_When([this] { return Is_Shown("PleaseWait_Modeless")() && m_phone.Heard().size() > 1; },
               [this] { Open_Wizard_And_Probe(); });
    EXPECT_THAT(user.Was_Shown(), IsEmpty());
}
