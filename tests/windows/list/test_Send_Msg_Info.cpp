#include "engine/Job_State.h"
#include "toolkit/Window_Look.h"
#include "windows/list/Dialogs_Test.h"
#include "windows/list/Send_Msg_Info.h"

namespace {

class Send_Msg_Info_Test : public Dialogs_Test
{
protected:
    Send_Msg_Info_Test()
    {
        Add("1", "one");
        Add("2");
        Add("3", " ");
        Message_IS = QStringLiteral("new");
    }

    int Ask(const std::function<void(QWidget&)>& meanwhile)
    {
        m_user.When_Opens(QStringLiteral("Send_Msg_Info"), meanwhile);
        const int code = Ask_Send_Msg_Info(m_window);
        EXPECT_FALSE(Send_Msg_Info::defaultInstance()->isVisible());
        EXPECT_EQ(Radios_On(*Send_Msg_Info::defaultInstance()), QStringList{"_fill_msg_all"});
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        return code;
    }

    QString Explanation()
    {
        QString text;
        Ask([&](QWidget& dialog) {
            text = In<QLabel>(dialog, "explanation").text();
            Click(dialog, "CancelPressed");
        });
        return text;
    }

    const QStringList m_unchanged{"1: one", "2: ", "3:  "};
};

TEST_F(Send_Msg_Info_Test, OK_Fills_All_Recipients_And_Answers_One)
{
    EXPECT_EQ(Ask([](QWidget& dialog) {
                  EXPECT_TRUE(dialog.isModal());
                  EXPECT_EQ(Radios_On(dialog), QStringList{"_fill_msg_all"});
                  Click(dialog, "OKPressed");
              }),
              1);
    EXPECT_EQ(List(), (QStringList{"1: new", "2: new", "3: new"}));
    EXPECT_GT(m_window.m_redisplays, 0);
    EXPECT_EQ(Message_IS, QStringLiteral("new"));
    EXPECT_TRUE(m_user.Was_Shown().isEmpty());
}

TEST_F(Send_Msg_Info_Test, OK_With_Blank_On_Fills_Empty_Messages_But_Not_One_Of_Spaces)
{
    EXPECT_EQ(Ask([](QWidget& dialog) {
                  Pick(dialog, "_fill_msg_blank");
                  EXPECT_EQ(Radios_On(dialog), QStringList{"_fill_msg_blank"});
                  Click(dialog, "OKPressed");
              }),
              1);
    EXPECT_EQ(List(), (QStringList{"1: one", "2: new", "3:  "}));
}

TEST_F(Send_Msg_Info_Test, OK_With_Blank_On_And_No_Blank_Message_Answers_One_Too)
{
    m_window.m_recipients.Remove_Rows({1});
    EXPECT_EQ(Ask([](QWidget& dialog) {
                  Pick(dialog, "_fill_msg_blank");
                  Click(dialog, "OKPressed");
              }),
              1);
    EXPECT_EQ(List(), (QStringList{"1: one", "3:  "}));
}

TEST_F(Send_Msg_Info_Test, Continue_Answers_Zero_And_Leaves_The_List)
{
    EXPECT_EQ(Ask([](QWidget& dialog) {
                  Pick(dialog, "_fill_msg_blank");
                  Click(dialog, "ContinuePressed");
              }),
              0);
    EXPECT_EQ(List(), m_unchanged);
    EXPECT_EQ(m_window.m_redisplays, 0);
}

TEST_F(Send_Msg_Info_Test, Cancel_Escape_And_The_Close_Button_Answer_Neither_One_Nor_Zero)
{
    const std::function<void(QWidget&)> ways[] = {
        [](QWidget& dialog) { Click(dialog, "CancelPressed"); },
        [](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); },
        [](QWidget& dialog) { dialog.close(); },
    };
    for (const auto& way : ways) {
        const int code = Ask([&](QWidget& dialog) {
            Pick(dialog, "_fill_msg_blank");
            way(dialog);
        });
        EXPECT_EQ(code, Send_Msg_Info::Cancelled);
        EXPECT_TRUE(code != 0 && code != 1);
        EXPECT_EQ(List(), m_unchanged);
    }
}

