#include "toolkit/Desktop_Help.h"

#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"
#include "support/Fake_Desktop.h"
#include "support/Heartbeat.h"
#include "support/Private_Bus.h"
#include "support/Serve_Until.h"
#include "toolkit/Desktop_Bus.h"

#include <QApplication>
#include <QtTest>
#include <gmock/gmock.h>

namespace {

constexpr char Held[] = "login1: Inhibit | sleep:idle | Corvane | Messages are being sent | block";
constexpr char Held_By_Power[] = "PowerManagement: Inhibit | Corvane | Messages are being sent";
constexpr char Held_By_Screen[] = "ScreenSaver: Inhibit | Corvane | Messages are being sent";
constexpr char Hidden[] = "Launcher: application://the.program.desktop {progress-visible=false}";
constexpr char Bus_Of_The_Child[] = "CORVANE_TEST_BUS";

QString Progress(const char* done)
{
    return QString("Launcher: application://the.program.desktop {progress=%1 progress-visible=true}").arg(done);
}

QString Notified(int replaced, const char* title, const char* text)
{
    return QString("Notifications: Notify | Corvane | %1 | the.program | %2 | %3 | [] | "
                   "{desktop-entry=the.program urgency=1} | -1")
        .arg(QString::number(replaced), title, text);
}

QString Heard_By(Fake_Desktop& desktop)
{
    return desktop.Heard().join('\n');
}

QString Lines(const QStringList& lines)
{
    return lines.join('\n');
}

// A job's thread, which tells a desktop on a bus of its own.
class Desktop_Help_Test : public testing::Test
{
protected:
    Desktop_Help_Test() { QGuiApplication::setDesktopFileName("the.program"); }
    ~Desktop_Help_Test() override
    {
        Finish_Workers();
        m_help.reset();
        QGuiApplication::setDesktopFileName({});
        Forget_Program_Exit();
    }

    void There_Are(const QStringList& services, const QString& address = {})
    {
        m_bus = std::make_unique<Private_Bus>(address);
        m_desktop = std::make_unique<Fake_Desktop>(m_bus->Address(), services);
        m_help = std::make_unique<Desktop_Help>(Desktop_Buses{m_bus->Address(), m_bus->Address()});
    }

    /// Everything that was asked for is done when this returns.
    void The_Job(const std::function<void(Desktop_Help&)>& tells)
    {
        Run_On_Worker([&] { tells(*m_help); });
        ASSERT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
    }

