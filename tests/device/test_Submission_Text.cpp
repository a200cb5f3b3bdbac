#include "device/Submission_Test.h"

namespace {

class Text_Submission : public Submission_Test
{
protected:
    Text_Submission() : Submission_Test(In_Text_Mode) {}
};

} // namespace

TEST_F(Text_Submission, A_Short_Message_Is_A_Number_A_Body_And_A_Terminator)
{
    EXPECT_TRUE(Send("hello"));
    EXPECT_EQ(m_phone.Heard_Bytes(), "AT+CSMP=17,255,0,0\r\nAT+CMGS=\"0123456789\"\r\nhello\x1A\r\n");
    EXPECT_EQ(m_log.All().back(), "Short SMS Text :: ");
    const auto message = Inbox(1)[0];
    EXPECT_EQ(message.m_text, "hello");
    EXPECT_EQ(message.m_number, "0123456789");
    EXPECT_TRUE(message.m_text_mode);
}

TEST_F(Text_Submission, A_Flash_Message_Asks_For_Class_0_And_The_Type_Of_A_Service_Centre_Follows_Its_Plus)
{
    EXPECT_TRUE(Send("hello", false, true, "+15550009999"));
    EXPECT_EQ(m_phone.Heard(), Lines("AT+CSCA=\"+15550009999\",145", "AT+CSMP=17,255,0,16", "AT+CMGS=\"0123456789\""));
    EXPECT_EQ(Inbox(1)[0].m_class, 0);
    Prepare();
    EXPECT_TRUE(Send("hello", true, true, "0155"));
    EXPECT_EQ(m_phone.Heard(), Lines("AT+CSCA=\"0155\",129", "AT+CSCS=?", "AT+CSCS=\"HEX\"", "AT+CSMP=17,255,0,24",
                                     "AT+CMGS=\"0123456789\""));
}

TEST_F(Text_Submission, A_Long_Message_Goes_In_Independent_Parts_Of_160_And_What_Remains)
{
    EXPECT_TRUE(Send(QString(160, u'a') + QString(160, u'b') + u'c'));
    EXPECT_EQ(m_phone.Heard(), Lines("AT+CSMP=17,255,0,0", "AT+CMGS=\"0123456789\"", "AT+CMGS=\"0123456789\"",
                                     "AT+CMGS=\"0123456789\""));
    for (int part = 1; part <= 3; ++part)
        EXPECT_TRUE(m_log.Has(Marker(part, 3)));
    EXPECT_EQ(m_log.Count("Long SMS Text :: "), 3);
    const auto inbox = Inbox(3);
    EXPECT_EQ(inbox[0].m_text, std::string(160, 'a'));
    EXPECT_EQ(inbox[1].m_text, std::string(160, 'b'));
    EXPECT_EQ(inbox[2].m_text, "c");
    EXPECT_EQ(inbox[0].m_reference, -1);
}

TEST_F(Text_Submission, A_Full_Message_Is_A_Single_One_Unless_It_Measures_Too_Long)
{
    for (const auto& [is_unicode, text, short_label, long_label] :
         {std::tuple(false, QString(160, u'a'), "Short SMS Text :: ", "Long SMS Text :: "),
          std::tuple(true, QString(70, u'ж'), "UNICODE Short SMS Text :: ", "UNICODE Long SMS Text Response:: ")}) {
        for (const auto& [number, is_long] :
             {std::pair("0123456789", false), std::pair("01234567890123456789", true)}) {
            m_number = number;
            Prepare();
            EXPECT_TRUE(Send(text, is_unicode));
            EXPECT_EQ(m_log.Has(Marker(1, 1)), is_long);
            EXPECT_EQ(m_log.All().back(), is_long ? long_label : short_label);
            EXPECT_EQ(Inbox(1)[0].m_text, text.toStdString());
            EXPECT_TRUE(m_session.Check_Connection(No_Descriptor)); // reads what no read of the submission has
        }
    }
}

TEST_F(Text_Submission, A_Unicode_Message_Prefers_Hex_And_No_Read_Follows_Its_Terminator)
{
    EXPECT_TRUE(Send("Hi Ω", true));
    EXPECT_TRUE(Is_Heard("AT+CSCS=?\r\nAT+CSCS=\"HEX\"\r\nAT+CSMP=17,255,0,8\r\n"
                         "AT+CMGS=\"0123456789\"\r\n00480069002003A9\x1A\r\n"));
    EXPECT_EQ(m_log.All().back(), "UNICODE Short SMS Text :: ");
    EXPECT_EQ(Inbox(1)[0].m_text, "Hi Ω");
    // The device's answer is left for the next read.
    EXPECT_TRUE(m_session.Read_Command(No_Descriptor, "\r\nOK\r\n"));
    EXPECT_TRUE(m_session.m_sLastResponse().contains("+CMGS"));
}

