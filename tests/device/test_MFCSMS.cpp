#include "device/Device_Test.h"

#include <stdexcept>

namespace {

class Session : public Session_Test
{
protected:
    // A session whose phone says only this to AT+X, without an echo.
    bool Answer_Is_Accepted(const std::string& answer, const QByteArray& expected)
    {
        Virtual_Phone phone(Mood(&Phone_Moods::m_no_echo));
        phone.Will_Answer("AT+X", answer);
        MFCSMS session;
        Connect(session, phone);
        EXPECT_TRUE(session.Write_Command(No_Descriptor, "AT+X\r\n"));
        const bool is_accepted = session.Read_Command(No_Descriptor, expected);
        m_last_response = session.m_sLastResponse();
        return is_accepted;
    }

    static bool Is_Connected(const Phone_Moods& moods)
    {
        Virtual_Phone phone(moods);
        MFCSMS session;
        Connect(session, phone);
        return session.Check_Connection(No_Descriptor);
    }

    // At its write, and then at its read.
    template <typename Exception>
    void Line_Throws(const std::function<void()>& write, const std::function<void()>& read)
    {
        Connect(m_session, m_phone);
        m_calls.Will_Do("write", [](void*) -> int { throw Exception("the cable burns"); });
        write();
        // With an answer awaited, what comes is for the read and not for the background reader.
        m_calls.Will_Do("write", [](void*) { return 4; });
        EXPECT_TRUE(m_session.Write_Command(No_Descriptor, "AT\r\n"));
        m_phone.Says("x");
        m_calls.Will_Do("read", [](void*) -> int { throw Exception("the cable burns"); });
        read();
    }

    QString m_last_response;
};

} // namespace

TEST_F(Session, The_Session_Made_Last_Is_The_Known_One_And_Has_No_Port_At_First_So_That_Commands_Fail)
{
    EXPECT_EQ(mfc_sms_instance, &m_session);
    MFCSMS later;
    EXPECT_EQ(mfc_sms_instance, &later);
    EXPECT_EQ(later.port(), nullptr);
    later.setM_sLastResponse("old");
    EXPECT_FALSE(later.Write_Command(No_Descriptor, "AT\r\n"));
    EXPECT_FALSE(later.Read_Command(No_Descriptor, "OK"));
    EXPECT_EQ(later.m_sLastResponse(), QString());
    EXPECT_FALSE(later.Check_Connection(No_Descriptor));
}

TEST_F(Session, A_Port_That_Opens_Is_Logged_And_Kept_For_Its_Path)
{
    m_session.initPort(Path_Of(m_phone));
    const auto port = m_session.port();
    ASSERT_TRUE(port);
    EXPECT_TRUE(port->isOpen());
    EXPECT_EQ(port->name(), Path_Of(m_phone));
    EXPECT_EQ(port->type(), "IOModemSerialStream");
    EXPECT_EQ(m_log.All(), Lines("Port ( " + m_phone.Path() + " ) is OPENED"));
    m_session.initPort(Path_Of(m_phone));
    EXPECT_EQ(m_session.port(), port);
    port->close();
    m_session.initPort(Path_Of(m_phone));
    EXPECT_FALSE(m_session.port()->isOpen()); // the port of that path is kept, open or not
    EXPECT_EQ(m_calls.Count("open"), 1);
}

TEST_F(Session, Another_Path_Replaces_The_Port_And_One_That_Does_Not_Open_Leaves_None)
{
    Virtual_Phone other;
    m_session.initPort(Path_Of(m_phone));
    const auto first = m_session.port();
    m_session.initPort(Path_Of(other));
    EXPECT_FALSE(first->isOpen());
    EXPECT_EQ(m_session.port()->bsdPath(), Path_Of(other));
    m_session.initPort("/dev/%1%s%n");
    EXPECT_EQ(m_session.port(), nullptr);
    EXPECT_TRUE(m_log.Has("Port ( /dev/%1%s%n ) is NOT OPEN"));
    EXPECT_FALSE(m_session.Write_Command(No_Descriptor, "AT\r\n"));
}

TEST_F(Session, A_Command_Is_Written_Up_To_Its_First_Zero_Byte_And_Logged_Unless_It_Has_Three_Characters)
{
    Connect(m_session, m_phone);
    for (const auto& [command, heard, log] : {std::tuple(QByteArray("AT\r\n"), "AT\r\n", Lines("Write \"AT\r\n\"\n")),
                                              std::tuple(QByteArray("\x1A\r\n"), "\x1A\r\n", Lines()),
                                              std::tuple(QByteArray("AT\r\0XYZ", 7), "AT\r", Lines())}) {
        m_log.Forget();
        m_phone.Forget();
        EXPECT_TRUE(m_session.Write_Command(No_Descriptor, command));
        EXPECT_EQ(m_log.All(), log);
        EXPECT_TRUE(Is_Heard(heard));
    }
}

