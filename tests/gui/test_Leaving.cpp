#include "device/Chosen_Device.h"
#include "gui/Leaving_Program.h"
#include "windows/main/Send_Modeless.h"
#include "windows/phone/Phone_List_Wnd.h"

#include <QMessageBox>

using testing::ElementsAre;
using testing::IsEmpty;

// The program with a phone on its line, left with a job, a search or a probe under way, a box or a dialog open: each
// time without another box.
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

    /// Sends, and asks to leave while the window still can be closed. The user says yes when it is time.
    void Leave_By_The_Question_When(const std::function<bool()>& is_time)
    {
        user.Will_Leave_The_Others_Open();
        m_leave = [] {
            const auto windows = QApplication::topLevelWidgets();
            for (auto* window : windows) {
                if (auto* box = qobject_cast<QMessageBox*>(window))
                    box->defaultButton()->click();
            }
        };
        Leave_When([&] { return is_time() && A_Box_Is_Open(); },
                   [this] {
                       Press_Send();
                       m_program->Delegate().close();
                   });
        m_leave = [this] { m_program->Leave(); };
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
        const auto* rows = table.model();
        const auto found = rows->match(rows->index(0, 1), Qt::DisplayRole, QString::fromStdString(m_phone.Path()));
        ASSERT_EQ(found.size(), 1);
        table.selectRow(found.constFirst().row());
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

TEST_F(Leaving, With_The_Stop_Question_Open)
{
    Set_Pace(5);
    user.Will_Leave_It_Open();
    auto* stop = Send_Modeless::defaultInstance()->findChild<QPushButton*>("_stop_btn");
    bool is_pressed = false;
    Leave_When(
        [&] {
            if (!is_pressed && Is_Shown("Send_Modeless")() && stop->isEnabled()) {
                is_pressed = true;
                QTimer::singleShot(0, stop, &QPushButton::click);
            }
            return A_Box_Is_Open();
        },
        [this] { Press_Send(); });
}

// The window can be closed until the progress window stands over it: the question then waits behind that.
TEST_F(Leaving, By_The_Close_Button_Between_Send_And_The_Progress_Window)
{
    Set_Pace(5);
    Leave_By_The_Question_When(Is_Shown("Send_Modeless"));
    EXPECT_THAT(user.Was_Shown(), ElementsAre("\nDo you really want to exit from 'Corvane'?"));
}

// The phone has shown its prompt and takes whatever comes for the message, the questions of the next start as well.
TEST_F(Leaving, At_The_Prompt_Leaves_A_Phone_That_Answers_The_Next_Start)
{
    const auto* stop = Send_Modeless::defaultInstance()->findChild<QPushButton*>("_stop_btn");
    Leave_By_The_Question_When([&] {
        if (stop->isEnabled())
            Set_Pace(1); // time to answer while the job waits for the prompt
        const auto heard = m_phone.Heard();
        return !heard.empty() && heard.back().find("AT+CMGS=") == 0;
    });
    EXPECT_THAT(m_phone.Inbox(), IsEmpty());
    Forget_Program_Exit();
    Set_Pace(10);
    Start();
    user.Will_Leave_It_Open();
    Leave_When(A_Box_Is_Open, [this] { Press_Send(); });
    EXPECT_EQ(user.Was_Shown().last().toStdString(), Box::Completed);
    EXPECT_EQ(m_phone.Inbox().size(), 3U);
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

TEST_F(Leaving, With_The_Box_Of_A_Probe_Open)
{
    Phone_Moods moods;
    moods.m_silent = true;
    m_phone.Set_Moods(moods);
    user.Will_Leave_It_Open();
    Leave_When(A_Box_Is_Open, [this] { Open_Wizard_And_Probe(); });
    EXPECT_THAT(user.Was_Shown(), ElementsAre(QString::fromLatin1(Box::Not_Working)));
}

TEST_F(Leaving, While_A_Device_Is_Checked_For_Sending)
{
    user.When_Opens("Phone_List_Wnd", [this](QWidget& wizard) {
        Pick_The_Phone(wizard);
        EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
        Set_Pace(1);
        m_phone.Forget();
        Click_In(wizard, "_Select_Btn");
    });
    Leave_When([this] { return Pace() == 1 && !m_phone.Heard().empty(); }, [this] { Open_Wizard(); });
    EXPECT_THAT(user.Was_Shown(), IsEmpty());
    EXPECT_TRUE(sel_port_bsd_str.isEmpty());
}
