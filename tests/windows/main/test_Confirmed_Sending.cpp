#include "windows/main/Confirmed_Sending_Test.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

const QString Not_Tried = QStringLiteral("· not tried");
const QString Sent = QStringLiteral("✓ sent");
const QString May_Have_Been_Sent = QStringLiteral("? may have been sent");
const QString Completed = QStringLiteral("\nMessage Sending Process Completed.");
const QString Not_All_Sent = QStringLiteral("\nNot every message was sent. The list says what became of each.");
const QString Stop_Sending = QStringLiteral("\nTerminating the current process will stop sending text messages to the "
                                            "remaining contact. Are you sure you want to continue?");

class Confirmed_Sending : public Confirmed_Sending_Test
{
protected:
    static void Press_Stop()
    {
        Post_To_Interface_Thread(Send_Modeless::defaultInstance(), [] {
            Send_Modeless::defaultInstance()->findChild<QPushButton*>(QStringLiteral("_stop_btn"))->click();
        });
    }
};

TEST_F(Confirmed_Sending, Shows_Each_Message_As_Sent_And_Leaves_No_Record_Behind)
{
    Add_All({"0044700900100", "0700900101", "0700900102"});
    Send_With_One_Box();
    EXPECT_THAT(user.Was_Shown(), ElementsAre(Completed));
    EXPECT_THAT(Shown_Outcomes(), ElementsAre(Sent, Sent, Sent));
    EXPECT_THAT(Received(), ElementsAre("+44700900100: Hello", "0700900101: Hello", "0700900102: Hello"));
    EXPECT_THAT(Files_Of_Jobs(), IsEmpty());
}

TEST_F(Confirmed_Sending, Keeps_The_Record_When_The_Receipt_Is_Wanted)
{
    Tick("_Keep_Receipt_Chk");
    Add_All({"0700900101"});
    Send_With_One_Box();
    EXPECT_EQ(Files_Of_Jobs().size(), 2);
    EXPECT_THAT(Unfinished_Jobs(Jobs_Folder_Path), IsEmpty());
}

TEST_F(Confirmed_Sending, Says_Which_Message_Was_Refused_And_Why_And_Sends_The_Others)
{
    Have([](Phone_Moods& moods) { moods.m_cms_error_at = {{2, 500}}; });
    Add_All({"111", "222", "333"});
    Send_With_One_Box();
    EXPECT_THAT(user.Was_Shown(), ElementsAre(Not_All_Sent));
    EXPECT_THAT(Shown_Outcomes(), ElementsAre(Sent, "✗ refused (500: unknown error)", Sent));
    Click("Select_Not_Taken");
    EXPECT_THAT(m_delegate->Selected_Recipient_Rows(), ElementsAre(1));
    EXPECT_THAT(Files_Of_Jobs(), IsEmpty());
}

TEST_F(Confirmed_Sending, Does_Not_Offer_A_Message_Again_Of_Which_Its_Recipient_Has_A_Part)
{
    m_delegate->Set_Composer_Text(QString(200, u'x')); // without the notice of a long message
    m_delegate->Set_Previous_Composer_Message(QString(200, u'x'));
    Have([](Phone_Moods& moods) { moods.m_cms_error_at = {{2, 195}}; });
    Add_All({"111", "222"});
    Send_With_One_Box();
    EXPECT_THAT(Shown_Outcomes(), ElementsAre("✗ partly taken (195: the recipient's number is invalid)", Sent));
    EXPECT_EQ(Buttons(), "off");
}

TEST_F(Confirmed_Sending, Waits_For_A_Network_That_Is_Gone_And_Goes_On_When_It_Is_Back)
{
    Have([](Phone_Moods& moods) {
        moods.m_network_lost_at = 2;
        moods.m_network_back_after_queries = 4;
    });
    Add_All({"111", "222"});
    const QSize size = Send_Modeless::defaultInstance()->sizeHint();
    Watch_The_Sheet([size](const QString&) { EXPECT_EQ(Send_Modeless::defaultInstance()->sizeHint(), size); });
    Send_With_One_Box();
    EXPECT_THAT(user.Was_Shown(), ElementsAre(Completed));
    EXPECT_THAT(Shown_Outcomes(), ElementsAre(Sent, Sent));
    EXPECT_THAT(m_on_the_sheet, Contains("Now : There is no network."));
    EXPECT_EQ(m_on_the_sheet.last(), QStringLiteral("Sending to : 222"));
}

