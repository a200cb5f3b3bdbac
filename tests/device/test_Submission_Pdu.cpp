#include "device/Submission_Test.h"

namespace {

class Pdu_Submission : public Submission_Test
{
protected:
    Pdu_Submission() : Submission_Test(In_Pdu_Mode) {}
};

} // namespace

TEST_F(Pdu_Submission, The_Mode_Follows_The_Formats_That_The_Device_Lists)
{
    for (const auto& [answer, mode, log_line] :
         {std::tuple("\r\n+CMGF: (0,1)\r\n\r\nOK\r\n", 1, "Both PDU Mode and Text Mode\n"),
          std::tuple("\r\n+CMGF: (0-1)\r\n\r\nOK\r\n", 1, "Both PDU Mode and Text Mode\n"),
          std::tuple("\r\n+CMGF: (0)\r\n\r\nOK\r\n", 1, "Only PDU Mode\n"),
          std::tuple("\r\n+CMGF: (1)\r\n\r\nOK\r\n", 2, "Only Text Mode\n"), std::tuple("\r\nOK\r\n", 1, "")}) {
        m_phone.Forget();
        m_phone.Will_Answer("AT+CMGF=?", answer);
        EXPECT_EQ(m_session.PDU_or_Text_SMS(No_Descriptor), mode) << answer;
        EXPECT_EQ(m_log.All().back(), log_line);
        EXPECT_EQ(m_phone.Heard(), Lines("AT", "AT+CMGF=?"));
        EXPECT_TRUE(m_phone.Is_Silent());
    }
    // Without a usable answer there is no mode.
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

TEST_F(Pdu_Submission, Each_Preparation_Is_Its_Row_Of_Commands_And_The_First_Refusal_Ends_It)
{
    for (const auto& [prepare, heard] :
         {std::pair(&MFCSMS::Prepare_Modem_For_PDU_SMS, "AT\r\nAT+CSMS=0\r\nAT+CMGF=0\r\n"),
          std::pair(&MFCSMS::Prepare_Modem_For_Text_SMS, "AT\r\nAT+CSMS=0\r\nAT+CMGF=1\r\n"),
          std::pair(&MFCSMS::Check_Msg_Sending_Supported, "AT\r\nAT+CSMS=?\rAT+CMGS=?\r"),
          std::pair(&MFCSMS::More_SMS_Comnd, "AT\r\nAT+CMMS=2\r")}) {
        m_phone.Forget();
        EXPECT_TRUE((m_session.*prepare)(No_Descriptor));
        EXPECT_EQ(m_phone.Heard_Bytes(), heard);
    }
    m_phone.Forget();
    m_phone.Will_Answer("AT+CSMS=0", "\r\nERROR\r\n");
    EXPECT_FALSE(m_session.Prepare_Modem_For_PDU_SMS(No_Descriptor));
    EXPECT_FALSE(m_session.Prepare_Modem_For_Text_SMS(No_Descriptor));
    EXPECT_EQ(m_phone.Heard(), Lines("AT", "AT+CSMS=0", "AT", "AT+CSMS=0"));
    Wears(Mood(&Phone_Moods::m_no_sms_sending));
    EXPECT_FALSE(m_session.Check_Msg_Sending_Supported(No_Descriptor));
    m_phone.Hang_Up();
    EXPECT_FALSE(m_session.More_SMS_Comnd(No_Descriptor));
}

TEST_F(Pdu_Submission, A_Short_Message_Is_One_Frame)
{
    m_number = "+15550001234";
    EXPECT_TRUE(Send("hello"));
    EXPECT_EQ(m_phone.Heard_Bytes(), "AT+CMGS=19\r\n0011000B915155001032F40000FF05E8329BFD06\x1A\r\n");
    EXPECT_EQ(m_log.Count("Write \"AT+CMGS=19\r\n\"\n"), 1);
    EXPECT_EQ(m_log.All().back(), "Standard SMS PDU Response:: ");
    const auto message = Inbox(1)[0];
    EXPECT_EQ(message.m_text, "hello");
    EXPECT_EQ(message.m_number, "+15550001234");
    EXPECT_EQ(message.m_class, -1);
}

TEST_F(Pdu_Submission, A_Service_Centre_Is_Left_Out_Of_The_Length_And_A_Unicode_Message_Goes_As_Ucs2)
{
    EXPECT_TRUE(Send("hello", false, true, "+15550009999"));
    EXPECT_EQ(m_phone.Heard_Bytes(), "AT+CMGS=18\r\n07915155009099F911000A8110325476980010FF05E8329BFD06\x1A\r\n");
    EXPECT_EQ(Inbox(1)[0].m_smsc, "+15550009999");
    EXPECT_EQ(Inbox(1)[0].m_class, 0);
    EXPECT_TRUE(Send("Hi Ω 😀", true));
    EXPECT_EQ(m_log.All().back(), "UNICODE Standard SMS PDU Response:: ");
    EXPECT_EQ(Inbox(2)[1].m_text, "Hi Ω 😀");
    EXPECT_EQ(Inbox(2)[1].m_alphabet, "UCS2");
}

TEST_F(Pdu_Submission, A_Long_Message_Goes_In_Parts_And_Is_One_At_The_Handset)
{
    const QString text = QString("ABCDEFGHIJKLMNOPQRSTUVWXYZ").repeated(13).left(320);
    EXPECT_TRUE(Send(text, false, true));
    EXPECT_EQ(m_phone.Heard().size(), 3u);
    EXPECT_EQ(m_phone.Heard()[0], "AT+CMGS=153");
    for (int part = 1; part <= 3; ++part)
        EXPECT_EQ(m_log.Count(Marker(part, 3)), 1);
    EXPECT_EQ(m_log.Count("Long SMS PDU Response:: "), 3);
    const auto message = Inbox(1)[0];
    EXPECT_EQ(message.m_text, text.toStdString());
    EXPECT_EQ(message.m_parts, 3);
    EXPECT_EQ(message.m_class, 0);
    const QString unicode_text = QString(66, u'ж') + "конец 😀";
    EXPECT_TRUE(Send(unicode_text, true));
    EXPECT_EQ(m_log.Count("UNICODE Long SMS PDU Response:: "), 2);
    EXPECT_EQ(Inbox(2)[1].m_text, unicode_text.toStdString());
}

TEST_F(Pdu_Submission, What_The_Device_Answers_Does_Not_Count)
{
    Wears(Mood(&Phone_Moods::m_cms_error_at, {{1, 500}}));
    EXPECT_TRUE(Send("hello"));
    EXPECT_TRUE(m_session.m_sLastResponse().contains("+CMS ERROR: 500"));
    Wears(Mood(&Phone_Moods::m_silent));
    EXPECT_TRUE(Send("hello"));
    EXPECT_EQ(m_session.m_sLastResponse(), QString());
}

TEST_F(Pdu_Submission, A_Device_That_Takes_No_Byte_Of_A_Frame_Fails_The_Submission_After_The_Writes_Time)
{
    Wears(Mood(&Phone_Moods::m_stop_reading_at, 1));
    const double start = Now_Seconds();
    EXPECT_FALSE(Send("hello"));
    EXPECT_GE(Now_Seconds() - start, 1.0);
    EXPECT_EQ(m_log.Count("Standard SMS PDU Response:: "), 0);
    EXPECT_TRUE(m_phone.Inbox().empty());
}

TEST_F(Pdu_Submission, However_The_Prompt_Comes_The_Message_Arrives)
{
    for (const Phone_Moods& moods : {Mood(&Phone_Moods::m_prompt_without_blank),
                                     Mood(&Phone_Moods::m_late_prompt_ms, 80), // past the read that waits for it
                                     Mood(&Phone_Moods::m_no_prompt)}) {
        Wears({});
        Prepare();
        Wears(moods);
        EXPECT_TRUE(Send("hello"));
        Inbox(1);
    }
}

TEST_F(Pdu_Submission, Every_Write_That_Fails_Fails_The_Submission)
{
    Expect_Each_Write_To_Count(3, false, {});
    EXPECT_EQ(m_log.Count("Standard SMS PDU Response:: "), 0);
}

TEST_F(Pdu_Submission, What_The_Encoder_Cannot_Make_Is_Not_Sent)
{
    m_number = Endless_Number();
    for (const int length : {5, 161}) {
        EXPECT_FALSE(Send(QString(length, u'A'), false)) << length;
        EXPECT_FALSE(Send(QString(length, u'A'), true)) << length;
    }
    EXPECT_TRUE(m_phone.Is_Silent());
}
