#include "device/Device_Test.h"

#include "device/KVSerialPort_Deprecated.h"

namespace {

class Serial_Port_Reading : public Open_Port_Test
{
protected:
    // Bytes on their way from the phone to the port.
    void Say(const std::string& bytes)
    {
        m_phone.Says(bytes);
        ASSERT_TRUE(Serve_Until([&] { return m_port->bytesAvailable() >= static_cast<int>(bytes.size()); }));
    }

    // The read that found nothing ended so.
    void Expect_Failure(int code, int underlying)
    {
        m_error = {};
        EXPECT_TRUE(m_port->readAndReturnError(&m_error).isNull());
        EXPECT_EQ(m_error.code, code);
        EXPECT_EQ(m_error.underlyingError, underlying);
    }
};

// What ends a read that waits: done by another thread.
struct Interruption
{
    const char* m_name;
    void (*m_happens)(Virtual_Phone& phone, KVSerialPort& port);
    int m_code;
    testing::Matcher<int> m_underlying_error;
};

class Interrupted_Reading : public Open_Port_Test, public testing::WithParamInterface<Interruption>
{
};

INSTANTIATE_TEST_SUITE_P(
    By, Interrupted_Reading,
    testing::Values(Interruption{"A_Hang_Up", [](auto& phone, auto&) { phone.Hang_Up(); }, 99, testing::AnyOf(0, EIO)},
                    Interruption{"A_Close", [](auto&, auto& port) { port.close(); }, 99, EBADF},
                    Interruption{"The_Programs_Exit", [](auto&, auto&) { Begin_Program_Exit(); }, 100, 0}),
    [](const auto& interruption) { return std::string(interruption.param.m_name); });

} // namespace

TEST_F(Serial_Port_Reading, A_Read_On_A_Quiet_Line_Lasts_The_Whole_Timeout_And_No_Time_If_It_Was_Never_Set)
{
    m_port->setReadTimeout(4.0);
    const Stopwatch watch;
    EXPECT_TRUE(m_port->readStringUsingEncoding(KVText_Encoding::Utf8, &m_error).isNull());
    EXPECT_GE(watch.Lasted(), 4.0 / Test_Pace);
    EXPECT_LT(watch.Lasted_For_The_Thread(), 4.0 / Test_Pace + 0.5);
    EXPECT_EQ(m_error.code, 100);
    EXPECT_EQ(m_error.bytesRead, 0u);
    EXPECT_STREQ(m_error.domain, KVSerialErrorDomain);

    const auto fresh = std::make_shared<KVSerialPort>(m_port->bsdPath(), QString(), QString());
    ASSERT_TRUE(fresh->open());
    const Stopwatch next_watch;
    EXPECT_TRUE(fresh->readAndReturnError(&m_error).isNull());
    EXPECT_LT(next_watch.Lasted_For_The_Thread(), 0.02);
    EXPECT_EQ(m_error.code, 100);
}

TEST_F(Serial_Port_Reading, A_Read_Collects_What_Comes_Until_The_Timeout_Is_Over)
{
    m_port->setReadTimeout(6.0);
    m_phone.Says("one ");
    m_calls.Will_Do("wait", [this](void*) {
        if (m_calls.Count("read") == 1)
            m_phone.Says("two");
        return Watched_Calls::Really;
    });
    EXPECT_EQ(m_port->readStringUsingEncoding(KVText_Encoding::Utf8, &m_error), "one two");
    EXPECT_EQ(m_error.code, 100);
    EXPECT_EQ(m_error.bytesRead, 7u);
    EXPECT_EQ(m_error.endCode, 0);
}

TEST_F(Serial_Port_Reading, Of_5000_Bytes_The_First_4096_Are_Read_And_The_Rest_Is_Left_For_The_Next_Read)
{
    m_port->setReadTimeout(20.0);
    std::string bytes;
    for (int place = 0; place < 5000; ++place)
        bytes += static_cast<char>('a' + place % 23);
    m_phone.Says(bytes);
    EXPECT_EQ(m_port->readAndReturnError(&m_error).toStdString(), bytes.substr(0, 4096));
    EXPECT_EQ(m_error.code, 101);
    EXPECT_EQ(m_error.bytesRead, 4096u);
    EXPECT_EQ(m_port->readAndReturnError(&m_error).toStdString(), bytes.substr(4096));
    EXPECT_EQ(m_error.code, 100);

    m_phone.Says(bytes);
    EXPECT_EQ(m_port->readBytes(5000, &m_error).size(), 4096);
    EXPECT_EQ(m_error.code, 101);
}

TEST_F(Serial_Port_Reading, A_Read_Ends_At_The_Requested_Length_Without_Waiting_On)
{
    m_port->setReadTimeout(60.0);
    Say("abcdef");
    const double start = Now_Seconds();
    EXPECT_EQ(m_port->readBytes(4, &m_error), QByteArray("abcd"));
    EXPECT_LT(Now_Seconds() - start, 1.0);
    EXPECT_EQ(m_error.code, 0);
    EXPECT_EQ(m_error.endCode, 2);
    EXPECT_EQ(m_error.bytesRead, 4u);
    EXPECT_TRUE(m_port->readBytes(0, &m_error).isNull());
    EXPECT_EQ(m_error.code, 99) << "to ask for none is a failed read";
    EXPECT_EQ(m_error.underlyingError, 0);
    EXPECT_EQ(m_port->readBytes(2, KVText_Encoding::Ascii), "ef");
}

