#include "platform/Waiting.h"

#include "platform/Interface_Thread.h"
#include "platform/Pace.h"
#include "platform/Watched_Mouse.h"
#include "support/Serve_Until.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <thread>

class Waiting : public testing::Test
{
protected:
    ~Waiting() override
    {
        Finish_Workers();
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

    /// Expects a wait to end long before its time; 20 real seconds are taken by a failing test only.
    template <typename Work>
    static void Expect_It_Ends_Early(const Work& work, const char* what = "")
    {
        EXPECT_LT(Seconds_Of(work), 20) << what;
    }

    /// Expects a worker's wait to end early when something happens after its begin.
    template <typename Work, typename Happening>
    static void Expect_A_Worker_Ends_Early(const Work& work, const Happening& happening)
    {
        std::atomic<bool> has_begun{false};
        std::thread worker([&] {
            has_begun = true;
            work();
        });
        while (!has_begun)
            std::this_thread::yield();
        Expect_It_Ends_Early([&] {
            happening();
            worker.join();
        });
    }
};

TEST_F(Waiting, The_Clock_Never_Goes_Back_And_Today_Is_The_Users_Date)
{
    double before = Now_Seconds();
    for (int i = 0; i < 10000; ++i) {
        const double now = Now_Seconds();
        ASSERT_GE(now, before);
        before = now;
    }
    const QDate day_before = QDate::currentDate();
    const QDate today = Today();
    EXPECT_TRUE(day_before <= today && today <= QDate::currentDate());
}

TEST_F(Waiting, The_Pace_Divides_Every_Wait_But_A_Read_Is_Never_Cut_Below_20_Milliseconds)
{
    Set_Pace(10);
    EXPECT_DOUBLE_EQ(Paced(5), 0.5);
    double waited = 0;
    std::jthread([&] { waited = Seconds_Of([] { Wait_Seconds(0.5); }); }).join();
    EXPECT_GE(waited, 0.05);
    EXPECT_LT(waited, 20);
    Set_Pace(0.5);
    EXPECT_DOUBLE_EQ(Paced(5), 10);
    EXPECT_EQ(Paced(0), 0);
    EXPECT_EQ(Paced(-3), 0);
    Set_Pace(1e-300); // asks for no more than a clock can count
    EXPECT_EQ(Paced(1), 365 * 24 * 3600.0);
    EXPECT_EQ(Paced(0), 0);

    Set_Pace(1);
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
    EXPECT_LT(waited, 20);
    EXPECT_GT(beats, 1);
    EXPECT_TRUE(was_served);
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
        Wait_Seconds(0);
        Wait_Seconds(-1);
        way += "waited for no time";
        Wait_Seconds(0.05);
        way += "waited";
    });
    Post_To_Interface_Thread(&context, [&] { way += "served"; });
    EXPECT_TRUE(Serve_Until([&] { return way.size() == 3; }));
    EXPECT_EQ(way.join(u','), "waited for no time,served,waited");
}

TEST_F(Waiting, The_Exit_Ends_Every_Wait_Whoever_Begins_It)
{
    Expect_A_Worker_Ends_Early([] { Wait_Seconds(3600); }, Begin_Program_Exit);
    Forget_Program_Exit();
    Start_Worker("exits", Begin_Program_Exit);
    Expect_It_Ends_Early([] { Wait_Seconds(3600); });
    EXPECT_TRUE(Program_Is_Exiting());
    Expect_It_Ends_Early([] { Wait_Seconds(3600); }, "and every wait from then on");
}

TEST_F(Waiting, A_Wait_Ends_When_What_It_Waits_For_Is_Over)
{
    int asked = 0;
    Expect_It_Ends_Early([&] { Wait_Seconds_Unless(3600, [&] { return ++asked == 3; }); });
    EXPECT_EQ(asked, 3);

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
    EXPECT_EQ(stop, 0);
    const auto wait = [&] { stop.Wait(3600); };
    Expect_A_Worker_Ends_Early(wait, [&] { stop = 1; });
    EXPECT_EQ(stop, 1);
    Expect_It_Ends_Early(wait, "asked for before the wait");
    std::jthread([&] { Expect_It_Ends_Early(wait, "asked for before a worker's wait"); }).join();
    stop = 0;
    Start_Worker("stops", [&] { stop = 1; });
    Expect_It_Ends_Early(wait, "on the interface thread");
    Finish_Workers();
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

TEST_F(Waiting, Without_A_Stop_The_Paced_Time_Passes_Asleep_And_The_Exit_Ends_It)
{
    const Stop_Flag stop;
    Set_Pace(10);
    EXPECT_GE(Seconds_Of([&] { stop.Wait(1); }), 0.1);
    std::jthread([&] {
        rusage before{};
        rusage after{};
        getrusage(RUSAGE_THREAD, &before);
        EXPECT_GE(Seconds_Of([&] { stop.Wait(5); }), 0.5);
        getrusage(RUSAGE_THREAD, &after);
        EXPECT_LE(after.ru_nvcsw - before.ru_nvcsw, 3) << "the thread was woken before its time";
    }).join();
    Start_Worker("exits", Begin_Program_Exit);
    Expect_It_Ends_Early([&] { stop.Wait(36000); });
}