TEST_F(Send_Msg_Info_Test, Enter_Presses_OK)
{
    EXPECT_EQ(Ask([](QWidget& dialog) { QTest::keyClick(dialog.focusWidget(), Qt::Key_Return); }), 1);
}

TEST_F(Send_Msg_Info_Test, With_An_Emptied_Composer_It_Says_So_And_OK_Blanks_Every_Message)
{
    const QString usual = Explanation();
    Message_IS.clear();
    const QString empty = Explanation();
    EXPECT_FALSE(usual.contains(QStringLiteral("empty")));
    EXPECT_TRUE(empty.contains(QStringLiteral("The composer is empty.")));
    EXPECT_EQ(Ask([](QWidget& dialog) { Click(dialog, "OKPressed"); }), 1);
    EXPECT_EQ(List(), (QStringList{"1: ", "2: ", "3: "}));
    Message_IS = QStringLiteral("new");
    EXPECT_EQ(Explanation(), usual);
}

TEST_F(Send_Msg_Info_Test, It_Can_Be_Asked_From_A_Step_Of_A_Worker_While_The_Main_Windows_Input_Is_Held)
{
    m_user.When_Opens(QStringLiteral("Send_Msg_Info"), [](QWidget& dialog) { Click(dialog, "OKPressed"); });
    m_window.Hold_Input();
    int code = -5;
    Run_On_Worker([&] { Run_On_Interface_Thread([&] { code = Ask_Send_Msg_Info(m_window); }); }, User_Input::Served);
    m_window.Release_Input();
    EXPECT_EQ(code, 1);
    EXPECT_EQ(List(), (QStringList{"1: new", "2: new", "3: new"}));
}

TEST_F(Send_Msg_Info_Test, A_Program_That_Exits_Meanwhile_Does_Not_Send)
{
    EXPECT_EQ(Ask([](QWidget& dialog) { dialog.hide(); }), Send_Msg_Info::Cancelled);
    Begin_Program_Exit();
    EXPECT_EQ(Ask_Send_Msg_Info(m_window), Send_Msg_Info::Cancelled);
    EXPECT_EQ(List(), m_unchanged);
}

TEST_F(Send_Msg_Info_Test, An_Answer_Does_Not_Outlive_Its_Run)
{
    EXPECT_EQ(Ask([](QWidget& dialog) { Click(dialog, "OKPressed"); }), 1);
    EXPECT_EQ(Ask([](QWidget& dialog) { dialog.hide(); }), Send_Msg_Info::Cancelled);
}

TEST_F(Send_Msg_Info_Test, Two_Hundred_Thousand_Recipients_Are_Filled_While_The_Window_Serves_Events_Under_A_Sheet)
{
    constexpr int Many = 200'000;
    m_window.m_recipients.Clear();
    for (int row = 0; row < Many; ++row)
        Add(QString::number(10'000'000'000 + row));
    const Pulse pulse;
    EXPECT_EQ(Ask([](QWidget& dialog) {
                  Pick(dialog, "_fill_msg_blank");
                  Click(dialog, "OKPressed");
              }),
              1);
    EXPECT_GE(pulse.Beats(), Beats_Of_A_Worker);
    for (const int row : {0, Many / 2, Many - 1})
        EXPECT_EQ(m_window.m_recipients.At(row).Message, QStringLiteral("new"));
}

TEST_F(Send_Msg_Info_Test, It_Has_The_Programs_Background_And_One_Shared_Instance)
{
    const auto* dialog = Send_Msg_Info::defaultInstance();
    EXPECT_EQ(dialog, Send_Msg_Info::defaultInstance());
    EXPECT_EQ(dialog->objectName(), QStringLiteral("Send_Msg_Info"));
    EXPECT_EQ(dialog->palette().color(QPalette::Window), Window_Background());
}

} // namespace
