// A phone whose cable is pulled at each step of a job and that is plugged in again. The long tests do the same in every
// way to send.
#include "windows/main/Pulled_Phone.h"

#include "platform/System_Log.h"

static const bool Pulls_Registered = Register_Pulls("Pulled_Phone", {});

// ---- Around the writes

class Pulled_Phone_Elsewhere : public Pulled_Phone
{
protected:
    Pulled_Phone_Elsewhere() : Pulled_Phone({}, {}) {}

    std::function<void()> At_The(int time)
    {
        return [this, time, count = std::make_shared<int>(0)] {
            if (++*count == time)
                Pull();
        };
    }

    void At_Step(const QString& wanted, const std::function<void()>& happens)
    {
        m_progress.m_at_step = [=](const QString& step) {
            if (step == wanted)
                happens();
        };
    }

    void Pause_After_Each_Message()
    {
        m_window.m_choices.delayed_delivery = true;
        m_window.m_choices.batch_size = QStringLiteral("1");
        m_window.m_choices.pause_choice = QStringLiteral("10 Minutes");
    }

    void Expect_Until_Gone(const QString& box, int recorded)
    {
        Send_With_One_Box();
        EXPECT_EQ(m_user.Was_Shown(), QStringList{box});
        Expect_Records(recorded);
        Expect_A_Record_Of_Whatever_Arrived();
        EXPECT_EQ(static_cast<int>(m_phone.Inbox().size()), recorded);
    }

    void Expect_To_Work_When_Back()
    {
        m_calls.m_after_open = m_calls.m_before_close = nullptr;
        m_progress.m_at_step = nullptr;
        m_window.m_choices.delayed_delivery = false;
        Plug_In_Again();
        Expect_The_Next_Job_To_Work();
    }
};

TEST_F(Pulled_Phone_Elsewhere, Before_The_Job_The_Device_Does_Not_Open)
{
    Pull();
    Expect_That_Nothing_Opens();
    Expect_Records(0);
    Expect_To_Work_When_Back();
}

TEST_F(Pulled_Phone_Elsewhere, At_The_Test_Of_The_Device_It_Does_Not_Open)
{
    m_calls.m_after_open = At_The(1);
    Expect_That_Nothing_Opens();
    Expect_Records(0);
    Expect_To_Work_When_Back();
}

TEST_F(Pulled_Phone_Elsewhere, Between_The_Test_And_The_Opening_It_Is_No_Modem)
{
    At_Step(QStringLiteral("timer on"), At_The(1));
    Expect_Until_Gone(No_Modem, 0);
    Expect_To_Work_When_Back();
}

TEST_F(Pulled_Phone_Elsewhere, When_The_Test_Closes_It_Is_No_Modem)
{
    m_calls.m_before_close = At_The(1);
    Expect_Until_Gone(No_Modem, 0);
    Expect_To_Work_When_Back();
}

TEST_F(Pulled_Phone_Elsewhere, When_The_Port_Opens_It_Is_No_Modem)
{
    m_calls.m_after_open = At_The(2);
    Expect_Until_Gone(No_Modem, 0);
    EXPECT_TRUE(m_log.Has("Port ( " + Device().toStdString() + " ) is NOT OPEN"));
    Expect_To_Work_When_Back();
}

// The label is the last thing that is logged of a message; the wait for the next one follows.
TEST_F(Pulled_Phone_Elsewhere, In_The_Wait_Between_Two_Messages_The_Second_Is_A_Connection_Error)
{
    Set_Log_Listener([happens = At_The(1)](const QString& line) {
        if (line == QStringLiteral("Standard SMS PDU Response:: "))
            happens();
    });
    Expect_Until_Gone(Connection_Error, 1);
    Expect_To_Work_When_Back();
}

TEST_F(Pulled_Phone_Elsewhere, When_The_Second_Message_Is_Shown_It_Is_A_Connection_Error)
{
    At_Step(QStringLiteral("2 / 2 07700900456"), At_The(1));
    Expect_Until_Gone(Connection_Error, 1);
    Expect_To_Work_When_Back();
}

TEST_F(Pulled_Phone_Elsewhere, In_A_Pause_The_Next_Message_Is_A_Connection_Error)
{
    Pause_After_Each_Message();
    At_Step(QStringLiteral("Pausing the process for 5 Minute 0 Seconds."), At_The(1));
    Expect_Until_Gone(Connection_Error, 1);
    EXPECT_TRUE(m_progress.Steps().contains(QStringLiteral("Pausing the process for 1 Seconds."))) << "the pause lasts";
    Expect_To_Work_When_Back();
}

// The line that the job has open is the one that was pulled out.
TEST_F(Pulled_Phone_Elsewhere, And_Plugged_In_Again_In_A_Pause_The_Next_Message_Is_A_Connection_Error)
{
    Pause_After_Each_Message();
    At_Step(QStringLiteral("Pausing the process for 5 Minute 0 Seconds."), [this] {
        Pull();
        Link_To_New_Line();
    });
    Expect_Until_Gone(Connection_Error, 1);
    Expect_To_Work_When_Back();
}

TEST_F(Pulled_Phone_Elsewhere, When_The_Port_Closes_Nothing_Is_Missing)
{
    m_calls.m_before_close = At_The(2);
    Expect_Until_Gone(Completed, 2);
    Expect_That_Nothing_Opens();
    Expect_To_Work_When_Back();
}

TEST_F(Pulled_Phone_Elsewhere, While_The_Last_Box_Stands_Nothing_Is_Missing)
{
    m_user.Will_Handle([this](QMessageBox& box) {
        EXPECT_EQ(box.text(), Completed);
        Pull();
        box.accept();
    });
    Send();
    Expect_Records(2);
    Expect_A_Record_Of_Whatever_Arrived();
    Expect_To_Work_When_Back();
}
