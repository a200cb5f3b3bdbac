#include "device/Device_Test.h"

#include <stdexcept>
#include <thread>

namespace {

class Session : public Device_Test
{
protected:
    // A session whose phone says only this to AT+X, without an echo.
    bool Answer_Is_Accepted(const std::string& answer, const QByteArray& expected)
    {
        Phone_Moods moods;
        moods.m_no_echo = true;
        Virtual_Phone phone(moods);
        phone.Will_Answer("AT+X", answer);
        MFCSMS session;
        session.initPort(QString::fromStdString(phone.Path()));
        session.port()->setReadTimeout(1.0);
        EXPECT_TRUE(session.Write_Command(No_Descriptor, "AT+X\r\n"));
        const bool is_accepted = session.Read_Command(No_Descriptor, expected);
        m_last_response = session.m_sLastResponse();
        return is_accepted;
    }

    std::string Path() const { return m_phone.Path(); }

    Virtual_Phone m_phone;
    Watched_Calls m_calls;
    MFCSMS m_session{m_calls};
    QString m_last_response;
};

Phone_Moods Mood(bool Phone_Moods::*mood)
{
    Phone_Moods moods;
    moods.*mood = true;
    return moods;
}

} // namespace

TEST_F(Session, The_Session_Made_Last_Is_The_Known_One)
{
    EXPECT_EQ(mfc_sms_instance, &m_session);
    const MFCSMS later;
    EXPECT_EQ(mfc_sms_instance, &later);
}

TEST_F(Session, There_Is_No_Port_At_First_And_Commands_Fail)
{
    EXPECT_EQ(m_session.port(), nullptr);
    m_session.setM_sLastResponse(QStringLiteral("old"));
    EXPECT_FALSE(m_session.Write_Command(No_Descriptor, "AT\r\n"));
    EXPECT_FALSE(m_session.Read_Command(No_Descriptor, "OK"));
    EXPECT_EQ(m_session.m_sLastResponse(), QString());
    EXPECT_FALSE(m_session.Check_Connection(No_Descriptor));
}

TEST_F(Session, A_Port_That_Opens_Is_Logged_And_Kept)
{
    m_session.initPort(QString::fromStdString(Path()));
    ASSERT_TRUE(m_session.port());
    EXPECT_TRUE(m_session.port()->isOpen());
    EXPECT_EQ(m_session.port()->name().toStdString(), Path());
    EXPECT_EQ(m_session.port()->type(), QStringLiteral("IOModemSerialStream"));
    EXPECT_EQ(m_log.All(), Lines("Port ( " + Path() + " ) is OPENED"));
}

TEST_F(Session, A_Second_Initport_With_The_Same_Path_Opens_Once)
{
    m_session.initPort(QString::fromStdString(Path()));
    const auto port = m_session.port();
    m_session.initPort(QString::fromStdString(Path()));
    EXPECT_EQ(m_session.port(), port);
    EXPECT_EQ(m_calls.Count("open"), 1);
    port->close();
    m_session.initPort(QString::fromStdString(Path()));
    EXPECT_FALSE(m_session.port()->isOpen()); // the port of that path is kept, open or not
    EXPECT_EQ(m_calls.Count("open"), 1);
}

TEST_F(Session, Another_Path_Replaces_The_Port)
{
    Virtual_Phone other;
    m_session.initPort(QString::fromStdString(Path()));
    const auto first = m_session.port();
    m_session.initPort(QString::fromStdString(other.Path()));
    EXPECT_FALSE(first->isOpen());
    EXPECT_EQ(m_session.port()->bsdPath().toStdString(), other.Path());
}

TEST_F(Session, A_Port_That_Does_Not_Open_Leaves_None)
{
    m_session.initPort(QString::fromStdString(Path()));
    m_session.initPort(QStringLiteral("/nowhere"));
    EXPECT_EQ(m_session.port(), nullptr);
    EXPECT_TRUE(m_log.Has("Port ( /nowhere ) is NOT OPEN"));
    EXPECT_FALSE(m_session.Write_Command(No_Descriptor, "AT\r\n"));
}

