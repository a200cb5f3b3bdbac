#include "records/Job_Journal.h"
#include "windows/jobs/Receipt_Wnd.h"
#include "windows/jobs/Unfinished_Strip.h"
#include "windows/main/Confirmed_Sending_Test.h"

#include <QProcess>
#include <csignal>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

const QString Not_Tried = QStringLiteral("· not tried");
const QString Sent = QStringLiteral("✓ sent");
const QString May_Have_Been_Sent = QStringLiteral("? may have been sent");
const QString Completed = QStringLiteral("\nMessage Sending Process Completed.");
const QString Not_All_Sent = QStringLiteral("\nNot every message was sent. The list says what became of each.");

// What the main window offers for jobs that broke off, and what becomes of it.
class Unfinished_Jobs_In_The_Window : public Confirmed_Sending_Test
{
protected:
    Unfinished_Strip& Strip() { return The<Unfinished_Strip>("_Job_Strip"); }

    /// A job of these numbers, of which the first was sent when its program was killed, in its second message if so.
    static QString Make_Job(const QString& id, const QStringList& numbers, bool is_in_doubt = false)
    {
        QProcess program;
        program.start(CORVANE_BEGUN_JOB,
                      QStringList({Jobs_Folder_Path, id, sel_port_bsd_str, is_in_doubt ? "2" : "1"}) + numbers);
        EXPECT_TRUE(program.waitForFinished(60'000));
        EXPECT_EQ(program.exitStatus(), QProcess::CrashExit);
        EXPECT_EQ(program.exitCode(), SIGKILL);
        return Job_Journal_Path(Jobs_Folder_Path, id);
    }

    /// Once, in the first message that the phone hears from now on.
    void Stop_In_The_First_Message()
    {
        Before_The_Next_Answer([this, was_pressed = std::make_shared<bool>(false)] {
            if (Submissions() == 1 && !std::exchange(*was_pressed, true))
                Stop_SMS_Sending_Now = 1;
        });
    }

    void Wait_For_Workers()
    {
        ASSERT_TRUE(Serve_Until([] { return sms_thread_var == 0 && Workers_Running() == 0; }, 60));
    }

    /// The program ends and is started again.
    void Start_Again()
    {
        m_delegate.reset();
        m_delegate = std::make_unique<CorvaneAppDelegate>();
        ASSERT_TRUE(m_delegate->awakeFromNib());
        m_delegate->applicationDidFinishLaunching();
        Wait_For_Workers();
    }

    void Press_In_The_Strip(const char* name)
    {
        Click_In(Strip(), name);
        Wait_For_Workers();
    }
};

TEST_F(Unfinished_Jobs_In_The_Window, Are_Not_Spoken_Of_Where_There_Are_None)
{
    EXPECT_FALSE(Strip().isVisible());
    EXPECT_FALSE(The<QPushButton>("Show_Receipt").isVisible());
    Add_All({"111"});
    Send_With_One_Box();
    EXPECT_FALSE(Strip().isVisible());
}

TEST_F(Unfinished_Jobs_In_The_Window, Are_Offered_After_A_Stop_And_Gone_On_With_In_The_Same_List)
{
    Add_All({"111", "222", "333"});
    Stop_In_The_First_Message();
    Send();
    EXPECT_THAT(Shown_Outcomes(), ElementsAre(Sent, Not_Tried, Not_Tried));
    ASSERT_TRUE(Strip().isVisible());
    user.Will_Press(QStringLiteral("OK"));
    Press_In_The_Strip("Go_On_Btn");
    EXPECT_THAT(user.Was_Shown(), ElementsAre(Completed));
    EXPECT_THAT(Received(), ElementsAre("111: Hello", "222: Hello", "333: Hello"));
    EXPECT_THAT(Shown_Outcomes(), ElementsAre(Sent, Sent, Sent));
    EXPECT_FALSE(Strip().isVisible());
    EXPECT_THAT(Files_Of_Jobs(), IsEmpty());
}

TEST_F(Unfinished_Jobs_In_The_Window, Keep_Their_Receipts_As_Was_Chosen_When_They_Began)
{
    struct Choice
    {
        bool at_the_beginning;
        bool when_going_on;
    };
    for (const auto& [at_the_beginning, when_going_on] : {Choice{true, false}, Choice{false, true}}) {
        auto& keeps = The<QCheckBox>("_Keep_Receipt_Chk");
        keeps.setChecked(at_the_beginning);
        Add_All({"111", "222"});
        m_phone.Forget();
        Stop_In_The_First_Message();
        Send();
        ASSERT_TRUE(Strip().isVisible());
        keeps.setChecked(when_going_on);
        user.Will_Press(QStringLiteral("OK"));
        Press_In_The_Strip("Go_On_Btn");
        EXPECT_EQ(Files_Of_Jobs().size(), at_the_beginning ? 2 : 0);
        QDir(Jobs_Folder_Path).removeRecursively();
        Click("Reset_Btn");
        The<QPlainTextEdit>("_messageEdit").setPlainText("Hello");
        Tick("_Confirm_Chk");
    }
}

TEST_F(Unfinished_Jobs_In_The_Window, That_Do_Not_Say_So_Keep_Their_Receipts_As_The_Box_Says)
{
    Make_Job("20261121-101500-0001", {"111", "222"});
    Start_Again();
    The<QCheckBox>("_Keep_Receipt_Chk").setChecked(true);
    user.Will_Press(QStringLiteral("OK"));
    Press_In_The_Strip("Go_On_Btn");
    EXPECT_EQ(Files_Of_Jobs().size(), 2);
}

TEST_F(Unfinished_Jobs_In_The_Window, Of_A_Program_That_Was_Killed_Fill_The_Empty_List_At_The_Next_Start)
{
    Make_Job("20261121-101500-0001", {"111", "222", "333"});
    Start_Again();
    ASSERT_TRUE(Strip().isVisible());
    EXPECT_THAT(user.Was_Shown(), IsEmpty());
    EXPECT_THAT(m_phone.Heard(), IsEmpty());
    user.Will_Press(QStringLiteral("OK"));
    Press_In_The_Strip("Go_On_Btn");
    EXPECT_THAT(Received(), ElementsAre("222: Hello", "333: Hello"));
    EXPECT_THAT(Numbers(), ElementsAre("111", "222", "333"));
    EXPECT_EQ(Count_Label(), QStringLiteral("Total Numbers : 3"));
    EXPECT_THAT(Shown_Outcomes(), ElementsAre(Sent, Sent, Sent));
}

TEST_F(Unfinished_Jobs_In_The_Window, Leave_What_May_Have_Been_Sent_Alone_Unless_Somebody_Decides)
{
    const QString path = Make_Job("20261121-101500-0001", {"111", "222", "333"}, true);
    Start_Again();
    user.When_Opens(QStringLiteral("Unknown_Rows_Sheet"), [](QWidget& sheet) { Click_In(sheet, "OKPressed"); });
    user.Will_Press(QStringLiteral("OK"));
    Press_In_The_Strip("Go_On_Btn");
    EXPECT_THAT(user.Was_Shown(), ElementsAre(Not_All_Sent));
    EXPECT_THAT(Received(), ElementsAre("333: Hello"));
    EXPECT_THAT(Shown_Outcomes(), ElementsAre(Sent, May_Have_Been_Sent, Sent));
    EXPECT_EQ(Buttons(), "off");
    ASSERT_TRUE(Strip().isVisible()); // one is left to be decided
    {
        const auto opened = Job_Journal::Open_To_Go_On(path);
        ASSERT_TRUE(opened.journal && opened.journal->Decide(2, Job_Decision::Send_Again, "user"));
    }
    Start_Again();
    user.Will_Press(QStringLiteral("OK"));
    Press_In_The_Strip("Go_On_Btn");
    EXPECT_THAT(Received(), ElementsAre("333: Hello", "222: Hello"));
    EXPECT_THAT(Files_Of_Jobs(), IsEmpty());
}

TEST_F(Unfinished_Jobs_In_The_Window, Leave_A_List_Of_Others_As_It_Is)
{
    Make_Job("20261121-101500-0001", {"111", "222"});
    Start_Again();
    Add_All({"777", "888"});
    user.Will_Press(QStringLiteral("OK"));
    Press_In_The_Strip("Go_On_Btn");
    EXPECT_THAT(Received(), ElementsAre("222: Hello"));
    EXPECT_THAT(Numbers(), ElementsAre("777", "888"));
    EXPECT_FALSE(Outcomes_Are_Shown());
}

TEST_F(Unfinished_Jobs_In_The_Window, Show_Their_Outcomes_In_A_List_That_Is_Exactly_Theirs)
{
    Make_Job("20261121-101500-0001", {"111", "222"});
    Start_Again();
    The<QPlainTextEdit>("_messageEdit").setPlainText("Hello");
    Add_All({"111", "222"});
    user.Will_Press(QStringLiteral("OK"));
    Press_In_The_Strip("Go_On_Btn");
    EXPECT_THAT(Shown_Outcomes(), ElementsAre(Sent, Sent));
}

TEST_F(Unfinished_Jobs_In_The_Window, Use_Their_Own_Device_Unless_Another_Is_Chosen)
{
    Make_Job("20261121-101500-0001", {"111", "222", "333"});
    const QString first = std::exchange(sel_port_bsd_str, {});
    Start_Again();
    Stop_In_The_First_Message();
    Press_In_The_Strip("Go_On_Btn");
    EXPECT_THAT(Received(), ElementsAre("222: Hello"));

    Virtual_Phone other;
    sel_port_bsd_str = QString::fromStdString(other.Path());
    user.Will_Press(QStringLiteral("OK"));
    Press_In_The_Strip("Go_On_Btn");
    EXPECT_EQ(m_phone.Inbox().size(), 1U);
    ASSERT_EQ(other.Inbox().size(), 1U);
    EXPECT_EQ(other.Inbox().front().m_number, "333");
    sel_port_bsd_str = first;
}

TEST_F(Unfinished_Jobs_In_The_Window, Heed_The_Exclusion_Lists_Of_Today)
{
    Make_Job("20261121-101500-0001", {"111", "222", "333"});
    Start_Again();
    Write_Bytes(Applied_Exclusion_Path, "Staff\n");
    Write_Bytes(Exclusion_Folder_Path + "/Staff.ZOVA", "111\n333\n");
    The<QCheckBox>("_Exclusion_Chk").click();
    Wait_For_Workers();
    user.Will_Press(QStringLiteral("OK"));
    Press_In_The_Strip("Go_On_Btn");
    EXPECT_THAT(Received(), ElementsAre("222: Hello"));
    EXPECT_THAT(Shown_Outcomes(), ElementsAre(Sent, Sent, "– skipped: excluded"));
}

TEST_F(Unfinished_Jobs_In_The_Window, Are_Let_Go_For_This_Session_Alone)
{
    Make_Job("20261121-101500-0001", {"111", "222"});
    Make_Job("20261121-101500-0002", {"111", "222"});
    Start_Again();
    Press_In_The_Strip("Later_Btn");
    EXPECT_TRUE(Strip().isVisible()); // the other
    Press_In_The_Strip("Later_Btn");
    EXPECT_FALSE(Strip().isVisible());
    Tick("_Confirm_Chk");
    The<QPlainTextEdit>("_messageEdit").setPlainText("Hello");
    Add_All({"777"});
    Send_With_One_Box();
    EXPECT_FALSE(Strip().isVisible());
    EXPECT_EQ(Unfinished_Jobs(Jobs_Folder_Path).size(), 2);
    Start_Again();
    EXPECT_TRUE(Strip().isVisible());
}

TEST_F(Unfinished_Jobs_In_The_Window, That_Another_Program_Works_On_Are_Not_Offered)
{
    const QString path = Make_Job("20261121-101500-0001", {"111", "222"});
    auto opened = Job_Journal::Open_To_Go_On(path);
    ASSERT_TRUE(opened.journal);
    Start_Again();
    EXPECT_FALSE(Strip().isVisible());
    opened.journal.reset();
    Start_Again();
    EXPECT_TRUE(Strip().isVisible());
}

TEST_F(Unfinished_Jobs_In_The_Window, Send_Nothing_Once_Their_Files_Are_Spoilt)
{
    const QString path = Make_Job("20261121-101500-0001", {"111", "222"});
    Start_Again();
    Write_Bytes(Job_List_Path(path), "something else");
    Press_In_The_Strip("Go_On_Btn");
    EXPECT_THAT(m_phone.Heard(), IsEmpty());
    EXPECT_TRUE(Strip().isVisible());
    EXPECT_THAT(Numbers(), IsEmpty());
}

TEST_F(Unfinished_Jobs_In_The_Window, The_Receipt_Of_The_Last_Job_Is_There_Although_Its_Files_Are_Gone)
{
    Add_All({"111"});
    Send_With_One_Box();
    EXPECT_THAT(Files_Of_Jobs(), IsEmpty());
    ASSERT_TRUE(The<QPushButton>("Show_Receipt").isVisible());
    Click("Show_Receipt");
    const auto* receipt = m_delegate->findChild<Receipt_Wnd*>();
    ASSERT_TRUE(receipt);
    EXPECT_TRUE(receipt->isVisible());
}

// ---- A kind of message that the network does not take

class A_Refused_Kind : public Unfinished_Jobs_In_The_Window
{
protected:
    void Send_Three_Refused_With(int cause)
    {
        Have([cause](Phone_Moods& moods) { moods.m_cms_error_at = {{2, cause}}; });
        Add_All({"111", "222", "333"});
        Send_With_One_Box();
    }
    bool Is_Offered() { return The<QWidget>("plain_offer").isVisible(); }
    QString Offer() { return The<QLabel>("_Plain_Offer_Text").text(); }
    QComboBox& Kind() { return The<QComboBox>("_Msg_TypeComboBox"); }
};

TEST_F(A_Refused_Kind, Is_Followed_By_The_Offer_Of_A_Plain_One_And_Nothing_Is_Sent_By_That)
{
    Kind().setCurrentIndex(0);
    Send_Three_Refused_With(145);
    EXPECT_THAT(user.Was_Shown(), ElementsAre("\nThe network accepts no message that shows at once."));
    EXPECT_THAT(Shown_Outcomes(),
                ElementsAre(Sent, "✗ refused (145: the network accepts no message that shows at once)", Not_Tried));
    ASSERT_TRUE(Is_Offered());
    EXPECT_THAT(Offer().toStdString(), HasSubstr("The network accepts no message that shows at once."));
    EXPECT_FALSE(Strip().isVisible()); // its rest would be refused as well
    const auto heard = m_phone.Heard().size();
    Click("Choose_Plain_Kind");
    EXPECT_FALSE(Is_Offered());
    EXPECT_EQ(Kind().currentIndex(), 1);
    EXPECT_THAT(m_delegate->Selected_Recipient_Rows(), ElementsAre(1, 2));
    EXPECT_EQ(m_phone.Heard().size(), heard);
    Click("Keep_Not_Taken");
    Have([](Phone_Moods& moods) { moods.m_cms_error_at.clear(); });
    Send_With_One_Box();
    EXPECT_THAT(Received(), ElementsAre("111: Hello", "222: Hello", "333: Hello"));
    EXPECT_EQ(m_phone.Inbox().back().m_class, -1);
}

TEST_F(A_Refused_Kind, That_Is_An_Alphabet_Is_Offered_Without_Unicode_Where_That_Was_Ticked)
{
    Tick("_Unicode_SMS_Chk");
    Send_Three_Refused_With(144);
    ASSERT_TRUE(Is_Offered());
    Click("Choose_Plain_Kind");
    EXPECT_FALSE(The<QCheckBox>("_Unicode_SMS_Chk").isChecked());
    EXPECT_THAT(m_delegate->Selected_Recipient_Rows(), ElementsAre(1, 2));
}

TEST_F(A_Refused_Kind, That_Could_Not_Be_Another_Is_An_Unfinished_Job_Like_Any)
{
    Send_Three_Refused_With(159);
    EXPECT_FALSE(Is_Offered());
    EXPECT_TRUE(Strip().isVisible());
}

TEST_F(A_Refused_Kind, Is_Not_Spoken_Of_Any_More_When_The_List_Has_Nobody_Left_For_It)
{
    Kind().setCurrentIndex(0);
    Send_Three_Refused_With(145);
    ASSERT_TRUE(Is_Offered());
    Click("Reset_Btn");
    EXPECT_FALSE(Is_Offered());
}

} // namespace