TEST_F(Session, An_Answer_Is_Judged_By_The_Expected_Text)
{
    EXPECT_TRUE(Answer_Is_Accepted("\r\nOK\r\n", "\r\nOK\r\n"));
    EXPECT_EQ(m_last_response, "OK");
    EXPECT_FALSE(Answer_Is_Accepted("\r\n+CMS ERROR: 500\r\n", "\r\nOK\r\n"));
    EXPECT_EQ(m_last_response, "+CMS ERROR: 500");
    EXPECT_FALSE(Answer_Is_Accepted("\r\nOK\r\n+CMS ERROR: 500\r\n", "\r\nOK\r\n"));
    EXPECT_FALSE(Answer_Is_Accepted("\r\nERROR\r\n", "ERROR"));
    EXPECT_TRUE(Answer_Is_Accepted("\r\n> ", ">\r\n"));
    EXPECT_TRUE(Answer_Is_Accepted("\r\nNOKIA\r\n", "\r\nOK\r\n"));
    EXPECT_FALSE(Answer_Is_Accepted("\r\nok\r\n", "\r\nOK\r\n"));
    EXPECT_FALSE(Answer_Is_Accepted(" \r\n ", "\r\nOK\r\n"));
    EXPECT_EQ(m_last_response, QString());
    EXPECT_TRUE(Answer_Is_Accepted(std::string("a\0b\xFFOK\r\n", 8), "OK")); // zeros and broken UTF-8 are kept
    EXPECT_EQ(m_last_response, QString("a") + QChar(0) + u'b' + QChar(QChar::ReplacementCharacter) + "OK");
}

TEST_F(Session, A_Device_That_Answers_Or_Only_Echoes_Is_Connected_Whatever_The_Line_Ends_And_However_The_Bytes_Come)
{
    for (const auto mood : {&Phone_Moods::m_echo_only, &Phone_Moods::m_cr_only, &Phone_Moods::m_split_answers,
                            &Phone_Moods::m_unsolicited, &Phone_Moods::m_no_echo})
        EXPECT_TRUE(Is_Connected(Mood(mood)));
    Connect(m_session, m_phone);
    EXPECT_TRUE(m_session.Check_Connection(No_Descriptor));
    EXPECT_EQ(m_phone.Heard(), Lines("AT"));
    EXPECT_EQ(m_session.m_sLastResponse(), "AT\r\r\nOK");
    EXPECT_EQ(m_log.All().back(), "Read \"AT\r\r\nOK\"");
}

TEST_F(Session, A_Device_That_Is_Silent_Or_Talks_Nonsense_Or_Refuses_Is_Not_Connected)
{
    for (const auto mood : {&Phone_Moods::m_silent, &Phone_Moods::m_garbage})
        EXPECT_FALSE(Is_Connected(Mood(mood)));
    m_phone.Will_Answer("AT", "\r\nERROR\r\n");
    Connect(m_session, m_phone);
    EXPECT_FALSE(m_session.Check_Connection(No_Descriptor));
    m_session.setM_sLastResponse("old");
    EXPECT_FALSE(m_session.Read_Command(No_Descriptor, "\r\nOK\r\n"));
    EXPECT_EQ(m_session.m_sLastResponse(), QString());
}

TEST_F(Session, A_Device_That_Never_Stops_Talking_Ends_No_Exchange_Late)
{
    Wears(Mood(&Phone_Moods::m_never_stops_talking));
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
    Line_Throws<Device_Exception>([&] { EXPECT_TRUE(m_session.Write_Command(No_Descriptor, "AT\r\n")); },
                                  [&] { EXPECT_TRUE(m_session.Read_Command(No_Descriptor, "\r\nOK\r\n")); });
    EXPECT_EQ(m_session.m_sLastResponse(), "the cable burns");
}

TEST_F(Session, An_Exception_Of_Another_Kind_Passes_Through)
{
    Line_Throws<std::logic_error>(
        [&] { EXPECT_THROW(m_session.Write_Command(No_Descriptor, "AT\r\n"), std::logic_error); },
        [&] { EXPECT_THROW(m_session.Read_Command(No_Descriptor, "OK"), std::logic_error); });
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
    EXPECT_TRUE(No_Worker_Is_Left());
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
    EXPECT_TRUE(No_Worker_Is_Left());
    EXPECT_EQ(m_log.Joined().find("serialPortReadData"), std::string::npos);
}

TEST_F(Session, The_Printable_Form_Shows_What_Cannot_Be_Seen)
{
    EXPECT_STREQ(MFCSMS::LogString("AT\r\n"), "AT\\r\\n");
    EXPECT_STREQ(MFCSMS::LogString("\x1A"), "\\032");
    EXPECT_STREQ(MFCSMS::LogString("\t\x1B\x01\x7F\xFF ~"), "\\t\\e\\001\\177\\377 ~");
    EXPECT_STREQ(MFCSMS::LogString(""), "");
    EXPECT_EQ(MFCSMS::NString_To_Command_Char("é€"), QByteArray("\xC3\xA9\xE2\x82\xAC"));
}
