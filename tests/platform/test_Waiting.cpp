#include "platform/Interface_Thread.h"
#include "platform/Pace.h"
#include "platform/Waiting.h"
#include "platform/Watched_Mouse.h"
#include "support/Serve_Until.h"

#include <QStringList>
#include <QTimer>
#include <atomic>
#include <cerrno>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <thread>

namespace {

constexpr double Much_Longer_Than_Needed = 20; // real seconds; only a failing test takes them

class Waiting : public testing::Test
{
protected:
    ~Waiting() override
    {
        Forget_Program_Exit();
        Set_Pace(1);
    }

    template <typename Work>
    static double Seconds_Of(const Work& work)
    {
        const double start = Now_Seconds();
        work();
        return Now_Seconds() - start;
    }
};

} // namespace

TEST_F(Waiting, The_Clock_Never_Goes_Back)
{
    double before = Now_Seconds();
    for (int i = 0; i < 10000; ++i) {
        const double now = Now_Seconds();
        ASSERT_GE(now, before);
        before = now;
    }
}

TEST_F(Waiting, The_Pace_Divides_Every_Wait)
{
    Set_Pace(10);
    EXPECT_DOUBLE_EQ(Paced(5), 0.5);
    Set_Pace(0.5);
    EXPECT_DOUBLE_EQ(Paced(5), 10);
    EXPECT_EQ(Paced(0), 0);
    EXPECT_EQ(Paced(-3), 0);
}

TEST_F(Waiting, A_Pace_Near_0_Asks_For_No_More_Than_A_Clock_Can_Count)
{
    Set_Pace(1e-300);
    EXPECT_EQ(Paced(1), 365 * 24 * 3600.0);
    EXPECT_EQ(Paced(0), 0);
}

TEST_F(Waiting, A_Read_Is_Never_Cut_Below_20_Milliseconds)
{
    EXPECT_DOUBLE_EQ(Paced_Read_Timeout(1), 1);
    Set_Pace(10);
    EXPECT_DOUBLE_EQ(Paced_Read_Timeout(5), 0.5);
    Set_Pace(1000);
    EXPECT_DOUBLE_EQ(Paced_Read_Timeout(5), 0.020);
    EXPECT_DOUBLE_EQ(Paced_Read_Timeout(1), 0.020);
    EXPECT_EQ(Paced_Read_Timeout(0), 0);
    EXPECT_EQ(Paced_Read_Timeout(-1), 0);
    EXPECT_DOUBLE_EQ(Paced_Read_Timeout(0.005), 0.005) << "shorter to begin with, and not made longer";
}

TEST_F(Waiting, A_Worker_Waits_The_Paced_Time)
{
    Set_Pace(10);
    double waited = 0;
    std::thread worker([&] { waited = Seconds_Of([] { Wait_Seconds(0.5); }); });
    worker.join();
    EXPECT_GE(waited, 0.05);
    EXPECT_LT(waited, Much_Longer_Than_Needed);
}

TEST_F(Waiting, The_Interface_Thread_Serves_Timers_And_Workers_While_It_Waits)
{
    int beats = 0;
    QTimer heart;
    QObject::connect(&heart, &QTimer::timeout, [&] { ++beats; });
    heart.start(1);
    std::atomic<bool> was_served{false};
    Start_Worker("asks", [&] { Run_On_Interface_Thread([&] { was_served = true; }); });
    const double waited = Seconds_Of([] { Wait_Seconds(0.1); });
    EXPECT_GE(waited, 0.1);
    EXPECT_LT(waited, Much_Longer_Than_Needed);
    EXPECT_GT(beats, 1);
    EXPECT_TRUE(was_served);
    Finish_Workers();
}

TEST_F(Waiting, What_The_User_Does_During_A_Wait_Takes_Effect_After_It)
{
    Watched_Mouse window;
    ASSERT_TRUE(window.m_is_ready);
    window.Move();
    Wait_Seconds(0.03);
    EXPECT_EQ(window.m_moves, 0);
    EXPECT_TRUE(Serve_Until([&] { return window.m_moves == 1; }));
}

TEST_F(Waiting, A_Step_That_Lay_Behind_The_Waiting_One_Is_Served_Inside_It)
{
    QStringList way;
    QObject context;
    Post_To_Interface_Thread(&context, [&] {
        Wait_Seconds(0.05);
        way += QStringLiteral("waited");
    });
    Post_To_Interface_Thread(&context, [&] { way += QStringLiteral("served"); });
    EXPECT_TRUE(Serve_Until([&] { return way.size() == 2; }));
    EXPECT_EQ(way.join(u','), QLatin1String("served,waited"));
}

TEST_F(Waiting, A_Wait_Of_No_Time_Serves_Nothing)
{
    bool was_served = false;
    QObject context;
    Post_To_Interface_Thread(&context, [&] { was_served = true; });
    Wait_Seconds(0);
    Wait_Seconds(-1);
    EXPECT_FALSE(was_served);
}