TEST_F(Session, A_Path_With_Percent_Signs_Is_Logged_As_It_Is)
{
    m_session.initPort(QStringLiteral("/dev/%1%s%n"));
    EXPECT_TRUE(m_log.Has("Port ( /dev/%1%s%n ) is NOT OPEN"));
}

TEST_F(Session, A_Command_Is_Written_And_Logged)
{
    Connect(m_session, m_phone);
    m_log.Forget();
    EXPECT_TRUE(m_session.Write_Command(No_Descriptor, "AT\r\n"));
    EXPECT_EQ(m_log.All(), Lines("Write \"AT\r\n\"\n"));
    EXPECT_TRUE(Serve_Until([&] { return m_phone.Heard_Bytes() == "AT\r\n"; }));
}

TEST_F(Session, A_Command_Of_Three_Characters_Is_Not_Logged)
{
    Connect(m_session, m_phone);
    m_log.Forget();
    EXPECT_TRUE(m_session.Write_Command(No_Descriptor, "\x1A\r\n"));
    EXPECT_TRUE(m_log.All().empty());
    EXPECT_TRUE(Serve_Until([&] { return m_phone.Heard_Bytes() == "\x1A\r\n"; }));
}

TEST_F(Session, A_Command_Ends_At_Its_First_Zero_Byte)
{
    Connect(m_session, m_phone);
    EXPECT_TRUE(m_session.Write_Command(No_Descriptor, QByteArray("AT\r\0XYZ", 7)));
    EXPECT_TRUE(Serve_Until([&] { return m_phone.Heard_Bytes() == "AT\r"; }));
}

TEST_F(Session, An_Answer_Is_Judged_By_The_Expected_Text)
{
    EXPECT_TRUE(Answer_Is_Accepted("\r\nOK\r\n", "\r\nOK\r\n"));
    EXPECT_EQ(m_last_response, QStringLiteral("OK"));
    EXPECT_FALSE(Answer_Is_Accepted("\r\n+CMS ERROR: 500\r\n", "\r\nOK\r\n"));
    EXPECT_EQ(m_last_response, QStringLiteral("+CMS ERROR: 500"));
    EXPECT_FALSE(Answer_Is_Accepted("\r\nOK\r\n+CMS ERROR: 500\r\n", "\r\nOK\r\n"));
    EXPECT_FALSE(Answer_Is_Accepted("\r\nERROR\r\n", "ERROR"));
    EXPECT_TRUE(Answer_Is_Accepted("\r\n> ", ">\r\n"));
    EXPECT_TRUE(Answer_Is_Accepted("\r\nNOKIA\r\n", "\r\nOK\r\n"));
    EXPECT_FALSE(Answer_Is_Accepted("\r\nok\r\n", "\r\nOK\r\n"));
    EXPECT_FALSE(Answer_Is_Accepted(" \r\n ", "\r\nOK\r\n"));
    EXPECT_EQ(m_last_response, QString());
}

TEST_F(Session, An_Answer_Is_Logged_Trimmed)
{
    Connect(m_session, m_phone);
    m_session.Write_Command(No_Descriptor, "AT\r\n");
    m_log.Forget();
    EXPECT_TRUE(m_session.Read_Command(No_Descriptor, "\r\nOK\r\n"));
    EXPECT_EQ(m_log.All(), Lines("Read \"AT\r\r\nOK\""));
}

TEST_F(Session, An_Answer_With_Zeros_Or_Broken_Utf8_Is_Kept)
{
    EXPECT_TRUE(Answer_Is_Accepted(std::string("a\0b\xFFOK\r\n", 8), "OK"));
    EXPECT_EQ(m_last_response,
              QStringLiteral("a") + QChar(0) + u'b' + QChar(QChar::ReplacementCharacter) + QStringLiteral("OK"));
}

