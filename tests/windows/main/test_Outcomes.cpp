#include "windows/main/Outcomes_Test.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QString Not_Tried = QStringLiteral("· not tried");
const QString Taken = QStringLiteral("✓ taken by the phone");
const QString May_Have_Been_Sent = QStringLiteral("? may have been sent");

const QString Completed = QStringLiteral("\nMessage Sending Process Completed.");
const QString Connection_Error = QStringLiteral("\nDevice Connection Error!");

// What became of each recipient, read from the table after the press of Send.
class Outcomes : public Outcomes_Test
{
};

TEST_F(Outcomes, Are_Not_There_Until_A_Job_Has_Begun)
{
    EXPECT_FALSE(Outcomes_Are_Shown());
    EXPECT_EQ(Buttons(), "hidden");
    sel_port_bsd_str.clear();
    Add(QStringLiteral("111"));
    Send_With_One_Box(); // about the device
    EXPECT_FALSE(Outcomes_Are_Shown());
    EXPECT_EQ(Buttons(), "hidden");
}

TEST_F(Outcomes, Of_A_Job_That_Went_Well_Leave_Nothing_To_Do)
{
    Add_All({"111", "222", "333"});
    Send_With_One_Box();
    EXPECT_THAT(user.Was_Shown(), ElementsAre(Completed));
    EXPECT_THAT(Shown_Outcomes(), ElementsAre(Taken, Taken, Taken));
    EXPECT_EQ(Rows().headerData(Outcome_Column, Qt::Horizontal).toString(), QStringLiteral("Outcome"));
    EXPECT_EQ(Buttons(), "off");
}

TEST_F(Outcomes, Say_What_Was_Refused_And_Why_And_What_Was_Skipped)
{
    Write_Bytes(Applied_Exclusion_Path, "Staff\n");
    Write_Bytes(Exclusion_Folder_Path + "/Staff.ZOVA", "333\n");
    Have([](Phone_Moods& moods) { moods.m_cms_error_at = {{2, 500}, {4, 38}}; });
    Add_All({"111", "222", "333", "111", "444", "555", "666"});
    Tick("_Skip_Duplicate_Chk");
    Tick("_Exclusion_Chk");
    Send_With_One_Box();
    EXPECT_THAT(user.Was_Shown(), ElementsAre(Completed));
    EXPECT_THAT(Shown_Outcomes(),
                ElementsAre(Taken, "✗ refused (500: unknown error)", "– skipped: excluded", "– skipped: repeated",
                            Taken, "✗ refused (38: the network is out of order)", Taken));
    EXPECT_EQ(Buttons(), "on");
}

TEST_F(Outcomes, Of_A_Phone_That_Falls_Silent_After_The_Prompt_Is_That_There_Was_No_Answer)
{
    Add(QStringLiteral("111"));
    The<QPlainTextEdit>("_messageEdit").setPlainText(QStringLiteral("Hello, and good-bye"));
    Add(QStringLiteral("222"));
    m_delegate->Set_Previous_Composer_Message(QStringLiteral("Hello, and good-bye"));
    Send_With_One_Box();
    ASSERT_THAT(Shown_Outcomes(), ElementsAre(Taken, Taken));
    m_phone.Will_Answer(Submission_Commands().last().toStdString(), "\r\n> ");
    Send_With_One_Box();
    EXPECT_THAT(Shown_Outcomes(), ElementsAre(Taken, "? no answer"));
    EXPECT_EQ(Buttons(), "off");
}

TEST_F(Outcomes, Of_A_Line_That_Breaks_In_The_Middle_Leave_Open_What_Became_Of_The_Message_Under_Way)
{
    Have([](Phone_Moods& moods) { moods.m_hang_up_in_body_at = 2; });
    Add_All({"111", "222", "333", "444"});
    Send_With_One_Box();
    EXPECT_THAT(user.Was_Shown(), ElementsAre(Connection_Error));
    EXPECT_THAT(Shown_Outcomes(), ElementsAre(Taken, May_Have_Been_Sent, Not_Tried, Not_Tried));
    Click("Select_Not_Taken");
    EXPECT_THAT(m_delegate->Selected_Recipient_Rows(), ElementsAre(2, 3));
}

TEST_F(Outcomes, Of_A_Job_That_Was_Stopped_End_With_Those_That_Were_Not_Tried)
{
    Add_All({"111", "222", "333", "444"});
    bool was_pressed = false;
    Before_The_Next_Answer([this, &was_pressed] {
        if (Submissions() == 2 && !std::exchange(was_pressed, true))
            Run_On_Interface_Thread([] {
                Send_Modeless::defaultInstance()->findChild<QPushButton*>(QStringLiteral("_stop_btn"))->click();
            });
    });
    user.Will_Press(QStringLiteral("Yes"));
    Send();
    EXPECT_THAT(Shown_Outcomes(), ElementsAre(Taken, Taken, Not_Tried, Not_Tried));
    EXPECT_EQ(Buttons(), "on");
}

TEST_F(Outcomes, Of_A_Device_That_Does_Not_Open_Are_That_Nobody_Was_Tried)
{
    sel_port_bsd_str = QStringLiteral("/dev/no-such-device");
    Add_All({"111", "222"});
    Send_With_One_Box();
    EXPECT_THAT(Shown_Outcomes(), ElementsAre(Not_Tried, Not_Tried));
    EXPECT_EQ(Buttons(), "on");
}

