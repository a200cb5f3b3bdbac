#include "device/Device_Test.h"
#include "device/Stop_Flag.h"

#include <thread>

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

class Pdu_Submission : public Device_Test
{
protected:
    Pdu_Submission() { Connect(m_session, m_phone); }

    void Prepare()
    {
        ASSERT_TRUE(m_session.Prepare_Modem_For_PDU_SMS(No_Descriptor));
        m_phone.Forget();
        m_log.Forget();
    }

    bool Send(const QString& message, bool is_unicode = false, bool is_flash = false, const QString& smsc = {})
    {
        return m_session.Send_PDU_SMS(No_Descriptor, m_number, message, smsc, is_flash, is_unicode);
    }

    // What the handset got; the phone may still be at its last answer.
    std::vector<Handset_Message> Inbox(size_t count)
    {
        EXPECT_TRUE(m_phone.Wait_For_Messages(count, std::chrono::seconds(5)));
        return m_phone.Inbox();
    }

    QString m_number = QStringLiteral("0123456789");
    Virtual_Phone m_phone;
    Watched_Calls m_calls;
    MFCSMS m_session{m_calls};
};

std::string Marker(int part, int parts)
{
    return "\n------ " + std::to_string(part) + " / " + std::to_string(parts) + " of message ------\n";
}

} // namespace

TEST_F(Pdu_Submission, The_Mode_Follows_The_Formats_That_The_Device_Lists)
{
    struct Row
    {
        const char* m_answer;
        int m_mode;
        const char* m_log_line;
    };
    for (const Row& row : {Row{"\r\n+CMGF: (0,1)\r\n\r\nOK\r\n", 1, "Both PDU Mode and Text Mode\n"},
                           Row{"\r\n+CMGF: (0-1)\r\n\r\nOK\r\n", 1, "Both PDU Mode and Text Mode\n"},
                           Row{"\r\n+CMGF: (0)\r\n\r\nOK\r\n", 1, "Only PDU Mode\n"},
                           Row{"\r\n+CMGF: (1)\r\n\r\nOK\r\n", 2, "Only Text Mode\n"}, Row{"\r\nOK\r\n", 1, ""}}) {
        m_phone.Forget();
        m_phone.Will_Answer("AT+CMGF=?", row.m_answer);
        m_log.Forget();
        EXPECT_EQ(m_session.PDU_or_Text_SMS(No_Descriptor), row.m_mode) << row.m_answer;
        EXPECT_EQ(m_log.All().back(), row.m_log_line);
        EXPECT_EQ(m_phone.Heard(), Lines("AT", "AT+CMGF=?"));
        EXPECT_TRUE(m_phone.Is_Silent());
    }
}

TEST_F(Pdu_Submission, Without_A_Usable_Answer_There_Is_No_Mode)
{
    m_phone.Will_Answer("AT+CMGF=?", "\r\nERROR\r\n");
    EXPECT_EQ(m_session.PDU_or_Text_SMS(No_Descriptor), 0);
    // No format listed, and the first check failed.
    m_phone.Will_Answer("AT", "\r\nERROR\r\n");
    m_phone.Will_Answer("AT+CMGF=?", "\r\nOK\r\n");
    EXPECT_EQ(m_session.PDU_or_Text_SMS(No_Descriptor), 0);
    // A format listed makes up for that.
    m_phone.Will_Answer("AT+CMGF=?", "\r\n+CMGF: (1)\r\n\r\nOK\r\n");
    EXPECT_EQ(m_session.PDU_or_Text_SMS(No_Descriptor), 2);
}

TEST_F(Pdu_Submission, Each_Preparation_Is_Its_Row_Of_Commands)
{
    EXPECT_TRUE(m_session.Prepare_Modem_For_PDU_SMS(No_Descriptor));
    EXPECT_EQ(m_phone.Heard_Bytes(), "AT\r\nAT+CSMS=0\r\nAT+CMGF=0\r\n");
    m_phone.Forget();
    EXPECT_TRUE(m_session.Prepare_Modem_For_Text_SMS(No_Descriptor));
    EXPECT_EQ(m_phone.Heard_Bytes(), "AT\r\nAT+CSMS=0\r\nAT+CMGF=1\r\n");
    m_phone.Forget();
    EXPECT_TRUE(m_session.Check_Msg_Sending_Supported(No_Descriptor));
    EXPECT_EQ(m_phone.Heard_Bytes(), "AT\r\nAT+CSMS=?\rAT+CMGS=?\r");
    m_phone.Forget();
    EXPECT_TRUE(m_session.More_SMS_Comnd(No_Descriptor));
    EXPECT_EQ(m_phone.Heard_Bytes(), "AT\r\nAT+CMMS=2\r");
}