    std::unique_ptr<Private_Bus> m_bus;
    std::unique_ptr<Fake_Desktop> m_desktop;
    std::unique_ptr<Desktop_Help> m_help;
};

TEST_F(Desktop_Help_Test, The_Computer_Stays_Awake_From_The_Beginning_To_The_End_Of_A_Job)
{
    There_Are({Fake_Desktop::Login, Fake_Desktop::Power, Fake_Desktop::Screen});
    for (int job = 0; job < 2; ++job) {
        EXPECT_FALSE(m_desktop->Is_Kept_Awake());
        The_Job([](Desktop_Help& help) { help.Job_Begins(); });
        EXPECT_TRUE(m_desktop->Is_Kept_Awake());
        EXPECT_EQ(Heard_By(*m_desktop), Held);
        The_Job([](Desktop_Help& help) { help.Job_Ends(); });
        EXPECT_FALSE(m_desktop->Is_Kept_Awake());
        EXPECT_EQ(Heard_By(*m_desktop), Hidden);
    }
}

TEST_F(Desktop_Help_Test, Where_The_Login_Service_Does_Not_Help_The_Next_One_Is_Asked)
{
    There_Are({Fake_Desktop::Login, Fake_Desktop::Power, Fake_Desktop::Screen});
    const auto one_job = [](Desktop_Help& help) {
        help.Job_Begins();
        help.Job_Ends();
    };
    m_desktop->Refuses(Fake_Desktop::Login);
    The_Job(one_job);
    EXPECT_EQ(Heard_By(*m_desktop), Lines({Held, Held_By_Power, Hidden, "PowerManagement: UnInhibit | 7"}));
    m_desktop->Refuses(Fake_Desktop::Power);
    The_Job(one_job);
    EXPECT_EQ(Heard_By(*m_desktop), Lines({Held, Held_By_Power, Held_By_Screen, Hidden, "ScreenSaver: UnInhibit | 7"}));
    m_desktop->Refuses(Fake_Desktop::Screen);
    The_Job(one_job);
    EXPECT_EQ(Heard_By(*m_desktop), Lines({Held, Held_By_Power, Held_By_Screen, Hidden})) << "nothing to give back";
}

TEST_F(Desktop_Help_Test, A_Job_Does_Not_Wait_For_A_Service_That_Is_Silent)
{
    There_Are({Fake_Desktop::Login, Fake_Desktop::Screen});
    m_desktop->Is_Silent(Fake_Desktop::Login);
    bool has_been_asked = false;
    Run_On_Worker([&] {
        m_help->Job_Begins();
        m_help->Job_At(1, 2);
        has_been_asked = Workers_Running() == 0;
    });
    EXPECT_FALSE(has_been_asked) << "everything was told, and the first is still being asked";
    ASSERT_TRUE(Serve_Until([&] { return m_desktop->Has_Heard(Held_By_Screen); }));
}

TEST_F(Desktop_Help_Test, The_Icon_Shows_How_Far_The_Job_Is_As_Finely_As_Anybody_Sees)
{
    There_Are({});
    The_Job([](Desktop_Help& help) {
        help.Job_Begins();
        help.Job_At(1, 3);
        help.Job_At(2, 3);
        help.Job_At(3, 3);
    });
    EXPECT_EQ(Heard_By(*m_desktop), Lines({Progress("0"), Progress("0.33"), Progress("0.66")}));
    The_Job([](Desktop_Help& help) {
        help.Job_Begins();
        for (int position = 1; position <= 100'000; ++position)
            help.Job_At(position, 100'000);
    });
    EXPECT_EQ(m_desktop->Heard().size(), 100);
}

TEST_F(Desktop_Help_Test, A_Notification_Says_That_The_Job_Waits_And_How_It_Ended_In_Place_Of_The_One_Before)
{
    There_Are({Fake_Desktop::Notifications});
    The_Job([](Desktop_Help& help) {
        help.Job_Begins();
        help.Job_Waits("No network & no <signal>.");
        help.Job_Says("\n\nDone.\n");
        help.Job_Ends();
        help.Job_Ends();
    });
    EXPECT_EQ(Heard_By(*m_desktop), Lines({Notified(0, "Sending waits", "No network &amp; no &lt;signal&gt;."),
                                           Notified(1, "Sending has ended", "Done."), Hidden}));
}

TEST_F(Desktop_Help_Test, A_Notification_That_Is_No_Longer_True_Is_Taken_Back)
{
    There_Are({Fake_Desktop::Notifications});
    The_Job([](Desktop_Help& help) {
        help.Job_Begins();
        help.Job_Waits("No network.");
        help.Job_Goes_On();
        help.Job_Goes_On();
    });
    EXPECT_EQ(Heard_By(*m_desktop),
              Lines({Notified(0, "Sending waits", "No network."), "Notifications: CloseNotification | 1"}));
    The_Job([](Desktop_Help& help) {
        help.Job_Waits("No network.");
        help.Job_Ends();
    });
    EXPECT_EQ(Heard_By(*m_desktop),
              Lines({Notified(0, "Sending waits", "No network."), "Notifications: CloseNotification | 2", Hidden}))
        << "it was stopped meanwhile";
}

TEST_F(Desktop_Help_Test, The_Moment_Between_The_Jobs_Window_And_The_Next_Counts_As_In_Front)
{
    There_Are({Fake_Desktop::Notifications});
    for (const bool is_left_before : {false, true}) {
        QWidget window;
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        if (is_left_before)
            QApplication::setActiveWindow(nullptr);
        The_Job([&](Desktop_Help& help) {
            help.Job_Begins();
            help.Window_Closes();
            Run_On_Interface_Thread([&] { window.hide(); });
            help.Job_Says("Done.");
        });
        EXPECT_EQ(Heard_By(*m_desktop), is_left_before ? Notified(0, "Sending has ended", "Done.") : "");
    }
}

TEST_F(Desktop_Help_Test, Whoever_Has_The_Window_Before_Them_Is_Not_Notified)
{
    There_Are({Fake_Desktop::Notifications});
    const auto tell = [](Desktop_Help& help) {
        help.Job_Begins();
        help.Job_Waits("No network.");
        help.Job_Says("Done.");
    };
    {
        QWidget window;
        window.show();
        QApplication::setActiveWindow(&window);
        The_Job(tell);
        EXPECT_EQ(Heard_By(*m_desktop), "");
    }
    QApplication::setActiveWindow(nullptr);
    The_Job(tell);
    EXPECT_EQ(m_desktop->Heard().size(), 2);
}

// A bus that hangs takes connections, since the kernel does that for it, and says nothing.
TEST_F(Desktop_Help_Test, Leaving_Waits_Neither_For_A_Service_That_Is_Silent_Nor_For_A_Bus)
{
    There_Are({Fake_Desktop::Login});
    m_desktop->Is_Silent(Fake_Desktop::Login);
    Private_Bus hung;
    hung.Hang();
    for (const QString& address : {m_bus->Address(), hung.Address()}) {
        const double begin = Now_Seconds();
        m_help = std::make_unique<Desktop_Help>(Desktop_Buses{QString(address), QString(address)});
        Run_On_Worker([&] { m_help->Job_Begins(); });
        EXPECT_EQ(Workers_Running(), 1);
        Begin_Program_Exit();
        Finish_Workers();
        EXPECT_LT(Now_Seconds() - begin, 1.5) << "two would be the services' time";
        Forget_Program_Exit();
    }
}

// A bus that was started anew is another one, at the same place.
TEST_F(Desktop_Help_Test, A_Bus_That_Goes_Away_And_Comes_Back_Is_Found_By_The_Next_Job)
{
    const QTemporaryDir folder;
    const QString address = "unix:path=" + folder.filePath("bus");
    const auto one_job = [](Desktop_Help& help) {
        help.Job_Begins();
        help.Job_Says("Done.");
        help.Job_Ends();
    };
    There_Are({Fake_Desktop::Login, Fake_Desktop::Notifications}, address);
    The_Job(one_job);
    EXPECT_EQ(Heard_By(*m_desktop), Lines({Held, Notified(0, "Sending has ended", "Done."), Hidden}));
    m_desktop.reset();
    m_bus.reset();
    The_Job(one_job);
    auto help = std::move(m_help);
    There_Are({Fake_Desktop::Login, Fake_Desktop::Notifications}, address);
    m_help = std::move(help);
    The_Job(one_job);
    EXPECT_EQ(Heard_By(*m_desktop), Lines({Held, Notified(0, "Sending has ended", "Done."), Hidden}));
}

TEST_F(Desktop_Help_Test, A_Bus_That_Hangs_In_The_Middle_Of_A_Job_Holds_Up_Neither_The_Job_Nor_The_Windows)
{
    There_Are({Fake_Desktop::Login, Fake_Desktop::Notifications});
    The_Job([](Desktop_Help& help) { help.Job_Begins(); });
    m_bus->Hang();
    Heartbeat heartbeat;
    double told_in = 0;
    The_Job([&](Desktop_Help& help) {
        const double begin = Now_Seconds();
        for (int position = 1; position <= 100; ++position)
            help.Job_At(position, 100);
        help.Job_Waits("No network.");
        help.Job_Goes_On();
        help.Job_Says("Done.");
        help.Job_Ends();
        told_in = Now_Seconds() - begin;
    });
    const double begin = Now_Seconds();
    m_help.reset();
    EXPECT_LT(Now_Seconds() - begin, 0.5);
    EXPECT_LT(told_in, 0.5) << "two would be the services' time";
    EXPECT_LT(heartbeat.Longest_Gap(), 0.5);
    EXPECT_FALSE(m_desktop->Is_Kept_Awake()) << "what the login service gave needs no bus";
}

TEST_F(Desktop_Help_Test, Without_A_Bus_Nothing_Happens)
{
    for (const char* address : {"", "unix:path=/nowhere/bus", "nonsense"}) {
        m_help = std::make_unique<Desktop_Help>(Desktop_Buses{QString(address), QString(address)});
        Run_On_Worker([&] {
            m_help->Job_Begins();
            m_help->Job_At(1, 2);
            m_help->Job_Waits("No network.");
            m_help->Job_Goes_On();
            m_help->Job_Says("Done.");
            m_help->Job_Ends();
            EXPECT_TRUE(*address != 0 || Workers_Running() == 0);
        });
        EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; })) << address;
    }
}

