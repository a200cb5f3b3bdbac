#include "platform/Interface_Thread.h"

#include "platform/Watched_Mouse.h"
#include "support/Log_Lines.h"
#include "support/Serve_Until.h"

#include <gtest/gtest.h>
#include <memory>
#include <pthread.h>
#include <stdexcept>
#include <thread>

namespace {

/// Holds a worker up until something has happened elsewhere; for 20 seconds where it never does.
template <typename Has_Happened>
void Wait_Until(const Has_Happened& has_happened)
{
    const double end = Now_Seconds() + 20;
    while (!has_happened() && Now_Seconds() < end)
        std::this_thread::yield();
}

} // namespace

TEST(Interface_Thread, A_Workers_Step_Runs_On_The_Interface_Thread_Before_The_Worker_Goes_On)
{
    EXPECT_TRUE(Is_Interface_Thread());
    std::jthread([] { EXPECT_FALSE(Is_Interface_Thread()); }).join();
    bool is_done = false;
    Run_On_Worker([&] {
        EXPECT_FALSE(Is_Interface_Thread());
        Run_On_Interface_Thread([&] { is_done = Is_Interface_Thread(); });
        EXPECT_TRUE(is_done);
    });
    is_done = false;
    Run_On_Interface_Thread([&] { is_done = true; });
    EXPECT_TRUE(is_done) << "there a step simply runs";
}

TEST(Interface_Thread, What_A_Step_Or_The_Work_Throws_Reaches_Whoever_Waits)
{
    const auto throwing_step = [] { throw std::runtime_error("out of range"); };
    EXPECT_THROW(Run_On_Interface_Thread(throwing_step), std::runtime_error);
    QString told;
    Run_On_Worker([&] {
        try {
            Run_On_Interface_Thread(throwing_step);
        } catch (const std::runtime_error& failure) {
            told = failure.what();
        }
    });
    EXPECT_EQ(told, "out of range");
    EXPECT_THROW(Run_On_Worker([] { throw std::out_of_range("no"); }), std::out_of_range);
    EXPECT_THROW(Run_On_Worker([] { throw 7; }), int);
}

TEST(Interface_Thread, The_Interface_Thread_Lives_While_A_Worker_Works)
{
    std::atomic<int> beats{0};
    QTimer heart;
    QObject::connect(&heart, &QTimer::timeout, [&] { ++beats; });
    heart.start(1);
    Run_On_Worker([&] { Wait_Until([&] { return beats >= 5; }); });
    EXPECT_GE(beats, 5);
}

TEST(Interface_Thread, Workers_And_Steps_Nest_As_Deep_As_They_Like)
{
    QStringList way;
    Run_On_Worker([&] {
        Run_On_Interface_Thread([&] {
            way += "step";
            Run_On_Worker([&] { Run_On_Interface_Thread([&] { way += "inner step"; }); });
            way += "step again";
        });
        const auto here = std::this_thread::get_id();
        Run_On_Worker([&] { EXPECT_EQ(std::this_thread::get_id(), here) << "a worker does a worker's work itself"; });
    });
    EXPECT_EQ(way.join(u','), "step,inner step,step again");
}

TEST(Interface_Thread, A_Wait_That_Is_Over_First_Waits_For_The_One_That_Began_Inside_It)
{
    std::atomic<bool> may_end{false};
    bool inner_is_done = false;
    QTimer::singleShot(0, [&] {
        Run_On_Worker([&] { Wait_Until([&] { return may_end.load(); }); });
        inner_is_done = true;
    });
    Run_On_Worker([&] { Run_On_Interface_Thread([&] { may_end = true; }); });
    EXPECT_TRUE(Serve_Until([&] { return inner_is_done; }));
}

TEST(Interface_Thread, A_Step_That_Lay_Behind_The_Waiting_One_Is_Served_Inside_It)
{
    std::atomic<bool> is_served{false};
    bool was_served_inside = false;
    QObject context;
    Post_To_Interface_Thread(&context, [&] {
        Run_On_Worker([&] { Wait_Until([&] { return is_served.load(); }); });
        was_served_inside = is_served;
    });
    Post_To_Interface_Thread(&context, [&] { is_served = true; });
    EXPECT_TRUE(Serve_Until([&] { return is_served.load(); }, 30));
    EXPECT_TRUE(was_served_inside);
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
    Run_On_Worker([&] { Wait_Until([&] { return window.m_moves == 2; }); }, User_Input::Served);
    EXPECT_EQ(window.m_moves, 2);
}

TEST(Interface_Thread, A_Posted_Step_Comes_Later_And_Only_While_Its_Context_Lives)
{
    QStringList done;
    QObject context;
    auto short_lived = std::make_unique<QObject>();
    Post_To_Interface_Thread(&context, [&] { done += "first"; });
    Post_To_Interface_Thread(short_lived.get(), [&] { done += "never"; });
    Post_To_Interface_Thread(&context, [&] { done += "second"; });
    EXPECT_TRUE(done.isEmpty());
    short_lived.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(done.join(u','), "first,second");
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

    // Also one whose step lay behind the finishing one.
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
    Wait_Until([&] { return has_asked.load(); });
    EXPECT_TRUE(Serve_Until([&] { return is_finished; }));
}

TEST(Interface_Thread, A_Worker_Has_Its_Name_And_Counts_Until_It_Has_Ended_And_Let_Go)
{
    auto held = std::make_shared<int>(1);
    const std::weak_ptr<int> watched = held;
    char name[16] = {};
    std::atomic<bool> may_end{false};
    Start_Worker("send job", [&, kept = std::move(held)] {
        Wait_Until([&] { return may_end.load(); });
        // The name is given from outside; wait for it.
        Wait_Until([&] {
            pthread_getname_np(pthread_self(), name, sizeof name);
            return strcmp(name, "send job") == 0;
        });
    });
    EXPECT_EQ(Workers_Running(), 1);
    EXPECT_FALSE(watched.expired());
    may_end = true;
    Finish_Workers();
    EXPECT_TRUE(watched.expired());
    EXPECT_STREQ(name, "send job");
}

TEST(Interface_Thread, An_Exception_Ends_Its_Worker_Only_And_Is_Logged)
{
    const Log_Lines log;
    Start_Worker("throws", [] { throw std::runtime_error("boom"); });
    Finish_Workers();
    Start_Worker("throws", [] { throw 7; });
    Finish_Workers();
    EXPECT_EQ(log.Joined(), "A worker ended early: boom|A worker ended early.|");
}
