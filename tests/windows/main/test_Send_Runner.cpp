#include "windows/main/Sending_Test.h"

class Send_Runner_Test : public Sending_Test
{
protected:
    Send_Runner_Test() { Add_Each({"111", "222", "333"}); }
};

TEST_F(Send_Runner_Test, Two_Quick_Presses_Start_One_Job_And_Pressing_Send_While_It_Runs_Does_Nothing)
{
    At_Step("2 / 3 222", [this] {
        Run_On_Interface_Thread([this] {
            const int running = Workers_Running();
            m_runner.Send_SMS_Btn();
            EXPECT_EQ(Workers_Running(), running);
            EXPECT_FALSE(m_window.Is_Held());
        });
    });
    m_runner.Send_SMS_Btn();
    m_runner.Send_SMS_Btn();
    EXPECT_EQ(Workers_Running(), 1);
    EXPECT_EQ(sms_thread_var, 1);
    m_user.Will_Press("OK");
    Wait_For_The_End();
    EXPECT_EQ(m_phone.Inbox().size(), 3U);
}

TEST_F(Send_Runner_Test, The_Window_Takes_No_Input_Until_The_Progress_Window_Stands_Over_It)
{
    At_Step("timer on", [this] {
        Run_On_Interface_Thread([this] {
            EXPECT_TRUE(Progress_Window().isVisible());
            EXPECT_EQ(QApplication::activeModalWidget(), &Progress_Window());
            EXPECT_FALSE(m_window.Is_Held());
        });
    });
    m_runner.Send_SMS_Btn();
    EXPECT_TRUE(m_window.Is_Held());
    m_user.Will_Press("OK");
    Wait_For_The_End();
}

TEST_F(Send_Runner_Test, A_Check_That_Fails_Gives_The_Window_Its_Input_Back)
{
    m_window.m_recipients.Clear();
    m_user.Will_Handle([this](QMessageBox& box) {
        EXPECT_TRUE(m_window.Is_Held());
        box.accept();
    });
    Send();
    EXPECT_EQ(m_user.Was_Shown(), QStringList{List_Is_Empty});
    EXPECT_TRUE(m_phone.Heard().empty());
}

TEST_F(Send_Runner_Test,
       A_Stop_Is_Seen_Before_The_Next_Item_And_Ends_Without_A_Message_And_One_Not_Meant_Changes_Nothing)
{
    At_Step("2 / 3 222", [] { Press_Stop(); });
    Send_And_Read({Stop_Sending});
    EXPECT_EQ(Received(), (QStringList{"111: Hello", "222: Hello"}));
    EXPECT_EQ(Stop_SMS_Sending_Now, 1);
    m_user.Will_Press("No");
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(m_phone.Inbox().size(), 5U);
    EXPECT_EQ(m_user.Was_Shown(), (QStringList{Stop_Sending, Stop_Sending, Completed}));
}

TEST_F(Send_Runner_Test, A_Stop_Is_Seen_Between_The_Parts_Of_A_Long_Message_Which_Is_Recorded)
{
    m_window.m_recipients.Clear();
    m_window.m_choices.save_sent_items = true;
    Add("111", QString(400, u'a'));
    Add("222");
    Before_Write("AT+CMGS=", 1, Press_Stop);
    Send_And_Read({Stop_Sending});
    EXPECT_EQ(m_phone.Parts().size(), 1U);
    EXPECT_EQ(Received(), QStringList{});
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), Record("111", QString(400, u'a')));
}

TEST_F(Send_Runner_Test, A_Stop_During_A_Skipped_Item_Ends_The_Job)
{
    Exclude("111");
    m_window.m_choices.exclusion = true;
    At_Step("111 is Excluded.", [] { Stop_SMS_Sending_Now = 1; });
    Send_And_Read({});
    EXPECT_EQ(Received(), QStringList{});
}