TEST_F(Text_Submission, Without_Hex_A_Unicode_Message_Goes_In_Ucs2_And_Without_Both_As_It_Is)
{
    Wears(Mood(&Phone_Moods::m_charsets, "\"GSM\",\"UCS2\""));
    EXPECT_TRUE(Send("Ω", true));
    EXPECT_EQ(m_phone.Heard()[1], "AT+CSCS=\"UCS2\"");
    EXPECT_TRUE(Is_Heard_In_The_End("\r\n03A9\x1A\r\n"));
    Inbox(1);
    Wears(Mood(&Phone_Moods::m_charsets, "\"GSM\""));
    Prepare();
    EXPECT_TRUE(Send("aΩ\u001B", true));
    EXPECT_EQ(m_phone.Heard(), Lines("AT+CSCS=?", "AT+CSMP=17,255,0,8", "AT+CMGS=\"0123456789\""));
    EXPECT_TRUE(Is_Heard_In_The_End("\r\naΩ \x1A\r\n"));
}

TEST_F(Text_Submission, For_Every_Part_Of_A_Unicode_Message_The_Character_Sets_Are_Asked_For)
{
    EXPECT_TRUE(Send(QString(70, u'ж') + u'я', true));
    EXPECT_EQ(Inbox(2)[1].m_text, "я");
    EXPECT_EQ(m_log.Count("UNICODE Long SMS Text Response:: "), 2);
    const auto heard = m_phone.Heard();
    EXPECT_EQ(std::count(heard.begin(), heard.end(), "AT+CSCS=?"), 2);
}

TEST_F(Text_Submission, What_The_Encoder_Cannot_Measure_Is_Not_Sent)
{
    m_number = Endless_Number();
    EXPECT_FALSE(Send("hello"));
    EXPECT_EQ(m_phone.Heard(), Lines("AT+CSMP=17,255,0,0")); // what goes before the measuring
    m_phone.Forget();
    EXPECT_FALSE(Send("hello", true));
    EXPECT_TRUE(m_phone.Is_Silent());
}

TEST_F(Text_Submission, No_Character_Of_A_Message_Runs_As_A_Command)
{
    EXPECT_TRUE(Send(QString("a\u001AAT+CMGF=0\rb\u001Bc") + QChar(0) + u'd'));
    EXPECT_EQ(m_phone.Heard(), Lines("AT+CSMP=17,255,0,0", "AT+CMGS=\"0123456789\""));
    EXPECT_TRUE(Is_Heard_In_The_End("\r\na AT+CMGF=0\rb c d\x1A\r\n"));
    EXPECT_TRUE(m_session.Check_Connection(No_Descriptor));
}

TEST_F(Text_Submission, An_Empty_Message_Writes_Its_Terminator_Only)
{
    EXPECT_TRUE(Send(QString()));
    EXPECT_EQ(m_phone.Heard_Bytes(), "AT+CSMP=17,255,0,0\r\nAT+CMGS=\"0123456789\"\r\n\x1A\r\n");
    EXPECT_TRUE(Send(QString(), true));
    EXPECT_TRUE(Is_Heard_In_The_End("AT+CMGS=\"0123456789\"\r\n\x1A\r\n"));
    Inbox(2);
    EXPECT_TRUE(m_session.Check_Connection(No_Descriptor)); // the phone is not left at its prompt
}

TEST_F(Text_Submission, What_The_Device_Answers_Does_Not_Count)
{
    for (const char* command : {"AT+CSCA=*", "AT+CSMP=*", "AT+CSCS=*", "AT+CMGS=*"})
        m_phone.Will_Answer(command, "\r\nERROR\r\n");
    EXPECT_TRUE(Send("a", false, false, "+1555"));
    EXPECT_TRUE(Send("a", true, false, "+1555"));
}

TEST_F(Text_Submission, Every_Write_That_Fails_Fails_The_Submission)
{
    Wears(Mood(&Phone_Moods::m_silent)); // the seam eats the writes, so nothing is answered anyway
    Expect_Each_Write_To_Count(5, false, "1");
    Expect_Each_Write_To_Count(6, true, "1");
}
