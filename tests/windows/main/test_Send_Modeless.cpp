#include "windows/main/Send_Modeless.h"

#include "device/Stop_Flag.h"
#include "pdu/Text_Printing.h"
#include "platform/Interface_Thread.h"
#include "platform/Pace.h"
#include "platform/Waiting.h"
#include "support/Serve_Until.h"
#include "support/User.h"
#include "support/Window_For_Tests.h"
#include "toolkit/Shared_Instance.h"
#include "toolkit/Window_Look.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QWindow>
#include <functional>
#include <gtest/gtest.h>

namespace {

class Send_Modeless_Test : public testing::Test
{
protected:
    Send_Modeless_Test() : m_progress(*Send_Modeless::defaultInstance())
    {
        Set_Pace(100);
        Stop_SMS_Sending_Now = 0;
    }
    ~Send_Modeless_Test() override
    {
        End_Shared_Instances();
        Set_Pace(1);
    }

    QString Text(const char* name) { return m_progress.findChild<QLabel*>(QLatin1String(name))->text(); }
    bool Is_Shown(const char* name) { return m_progress.findChild<QWidget*>(QLatin1String(name))->isVisible(); }
    QProgressBar& Bar(const char* name) { return *m_progress.findChild<QProgressBar*>(QLatin1String(name)); }
    QPushButton& Stop_Button() { return *m_progress.findChild<QPushButton*>(QStringLiteral("_stop_btn")); }