TEST_F(Session, A_Silent_Device_Costs_Exactly_One_Read_Timeout)
{
    m_phone.Set_Moods(Mood(&Phone_Moods::m_silent));
    Connect(m_session, m_phone);
    m_session.port()->setReadTimeout(4.0);
    m_session.Write_Command(No_Descriptor, "AT\r\n");
    m_session.setM_sLastResponse(QStringLiteral("old"));
    const Stopwatch watch;
    EXPECT_FALSE(m_session.Read_Command(No_Descriptor, "\r\nOK\r\n"));
    EXPECT_GE(watch.Lasted(), 4.0 / Test_Pace);
    EXPECT_LT(watch.Lasted_For_The_Thread(), 4.0 / Test_Pace + 0.5);
    EXPECT_EQ(m_session.m_sLastResponse(), QString());
}

TEST_F(Session, A_Port_Whose_Timeout_Was_Never_Set_Reads_Nothing)
{
    m_session.initPort(QString::fromStdString(Path()));
    EXPECT_TRUE(m_session.Write_Command(No_Descriptor, "AT\r\n"));
    EXPECT_FALSE(m_session.Read_Command(No_Descriptor, "\r\nOK\r\n"));
}

TEST_F(Session, A_Device_That_Answers_Is_Connected)
{
    Connect(m_session, m_phone);
    EXPECT_TRUE(m_session.Check_Connection(No_Descriptor));
    EXPECT_EQ(m_phone.Heard(), Lines("AT"));
}

TEST_F(Session, A_Device_That_Only_Echoes_Is_Connected)
{
    m_phone.Set_Moods(Mood(&Phone_Moods::m_echo_only));
    Connect(m_session, m_phone);
    EXPECT_TRUE(m_session.Check_Connection(No_Descriptor));
    EXPECT_EQ(m_session.m_sLastResponse(), QStringLiteral("AT"));
}

TEST_F(Session, A_Device_That_Is_Silent_Or_Talks_Nonsense_Is_Not_Connected)
{
    for (const auto mood : {&Phone_Moods::m_silent, &Phone_Moods::m_garbage}) {
        Virtual_Phone phone(Mood(mood));
        MFCSMS session;
        Connect(session, phone);
        EXPECT_FALSE(session.Check_Connection(No_Descriptor));
    }
    m_phone.Will_Answer("AT", "\r\nERROR\r\n");
    Connect(m_session, m_phone);
    EXPECT_FALSE(m_session.Check_Connection(No_Descriptor));
}

TEST_F(Session, The_Check_Finds_Ok_Whatever_The_Line_Ends_And_However_The_Bytes_Come)
{
    for (const auto mood : {&Phone_Moods::m_cr_only, &Phone_Moods::m_split_answers, &Phone_Moods::m_unsolicited,
                            &Phone_Moods::m_no_echo}) {
        Virtual_Phone phone(Mood(mood));
        MFCSMS session;
        Connect(session, phone);
        EXPECT_TRUE(session.Check_Connection(No_Descriptor));
    }
}

TEST_F(Session, A_Device_That_Never_Stops_Talking_Ends_No_Exchange_Late)
{
    m_phone.Set_Moods(Mood(&Phone_Moods::m_never_stops_talking));
    Connect(m_session, m_phone);
    const Stopwatch watch;
    m_session.Check_Connection(No_Descriptor);
    EXPECT_LT(watch.Lasted_For_The_Thread(), 3.0);
}

TEST_F(Session, A_Device_That_Vanished_Fails_The_Write)
{
    Connect(m_session, m_phone);
    ASSERT_TRUE(m_session.Check_Connection(No_Descriptor));
    m_phone.Hang_Up();
    EXPECT_FALSE(m_session.Check_Connection(No_Descriptor));
    EXPECT_FALSE(m_session.Read_Command(No_Descriptor, "OK"));
    EXPECT_TRUE(Serve_Until([&] { return m_log.Has("port closed\r"); }));
    EXPECT_EQ(m_log.Count("port closed\r"), 1);
}

