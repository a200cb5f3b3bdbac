#include "gui/Sending_Program.h"
#include "windows/main/Send_Modeless.h"

using testing::ElementsAre;

// From the press of Send to the end of the job nothing that the user does in the main window reaches the list: at first
// because the window takes no input, then because the progress window stands over it.
class Input_While_Sending : public Sending_Program
{
protected:
    // As assistive tools can, which do not mind what is in front.
    void Press_What_Takes_The_Device()
    {
        for (const char* button : {"_sent_btn", "Search_All_Modem", "_NO_Device_Ticker"})
            The<QPushButton>(button).click();
    }

    /// Does something before the progress window is there and once it is, and the message is sent all the same.
    void Send_One_Message_While(const std::function<void()>& something)
    {
        Fill_The_List({}, 1);
        Select_The_Phone();
        user.Will_Press("OK");
        Click("_sent_btn");
        something();
        ASSERT_TRUE(Serve_Until([] { return Send_Modeless::defaultInstance()->isVisible(); }));
        something();
        ASSERT_TRUE(Serve_Until([] { return sms_thread_var == 0 && Workers_Running() == 0; }));
        EXPECT_THAT(Boxes_Shown(), ElementsAre(std::string(Box::Completed)));
        EXPECT_THAT(Inbox(), ElementsAre(Everything({}).front()));
        Expect_That_All_Is_Quiet();
    }

    void Try_Everything()
    {
        for (const char* button :
             {"Reset_Btn", "Clear_Sel_Btn", "Clear_All_Btn", "Add_Number", "_sent_btn", "Search_All_Modem", "Help_Btn",
              "Exit_Btn", "_Skip_Duplicate_Chk", "Load_Number", "Export_Btn", "Fill_Msg_Btn", "Update_Sel_Msgs_Btn",
              "Sent_Item_Btn", "View_Templates_Btn", "View_ExclusionWizrd_Btn", "_Exclusion_Chk",
              "_Delayed_Delivry_Chk", "_numberEdit"})
            Click_Middle_Of(The<QWidget>(button));
        QTest::keyClick(m_delegate->windowHandle(), Qt::Key_4);
        QTest::keyClick(m_delegate->windowHandle(), Qt::Key_R, Qt::AltModifier);
        EXPECT_EQ(The<QLineEdit>("_numberEdit").text(), QString());
        EXPECT_FALSE(The<QCheckBox>("_Skip_Duplicate_Chk").isChecked());
        EXPECT_EQ(m_delegate->Recipients().Count(), 1);
    }
};

TEST_F(Input_While_Sending, Reaches_Nothing_In_The_Main_Window)
{
    Send_One_Message_While([this] { Try_Everything(); });
}

TEST_F(Input_While_Sending, Opens_No_Wizard_Beside_A_Job)
{
    Send_One_Message_While([this] { Press_What_Takes_The_Device(); });
}

TEST_F(Input_While_Sending, Begins_No_Job_Beside_The_Wizard)
{
    Fill_The_List({}, 1);
    int presses = 0;
    const auto press = [&] {
        ++presses;
        Select_The_Phone(); // what a job could be sent with
        Press_What_Takes_The_Device();
    };
    QTimer::singleShot(0, m_delegate.get(), press); // before the first of its windows is there
    Visit_Wizard(press);
    EXPECT_EQ(presses, 2);
    EXPECT_THAT(Boxes_Shown(), ElementsAre());
    EXPECT_THAT(Inbox(), ElementsAre());
    Expect_That_All_Is_Quiet();
}

TEST_F(Input_While_Sending, The_Help_Calls_No_Doctor_Beside_The_Wizard)
{
    bool is_pressed = false;
    user.When_Opens("Help_Wnd", [&](QWidget& help) {
        QTimer::singleShot(0, &help, [&] {
            if (auto* doctor = help.findChild<QDialog*>("Doctor_Wnd")) {
                ADD_FAILURE() << "the doctor is there";
                doctor->reject();
            }
        });
        In<QPushButton>(help, "Why_No_Phone").click();
        QTest::qWait(0);
        is_pressed = true;
        Click_In(help, "OKPressed");
    });
    Visit_Wizard([this] { The<QPushButton>("Help_Btn").click(); });
    EXPECT_TRUE(is_pressed);
    Expect_That_All_Is_Quiet();
}