TEST_F(Outcomes, Come_In_While_The_Job_Runs_And_The_Buttons_Wait_For_Its_End)
{
    Add_All({"111", "222"});
    QStringList seen;
    std::string buttons;
    Before_The_Next_Answer([&] {
        if (Submissions() == 2 && seen.isEmpty())
            Run_On_Interface_Thread([&] {
                seen = Shown_Outcomes();
                buttons = Buttons();
            });
    });
    Send_With_One_Box();
    EXPECT_THAT(seen, ElementsAre(Taken, Not_Tried));
    EXPECT_EQ(buttons, "hidden");
    EXPECT_THAT(Shown_Outcomes(), ElementsAre(Taken, Taken));
}

TEST_F(Outcomes, Are_All_There_When_The_Box_Says_That_The_Job_Is_Done)
{
    Add_All({"111", "222", "333"});
    QStringList seen;
    user.Will_Handle([&](QMessageBox& box) {
        seen = Shown_Outcomes();
        box.accept();
    });
    Send();
    EXPECT_THAT(seen, ElementsAre(Taken, Taken, Taken));
}

TEST_F(Outcomes, Begin_Anew_With_Every_Job)
{
    Have([](Phone_Moods& moods) { moods.m_cms_error_at = {{1, 500}}; });
    Add_All({"111", "222"});
    Send_With_One_Box();
    ASSERT_THAT(Shown_Outcomes(), ElementsAre("✗ refused (500: unknown error)", Taken));
    QStringList seen;
    m_phone.Forget();
    Have([](Phone_Moods& moods) { moods.m_cms_error_at.clear(); });
    Before_The_Next_Answer([&] {
        if (seen.isEmpty())
            Run_On_Interface_Thread([&] { seen = Shown_Outcomes(); });
    });
    Send_With_One_Box();
    EXPECT_THAT(seen, ElementsAre(Not_Tried, Not_Tried));
    EXPECT_THAT(Shown_Outcomes(), ElementsAre(Taken, Taken));
    EXPECT_EQ(Buttons(), "off");
}

TEST_F(Outcomes, Show_Which_Messages_To_Select_Or_Keep_And_Nothing_Is_Sent_By_That)
{
    Have([](Phone_Moods& moods) {
        moods.m_cms_error_at = {{2, 500}};
        moods.m_hang_up_at = 4;
    });
    Add_All({"111", "222", "333", "444", "555", "666"});
    Send_With_One_Box();
    ASSERT_THAT(Shown_Outcomes(),
                ElementsAre(Taken, "✗ refused (500: unknown error)", Taken, May_Have_Been_Sent, Not_Tried, Not_Tried));
    const auto sent = m_phone.Heard().size();
    Select_Rows({0, 3});
    Click("Select_Not_Taken");
    EXPECT_THAT(m_delegate->Selected_Recipient_Rows(), ElementsAre(1, 4, 5));
    EXPECT_TRUE(Has_Focus("idTableView"));
    EXPECT_EQ(m_delegate->Recipients().Count(), 6);

    Click("Keep_Not_Taken");
    EXPECT_THAT(Numbers(), ElementsAre("222", "555", "666"));
    EXPECT_THAT(Shown_Outcomes(), ElementsAre("✗ refused (500: unknown error)", Not_Tried, Not_Tried));
    EXPECT_EQ(Count_Label(), QStringLiteral("Total Numbers : 3"));
    EXPECT_EQ(Buttons(), "on");
    EXPECT_EQ(m_phone.Heard().size(), sent);
    EXPECT_EQ(sms_thread_var, 0);
    EXPECT_THAT(user.Was_Shown(), ElementsAre(Connection_Error));
}

TEST_F(Outcomes, Go_On_With_What_Was_Kept)
{
    Have([](Phone_Moods& moods) { moods.m_cms_error_at = {{2, 500}}; });
    Add_All({"111", "222", "333"});
    Send_With_One_Box();
    Click("Keep_Not_Taken");
    m_phone.Forget();
    Have([](Phone_Moods& moods) { moods.m_cms_error_at.clear(); });
    Send_With_One_Box();
    ASSERT_EQ(m_phone.Inbox().size(), 1U);
    EXPECT_EQ(m_phone.Inbox().front().m_number, "222");
    EXPECT_THAT(Shown_Outcomes(), ElementsAre(Taken));
    EXPECT_EQ(Buttons(), "off");
}

TEST_F(Outcomes, Change_Nothing_In_The_List_That_Is_Sent)
{
    Add_All({"111", "222"});
    Select_Rows({1});
    Send_With_One_Box();
    EXPECT_THAT(Numbers(), ElementsAre("111", "222"));
    EXPECT_THAT(m_delegate->Selected_Recipient_Rows(), ElementsAre(1));
    const auto& selection = *The<QTableView>("idTableView").selectionModel();
    EXPECT_TRUE(selection.isSelected(Rows().index(1, Outcome_Column))); // the whole row
    EXPECT_FALSE(selection.isSelected(Rows().index(0, Outcome_Column)));
    EXPECT_EQ(Shown(0, 0), QStringLiteral("111"));
    EXPECT_EQ(Shown(0, 1), QStringLiteral("Hello"));
}

} // namespace