TEST_F(Pdu_Submission, The_First_Refusal_Ends_A_Preparation)
{
    m_phone.Will_Answer("AT+CSMS=0", "\r\nERROR\r\n");
    EXPECT_FALSE(m_session.Prepare_Modem_For_PDU_SMS(No_Descriptor));
    EXPECT_FALSE(m_session.Prepare_Modem_For_Text_SMS(No_Descriptor));
    EXPECT_EQ(m_phone.Heard(), Lines("AT", "AT+CSMS=0", "AT", "AT+CSMS=0"));
    Phone_Moods moods;
    moods.m_no_sms_sending = true;
    m_phone.Set_Moods(moods);
    EXPECT_FALSE(m_session.Check_Msg_Sending_Supported(No_Descriptor));
    m_phone.Hang_Up();
    EXPECT_FALSE(m_session.More_SMS_Comnd(No_Descriptor));
}

TEST_F(Pdu_Submission, A_Short_Message_Is_One_Frame)
{
    Prepare();
    m_number = QStringLiteral("+15550001234");
    EXPECT_TRUE(Send(QStringLiteral("hello")));
    EXPECT_EQ(m_phone.Heard_Bytes(), "AT+CMGS=19\r\n0011000B915155001032F40000FF05E8329BFD06\x1A\r\n");
    EXPECT_EQ(m_log.Count("Write \"AT+CMGS=19\r\n\"\n"), 1);
    EXPECT_EQ(m_log.All().back(), "Standard SMS PDU Response:: ");
    const auto inbox = Inbox(1);
    ASSERT_EQ(inbox.size(), 1u);
    EXPECT_EQ(inbox[0].m_text, "hello");
    EXPECT_EQ(inbox[0].m_number, "+15550001234");
    EXPECT_EQ(inbox[0].m_class, -1);
}

TEST_F(Pdu_Submission, A_Service_Centre_Is_Left_Out_Of_The_Length)
{
    Prepare();
    EXPECT_TRUE(Send(QStringLiteral("hello"), false, true, QStringLiteral("+15550009999")));
    EXPECT_EQ(m_phone.Heard_Bytes(), "AT+CMGS=18\r\n07915155009099F911000A8110325476980010FF05E8329BFD06\x1A\r\n");
    const auto inbox = Inbox(1);
    ASSERT_EQ(inbox.size(), 1u);
    EXPECT_EQ(inbox[0].m_smsc, "+15550009999");
    EXPECT_EQ(inbox[0].m_class, 0);
}

TEST_F(Pdu_Submission, A_Unicode_Message_Goes_As_Ucs2)
{
    Prepare();
    EXPECT_TRUE(Send(QStringLiteral("Hi Ω 😀"), true));
    EXPECT_EQ(m_log.All().back(), "UNICODE Standard SMS PDU Response:: ");
    const auto inbox = Inbox(1);
    ASSERT_EQ(inbox.size(), 1u);
    EXPECT_EQ(inbox[0].m_text, "Hi Ω 😀");
    EXPECT_EQ(inbox[0].m_alphabet, "UCS2");
}

TEST_F(Pdu_Submission, The_Number_Of_Parts_Follows_Length_And_Measure)
{
    struct Row
    {
        int m_length;
        bool m_unicode;
        const char* m_number;
        size_t m_parts;
    };
    // A number of at most ten digits lets 160 seven-bit characters, or 70 of UCS2, through below 154 octets.
    for (const Row& row :
         {Row{0, false, "0123456789", 1}, Row{1, false, "0123456789", 1}, Row{158, false, "0123456789", 1},
          Row{160, false, "0123456789", 1}, Row{160, false, "01234567890123456789", 2},
          Row{161, false, "0123456789", 2}, Row{304, false, "0123456789", 2}, Row{305, false, "0123456789", 3},
          Row{320, false, "0123456789", 3}, Row{70, true, "0123456789", 1}, Row{70, true, "01234567890123456789", 2},
          Row{71, true, "0123456789", 2}, Row{132, true, "0123456789", 2}, Row{133, true, "0123456789", 3}}) {
        Prepare();
        m_number = QString::fromLatin1(row.m_number);
        EXPECT_TRUE(Send(QString(row.m_length, u'A'), row.m_unicode));
        EXPECT_TRUE(Serve_Until([&] { return m_phone.Parts().size() >= row.m_parts; }));
        EXPECT_EQ(m_phone.Parts().size(), row.m_parts) << row.m_length << " " << row.m_unicode << " " << row.m_number;
    }
}

