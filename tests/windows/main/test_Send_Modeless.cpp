#include "windows/main/Send_Modeless.h"

#include "windows/main/Sending_Test.h"

class Send_Modeless_Test : public Sending_Test
{
protected:
    static QString Text(const char* name) { return In_Progress_Window<QLabel>(name).text(); }
    static bool Is_Shown(const char* name) { return In_Progress_Window<QWidget>(name).isVisible(); }
    static QProgressBar& Bar(const char* name) { return In_Progress_Window<QProgressBar>(name); }

    void Begin(int total)
    {
        m_shown.Begin_Preparing(total);
        m_shown.Begin_Sending();
    }
    void Click_Stop() { QTest::mouseClick(&m_stop, Qt::LeftButton); }

    Send_Modeless& m_shown = Progress_Window();
    QPushButton& m_stop = In_Progress_Window<QPushButton>("_stop_btn");
};

TEST_F(Send_Modeless_Test, While_Preparing_It_Says_So_And_Can_Not_Be_Stopped)
{
    m_shown.Begin_Preparing(12);
    EXPECT_TRUE(m_shown.isVisible());
    EXPECT_EQ(m_shown.parentWidget(), &m_window);
    EXPECT_EQ(m_shown.objectName(), "Send_Modeless");
    EXPECT_EQ(Text("_curr_msg_cnt"), "Initializing mobile phone device to send sms ...");
    EXPECT_EQ(Text("_tot_msg_cnt"), "12");
    EXPECT_EQ(Text("_pause_timer"), "");
    for (const char* hidden : {"_current_send_label", "_current_send_msg", "_Tot_Progress"})
        EXPECT_FALSE(Is_Shown(hidden)) << hidden;
    EXPECT_FALSE(m_stop.isEnabled());
    EXPECT_FALSE(m_stop.autoDefault());
    EXPECT_EQ(Bar("_Tot_Progress").minimum(), 0);
    EXPECT_EQ(Bar("_Tot_Progress").maximum(), 12);
    EXPECT_EQ(Bar("_Tot_Progress").value(), 0);
    EXPECT_EQ(Bar("_Curr_Progress").minimum(), 0);
    EXPECT_EQ(Bar("_Curr_Progress").maximum(), 100);
    EXPECT_EQ(Bar("_Curr_Progress").value(), 0);
}

TEST_F(Send_Modeless_Test, While_Sending_It_Shows_The_Number_And_How_Many_Are_Done_And_Begins_Anew)
{
    Begin(12);
    m_shown.Show_Item(3, 12, "00491234");
    for (const char* shown : {"_current_send_label", "_current_send_msg", "_Tot_Progress"})
        EXPECT_TRUE(Is_Shown(shown)) << shown;
    EXPECT_TRUE(m_stop.isEnabled());
    EXPECT_EQ(Text("_curr_msg_cnt"), "3 / 12 Message");
    EXPECT_EQ(Text("_current_send_msg"), "00491234");
    EXPECT_EQ(Bar("_Tot_Progress").value(), 3);
    EXPECT_EQ(Bar("_Curr_Progress").value(), 100);
    m_shown.Show_Current("00491234 is Skipped.");
    EXPECT_EQ(Text("_current_send_msg"), "00491234 is Skipped.");
    m_shown.End();
    EXPECT_FALSE(m_shown.isVisible());
    m_shown.Begin_Preparing(5);
    EXPECT_EQ(Bar("_Tot_Progress").maximum(), 5);
    EXPECT_EQ(Bar("_Tot_Progress").value(), 0);
    EXPECT_EQ(Bar("_Curr_Progress").value(), 0);
    EXPECT_EQ(Text("_current_send_msg"), "");
    EXPECT_FALSE(m_stop.isEnabled());
    EXPECT_FALSE(Is_Shown("_Tot_Progress"));
}

TEST_F(Send_Modeless_Test, The_Activity_Bar_Goes_On_By_Twenty_And_From_A_Hundred_To_The_Start)
{
    m_shown.Begin_Preparing(1);
    for (const int value : {20, 40, 60, 80, 100, 20, 40}) {
        m_shown.Timer_Curr_Prg_Send_Modeless();
        EXPECT_EQ(Bar("_Curr_Progress").value(), value);
    }
    m_shown.Begin_Sending();
    m_shown.Show_Item(1, 1, "1");
    m_shown.Timer_Curr_Prg_Send_Modeless();
    EXPECT_EQ(Bar("_Curr_Progress").value(), 20);
}

TEST_F(Send_Modeless_Test, The_Timer_Steps_Every_Half_Second_Until_It_Is_Stopped)
{
    Set_Pace(10);
    m_shown.Begin_Preparing(1);
    const double begin = Now_Seconds();
    m_shown.startTimerThread();
    ASSERT_TRUE(Serve_Until([] { return Bar("_Curr_Progress").value() == 60; }));
    EXPECT_GE(Now_Seconds() - begin, 0.14);
    m_shown.Stop_Timers();
    QTest::qWait(150);
    EXPECT_EQ(Bar("_Curr_Progress").value(), 60);
}

