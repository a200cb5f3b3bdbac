#include "windows/list/Send_Msg_Info.h"

#include "windows/list/Dialogs_Test.h"

class Send_Msg_Info_Test : public Dialogs_Test
{
protected:
    Send_Msg_Info_Test() : Dialogs_Test("Send_Msg_Info", [this] { m_code = Ask_Send_Msg_Info(m_window); })
    {
        Add("1", "one");
        Add("2");
        Add("3", " ");
        Message_IS = "new";
    }

    int Ask(const std::function<void()>& steps)
    {
        Run(steps);
        return m_code;
    }
    QString Explanation()
    {
        QString text;
        Ask([&] {
            text = In<QLabel>("explanation").text();
            Click("CancelPressed");
        });
        return text;
    }

    const QStringList m_unchanged{"1: one", "2: ", "3:  "};
    int m_code = -5;
};

TEST_F(Send_Msg_Info_Test, Continue_Answers_Zero_And_OK_With_Blank_On_Fills_Empty_Messages_But_Not_One_Of_Spaces)
{
    EXPECT_EQ(Ask([&] {
                  Pick("_fill_msg_blank");
                  Click("ContinuePressed");
              }),
              0);
    EXPECT_EQ(List(), m_unchanged);
    EXPECT_EQ(m_window.m_redisplays, 0);
    for (int time = 0; time < 2; ++time) {
        EXPECT_EQ(Ask([&] {
                      Pick("_fill_msg_blank");
                      Click("OKPressed");
                  }),
                  1);
        EXPECT_EQ(List(), (QStringList{"1: one", "2: new", "3:  "}));
    }
}

TEST_F(Send_Msg_Info_Test, With_An_Emptied_Composer_It_Says_So_And_OK_Blanks_Every_Message)
{
    const QString usual = Explanation();
    Message_IS.clear();
    const QString empty = Explanation();
    EXPECT_FALSE(usual.contains("empty"));
    EXPECT_TRUE(empty.contains("The composer is empty."));
    EXPECT_EQ(Ask([&] { Click("OKPressed"); }), 1);
    EXPECT_EQ(List(), (QStringList{"1: ", "2: ", "3: "}));
    Message_IS = "new";
    EXPECT_EQ(Explanation(), usual);
}

TEST_F(Send_Msg_Info_Test, It_Can_Be_Asked_From_A_Step_Of_A_Worker_While_The_Main_Windows_Input_Is_Held)
{
    m_user.When_Opens("Send_Msg_Info", [](QWidget& dialog) {
        QTest::mouseClick(dialog.findChild<QWidget*>("OKPressed"), Qt::LeftButton);
    });
    m_window.Hold_Input();
    Run_On_Worker([&] { Run_On_Interface_Thread([&] { m_code = Ask_Send_Msg_Info(m_window); }); }, User_Input::Served);
    m_window.Release_Input();
    EXPECT_EQ(m_code, 1);
    EXPECT_EQ(List(), (QStringList{"1: new", "2: new", "3: new"}));
}

TEST_F(Send_Msg_Info_Test, A_Run_That_Ends_Without_An_Answer_Is_Cancelled_Whatever_The_Last_Answer_Was)
{
    const auto exit_meanwhile = [&] { m_dialog->hide(); };
    EXPECT_EQ(Ask(exit_meanwhile), Send_Msg_Info::Cancelled);
    EXPECT_EQ(Ask([&] { Click("CancelPressed"); }), Send_Msg_Info::Cancelled);
    EXPECT_TRUE(m_code != 0 && m_code != 1);
    EXPECT_EQ(List(), m_unchanged);
    EXPECT_EQ(Ask([&] { Click("OKPressed"); }), 1);
    EXPECT_EQ(Ask(exit_meanwhile), Send_Msg_Info::Cancelled);
    Begin_Program_Exit();
    EXPECT_EQ(Ask_Send_Msg_Info(m_window), Send_Msg_Info::Cancelled);
}
