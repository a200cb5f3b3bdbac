// A cable pulled at each step of a job and plugged in again. The long tests do so in every way to send.
#include "windows/main/Pulled_Phone.h"

namespace {

const bool Pulls_Registered = Register_Pulls("Pulled_Phone", {});

// ---- Around the writes

class Pulled_Phone_Elsewhere;

struct Moment
{
    const char* name;
    void (*prepare)(Pulled_Phone_Elsewhere& phone);
    QString box;
    int recorded;
};

class Pulled_Phone_Elsewhere : public Pulled_Phone, public testing::WithParamInterface<Moment>
{
public:
    Pulled_Phone_Elsewhere() : Pulled_Phone({}, {}) {}

    using Pulled_Phone::Pull;
    void Pull_At_Opening(int time) { m_calls.m_after_open = At_The(time); }
    void Pull_At_Closing(int time) { m_calls.m_before_close = At_The(time); }
    void Pull_At_Step(const char* step) { At_Step(step, At_The(1)); }
    void Pull_At_Line(const char* logged)
    {
        Set_Log_Listener([logged, happens = At_The(1)](const QString& line) {
            if (line == QLatin1String(logged))
                happens();
        });
    }
    void Pull_In_A_Pause(const std::function<void()>& happens)
    {
        Pause_After_Each("1", "10 Minutes");
        At_Step("Pausing the process for 5 Minute 0 Seconds.", happens);
    }

protected:
    std::function<void()> At_The(int time)
    {
        return [this, time, count = std::make_shared<int>(0)] {
            if (++*count == time)
                Pull();
        };
    }

    void Expect_Records_And_Nothing_Else(int recorded)
    {
        Expect_Records(recorded);
        Expect_A_Record_Of_Whatever_Arrived();
        EXPECT_EQ(static_cast<int>(m_phone.Inbox().size()), recorded);
    }

    void Expect_To_Work_When_Back()
    {
        m_calls.m_after_open = m_calls.m_before_close = nullptr;
        m_window.m_choices.delayed_delivery = false;
        Plug_In_Again();
        Expect_The_Next_Job_To_Work();
    }
};

TEST_P(Pulled_Phone_Elsewhere, Is_Told_Of_And_Works_When_Back)
{
    GetParam().prepare(*this);
    Send_With_One_Box();
    EXPECT_EQ(m_user.Was_Shown(), QStringList{GetParam().box});
    Expect_Records_And_Nothing_Else(GetParam().recorded);
    Expect_That_Nothing_Opens();
    Expect_To_Work_When_Back();
}

using Phone = Pulled_Phone_Elsewhere;
INSTANTIATE_TEST_SUITE_P(
    Pulled_Phone, Pulled_Phone_Elsewhere,
    testing::Values(
        Moment{"Before_The_Job", [](Phone& phone) { phone.Pull(); }, Does_Not_Open, 0},
        Moment{"At_The_Test_Of_The_Device", [](Phone& phone) { phone.Pull_At_Opening(1); }, Does_Not_Open, 0},
        Moment{"When_The_Test_Closes", [](Phone& phone) { phone.Pull_At_Closing(1); }, No_Modem, 0},
        Moment{"Before_The_Opening", [](Phone& phone) { phone.Pull_At_Step("timer on"); }, No_Modem, 0},
        Moment{"When_The_Port_Opens", [](Phone& phone) { phone.Pull_At_Opening(2); }, No_Modem, 0},
        // The label is the last thing that is logged of a message; the wait for the next one follows.
        Moment{"In_The_Wait_Between_Two_Messages",
               [](Phone& phone) { phone.Pull_At_Line("Standard SMS PDU Response:: "); }, Connection_Error, 1},
        Moment{"When_The_Second_Is_Shown", [](Phone& phone) { phone.Pull_At_Step("2 / 2 07700900456"); },
               Connection_Error, 1},
        Moment{"In_A_Pause", [](Phone& phone) { phone.Pull_In_A_Pause([&phone] { phone.Pull(); }); }, Connection_Error,
               1},
        Moment{"When_The_Port_Closes", [](Phone& phone) { phone.Pull_At_Closing(2); }, Completed, 2}),
    [](const auto& row) { return std::string(row.param.name); });

// The line that the job has open is the one that was pulled out.
TEST_F(Pulled_Phone_Elsewhere, And_Plugged_In_Again_In_A_Pause_The_Next_Message_Is_A_Connection_Error)
{
    Pull_In_A_Pause([this] {
        Pull();
        Link_To_New_Line();
    });
    Send_With_One_Box();
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Connection_Error});
    EXPECT_TRUE(m_progress.Steps().contains("Pausing the process for 1 Seconds.")) << "the pause lasts";
    Expect_Records_And_Nothing_Else(1);
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
    Expect_Records_And_Nothing_Else(2);
    Expect_To_Work_When_Back();
}

} // namespace
