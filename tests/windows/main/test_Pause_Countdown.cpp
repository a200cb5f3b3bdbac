#include "engine/Pause_Countdown.h"

#include "engine/Job_State.h"
#include "platform/Waiting.h"
#include "windows/main/Sending_Test.h"

#include <gmock/gmock.h>

namespace {

// A pause in the real progress window, on a worker of its own as in a job.
class Pause_Countdown_Test : public testing::Test
{
protected:
    Pause_Countdown_Test() : m_progress(*Send_Modeless::defaultInstance())
    {
        m_progress.Begin_Preparing(2);
        m_progress.Begin_Sending();
        m_progress.startTimerThread();
        m_steps_before = m_progress.Steps();
    }
    ~Pause_Countdown_Test() override
    {
        Finish_Workers();
        Set_Pace(1);
        End_Shared_Instances();
    }

    void Pause(qint64 seconds)
    {
        Run_On_Worker([&] { Pause_Countdown(m_progress, m_stop).Pause(seconds); });
    }

    QStringList New_Steps() const { return m_progress.Steps().mid(m_steps_before.size()); }

    template <typename Control>
    static Control& The(const char* name)
    {
        return *Send_Modeless::defaultInstance()->findChild<Control*>(QLatin1String(name));
    }

    User m_user;
    Window_For_Tests m_window;
    Watched_Progress m_progress;
    QStringList m_steps_before;
    Stop_Flag m_stop;
};

QString Pausing(const char* time)
{
    return QStringLiteral("Pausing the process for ") + QLatin1String(time);
}

TEST_F(Pause_Countdown_Test, The_Label_Counts_Every_Second_Down_To_One)
{
    Set_Pace(100);
    Pause(3);
    EXPECT_EQ(New_Steps(), (QStringList{"pause", Pausing("3 Seconds."), Pausing("2 Seconds."), Pausing("1 Seconds."),
                                        "pause over"}));
    EXPECT_EQ(The<QLabel>("_pause_timer").text(), QString());
}

TEST_F(Pause_Countdown_Test, A_Whole_Hour_Begins_With_Its_Hour_And_Goes_On_Without)
{
    Set_Pace(20000);
    Pause(3600);
    const QStringList steps = New_Steps();
    ASSERT_EQ(steps.size(), 3602);
    EXPECT_EQ(steps.at(1), Pausing("1 Hour 0 Minute 0 Seconds."));
    for (int left = 3599; left >= 1; --left) {
        const QString minutes = left >= 60 ? QString::number(left / 60) + QStringLiteral(" Minute ") : QString();
        const QString text = Pausing("") + minutes + QString::number(left % 60) + QStringLiteral(" Seconds.");
        ASSERT_EQ(steps.at(3601 - left), text);
    }
    EXPECT_EQ(steps.last(), QStringLiteral("pause over"));
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
    Set_Pace(100);
    m_progress.m_at_step = [&](const QString& step) {
        if (step != Pausing("1 Seconds."))
            return;
        Run_On_Interface_Thread([&] {
            EXPECT_TRUE(Pause_Timer_Running);
            EXPECT_FALSE(The<QLabel>("_current_send_label").isVisible());
            EXPECT_FALSE(The<QLabel>("_current_send_msg").isVisible());
            EXPECT_TRUE(The<QProgressBar>("_Tot_Progress").isVisible());
            EXPECT_EQ(The<QProgressBar>("_Curr_Progress").value(), 0);
            EXPECT_TRUE(The<QPushButton>("_stop_btn").isEnabled());
            EXPECT_FALSE(The<QTimer>("msend_modTimer").isActive());
        });
    };
    Pause(2);
    EXPECT_EQ(New_Steps().size(), 4);
    EXPECT_FALSE(Pause_Timer_Running);
    EXPECT_TRUE(The<QLabel>("_current_send_label").isVisible());
    EXPECT_TRUE(The<QLabel>("_current_send_msg").isVisible());
    EXPECT_TRUE(The<QTimer>("msend_modTimer").isActive());
}

TEST_F(Pause_Countdown_Test, A_Stop_Ends_It_Within_A_Second_At_The_Pace_It_Ships_With)
{
    Set_Pace(1);
    double stopped_at = 0;
    m_progress.m_at_step = [&](const QString& step) {
        if (step == Pausing("1 Hour 0 Minute 0 Seconds.")) {
            stopped_at = Now_Seconds();
            m_stop = 1;
        }
    };
    Pause(3600);
    EXPECT_GT(stopped_at, 0);
    EXPECT_LT(Now_Seconds() - stopped_at, 1.0);
    EXPECT_FALSE(Pause_Timer_Running);
}

TEST_F(Pause_Countdown_Test, A_Stop_From_The_Window_Wakes_The_Sleeping_Pause)
{
    Set_Pace(0.001); // a second lasts a quarter of an hour: only the stop can end this
    m_progress.m_at_step = [&](const QString& step) {
        if (step == Pausing("3 Seconds."))
            Post_To_Interface_Thread(qApp, [&] { m_stop = 1; });
    };
    Pause(3);
    EXPECT_EQ(New_Steps().mid(0, 2), (QStringList{"pause", Pausing("3 Seconds.")}));
    EXPECT_EQ(New_Steps().last(), QStringLiteral("pause over"));
}

TEST_F(Pause_Countdown_Test, No_Length_Is_No_Pause)
{
    Pause(0);
    EXPECT_EQ(New_Steps(), QStringList());
}

} // namespace