TEST_F(Pdu_Submission, A_One_Part_Concatenated_Message_Is_Possible)
{
    Prepare();
    m_number = QStringLiteral("01234567890123456789");
    EXPECT_TRUE(Send(QString(80, u'['))); // 160 septets with their escapes: too long for one with this number
    ASSERT_TRUE(Serve_Until([&] { return m_phone.Parts().size() == 1; }));
    EXPECT_EQ(m_phone.Parts()[0].m_reference, 0);
    EXPECT_EQ(m_phone.Parts()[0].m_parts, 1);
    EXPECT_TRUE(m_log.Has(Marker(1, 1)));
}

TEST_F(Pdu_Submission, A_Long_Message_Goes_In_Parts_And_Is_One_At_The_Handset)
{
    Prepare();
    QString message;
    for (int place = 0; place < 320; ++place)
        message += QChar(u'A' + place % 26);
    EXPECT_TRUE(Send(message, false, true));
    EXPECT_EQ(m_phone.Heard().size(), 3u);
    EXPECT_EQ(m_phone.Heard()[0], "AT+CMGS=153");
    for (int part = 1; part <= 3; ++part)
        EXPECT_EQ(m_log.Count(Marker(part, 3)), 1);
    EXPECT_EQ(m_log.Count("Long SMS PDU Response:: "), 3);
    const auto inbox = Inbox(1);
    ASSERT_EQ(inbox.size(), 1u);
    EXPECT_EQ(inbox[0].m_text, message.toStdString());
    EXPECT_EQ(inbox[0].m_parts, 3);
    EXPECT_EQ(inbox[0].m_class, 0);
}

TEST_F(Pdu_Submission, A_Long_Unicode_Message_Goes_In_Parts_And_Is_One_At_The_Handset)
{
    Prepare();
    const QString message = QString(66, u'ж') + QStringLiteral("конец 😀");
    EXPECT_TRUE(Send(message, true));
    EXPECT_EQ(m_log.Count("UNICODE Long SMS PDU Response:: "), 2);
    const auto inbox = Inbox(1);
    ASSERT_EQ(inbox.size(), 1u);
    EXPECT_EQ(inbox[0].m_text, message.toStdString());
}

TEST_F(Pdu_Submission, Two_Seconds_Pass_After_Each_Part)
{
    Prepare();
    Set_Pace(4);
    m_session.port()->setReadTimeout(0.2);
    const double start = Now_Seconds();
    EXPECT_TRUE(Send(QString(161, u'A')));
    EXPECT_GE(Now_Seconds() - start, 2 * (2.0 / 4) + 4 * (0.2 / 4));
}

TEST_F(Pdu_Submission, A_Stop_During_Part_Two_Of_Three_Keeps_Part_Three_Back)
{
    Prepare();
    std::thread stopper([&] {
        while (!m_log.Has(Marker(2, 3)))
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        Stop_SMS_Sending_Now = 1;
    });
    EXPECT_TRUE(Send(QString(320, u'A')));
    stopper.join();
    EXPECT_EQ(m_phone.Heard().size(), 2u);
    EXPECT_FALSE(m_log.Has(Marker(3, 3)));
}

TEST_F(Pdu_Submission, A_Stop_Does_Not_Keep_A_Single_Message_Back)
{
    Prepare();
    Stop_SMS_Sending_Now = 1;
    EXPECT_TRUE(Send(QStringLiteral("hello")));
    EXPECT_EQ(m_phone.Heard(), Lines("AT+CMGS=18"));
    m_phone.Forget();
    EXPECT_TRUE(Send(QString(161, u'A')));
    EXPECT_TRUE(m_phone.Is_Silent());
}

