#include "engine/Pause_Countdown.h"

#include "windows/main/Sending_Test.h"

// A pause in the real progress window, on a worker of its own as in a job.
class Pause_Countdown_Test : public Sending_Test
{
protected:
    Pause_Countdown_Test()
    {
        m_progress.Begin_Preparing(2);
        m_progress.Begin_Sending();
        m_progress.startTimerThread();
        m_progress.Forget_Steps();
        Set_Pace(100);
    }

    void Pause(qint64 seconds)
    {
        Run_On_Worker([&] { Pause_Countdown(m_progress, m_stop).Pause(seconds); });
    }

    static QString Pausing(const QString& time) { return "Pausing the process for " + time; }

    Stop_Flag m_stop;
};

TEST_F(Pause_Countdown_Test, The_Label_Counts_Every_Second_Down_To_One)
{
    Pause(0);
    EXPECT_EQ(m_progress.Steps(), QStringList());
    Pause(3);
    EXPECT_EQ(m_progress.Steps(), (QStringList{"pause", Pausing("3 Seconds."), Pausing("2 Seconds."),
                                               Pausing("1 Seconds."), "pause over"}));
    EXPECT_EQ(In_Progress_Window<QLabel>("_pause_timer").text(), QString());
}

TEST_F(Pause_Countdown_Test, A_Whole_Hour_Begins_With_Its_Hour_And_Goes_On_Without)
{
    Set_Pace(20000);
    Pause(3600);
    const QStringList steps = m_progress.Steps();
    ASSERT_EQ(steps.size(), 3602);
    EXPECT_EQ(steps.at(1), Pausing("1 Hour 0 Minute 0 Seconds."));
    for (int left = 3599; left >= 1; --left) {
        const QString minutes = left >= 60 ? QString::number(left / 60) + " Minute " : QString();
        ASSERT_EQ(steps.at(3601 - left), Pausing(minutes + QString::number(left % 60) + " Seconds."));
    }
    EXPECT_EQ(steps.last(), "pause over");
}

TEST_F(Pause_Countdown_Test, It_Lasts_Exactly_Its_Length)
{
    Set_Pace(10);
    const Stopwatch watch;
    Pause(10);
    EXPECT_GE(watch.Lasted(), 1.0);
    EXPECT_LT(watch.Lasted_For_The_Thread(), 1.5);
}

TEST_F(Pause_Countdown_Test, Nothing_Is_Being_Sent_Meanwhile_And_The_Window_Says_So)
{
    const auto is_shown = [](const char* name) { return In_Progress_Window<QWidget>(name).isVisible(); };
    At_Step(Pausing("1 Seconds."), [&] {
        Run_On_Interface_Thread([&] {
            EXPECT_TRUE(Pause_Timer_Running);
            EXPECT_FALSE(is_shown("_current_send_label") || is_shown("_current_send_msg"));
            EXPECT_TRUE(is_shown("_Tot_Progress"));
            EXPECT_EQ(In_Progress_Window<QProgressBar>("_Curr_Progress").value(), 0);
            EXPECT_TRUE(In_Progress_Window<QPushButton>("_stop_btn").isEnabled());
            EXPECT_FALSE(In_Progress_Window<QTimer>("msend_modTimer").isActive());
        });
    });
    Pause(2);
    EXPECT_EQ(m_progress.Steps().size(), 4);
    EXPECT_FALSE(Pause_Timer_Running);
    EXPECT_TRUE(is_shown("_current_send_label") && is_shown("_current_send_msg"));
    EXPECT_TRUE(In_Progress_Window<QTimer>("msend_modTimer").isActive());
}

TEST_F(Pause_Countdown_Test, A_Stop_Ends_It_Within_A_Second_At_The_Pace_It_Ships_With)
{
    Set_Pace(1);
    double stopped_at = 0;
    At_Step(Pausing("1 Hour 0 Minute 0 Seconds."), [&] {
        stopped_at = Now_Seconds();
        m_stop = 1;
    });
    Pause(3600);
    EXPECT_GT(stopped_at, 0);
    EXPECT_LT(Now_Seconds() - stopped_at, 1.0);
    EXPECT_FALSE(Pause_Timer_Running);
}

TEST_F(Pause_Countdown_Test, A_Stop_From_The_Window_Wakes_The_Sleeping_Pause)
{
    Set_Pace(0.001); // a second lasts a quarter of an hour: only the stop can end this
    At_Step(Pausing("3 Seconds."), [&] { Post_To_Interface_Thread(qApp, [&] { m_stop = 1; }); });
    Pause(3);
    EXPECT_EQ(m_progress.Steps().mid(0, 2), (QStringList{"pause", Pausing("3 Seconds.")}));
    EXPECT_EQ(m_progress.Steps().last(), "pause over");
}
