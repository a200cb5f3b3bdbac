#include "support/Fake_Desktop.h"
#include "support/Heartbeat.h"
#include "support/Private_Bus.h"
#include "windows/main/Confirmed_Sending_Test.h"

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace {

constexpr char Session[] = "DBUS_SESSION_BUS_ADDRESS";
constexpr char System[] = "DBUS_SYSTEM_BUS_ADDRESS";

// The desktop that the program finds at its start.
class With_A_Desktop
{
protected:
    With_A_Desktop() : m_before(qgetenv(Session)), m_system_before(qgetenv(System))
    {
        for (const char* bus : {Session, System})
            qputenv(bus, m_bus.Address().toUtf8());
    }
    ~With_A_Desktop()
    {
        qputenv(Session, m_before);
        qputenv(System, m_system_before);
    }

    const QByteArray m_before;
    const QByteArray m_system_before;
    Private_Bus m_bus;
    Fake_Desktop m_desktop{m_bus.Address(), {Fake_Desktop::Login, Fake_Desktop::Notifications}};
};

class Desktop_Of_A_Job : protected With_A_Desktop, public Confirmed_Sending_Test
{
protected:
    /// The person looks at something else as soon as the job writes to the phone.
    void Look_At_Something_Else()
    {
        Before_The_Next_Answer([] { Run_On_Interface_Thread([] { QApplication::setActiveWindow(nullptr); }); });
    }

    std::vector<std::string> Heard_Until_The_End()
    {
        EXPECT_TRUE(Serve_Until([this] { return m_desktop.Has_Heard("Launcher: ") && Workers_Running() == 0; }));
        EXPECT_TRUE(Serve_Until([this] { return !m_desktop.Is_Kept_Awake(); }));
        std::vector<std::string> lines;
        for (const QString& line : m_desktop.Heard())
            lines.push_back(line.toStdString());
        return lines;
    }
};

TEST_F(Desktop_Of_A_Job, Is_First_Touched_When_The_Job_Begins_And_Left_When_It_Has_Ended)
{
    Add_All({"111", "222"});
    EXPECT_THAT(m_desktop.Heard(), IsEmpty());
    bool was_kept_awake = false;
    Before_The_Next_Answer([&] { Run_On_Interface_Thread([&] { was_kept_awake |= m_desktop.Is_Kept_Awake(); }); });
    user.Will_Handle([this](QMessageBox& box) {
        EXPECT_TRUE(Serve_Until([this] { return !m_desktop.Is_Kept_Awake(); })) << "nothing is being sent any more";
        box.accept();
    });
    Send();
    EXPECT_TRUE(was_kept_awake);
    EXPECT_THAT(Heard_Until_The_End(),
                ElementsAre(StartsWith("login1: Inhibit | sleep:idle"), HasSubstr("{progress=0 progress-visible=true}"),
                            HasSubstr("{progress=0.5 progress-visible=true}"), HasSubstr("{progress-visible=false}")));
}

TEST_F(Desktop_Of_A_Job, Says_That_The_Job_Waits_And_How_It_Has_Ended_To_Whoever_Looks_At_Something_Else)
{
    Have([](Phone_Moods& moods) {
        moods.m_network_lost_at = 2;
        moods.m_network_back_after_queries = 4;
    });
    Add_All({"111", "222"});
    Look_At_Something_Else();
    Send_With_One_Box();
    EXPECT_EQ(user.Was_Shown().size(), 1) << "one box, as without a desktop";
    EXPECT_THAT(Heard_Until_The_End(),
                ElementsAre(StartsWith("login1: Inhibit"), HasSubstr("{progress=0 "), HasSubstr("{progress=0.5 "),
                            HasSubstr("| Sending waits | There is no network. |"),
                            StartsWith("Notifications: CloseNotification"),
                            HasSubstr("| Sending has ended | Message Sending Process Completed. |"),
                            HasSubstr("{progress-visible=false}")));
}

TEST_F(Desktop_Of_A_Job, Says_That_A_Job_Has_Failed_Also_One_Of_Fixed_Waits)
{
    The<QCheckBox>("_Confirm_Chk").setChecked(false);
    Have([](Phone_Moods& moods) { moods.m_hang_up_at = 2; });
    Add_All({"111", "222"});
    Look_At_Something_Else();
    Send_With_One_Box();
    EXPECT_THAT(Heard_Until_The_End(), Contains(HasSubstr("| Sending has ended | Device Connection Error! |")));
}

TEST_F(Desktop_Of_A_Job, Is_The_Same_Job_With_A_Bus_That_Hangs)
{
    Add_All({"111", "222"});
    m_bus.Hang();
    Look_At_Something_Else();
    Heartbeat heartbeat;
    Send_With_One_Box();
    EXPECT_LT(heartbeat.Longest_Gap(), 0.5) << "two would be the bus's time";
    EXPECT_EQ(Received(), QStringList({"111: Hello", "222: Hello"}));
}

TEST_F(Desktop_Of_A_Job, Says_Nothing_Of_A_Stop)
{
    Add_All({"111", "222", "333"});
    Before_The_Next_Answer([this] {
        Run_On_Interface_Thread([] { QApplication::setActiveWindow(nullptr); });
        if (Submissions() > 0)
            Stop_SMS_Sending_Now = 1;
    });
    Send();
    EXPECT_THAT(Heard_Until_The_End(), Not(Contains(StartsWith("Notifications"))));
}

} // namespace