TEST_F(Pdu_Submission, What_The_Device_Answers_Does_Not_Count)
{
    Prepare();
    Phone_Moods moods;
    moods.m_cms_error_at = {{1, 500}};
    m_phone.Set_Moods(moods);
    EXPECT_TRUE(Send(QStringLiteral("hello")));
    EXPECT_THAT(m_session.m_sLastResponse().toStdString(), HasSubstr("+CMS ERROR: 500"));
    moods = {};
    moods.m_no_prompt = true;
    m_phone.Set_Moods(moods);
    EXPECT_TRUE(Send(QStringLiteral("hello")));
    moods = {};
    moods.m_silent = true;
    m_phone.Set_Moods(moods);
    EXPECT_TRUE(Send(QStringLiteral("hello")));
    EXPECT_EQ(m_session.m_sLastResponse(), QString());
}

TEST_F(Pdu_Submission, A_Device_That_Takes_No_Byte_Of_A_Frame_Fails_The_Submission_After_The_Writes_Time)
{
    Prepare();
    Phone_Moods moods;
    moods.m_stop_reading_at = 1;
    m_phone.Set_Moods(moods);
    const double start = Now_Seconds();
    EXPECT_FALSE(Send(QStringLiteral("hello")));
    EXPECT_GE(Now_Seconds() - start, 1.0);
    EXPECT_EQ(m_log.Count("Standard SMS PDU Response:: "), 0);
    EXPECT_TRUE(m_phone.Inbox().empty());
}

TEST_F(Pdu_Submission, However_The_Prompt_Comes_The_Message_Arrives)
{
    for (const int mood : {0, 1, 2}) {
        Prepare();
        Phone_Moods moods;
        moods.m_prompt_without_blank = mood == 0;
        moods.m_late_prompt_ms = mood == 1 ? 80 : 0; // past the read that waits for it
        moods.m_no_prompt = mood == 2;
        m_phone.Set_Moods(moods);
        EXPECT_TRUE(Send(QStringLiteral("hello")));
        EXPECT_EQ(Inbox(1).size(), 1u) << mood;
    }
}

TEST_F(Pdu_Submission, Every_Write_That_Fails_Fails_The_Submission)
{
    Prepare();
    for (int failing = 1; failing <= 3; ++failing) {
        int turn = 0;
        const auto port = m_session.port();
        m_calls.Will_Do("write", [&](void*) {
            if (++turn == failing) {
                errno = EIO;
                return -1;
            }
            return 1 << 20;
        });
        EXPECT_FALSE(Send(QStringLiteral("hello"))) << failing;
        EXPECT_EQ(turn, failing);
    }
    EXPECT_EQ(m_log.Count("Standard SMS PDU Response:: "), 0);
}

TEST_F(Pdu_Submission, A_Hang_Up_Fails_The_Submission_And_Sent_Parts_Stay_Sent)
{
    Prepare();
    Phone_Moods moods;
    moods.m_hang_up_at = 2;
    m_phone.Set_Moods(moods);
    EXPECT_FALSE(Send(QString(320, u'A')));
    EXPECT_EQ(m_phone.Parts().size(), 1u);
}

TEST_F(Pdu_Submission, Without_A_Port_Nothing_Is_Sent)
{
    m_session.port()->close();
    m_session.setPort(nullptr);
    EXPECT_FALSE(Send(QStringLiteral("hello")));
    EXPECT_FALSE(Send(QString(161, u'A')));
}

TEST_F(Pdu_Submission, What_The_Encoder_Cannot_Make_Is_Not_Sent)
{
    Prepare();
    const QChar only = u'1';
    m_number = QString::fromRawData(&only, qsizetype{1} << 62); // no memory for it: refused before it is looked at
    for (const int length : {5, 161}) {
        EXPECT_FALSE(Send(QString(length, u'A'), false)) << length;
        EXPECT_FALSE(Send(QString(length, u'A'), true)) << length;
    }
    EXPECT_TRUE(m_phone.Is_Silent());
}

TEST_F(Pdu_Submission, Percent_Signs_Of_A_Message_Stay_What_They_Are)
{
    Prepare();
    EXPECT_TRUE(Send(QStringLiteral("100%1 %s %n")));
    EXPECT_EQ(Inbox(1)[0].m_text, "100%1 %s %n");
}