TEST_F(Session, An_Exception_Of_The_Device_Kind_Counts_As_Done)
{
    Connect(m_session, m_phone);
    m_calls.Will_Do("write", [](void*) -> int { throw Device_Exception("the cable burns"); });
    EXPECT_TRUE(m_session.Write_Command(No_Descriptor, "AT\r\n"));
    // With an answer awaited, what comes is for the read and not for the background reader.
    m_calls.Will_Do("write", [](void*) { return 4; });
    EXPECT_TRUE(m_session.Write_Command(No_Descriptor, "AT\r\n"));
    m_phone.Says("x");
    m_calls.Will_Do("read", [](void*) -> int { throw Device_Exception("the cable burns"); });
    EXPECT_TRUE(m_session.Read_Command(No_Descriptor, "\r\nOK\r\n"));
    EXPECT_EQ(m_session.m_sLastResponse(), QStringLiteral("the cable burns"));
}

TEST_F(Session, An_Exception_Of_Another_Kind_Passes_Through)
{
    Connect(m_session, m_phone);
    m_calls.Will_Do("write", [](void*) -> int { throw std::logic_error("not the device"); });
    EXPECT_THROW(m_session.Write_Command(No_Descriptor, "AT\r\n"), std::logic_error);
    m_calls.Will_Do("write", [](void*) { return 4; });
    m_session.Write_Command(No_Descriptor, "AT\r\n");
    m_phone.Says("x");
    m_calls.Will_Do("read", [](void*) -> int { throw std::logic_error("not the device"); });
    EXPECT_THROW(m_session.Read_Command(No_Descriptor, "OK"), std::logic_error);
}

TEST_F(Session, What_Comes_Unasked_Is_Logged_And_The_Reader_Goes_On)
{
    Connect(m_session, m_phone);
    for (int turn = 1; turn <= 3; ++turn) {
        m_phone.Says("RING\r\n");
        EXPECT_TRUE(Serve_Until([&] { return m_log.Count("serialPortReadData ( RING\r\n )") == turn; })) << turn;
    }
    m_phone.Says("\xC3\xA9");
    EXPECT_TRUE(Serve_Until([&] { return m_log.Has("serialPortReadData ( \xEF\xBF\xBD\xEF\xBF\xBD )"); }));
    EXPECT_EQ(m_session.m_sLastResponse(), QString());
}

TEST_F(Session, A_Closed_Port_Is_Logged_Once_And_Not_Read_Again)
{
    Connect(m_session, m_phone);
    m_phone.Says("RING");
    ASSERT_TRUE(Serve_Until([&] { return m_log.Has("serialPortReadData ( RING )"); }));
    ASSERT_TRUE(Serve_Until([&] { return m_calls.Waits() == 2; })); // the next background read waits
    m_session.port()->close();
    m_session.setPort(nullptr);
    EXPECT_EQ(m_session.port(), nullptr);
    EXPECT_TRUE(Serve_Until([&] { return m_log.Has("port closed\r"); }));
    EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
    EXPECT_EQ(m_log.Count("port closed\r"), 1);
}

TEST_F(Session, Data_For_A_Session_That_Has_Gone_Is_Dropped)
{
    {
        MFCSMS session;
        Connect(session, m_phone);
        m_phone.Says("RING");
        Wait_Until_Posted(*session.port());
    }
    EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
    EXPECT_EQ(m_log.Joined().find("serialPortReadData"), std::string::npos);
}

TEST_F(Session, The_Printable_Form_Shows_What_Cannot_Be_Seen)
{
    EXPECT_STREQ(MFCSMS::LogString("AT\r\n"), "AT\\r\\n");
    EXPECT_STREQ(MFCSMS::LogString("\x1A"), "\\032");
    EXPECT_STREQ(MFCSMS::LogString("\t\x1B\x01\x7F\xFF ~"), "\\t\\e\\001\\177\\377 ~");
    EXPECT_STREQ(MFCSMS::LogString(""), "");
}

TEST_F(Session, The_Next_Printable_Form_Overwrites_The_Buffer_Of_The_Thread)
{
    const std::string first = MFCSMS::LogString("first");
    EXPECT_EQ(first, "first");
    EXPECT_STREQ(MFCSMS::LogString("2"), "2");
}

TEST_F(Session, A_Command_Text_Is_Utf8)
{
    EXPECT_EQ(MFCSMS::NString_To_Command_Char(QStringLiteral("é€")), QByteArray("\xC3\xA9\xE2\x82\xAC"));
}