TEST_F(Send_Runner_Test, A_Stop_Question_Still_Open_When_The_Job_Ends_Counts_As_No)
{
    for (const QString& end : {Completed, Connection_Error}) {
        Put([&](Phone_Moods& moods) { moods.m_hang_up_at = end == Completed ? 0 : 6; });
        At_Step("3 / 3 333", [] { Open_Stop_Question(); });
        m_user.Will_Leave_It_Open();
        m_user.Will_Press("OK");
        Send();
        EXPECT_EQ(m_user.Was_Shown().mid(m_user.Was_Shown().size() - 2), (QStringList{Stop_Sending, end}));
        EXPECT_EQ(Stop_SMS_Sending_Now, 0);
    }
}

TEST_F(Send_Runner_Test, Exit_During_A_Job_Ends_It_In_An_Orderly_Way_And_Without_A_Box)
{
    for (const char* step : {"preparing 3", "timer on", "sending", "1 / 3 111", "3 / 3 333", "timer off"}) {
        At_Step(step, Begin_Program_Exit);
        m_runner.Send_SMS_Btn();
        ASSERT_TRUE(Serve_Until([] { return Program_Is_Exiting(); }));
        const double begin = Now_Seconds();
        Finish_Workers();
        EXPECT_LT(Now_Seconds() - begin, 5.0);
        Expect_Everything_Tidy();
        Forget_Program_Exit();
    }
    EXPECT_EQ(m_user.Was_Shown(), QStringList{});
}

TEST_F(Send_Runner_Test, Exit_With_An_Open_Stop_Question_Does_Not_Hang)
{
    At_Step("1 / 3 111", [] { Open_Stop_Question(); });
    m_user.Will_Handle([](QMessageBox& box) {
        Begin_Program_Exit();
        Finish_Workers();
        EXPECT_FALSE(box.isVisible());
    });
    Send();
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Stop_Sending});
}

TEST_F(Send_Runner_Test, A_Million_Recipients_Cost_The_Job_No_Time_To_Begin)
{
    m_window.m_recipients.Clear();
    for (int row = 0; row < 1000000; ++row)
        Add(QString::number(row));
    At_Step("1 / 1000000 0", [] { Stop_SMS_Sending_Now = 1; });
    const double begin = Now_Seconds();
    Send();
    EXPECT_LT(Now_Seconds() - begin, 10.0);
    EXPECT_EQ(m_phone.Inbox().size(), 1U);
}

TEST_F(Send_Runner_Test, Once_A_Message_Was_Sent_The_Window_Says_How_Long_The_Rest_Will_Take)
{
    QStringList said;
    m_progress.m_at_step = [&](const QString& step) {
        if (step.contains(" / 3 ")) {
            Run_On_Interface_Thread([&] { said.append(In_Progress_Window<QLabel>("_Time_Left_Lbl").text()); });
        }
    };
    Send_And_Read({Completed});
    ASSERT_EQ(said.size(), 3);
    EXPECT_EQ(said.at(0), "");
    EXPECT_TRUE(said.at(1).startsWith("less than a minute left, until ")) << qPrintable(said.at(1));
    EXPECT_TRUE(said.at(2).startsWith("less than a minute left, until ")) << qPrintable(said.at(2));
    EXPECT_TRUE(m_runner.Pace_So_Far().Has_Measured(true));
    EXPECT_GE(m_runner.Pace_So_Far().Seconds_For_A_Part(true), 12 / Usual_Pace * 0.9);
    m_progress.m_at_step = {};
}

TEST_F(Send_Runner_Test, The_Time_That_Is_Left_Stays_In_Sight_During_A_Pause)
{
    Pause_After_Each("2", "10 Seconds");
    QStringList said;
    m_progress.m_at_step = [&](const QString& step) {
        if (step.startsWith("Pausing"))
            Run_On_Interface_Thread([&] { said.append(In_Progress_Window<QLabel>("_Time_Left_Lbl").text()); });
    };
    Send_And_Read({Completed});
    ASSERT_EQ(said.size(), 10);
    for (const QString& words : said)
        EXPECT_TRUE(words.startsWith("less than a minute left, until ")) << qPrintable(words);
    m_progress.m_at_step = {};
}