TEST_F(Serial_Port_Reading, A_Read_Ends_Where_The_Last_Byte_Read_Is_The_Stop_Character_Or_At_Its_Length_Before)
{
    m_port->setReadTimeout(60.0);
    Say("line\n");
    EXPECT_EQ(m_port->readUpToChar('\n', &m_error), QByteArray("line\n"));
    EXPECT_EQ(m_error.endCode, 1);
    Say("next\n");
    EXPECT_EQ(m_port->readUpToChar('\n', KVText_Encoding::Utf8, &m_error), "next\n");
    Say("ab\n");
    EXPECT_EQ(m_port->readBytes(10, '\n', &m_error), QByteArray("ab\n"));
    EXPECT_EQ(m_error.endCode, 1);
    Say("abcd\n");
    EXPECT_EQ(m_port->readBytes(3, '\n', KVText_Encoding::Utf8, &m_error), "abc");
    EXPECT_EQ(m_error.endCode, 2);
}

TEST_F(Serial_Port_Reading, Invalid_Utf8_And_Zero_Bytes_Are_Read_Leniently)
{
    Say(std::string("a\xFF\xC3(b\0c", 7));
    const QString text = m_port->readStringUsingEncoding(KVText_Encoding::Utf8);
    EXPECT_TRUE(text.startsWith(u'a'));
    EXPECT_TRUE(text.contains(QChar::ReplacementCharacter));
    EXPECT_TRUE(text.endsWith(QString::fromUtf8("b\0c", 3)));
    Say("caf\xC3\xA9");
    EXPECT_EQ(m_port->readStringUsingEncoding(KVText_Encoding::Ascii), "caf" + QString(2, QChar::ReplacementCharacter));
}

TEST_P(Interrupted_Reading, Ends_At_Once_With_Nothing_And_Says_Why)
{
    m_port->setReadTimeout(60 * Test_Pace);
    std::thread other([&] {
        while (m_calls.Waits() == 0)
            std::this_thread::yield();
        GetParam().m_happens(m_phone, *m_port);
    });
    const double start = Now_Seconds();
    EXPECT_TRUE(m_port->readAndReturnError(&m_error).isNull());
    other.join();
    EXPECT_LT(Now_Seconds() - start, 10.0);
    EXPECT_EQ(m_error.code, GetParam().m_code);
    EXPECT_THAT(m_error.underlyingError, GetParam().m_underlying_error);
    Forget_Program_Exit();
}

TEST_F(Serial_Port_Reading, A_Failing_System_Call_Is_Attached_To_The_Error)
{
    m_phone.Says("text");
    m_calls.Will_Fail("read", EIO);
    Expect_Failure(99, EIO);
    m_calls.Will_Do("wait", [](void*) {
        Watched_Calls::Failed(EINVAL);
        return static_cast<int>(Line_Event::Failed);
    });
    Expect_Failure(99, EINVAL);
}

TEST_F(Serial_Port_Reading, A_Read_That_A_Signal_Interrupts_Goes_On)
{
    int interruptions = 2;
    m_calls.Will_Do("read", [&](void* buffer) {
        return interruptions-- > 0 ? Watched_Calls::Failed(EINTR)
                                   : static_cast<int>(::read(m_port->fileDescriptor(), buffer, 100));
    });
    m_phone.Says("text");
    EXPECT_EQ(m_port->readAndReturnError(&m_error), QByteArray("text"));
}

TEST_F(Serial_Port_Reading, Bytes_That_Another_Program_Took_First_Hold_No_Read_Up)
{
    int turn = 0; // the line is found ready, and yet there is nothing
    m_calls.Will_Do("wait",
                    [&](void*) { return static_cast<int>(turn++ < 3 ? Line_Event::Ready : Line_Event::Timed_Out); });
    Expect_Failure(100, 0);
    EXPECT_EQ(m_calls.Count("read"), 3);
    EXPECT_TRUE(Blocks(m_port->fileDescriptor()));
}

TEST_F(Serial_Port_Reading, Bytes_Available_Counts_What_Waits_And_A_Closed_Port_Has_None)
{
    EXPECT_EQ(m_port->bytesAvailable(), 0);
    Say("12345");
    EXPECT_EQ(m_port->bytesAvailable(), 5);
    EXPECT_TRUE(m_port->flushInput(true, false));
    EXPECT_EQ(m_port->bytesAvailable(), 0);
    m_port->close();
    Expect_Failure(99, EBADF);
    EXPECT_EQ(m_port->bytesAvailable(), -1);
    EXPECT_EQ(m_port->lastError(), EBADF);
}

TEST_F(Serial_Port_Reading, The_Older_Spellings_Do_The_Same)
{
    Say("abcdefg");
    EXPECT_EQ(Deprecated::readDataOfLength(*m_port, 2), QByteArray("ab"));
    EXPECT_EQ(Deprecated::readStringOfLength(*m_port, 2), "cd");
    EXPECT_EQ(Deprecated::readData(*m_port), QByteArray("efg"));
    Say("a;");
    EXPECT_EQ(Deprecated::readDataUpToChar(*m_port, ';'), QByteArray("a;"));
    Say("b;");
    EXPECT_EQ(Deprecated::readStringUpToChar(*m_port, ';'), "b;");
    Say("c");
    EXPECT_EQ(Deprecated::readString(*m_port), "c");
    EXPECT_EQ(Deprecated::writeString(*m_port, "AT\r"), 3);
    m_port->close();
    EXPECT_EQ(Deprecated::writeData(*m_port, "AT\r"), -1);
}