    User m_user;
    Window_For_Tests m_window;
    Send_Modeless& m_progress;
};

TEST_F(Send_Modeless_Test, While_Preparing_It_Says_So_And_Can_Not_Be_Stopped)
{
    m_progress.Begin_Preparing(12);
    EXPECT_TRUE(m_progress.isVisible());
    EXPECT_EQ(m_progress.parentWidget(), &m_window);
    EXPECT_EQ(Text("_curr_msg_cnt"), QStringLiteral("Initializing mobile phone device to send sms ..."));
    EXPECT_EQ(Text("_tot_msg_cnt"), QStringLiteral("12"));
    EXPECT_EQ(Text("_pause_timer"), QString());
    for (const char* hidden : {"_current_send_label", "_current_send_msg", "_Tot_Progress"})
        EXPECT_FALSE(Is_Shown(hidden)) << hidden;
    EXPECT_FALSE(Stop_Button().isEnabled());
    EXPECT_EQ(Bar("_Tot_Progress").minimum(), 0);
    EXPECT_EQ(Bar("_Tot_Progress").maximum(), 12);
    EXPECT_EQ(Bar("_Tot_Progress").value(), 0);
    EXPECT_EQ(Bar("_Curr_Progress").minimum(), 0);
    EXPECT_EQ(Bar("_Curr_Progress").maximum(), 100);
    EXPECT_EQ(Bar("_Curr_Progress").value(), 0);
}

TEST_F(Send_Modeless_Test, While_Sending_It_Shows_The_Number_And_How_Many_Are_Done)
{
    m_progress.Begin_Preparing(12);
    m_progress.Begin_Sending();
    m_progress.Show_Item(3, 12, QStringLiteral("00491234"));
    for (const char* shown : {"_current_send_label", "_current_send_msg", "_Tot_Progress"})
        EXPECT_TRUE(Is_Shown(shown)) << shown;
    EXPECT_TRUE(Stop_Button().isEnabled());
    EXPECT_EQ(Text("_curr_msg_cnt"), QStringLiteral("3 / 12 Message"));
    EXPECT_EQ(Text("_current_send_msg"), QStringLiteral("00491234"));
    EXPECT_EQ(Bar("_Tot_Progress").value(), 3);
    EXPECT_EQ(Bar("_Curr_Progress").value(), 100);
    m_progress.Show_Current(QStringLiteral("00491234 is Skipped."));
    EXPECT_EQ(Text("_current_send_msg"), QStringLiteral("00491234 is Skipped."));
}

TEST_F(Send_Modeless_Test, A_New_Job_Begins_With_Everything_At_Its_Start)
{
    m_progress.Begin_Preparing(2);
    m_progress.Begin_Sending();
    m_progress.Show_Item(2, 2, QStringLiteral("1"));
    m_progress.End();
    EXPECT_FALSE(m_progress.isVisible());
    m_progress.Begin_Preparing(5);
    EXPECT_EQ(Bar("_Tot_Progress").maximum(), 5);
    EXPECT_EQ(Bar("_Tot_Progress").value(), 0);
    EXPECT_EQ(Bar("_Curr_Progress").value(), 0);
    EXPECT_EQ(Text("_current_send_msg"), QString());
    EXPECT_FALSE(Stop_Button().isEnabled());
    EXPECT_FALSE(Is_Shown("_Tot_Progress"));
}

TEST_F(Send_Modeless_Test, The_Activity_Bar_Goes_On_By_Twenty_And_From_A_Hundred_To_The_Start)
{
    m_progress.Begin_Preparing(1);
    for (const int value : {20, 40, 60, 80, 100, 20, 40}) {
        m_progress.Timer_Curr_Prg_Send_Modeless();
        EXPECT_EQ(Bar("_Curr_Progress").value(), value);
    }
    m_progress.Begin_Sending();
    m_progress.Show_Item(1, 1, QStringLiteral("1"));
    m_progress.Timer_Curr_Prg_Send_Modeless();
    EXPECT_EQ(Bar("_Curr_Progress").value(), 20);
}

TEST_F(Send_Modeless_Test, The_Timer_Steps_Every_Half_Second_Until_It_Is_Stopped)
{
    Set_Pace(10);
    m_progress.Begin_Preparing(1);
    const double begin = Now_Seconds();
    m_progress.startTimerThread();
    ASSERT_TRUE(Serve_Until([this] { return Bar("_Curr_Progress").value() == 60; }));
    EXPECT_GE(Now_Seconds() - begin, 0.14);
    m_progress.Stop_Timers();
    QTest::qWait(150);
    EXPECT_EQ(Bar("_Curr_Progress").value(), 60);
}

TEST_F(Send_Modeless_Test, Stop_Asks_And_Only_Yes_Stops)
{
    m_progress.Begin_Preparing(1);
    m_progress.Begin_Sending();
    m_user.Will_Press("No");
    QTest::mouseClick(&Stop_Button(), Qt::LeftButton);
    EXPECT_EQ(Stop_SMS_Sending_Now, 0);
    m_user.Will_Press_Escape();
    QTest::mouseClick(&Stop_Button(), Qt::LeftButton);
    EXPECT_EQ(Stop_SMS_Sending_Now, 0);
    m_user.Will_Press("Yes");
    QTest::mouseClick(&Stop_Button(), Qt::LeftButton);
    EXPECT_EQ(Stop_SMS_Sending_Now, 1);
    const auto question = QStringLiteral(
        "\nTerminating the current process will stop sending text messages to the remaining contact. Are you "
        "sure you want to continue?");
    EXPECT_EQ(m_user.Was_Shown(), (QStringList{question, question, question}));
}

TEST_F(Send_Modeless_Test, Once_A_Stop_Was_Asked_For_The_Button_Says_So_Until_The_Next_Job)
{
    m_progress.Begin_Preparing(3);
    m_progress.Begin_Sending();
    const QString caption = Stop_Button().text();
    m_user.Will_Press("No");
    QTest::mouseClick(&Stop_Button(), Qt::LeftButton);
    EXPECT_EQ(Stop_Button().text(), caption);
    EXPECT_TRUE(Stop_Button().isEnabled());
    m_user.Will_Press("Yes");
    QTest::mouseClick(&Stop_Button(), Qt::LeftButton);
    for (const auto& goes_on : std::initializer_list<std::function<void()>>{
             [] {}, [this] { m_progress.Show_Item(2, 3, QStringLiteral("1")); }, [this] { m_progress.Begin_Pause(); },
             [this] { m_progress.End_Pause(); }}) {
        goes_on();
        EXPECT_EQ(Stop_Button().text(), QStringLiteral("Stopping ..."));
        EXPECT_FALSE(Stop_Button().isEnabled());
    }
    QTest::mouseClick(&Stop_Button(), Qt::LeftButton); // asks nothing any more
    m_progress.close();
    m_progress.End();
    m_progress.Begin_Preparing(3);
    EXPECT_EQ(Stop_Button().text(), caption);
    EXPECT_FALSE(Stop_Button().isEnabled());
    m_progress.Begin_Sending();
    EXPECT_TRUE(Stop_Button().isEnabled());
}

TEST_F(Send_Modeless_Test, The_Close_Button_Asks_What_The_Stop_Button_Asks)
{
    m_progress.Begin_Preparing(1);
    EXPECT_TRUE(m_progress.windowFlags().testFlag(Qt::WindowCloseButtonHint));
    m_progress.close(); // while the device is prepared nothing can be stopped
    EXPECT_TRUE(m_progress.isVisible());
    m_progress.Begin_Sending();
    m_user.Will_Press("No");
    m_progress.close();
    EXPECT_EQ(Stop_SMS_Sending_Now, 0);
    m_user.Will_Press("Yes");
    m_progress.close();
    EXPECT_EQ(Stop_SMS_Sending_Now, 1);
    EXPECT_TRUE(m_progress.isVisible()) << "the job takes the window down when it has ended";
    EXPECT_EQ(m_user.Was_Shown().size(), 2);
}

TEST_F(Send_Modeless_Test, It_Stays_Where_It_Was_Put_Until_The_Next_Job)
{
    m_progress.Begin_Preparing(3);
    const QPoint middle = m_progress.pos();
    m_progress.windowHandle()->setPosition(middle + QPoint(60, 40)); // as the frame does when it is dragged
    ASSERT_TRUE(Serve_Until([&] { return m_progress.pos() != middle; }));
    const QPoint put = m_progress.pos();
    const std::function<void()> steps[] = {
        [this] { m_progress.Begin_Sending(); },
        [this] { m_progress.Show_Item(1, 3, QString(20, u'0')); },
        [this] { m_progress.Begin_Pause(); },
        [this] { m_progress.Show_Pause(QStringLiteral("Pausing the process for 1 Hour 59 Minute 59 Seconds.")); },
        [this] { m_progress.End_Pause(); },
        [this] { m_progress.Begin_Sheet(&m_window); },
    };
    for (const auto& step : steps) {
        step();
        QTest::qWait(1);
        EXPECT_EQ(m_progress.pos(), put);
    }
    m_progress.End();
    m_progress.Begin_Preparing(3);
    EXPECT_EQ(m_progress.pos(), middle);
}

TEST_F(Send_Modeless_Test, A_Stop_Question_Still_Open_When_It_Ends_Counts_As_No)
{
    m_progress.Begin_Preparing(1);
    m_progress.Begin_Sending();
    m_user.Will_Handle([this](QMessageBox&) { m_progress.End(); });
    QTest::mouseClick(&Stop_Button(), Qt::LeftButton);
    EXPECT_EQ(Stop_SMS_Sending_Now, 0);
    EXPECT_FALSE(m_progress.isVisible());
}

TEST_F(Send_Modeless_Test, Escape_And_Enter_Do_Nothing)
{
    m_progress.Begin_Preparing(1);
    m_progress.Begin_Sending();
    for (const int key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter})
        QTest::keyClick(&m_progress, static_cast<Qt::Key>(key));
    EXPECT_TRUE(m_progress.isVisible());
    EXPECT_EQ(Stop_SMS_Sending_Now, 0);
}