TEST_F(Waiting, The_Exit_Ends_A_Workers_Wait)
{
    std::atomic<bool> has_begun{false};
    std::thread worker([&] {
        has_begun = true;
        Wait_Seconds(3600);
    });
    while (!has_begun)
        std::this_thread::yield();
    EXPECT_LT(Seconds_Of([&] {
                  Begin_Program_Exit();
                  worker.join();
              }),
              Much_Longer_Than_Needed);
}

TEST_F(Waiting, The_Exit_Ends_The_Interface_Threads_Wait_Whoever_Begins_It)
{
    Start_Worker("exits", [] { Begin_Program_Exit(); });
    EXPECT_LT(Seconds_Of([] { Wait_Seconds(3600); }), Much_Longer_Than_Needed);
    EXPECT_TRUE(Program_Is_Exiting());
    EXPECT_LT(Seconds_Of([] { Wait_Seconds(3600); }), Much_Longer_Than_Needed) << "and every wait from then on";
    Finish_Workers();
}

TEST_F(Waiting, A_Wait_Ends_When_What_It_Waits_For_Is_Over)
{
    int asked = 0;
    const double waited = Seconds_Of([&] { Wait_Seconds_Unless(3600, [&] { return ++asked == 3; }); });
    EXPECT_EQ(asked, 3);
    EXPECT_LT(waited, Much_Longer_Than_Needed);

    Set_Pace(10);
    EXPECT_GE(Seconds_Of([] { Wait_Seconds_Unless(1, [] { return false; }); }), 0.1);

    asked = 0;
    Begin_Program_Exit();
    Wait_Seconds_Unless(3600, [&] { return ++asked == 3; });
    EXPECT_EQ(asked, 1);
}

TEST_F(Waiting, A_Stop_Ends_A_Wait_For_It_Whoever_Asks_And_Whoever_Waits)
{
    Stop_Flag stop;
    std::atomic<bool> has_begun{false};
    std::thread worker([&] {
        has_begun = true;
        stop.Wait(3600);
    });
    while (!has_begun)
        std::this_thread::yield();
    EXPECT_LT(Seconds_Of([&] {
                  stop = 1;
                  worker.join();
              }),
              Much_Longer_Than_Needed);

    stop = 0;
    Start_Worker("stops", [&] { stop = 1; });
    EXPECT_LT(Seconds_Of([&] { stop.Wait(3600); }), Much_Longer_Than_Needed) << "on the interface thread";
    Finish_Workers();
}

TEST_F(Waiting, A_Stop_Asked_For_Before_The_Wait_Is_Heard_Too)
{
    Stop_Flag stop;
    EXPECT_EQ(stop, 0);
    stop = 1;
    EXPECT_EQ(stop, 1);
    const auto wait = [&] { stop.Wait(3600); };
    EXPECT_LT(Seconds_Of(wait), Much_Longer_Than_Needed);
    std::thread worker([&] { EXPECT_LT(Seconds_Of(wait), Much_Longer_Than_Needed); });
    worker.join();
}

TEST_F(Waiting, No_Stop_Is_Lost_Between_The_Look_And_The_Sleep)
{
    Stop_Flag stop;
    std::atomic<int> begun{0};
    std::atomic<int> ended{0};
    constexpr int Rounds = 2000;
    std::thread worker([&] {
        for (int round = 1; round <= Rounds; ++round) {
            begun = round;
            stop.Wait(3600);
            stop = 0;
            ended = round;
        }
    });
    const double time = Seconds_Of([&] {
        for (int round = 1; round <= Rounds; ++round) {
            while (begun != round)
                std::this_thread::yield();
            stop = 1;
            while (ended != round)
                std::this_thread::yield();
        }
    });
    worker.join();
    EXPECT_LT(time, 3600);
}

TEST_F(Waiting, Without_A_Stop_The_Paced_Time_Passes_And_The_Exit_Ends_It)
{
    const Stop_Flag stop;
    Set_Pace(10);
    EXPECT_GE(Seconds_Of([&] { stop.Wait(1); }), 0.1);
    std::thread worker([&] { EXPECT_GE(Seconds_Of([&] { stop.Wait(1); }), 0.1); });
    worker.join();
    Start_Worker("exits", [] { Begin_Program_Exit(); });
    EXPECT_LT(Seconds_Of([&] { stop.Wait(36000); }), Much_Longer_Than_Needed);
    Finish_Workers();
}

TEST_F(Waiting, A_Wait_For_A_Stop_Sleeps_Through)
{
    std::thread worker([] {
        const Stop_Flag stop;
        rusage before{};
        rusage after{};
        getrusage(RUSAGE_THREAD, &before);
        stop.Wait(0.5);
        getrusage(RUSAGE_THREAD, &after);
        EXPECT_LE(after.ru_nvcsw - before.ru_nvcsw, 3) << "the thread was woken before its time";
    });
    worker.join();
}

TEST_F(Waiting, Today_Is_The_Users_Date)
{
    const QDate before = QDate::currentDate();
    const QDate today = Today();
    EXPECT_TRUE(before <= today && today <= QDate::currentDate());
}