TEST_F(Desktop_Help_Test, At_The_End_Of_The_Program_Everything_Is_Let_Go_And_Nothing_More_Asked)
{
    There_Are({Fake_Desktop::Login, Fake_Desktop::Notifications});
    The_Job([](Desktop_Help& help) { help.Job_Begins(); });
    ASSERT_TRUE(m_desktop->Is_Kept_Awake());
    EXPECT_EQ(Heard_By(*m_desktop), Held);
    Begin_Program_Exit();
    The_Job([](Desktop_Help& help) {
        help.Job_Says("Done.");
        help.Job_Ends();
    });
    EXPECT_EQ(Heard_By(*m_desktop), "");
    m_help.reset();
    EXPECT_FALSE(m_desktop->Is_Kept_Awake());
}

// The same test, in a process of its own, is the program that is killed.
TEST_F(Desktop_Help_Test, The_Death_Of_The_Program_Lets_The_Computer_Sleep)
{
    if (const QString bus = qEnvironmentVariable(Bus_Of_The_Child); !bus.isEmpty()) {
        m_help = std::make_unique<Desktop_Help>(Desktop_Buses{bus, bus});
        Run_On_Worker([&] { m_help->Job_Begins(); });
        Serve_Until([] { return false; }, 120);
        FAIL() << "was not killed";
    }
    There_Are({Fake_Desktop::Login});
    QProcess program;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(Bus_Of_The_Child, m_bus->Address());
    program.setProcessEnvironment(environment);
    const auto* me = testing::UnitTest::GetInstance()->current_test_info();
    program.start(QCoreApplication::applicationFilePath(),
                  {QString("--gtest_filter=%1.%2").arg(me->test_suite_name(), me->name())});
    ASSERT_TRUE(Serve_Until([&] { return m_desktop->Is_Kept_Awake() && program.state() == QProcess::Running; }));
    program.kill();
    EXPECT_TRUE(Serve_Until([&] { return !m_desktop->Is_Kept_Awake(); }));
    EXPECT_TRUE(Serve_Until([&] { return program.state() == QProcess::NotRunning; }));
    EXPECT_EQ(program.exitStatus(), QProcess::CrashExit);
}

