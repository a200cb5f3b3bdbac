#include "platform/Interface_Thread.h"
#include "platform/System_Log.h"
#include "platform/Waiting.h"
#include "platform/Watched_Mouse.h"
#include "support/Serve_Until.h"

#include <QStringList>
#include <QThread>
#include <QTimer>
#include <atomic>
#include <gtest/gtest.h>
#include <memory>
#include <pthread.h>
#include <stdexcept>
#include <thread>

TEST(Interface_Thread, A_Worker_Is_Not_The_Interface_Thread)
{
    EXPECT_TRUE(Is_Interface_Thread());
    bool answer = true;
    std::thread worker([&] { answer = Is_Interface_Thread(); });
    worker.join();
    EXPECT_FALSE(answer);
}

TEST(Interface_Thread, A_Workers_Step_Runs_On_The_Interface_Thread_Before_The_Worker_Goes_On)
{
    const auto* interface_thread = QThread::currentThread();
    const QThread* step_thread = nullptr;
    bool was_done_in_time = false;
    Run_On_Worker([&] {
        Run_On_Interface_Thread([&] { step_thread = QThread::currentThread(); });
        was_done_in_time = step_thread != nullptr;
    });
    EXPECT_EQ(step_thread, interface_thread);
    EXPECT_TRUE(was_done_in_time);
}

TEST(Interface_Thread, On_The_Interface_Thread_A_Step_Simply_Runs)
{
    bool has_run = false;
    Run_On_Interface_Thread([&] { has_run = true; });
    EXPECT_TRUE(has_run);
    EXPECT_THROW(Run_On_Interface_Thread([] { throw std::runtime_error("no"); }), std::runtime_error);
}

TEST(Interface_Thread, What_A_Step_Throws_Reaches_The_Worker_That_Asked)
{
    QString told;
    Run_On_Worker([&] {
        try {
            Run_On_Interface_Thread([] { throw std::runtime_error("out of range"); });
        } catch (const std::runtime_error& failure) {
            told = QLatin1String(failure.what());
        }
    });
    EXPECT_EQ(told, QLatin1String("out of range"));
}

TEST(Interface_Thread, What_The_Work_Throws_Reaches_Whoever_Waits)
{
    EXPECT_THROW(Run_On_Worker([] { throw std::out_of_range("no"); }), std::out_of_range);
    EXPECT_THROW(Run_On_Worker([] { throw 7; }), int);
}

TEST(Interface_Thread, The_Interface_Thread_Lives_While_A_Worker_Works)
{
    std::atomic<int> beats{0};
    QTimer heart;
    QObject::connect(&heart, &QTimer::timeout, [&] { ++beats; });
    heart.start(1);
    const double end = Now_Seconds() + 20;
    Run_On_Worker([&] {
        while (beats < 5 && Now_Seconds() < end)
            std::this_thread::yield();
    });
    EXPECT_GE(beats, 5);
}

TEST(Interface_Thread, Workers_And_Steps_Nest_As_Deep_As_They_Like)
{
    QStringList way;
    Run_On_Worker([&] {
        Run_On_Interface_Thread([&] {
            way += QStringLiteral("step");
            Run_On_Worker([&] { Run_On_Interface_Thread([&] { way += QStringLiteral("inner step"); }); });
            way += QStringLiteral("step again");
        });
    });
    EXPECT_EQ(way.join(u','), QLatin1String("step,inner step,step again"));
}

TEST(Interface_Thread, A_Wait_That_Is_Over_First_Waits_For_The_One_That_Began_Inside_It)
{
    std::atomic<bool> may_end{false};
    bool inner_is_done = false;
    QTimer::singleShot(0, [&] {
        Run_On_Worker([&] {
            while (!may_end)
                std::this_thread::yield();
        });
        inner_is_done = true;
    });
    Run_On_Worker([&] { Run_On_Interface_Thread([&] { may_end = true; }); });
    EXPECT_TRUE(Serve_Until([&] { return inner_is_done; }));
}

TEST(Interface_Thread, A_Step_That_Lay_Behind_The_Waiting_One_Is_Served_Inside_It)
{
    std::atomic<bool> is_served{false};
    bool was_served_inside = false;
    const double end = Now_Seconds() + 20;
    QObject context;
    Post_To_Interface_Thread(&context, [&] {
        Run_On_Worker([&] {
            while (!is_served && Now_Seconds() < end)
                std::this_thread::yield();
            was_served_inside = is_served;
        });
    });
    Post_To_Interface_Thread(&context, [&] { is_served = true; });
    EXPECT_TRUE(Serve_Until([&] { return is_served.load(); }, 30));
    EXPECT_TRUE(was_served_inside);
}