TEST_F(Send_Modeless_Test, It_Keeps_Its_Size_Whatever_It_Shows)
{
    m_progress.Begin_Preparing(1000000);
    QTest::qWait(20);
    const QSize size = m_progress.size();
    m_progress.Begin_Sending();
    QTest::qWait(20);
    EXPECT_EQ(m_progress.size(), size);
    m_progress.Show_Item(1000000, 1000000, QString(20, u'0'));
    m_progress.Show_Current(QString(20, u'0') + QStringLiteral(" is Excluded."));
    QTest::qWait(20);
    EXPECT_EQ(m_progress.size(), size);
    m_progress.findChild<QLabel*>(QStringLiteral("_pause_timer"))
        ->setText(QStringLiteral("Pausing the process for 1 Hour 59 Minute 59 Seconds."));
    QTest::qWait(20);
    EXPECT_EQ(m_progress.size(), size);
    for (const char* name : {"_curr_msg_cnt", "_current_send_msg", "_tot_msg_cnt"}) {
        const auto* label = m_progress.findChild<QLabel*>(QLatin1String(name));
        EXPECT_GE(label->width(), label->fontMetrics().horizontalAdvance(label->text())) << name;
        EXPECT_TRUE(m_progress.rect().contains(QRect(label->mapTo(&m_progress, QPoint()), label->size()))) << name;
    }
}

TEST_F(Send_Modeless_Test, Its_Steps_May_Come_From_A_Worker)
{
    Run_On_Worker([this] {
        m_progress.Begin_Preparing(2);
        m_progress.startTimerThread();
        m_progress.Begin_Sending();
        m_progress.Show_Item(1, 2, QStringLiteral("1"));
        m_progress.Show_Current(QStringLiteral("1 is Skipped."));
    });
    EXPECT_EQ(Text("_current_send_msg"), QStringLiteral("1 is Skipped."));
    Run_On_Worker([this] {
        m_progress.Stop_Timers();
        m_progress.End();
    });
    EXPECT_FALSE(m_progress.isVisible());
}

TEST_F(Send_Modeless_Test, Once_The_Program_Is_Exiting_It_Is_Not_Shown)
{
    Begin_Program_Exit();
    m_progress.Begin_Preparing(2);
    EXPECT_FALSE(m_progress.isVisible());
    Forget_Program_Exit();
}

TEST_F(Send_Modeless_Test, It_Has_The_Programs_Background_And_Names)
{
    EXPECT_EQ(m_progress.objectName(), QStringLiteral("Send_Modeless"));
    EXPECT_EQ(m_progress.palette().color(QPalette::Window), Window_Background());
    EXPECT_FALSE(Stop_Button().autoDefault());
}

} // namespace
