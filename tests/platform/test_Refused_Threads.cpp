#include "platform/Thread_Shortage.h"
#include "support/Log_Lines.h"
#include "support/Refused_Threads.h"
#include "support/Serve_Until.h"
#include "toolkit/Guarded_Application.h"

#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <stdexcept>

// A system that gives no thread, and exceptions that nobody below the toolkit catches.

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

class Thread_Shortage : public testing::Test
{
protected:
    Thread_Shortage() { Flush_System_Log(); } // its thread is there before any is refused
};

TEST_F(Thread_Shortage, Work_Behind_A_Window_Is_Done_All_The_Same_And_What_It_Throws_Reaches_The_Caller)
{
    std::optional<Refused_Threads> refused(1);
    bool is_done_here = false;
    Run_On_Worker([&] { is_done_here = Is_Interface_Thread(); });
    EXPECT_TRUE(is_done_here);
    Run_On_Worker([&] { is_done_here = Is_Interface_Thread(); });
    EXPECT_FALSE(is_done_here);
    EXPECT_EQ(refused->Asked_For(), 2);
    refused.reset();
    refused.emplace(1);
    EXPECT_THROW(Run_On_Worker([] { throw std::runtime_error("no"); }), std::runtime_error);
}

TEST_F(Thread_Shortage, A_Worker_Does_Its_Work_At_Once_And_Is_Not_Counted)
{
    Log_Lines log;
    const Refused_Threads refused(1);
    bool is_done = false;
    Start_Worker("painter", [&] {
        EXPECT_TRUE(Is_Interface_Thread());
        is_done = true;
        throw std::runtime_error("out of paint");
    });
    EXPECT_TRUE(is_done);
    EXPECT_EQ(Workers_Running(), 0);
    EXPECT_TRUE(log.Has("A worker ended early: out of paint"));
    EXPECT_NE(log.Joined().find("No thread for painter"), std::string::npos);
}

TEST_F(Thread_Shortage, Work_That_Needs_A_Thread_Is_Not_Begun_And_Holds_Nothing)
{
    const auto held = std::make_shared<int>(0);
    std::atomic<int> done{0};
    const auto start = [&] { return Start_Worker_If_Possible("patient", [&done, held] { ++done; }); };
    std::optional<Refused_Threads> refused(1);
    EXPECT_FALSE(start());
    EXPECT_EQ(held.use_count(), 1);
    EXPECT_EQ(Workers_Running(), 0);
    refused.reset();
    EXPECT_TRUE(start());
    Finish_Workers();
    EXPECT_EQ(done, 1);
}

TEST_F(Thread_Shortage, A_Worker_Can_Be_Awaited_Without_Another_Thread)
{
    std::atomic<bool> has_ended{false};
    Start_Worker("slow", [&] {
        Wait_Seconds(0.05);
        Run_On_Interface_Thread([] {}); // it is served meanwhile
        has_ended = true;
    });
    const Refused_Threads refused(1);
    Await_Worker([&] { return has_ended.load(); });
    EXPECT_EQ(refused.Asked_For(), 0);
    Finish_Workers();
}

TEST(Thread_Shortage_Death_Test, The_Log_Waits_For_A_Thread)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto log_and_exit = [] {
        std::optional<Refused_Threads> refused(std::in_place, 1, Refused_Threads::And_Later::Are_Refused);
        Write_System_Log(u"one");
        Write_System_Log(u"two");
        refused.reset();
        Flush_System_Log();
        exit(0);
    };
    EXPECT_EXIT(log_and_exit(), testing::ExitedWithCode(0), "");
}

class Net : public testing::Test
{
protected:
    Net()
    {
        Tell([this] { ++m_told; });
    }
    ~Net() override { Tell({}); }

    static void Tell(std::function<void()> user) { Guarded_Application::When_Something_Breaks(std::move(user)); }
    static void Throw(const char* text) { throw std::runtime_error(text); }
    static void Post_A_Failure(const char* text)
    {
        Post_To_Interface_Thread(qApp, [text] { Throw(text); });
    }

    Log_Lines m_log;
    int m_told = 0;
};

TEST_F(Net, A_Step_That_Throws_Is_Logged_And_Told_And_The_Next_One_Is_Done)
{
    bool is_done = false;
    Post_A_Failure("spilt");
    Post_To_Interface_Thread(qApp, [&] { is_done = true; });
    EXPECT_TRUE(Serve_Until([&] { return is_done; }));
    EXPECT_EQ(m_told, 1);
    EXPECT_TRUE(m_log.Has("An action ended early: spilt"));
}

TEST_F(Net, A_Button_Whose_Slot_Throws_Can_Be_Pressed_Again)
{
#if defined(__SANITIZE_ADDRESS__)
    // The toolkit's widgets are built without exceptions: what they hold at the moment one passes is never given back.
    const __lsan::ScopedDisabler leaks_are_allowed;
#endif
    QPushButton button;
    int pressed = 0;
    QObject::connect(&button, &QPushButton::clicked, [&] {
        if (++pressed == 1)
            Throw("jammed");
    });
    button.show();
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(m_told, 1);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(pressed, 2);
    EXPECT_EQ(m_told, 1);
}

TEST_F(Net, What_Breaks_While_The_User_Is_Told_Is_Only_Logged)
{
    Tell([this] {
        ++m_told;
        Post_A_Failure("second");
        QCoreApplication::sendPostedEvents();
    });
    Post_A_Failure("first");
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(m_told, 1);
    EXPECT_TRUE(m_log.Has("An action ended early: second"));
}