TEST_F(Confirmed_Sending, Is_Stopped_While_It_Waits_Without_A_Box_Of_Its_Own)
{
    Have([](Phone_Moods& moods) { moods.m_network_lost_at = 2; });
    Add_All({"111", "222", "333"});
    bool was_pressed = false;
    Watch_The_Sheet([&was_pressed](const QString& text) {
        if (text == QStringLiteral("Now : There is no network.") && !std::exchange(was_pressed, true))
            Press_Stop();
    });
    user.Will_Press(QStringLiteral("Yes"));
    Send();
    EXPECT_THAT(user.Was_Shown(), ElementsAre(Stop_Sending));
    EXPECT_THAT(Shown_Outcomes(), ElementsAre(Sent, Not_Tried, Not_Tried));
    const auto jobs = Unfinished_Jobs(Jobs_Folder_Path);
    ASSERT_EQ(jobs.size(), 1);
    EXPECT_EQ(jobs.first().counts.not_tried, 2);
}

TEST_F(Confirmed_Sending, Says_That_It_Still_Waits_And_Goes_On_After_A_Message_Without_A_Result)
{
    Message_Manners({{Message_Manner::Kind::Without_Result, 2, 2, {}, {}, 0}});
    Add_All({"111", "222", "333"});
    QStringList seen;
    auto& label = *Send_Modeless::defaultInstance()->findChild<QLabel*>(QStringLiteral("_current_send_msg"));
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [&] { seen.append(label.text()); });
    look.start(2);
    Send_With_One_Box();
    EXPECT_THAT(user.Was_Shown(), ElementsAre(Not_All_Sent));
    EXPECT_THAT(Shown_Outcomes(), ElementsAre(Sent, May_Have_Been_Sent, Sent));
    EXPECT_THAT(seen, Contains("Still waiting for the network."));
    EXPECT_EQ(Buttons(), "off");
    ASSERT_EQ(Unfinished_Jobs(Jobs_Folder_Path).size(), 1);
    EXPECT_EQ(Unfinished_Jobs(Jobs_Folder_Path).first().counts.unknown, 1);
}

TEST_F(Confirmed_Sending, Sends_Nothing_Where_Its_Record_Cannot_Be_Written)
{
    Write_Bytes(Jobs_Folder_Path, "in the way");
    Add_All({"111", "222"});
    Send_With_One_Box();
    EXPECT_THAT(user.Was_Shown(), ElementsAre("\nThe job's journal cannot be written, so nothing more is sent (its "
                                              "journal can not be written)."));
    EXPECT_THAT(Received(), IsEmpty());
    EXPECT_THAT(Shown_Outcomes(), ElementsAre(Not_Tried, Not_Tried));
}

TEST_F(Confirmed_Sending, Chooses_The_Alphabet_Of_Each_Text_Unless_Unicode_Is_Ticked)
{
    const auto add = [this](const QString& number, const QString& text) {
        The<QPlainTextEdit>("_messageEdit").setPlainText(text);
        Add(number);
    };
    add("111", "5 € [net]");
    add("222", "Привет");
    m_delegate->Set_Previous_Composer_Message("Привет");
    Send_With_One_Box();
    ASSERT_THAT(Received(), ElementsAre("111: 5 € [net]", "222: Привет"));
    EXPECT_EQ(m_phone.Inbox()[0].m_alphabet, "GSM 7-bit");
    EXPECT_EQ(m_phone.Inbox()[1].m_alphabet, "UCS2");
    Tick("_Unicode_SMS_Chk");
    Send_With_One_Box();
    ASSERT_EQ(m_phone.Inbox().size(), 4U);
    EXPECT_EQ(m_phone.Inbox()[2].m_alphabet, "UCS2");
}

TEST_F(Confirmed_Sending, Is_Not_What_Happens_Without_Its_Box)
{
    The<QCheckBox>("_Confirm_Chk").click();
    Add_All({"111"});
    Send_With_One_Box();
    EXPECT_THAT(Shown_Outcomes(), ElementsAre("✓ taken by the phone"));
    EXPECT_THAT(m_phone.Heard(), Not(Contains("AT+CMEE=1")));
    EXPECT_FALSE(QFileInfo::exists(Jobs_Folder_Path));
}

} // namespace