TEST(Interface_Thread, Finishing_Serves_A_Worker_Whose_Step_Lay_Behind_The_Finishing_One)
{
    std::atomic<bool> has_asked{false};
    bool is_finished = false;
    QObject context;
    Post_To_Interface_Thread(&context, [&] {
        Finish_Workers();
        is_finished = true;
    });
    Start_Worker("asks", [&] {
        Post_To_Interface_Thread(&context, [] {});
        has_asked = true;
        Run_On_Interface_Thread([] {});
    });
    while (!has_asked)
        std::this_thread::yield();
    EXPECT_TRUE(Serve_Until([&] { return is_finished; }));
}

TEST(Interface_Thread, A_Worker_Does_A_Workers_Work_Itself)
{
    bool is_same = false;
    Run_On_Worker([&] {
        const auto here = std::this_thread::get_id();
        Run_On_Worker([&] { is_same = std::this_thread::get_id() == here; });
    });
    EXPECT_TRUE(is_same);
}

TEST(Interface_Thread, What_The_User_Does_Waits_For_The_Work_Unless_It_Is_Served)
{
    Watched_Mouse window;
    ASSERT_TRUE(window.m_is_ready);
    window.Move();
    Run_On_Worker([] {
        for (int i = 0; i < 10; ++i)
            Run_On_Interface_Thread([] {});
    });
    EXPECT_EQ(window.m_moves, 0);
    EXPECT_TRUE(Serve_Until([&] { return window.m_moves == 1; }));

    window.Move();
    const double end = Now_Seconds() + 20;
    const auto watch = [&] {
        while (window.m_moves < 2 && Now_Seconds() < end)
            std::this_thread::yield();
    };
    Run_On_Worker(watch, User_Input::Served);
    EXPECT_EQ(window.m_moves, 2);
}

TEST(Interface_Thread, A_Posted_Step_Comes_Later_And_Only_While_Its_Context_Lives)
{
    QStringList done;
    QObject context;
    auto short_lived = std::make_unique<QObject>();
    Post_To_Interface_Thread(&context, [&] { done += QStringLiteral("first"); });
    Post_To_Interface_Thread(short_lived.get(), [&] { done += QStringLiteral("never"); });
    Post_To_Interface_Thread(&context, [&] { done += QStringLiteral("second"); });
    EXPECT_TRUE(done.isEmpty());
    short_lived.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(done.join(u','), QLatin1String("first,second"));
}

TEST(Interface_Thread, Finishing_Serves_Workers_That_Still_Need_The_Windows)
{
    std::atomic<int> steps{0};
    for (int i = 0; i < 20; ++i) {
        Start_Worker("steps", [&] {
            for (int k = 0; k < 10; ++k)
                Run_On_Interface_Thread([&] { ++steps; });
        });
    }
    Finish_Workers();
    EXPECT_EQ(steps, 200);
    EXPECT_EQ(Workers_Running(), 0);
}

TEST(Interface_Thread, A_Worker_Counts_Until_It_Has_Ended_And_Let_Go)
{
    auto held = std::make_shared<int>(1);
    const std::weak_ptr<int> watched = held;
    std::atomic<bool> may_end{false};
    Start_Worker("waits", [&may_end, kept = std::move(held)] {
        while (!may_end)
            std::this_thread::yield();
    });
    EXPECT_EQ(Workers_Running(), 1);
    EXPECT_FALSE(watched.expired());
    may_end = true;
    Finish_Workers();
    EXPECT_TRUE(watched.expired());
}

TEST(Interface_Thread, A_Worker_Carries_Its_Name)
{
    char name[16] = {};
    Start_Worker("send job", [&] {
        // The name is given from outside; wait for it.
        while (strcmp(name, "send job") != 0)
            pthread_getname_np(pthread_self(), name, sizeof name);
    });
    Finish_Workers();
    EXPECT_STREQ(name, "send job");
}

TEST(Interface_Thread, An_Exception_Ends_Its_Worker_Only_And_Is_Logged)
{
    QStringList logged;
    Set_Log_Listener([&](const QString& line) { logged += line; });
    Start_Worker("throws", [] { throw std::runtime_error("boom"); });
    Finish_Workers();
    Start_Worker("throws", [] { throw 7; });
    Finish_Workers();
    Set_Log_Listener({});
    EXPECT_EQ(logged.join(u'|'), QLatin1String("A worker ended early: boom|A worker ended early."));
}