struct Environment
{
    const char* name;
    const char* session;
    const char* system;
    const char* runtime_folder;
    const char* session_bus;
    const char* system_bus;
};

void PrintTo(const Environment& environment, std::ostream* out)
{
    *out << environment.name;
}

class Desktop_Buses_In : public testing::TestWithParam<Environment>
{
protected:
    void Set(const char* name, const char* value)
    {
        m_before.append({name, qgetenv(name)});
        qputenv(name, value);
    }
    ~Desktop_Buses_In() override
    {
        for (const auto& [name, value] : m_before)
            qputenv(name, value);
    }

    QList<std::pair<const char*, QByteArray>> m_before;
};

TEST_P(Desktop_Buses_In, Are_Where_The_Environment_Says_And_Never_Started)
{
    Set("DBUS_SESSION_BUS_ADDRESS", GetParam().session);
    Set("DBUS_SYSTEM_BUS_ADDRESS", GetParam().system);
    Set("XDG_RUNTIME_DIR", GetParam().runtime_folder);
    const Desktop_Buses buses = Desktop_Buses::Of_This_Session();
    EXPECT_EQ(buses.session, GetParam().session_bus);
    EXPECT_EQ(buses.system, GetParam().system_bus);
}

INSTANTIATE_TEST_SUITE_P(
    An_Environment, Desktop_Buses_In,
    testing::Values(Environment{"Named", "unix:path=/a/bus,guid=1", "unix:path=/b/bus", "/run/user/7",
                                "unix:path=/a/bus,guid=1", "unix:path=/b/bus"},
                    Environment{"Silent", "", "", "/run/user/7", "unix:path=/run/user/7/bus",
                                "unix:path=/run/dbus/system_bus_socket"},
                    Environment{"Empty", "", "", "", "", "unix:path=/run/dbus/system_bus_socket"},
                    Environment{"To_Be_Started", "autolaunch:", "unixexec:path=dbus-daemon", "/run/user/7", "", ""},
                    Environment{"Perhaps_Started", "unix:path=/a/bus;autolaunch:", "none:", "/run/user/7", "", ""}),
    [](const auto& test) { return std::string(test.param.name); });

} // namespace
