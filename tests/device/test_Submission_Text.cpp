#include "device/Device_Test.h"
#include "device/Stop_Flag.h"

#include <thread>

namespace {

class Text_Submission : public Device_Test
{
protected:
    Text_Submission()
    {
        Connect(m_session, m_phone);
        Prepare();
    }

    void Prepare()
    {
        ASSERT_TRUE(m_session.Prepare_Modem_For_Text_SMS(No_Descriptor));
        m_phone.Forget();
        m_log.Forget();
    }

    bool Send(const QString& message, bool is_unicode = false, bool is_flash = false, const QString& smsc = {})
    {
        return m_session.Send_Text_SMS(No_Descriptor, m_number, message, smsc, is_flash, is_unicode);
    }

    void Lists_Charsets(const std::string& list)
    {
        Phone_Moods moods;
        moods.m_charsets = list;
        m_phone.Set_Moods(moods);
    }

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

} // namespace

TEST_F(Text_Submission, A_Short_Message_Is_A_Number_A_Body_And_A_Terminator)
{
    EXPECT_TRUE(Send(QStringLiteral("hello")));
    EXPECT_EQ(m_phone.Heard_Bytes(), "AT+CSMP=17,255,0,0\r\nAT+CMGS=\"0123456789\"\r\nhello\x1A\r\n");
    EXPECT_EQ(m_log.All().back(), "Short SMS Text :: ");
    const auto inbox = Inbox(1);
    ASSERT_EQ(inbox.size(), 1u);
    EXPECT_EQ(inbox[0].m_text, "hello");
    EXPECT_EQ(inbox[0].m_number, "0123456789");
    EXPECT_TRUE(inbox[0].m_text_mode);
}

TEST_F(Text_Submission, A_Flash_Message_Asks_For_Class_0)
{
    EXPECT_TRUE(Send(QStringLiteral("hello"), false, true));
    EXPECT_EQ(m_phone.Heard(), Lines("AT+CSMP=17,255,0,16", "AT+CMGS=\"0123456789\""));
    EXPECT_EQ(Inbox(1)[0].m_class, 0);
    Prepare();
    EXPECT_TRUE(Send(QStringLiteral("hello"), true, true));
    EXPECT_EQ(m_phone.Heard(), Lines("AT+CSCS=?", "AT+CSCS=\"HEX\"", "AT+CSMP=17,255,0,24", "AT+CMGS=\"0123456789\""));
}

TEST_F(Text_Submission, The_Type_Of_A_Service_Centre_Follows_Its_Plus)
{
    EXPECT_TRUE(Send(QStringLiteral("a"), false, false, QStringLiteral("+15550009999")));
    EXPECT_EQ(m_phone.Heard().front(), "AT+CSCA=\"+15550009999\",145");
    m_phone.Forget();
    EXPECT_TRUE(Send(QStringLiteral("a"), false, false, QStringLiteral("0155")));
    EXPECT_EQ(m_phone.Heard().front(), "AT+CSCA=\"0155\",129");
}

TEST_F(Text_Submission, A_Long_Message_Goes_In_Independent_Parts_Of_160)
{
    EXPECT_TRUE(Send(QString(160, u'a') + QString(160, u'b')));
    EXPECT_EQ(m_phone.Heard(), Lines("AT+CSMP=17,255,0,0", "AT+CMGS=\"0123456789\"", "AT+CMGS=\"0123456789\""));
    EXPECT_TRUE(m_log.Has("\n------ 1 / 2 of message ------\n"));
    EXPECT_TRUE(m_log.Has("\n------ 2 / 2 of message ------\n"));
    EXPECT_EQ(m_log.Count("Long SMS Text :: "), 2);
    const auto inbox = Inbox(2);
    ASSERT_EQ(inbox.size(), 2u);
    EXPECT_EQ(inbox[0].m_text, std::string(160, 'a'));
    EXPECT_EQ(inbox[1].m_text, std::string(160, 'b'));
    EXPECT_EQ(inbox[0].m_reference, -1);
}

TEST_F(Text_Submission, The_Last_Part_Is_What_Remains)
{
    EXPECT_TRUE(Send(QString(160, u'a') + QStringLiteral("b")));
    const auto inbox = Inbox(2);
    ASSERT_EQ(inbox.size(), 2u);
    EXPECT_EQ(inbox[1].m_text, "b");
}

TEST_F(Text_Submission, A_Message_Of_160_That_Measures_Short_Enough_Is_A_Single_One)
{
    EXPECT_TRUE(Send(QString(160, u'a')));
    EXPECT_EQ(m_log.All().back(), "Short SMS Text :: ");
    EXPECT_EQ(Inbox(1)[0].m_text, std::string(160, 'a'));
}

TEST_F(Text_Submission, A_Message_Of_160_That_Measures_Too_Long_Is_One_Long_Part)
{
    m_number = QStringLiteral("01234567890123456789");
    EXPECT_TRUE(Send(QString(160, u'a')));
    EXPECT_TRUE(m_log.Has("\n------ 1 / 1 of message ------\n"));
    EXPECT_EQ(m_log.All().back(), "Long SMS Text :: ");
    EXPECT_EQ(m_phone.Heard().size(), 2u);
}

TEST_F(Text_Submission, A_Unicode_Message_Prefers_Hex_And_No_Read_Follows_Its_Terminator)
{
    EXPECT_TRUE(Send(QStringLiteral("Hi Ω"), true));
    EXPECT_TRUE(Serve_Until([&] { return m_phone.Heard_Bytes().find('\x1A') != std::string::npos; }));
    EXPECT_EQ(m_phone.Heard_Bytes(), "AT+CSCS=?\r\nAT+CSCS=\"HEX\"\r\nAT+CSMP=17,255,0,8\r\n"
                                     "AT+CMGS=\"0123456789\"\r\n00480069002003A9\x1A\r\n");
    EXPECT_EQ(m_log.All().back(), "UNICODE Short SMS Text :: ");
    EXPECT_EQ(Inbox(1)[0].m_text, "Hi Ω");
    // The device's answer is left for the next read.
    EXPECT_TRUE(m_session.Read_Command(No_Descriptor, "\r\nOK\r\n"));
    EXPECT_TRUE(m_session.m_sLastResponse().contains(QStringLiteral("+CMGS")));
}

TEST_F(Text_Submission, Without_Hex_A_Unicode_Message_Goes_In_Ucs2)
{
    Lists_Charsets("\"GSM\",\"UCS2\"");
    EXPECT_TRUE(Send(QStringLiteral("Ω"), true));
    EXPECT_EQ(m_phone.Heard()[1], "AT+CSCS=\"UCS2\"");
    EXPECT_TRUE(Serve_Until([&] { return m_phone.Heard_Bytes().find("\r\n03A9\x1A\r\n") != std::string::npos; }));
}

TEST_F(Text_Submission, Without_Both_The_Text_Goes_As_It_Is)
{
    Lists_Charsets("\"GSM\"");
    EXPECT_TRUE(Send(QStringLiteral("aΩ\u001B"), true));
    EXPECT_EQ(m_phone.Heard(), Lines("AT+CSCS=?", "AT+CSMP=17,255,0,8", "AT+CMGS=\"0123456789\""));
    EXPECT_TRUE(Serve_Until([&] { return m_phone.Heard_Bytes().find("\r\naΩ \x1A\r\n") != std::string::npos; }));
}

TEST_F(Text_Submission, Seventy_Unicode_Characters_Are_One_Message_And_71_Are_Two)
{
    EXPECT_TRUE(Send(QString(70, u'ж'), true));
    EXPECT_EQ(Inbox(1).size(), 1u);
    EXPECT_FALSE(m_log.Has("\n------ 1 / 1 of message ------\n"));
    EXPECT_TRUE(m_session.Check_Connection(No_Descriptor));
    Prepare();
    EXPECT_TRUE(Send(QString(70, u'ж') + u'я', true));
    const auto inbox = Inbox(2);
    ASSERT_EQ(inbox.size(), 2u);
    EXPECT_EQ(inbox[1].m_text, "я");
    EXPECT_EQ(m_log.Count("UNICODE Long SMS Text Response:: "), 2);
    const auto heard = m_phone.Heard();
    EXPECT_EQ(std::count(heard.begin(), heard.end(), "AT+CSCS=?"), 2); // asked again for every part
}

TEST_F(Text_Submission, Seventy_Unicode_Characters_That_Measure_Too_Long_Are_One_Long_Part)
{
    m_number = QStringLiteral("01234567890123456789");
    EXPECT_TRUE(Send(QString(70, u'ж'), true));
    EXPECT_TRUE(m_log.Has("\n------ 1 / 1 of message ------\n"));
    EXPECT_EQ(m_log.All().back(), "UNICODE Long SMS Text Response:: ");
    EXPECT_EQ(Inbox(1).size(), 1u);
}

TEST_F(Text_Submission, What_The_Encoder_Cannot_Measure_Is_Not_Sent)
{
    const QChar only = u'1';
    m_number = QString::fromRawData(&only, qsizetype{1} << 62); // no memory for it: refused before it is looked at
    EXPECT_FALSE(Send(QStringLiteral("hello")));
    EXPECT_EQ(m_phone.Heard(), Lines("AT+CSMP=17,255,0,0")); // what goes before the measuring
    m_phone.Forget();
    EXPECT_FALSE(Send(QStringLiteral("hello"), true));
    EXPECT_TRUE(m_phone.Is_Silent());
}

TEST_F(Text_Submission, A_Stop_Between_Parts_Keeps_The_Rest_Back)
{
    std::thread stopper([&] {
        while (!m_log.Has("\n------ 2 / 3 of message ------\n"))
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        Stop_SMS_Sending_Now = 1;
    });
    EXPECT_TRUE(Send(QString(480, u'a')));
    stopper.join();
    EXPECT_EQ(Inbox(2).size(), 2u);
    EXPECT_FALSE(m_log.Has("\n------ 3 / 3 of message ------\n"));
}

TEST_F(Text_Submission, No_Character_Of_A_Message_Runs_As_A_Command)
{
    EXPECT_TRUE(Send(QStringLiteral("a\u001AAT+CMGF=0\rb\u001Bc") + QChar(0) + u'd'));
    EXPECT_EQ(m_phone.Heard(), Lines("AT+CSMP=17,255,0,0", "AT+CMGS=\"0123456789\""));
    EXPECT_TRUE(
        Serve_Until([&] { return m_phone.Heard_Bytes().find("\r\na AT+CMGF=0\rb c d\x1A\r\n") != std::string::npos; }));
    EXPECT_TRUE(m_session.Check_Connection(No_Descriptor));
}

TEST_F(Text_Submission, An_Empty_Message_Writes_Its_Terminator_Only)
{
    EXPECT_TRUE(Send(QString()));
    EXPECT_EQ(m_phone.Heard_Bytes(), "AT+CSMP=17,255,0,0\r\nAT+CMGS=\"0123456789\"\r\n\x1A\r\n");
    EXPECT_TRUE(Send(QString(), true));
    EXPECT_TRUE(
        Serve_Until([&] { return m_phone.Heard_Bytes().substr(m_phone.Heard_Bytes().size() - 3) == "\x1A\r\n"; }));
    EXPECT_EQ(Inbox(2).size(), 2u);
    EXPECT_TRUE(m_session.Check_Connection(No_Descriptor)); // the phone is not left at its prompt
}

TEST_F(Text_Submission, What_The_Device_Answers_Does_Not_Count)
{
    for (const char* command : {"AT+CSCA=*", "AT+CSMP=*", "AT+CSCS=*", "AT+CMGS=*"})
        m_phone.Will_Answer(command, "\r\nERROR\r\n");
    EXPECT_TRUE(Send(QStringLiteral("a"), false, false, QStringLiteral("+1555")));
    EXPECT_TRUE(Send(QStringLiteral("a"), true, false, QStringLiteral("+1555")));
}

TEST_F(Text_Submission, Every_Write_That_Fails_Fails_The_Submission)
{
    Phone_Moods moods;
    moods.m_silent = true; // the seam eats the writes, so nothing is answered anyway
    m_phone.Set_Moods(moods);
    for (const bool is_unicode : {false, true}) {
        const int writes = is_unicode ? 6 : 5;
        for (int failing = 1; failing <= writes; ++failing) {
            int turn = 0;
            m_calls.Will_Do("write", [&](void*) {
                if (++turn == failing) {
                    errno = EIO;
                    return -1;
                }
                return 1 << 20;
            });
            EXPECT_FALSE(Send(QStringLiteral("hello"), is_unicode, false, QStringLiteral("1"))) << failing;
            EXPECT_EQ(turn, failing);
        }
    }
}

TEST_F(Text_Submission, A_Hang_Up_In_A_Long_Message_Fails_It)
{
    Phone_Moods moods;
    moods.m_hang_up_at = 2;
    m_phone.Set_Moods(moods);
    EXPECT_FALSE(Send(QString(480, u'a')));
    EXPECT_EQ(m_phone.Inbox().size(), 1u);
}