TEST_F(Send_Modeless_Test, Stop_Asks_And_Only_Yes_Stops_Which_The_Button_Says_Until_The_Next_Job)
{
    Begin(3);
    const QString caption = m_stop.text();
    m_user.Will_Press("No");
    Click_Stop();
    m_user.Will_Press_Escape();
    Click_Stop();
    EXPECT_EQ(Stop_SMS_Sending_Now, 0);
    EXPECT_EQ(m_stop.text(), caption);
    EXPECT_TRUE(m_stop.isEnabled());
    m_user.Will_Press("Yes");
    Click_Stop();
    EXPECT_EQ(Stop_SMS_Sending_Now, 1);
    EXPECT_EQ(m_user.Was_Shown(), QStringList(3, Stop_Sending));
    for (const auto& goes_on : std::initializer_list<std::function<void()>>{
             [] {}, [this] { m_shown.Show_Item(2, 3, "1"); }, [this] { m_shown.Begin_Pause(); },
             [this] { m_shown.End_Pause(); }}) {
        goes_on();
        EXPECT_EQ(m_stop.text(), "Stopping ...");
        EXPECT_FALSE(m_stop.isEnabled());
    }
    Click_Stop(); // asks nothing any more
    m_shown.close();
    m_shown.End();
    m_shown.Begin_Preparing(3);
    EXPECT_EQ(m_stop.text(), caption);
    EXPECT_FALSE(m_stop.isEnabled());
    m_shown.Begin_Sending();
    EXPECT_TRUE(m_stop.isEnabled());
}

TEST_F(Send_Modeless_Test, The_Close_Button_Asks_What_The_Stop_Button_Asks_And_Escape_And_Enter_Do_Nothing)
{
    m_shown.Begin_Preparing(1);
    EXPECT_TRUE(m_shown.windowFlags().testFlag(Qt::WindowCloseButtonHint));
    m_shown.close(); // while the device is prepared nothing can be stopped
    EXPECT_TRUE(m_shown.isVisible());
    m_shown.Begin_Sending();
    for (const auto key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter})
        QTest::keyClick(&m_shown, key);
    EXPECT_TRUE(m_shown.isVisible());
    m_user.Will_Press("No");
    m_shown.close();
    EXPECT_EQ(Stop_SMS_Sending_Now, 0);
    m_user.Will_Press("Yes");
    m_shown.close();
    EXPECT_EQ(Stop_SMS_Sending_Now, 1);
    EXPECT_TRUE(m_shown.isVisible()) << "the job takes the window down when it has ended";
    EXPECT_EQ(m_user.Was_Shown(), QStringList(2, Stop_Sending));
}

TEST_F(Send_Modeless_Test, It_Keeps_Its_Size_And_The_Place_Where_It_Was_Put_Until_The_Next_Job)
{
    m_shown.Begin_Preparing(1000000);
    const QPoint middle = m_shown.pos();
    m_shown.windowHandle()->setPosition(middle + QPoint(60, 40)); // as the frame does when it is dragged
    ASSERT_TRUE(Serve_Until([&] { return m_shown.pos() != middle; }));
    QTest::qWait(20);
    const QRect put = m_shown.geometry();
    const QString number(20, u'0');
    const std::function<void()> steps[] = {
        [&] { m_shown.Begin_Sending(); },
        [&] { m_shown.Show_Item(1000000, 1000000, number); },
        [&] { m_shown.Begin_Pause(); },
        [&] { m_shown.Show_Pause("Pausing the process for 1 Hour 59 Minute 59 Seconds."); },
        [&] { m_shown.End_Pause(); },
        [&] { m_shown.Show_Current(number + " is Excluded."); },
        [&] { m_shown.Begin_Sheet(&m_window); },
    };
    for (const auto& step : steps) {
        step();
        QTest::qWait(20);
        EXPECT_EQ(m_shown.geometry(), put);
    }
    for (const char* name : {"_curr_msg_cnt", "_current_send_msg", "_tot_msg_cnt"}) {
        const auto& label = In_Progress_Window<QLabel>(name);
        EXPECT_GE(label.width(), label.fontMetrics().horizontalAdvance(label.text())) << name;
        EXPECT_TRUE(m_shown.rect().contains(QRect(label.mapTo(&m_shown, QPoint()), label.size()))) << name;
    }
    m_shown.End();
    m_shown.Begin_Preparing(3);
    EXPECT_EQ(m_shown.pos(), middle);
}

TEST_F(Send_Modeless_Test, Once_The_Program_Is_Exiting_It_Is_Not_Shown)
{
    Begin_Program_Exit();
    m_shown.Begin_Preparing(2);
    EXPECT_FALSE(m_shown.isVisible());
}
