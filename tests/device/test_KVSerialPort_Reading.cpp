#include "device/Device_Test.h"

#include "device/KVSerialPort_Deprecated.h"

#include <fcntl.h>
#include <thread>

namespace {

class Serial_Port_Reading : public Device_Test
{
protected:
    // Bytes on their way from the phone to the port.
    void Say(const std::string& bytes)
    {
        m_phone.Says(bytes);
        ASSERT_TRUE(Serve_Until(
            [&] { return m_port->bytesAvailable() >= static_cast<int>(std::min<size_t>(bytes.size(), 4095)); }));
    }

    // For another thread: returns when a read waits for the line.
    void Wait_For_A_Read() const
    {
        while (m_calls.Waits() == 0)
            std::this_thread::yield();
    }

    Virtual_Phone m_phone;
    Watched_Calls m_calls;
    std::shared_ptr<KVSerialPort> m_port = Open_Port(m_phone, m_calls);
    KVSerialError m_error;
};

} // namespace

TEST_F(Serial_Port_Reading, A_Read_Whose_Timeout_Was_Never_Set_Returns_Nothing_At_Once)
{
    const auto fresh = std::make_shared<KVSerialPort>(m_port->bsdPath(), QString(), QString());
    ASSERT_TRUE(fresh->open());
    const Stopwatch watch;
    EXPECT_TRUE(fresh->readAndReturnError(&m_error).isNull());
    EXPECT_LT(watch.Lasted_For_The_Thread(), 0.02);
    EXPECT_EQ(m_error.code, 100);
    EXPECT_EQ(m_error.bytesRead, 0u);
    EXPECT_STREQ(m_error.domain, KVSerialErrorDomain);
}

TEST_F(Serial_Port_Reading, A_Read_On_A_Quiet_Line_Lasts_The_Whole_Timeout)
{
    m_port->setReadTimeout(4.0);
    const Stopwatch watch;
    EXPECT_TRUE(m_port->readStringUsingEncoding(KVText_Encoding::Utf8, &m_error).isNull());
    EXPECT_GE(watch.Lasted(), 4.0 / Test_Pace);
    EXPECT_LT(watch.Lasted_For_The_Thread(), 4.0 / Test_Pace + 0.5);
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
    EXPECT_EQ(m_port->readStringUsingEncoding(KVText_Encoding::Utf8, &m_error), QStringLiteral("one two"));
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
    EXPECT_EQ(m_port->readBytes(2, KVText_Encoding::Ascii), QStringLiteral("ef"));
}

TEST_F(Serial_Port_Reading, A_Count_Beyond_The_Buffer_Ends_With_A_Full_Buffer)
{
    m_port->setReadTimeout(20.0);
    m_phone.Says(std::string(4200, 'x'));
    EXPECT_EQ(m_port->readBytes(5000, &m_error).size(), 4096);
    EXPECT_EQ(m_error.code, 101);
}

TEST_F(Serial_Port_Reading, A_Count_Of_Zero_Is_A_Failed_Read)
{
    Say("a");
    EXPECT_TRUE(m_port->readBytes(0, &m_error).isNull());
    EXPECT_EQ(m_error.code, 99);
    EXPECT_EQ(m_error.underlyingError, 0);
}

TEST_F(Serial_Port_Reading, A_Read_Ends_Where_The_Last_Byte_Read_Is_The_Stop_Character)
{
    m_port->setReadTimeout(60.0);
    Say("line\n");
    EXPECT_EQ(m_port->readUpToChar('\n', &m_error), QByteArray("line\n"));
    EXPECT_EQ(m_error.endCode, 1);
    Say("next\n");
    EXPECT_EQ(m_port->readUpToChar('\n', KVText_Encoding::Utf8, &m_error), QStringLiteral("next\n"));
}

TEST_F(Serial_Port_Reading, With_Count_And_Stop_Character_Whichever_Comes_First_Ends_The_Read)
{
    m_port->setReadTimeout(60.0);
    Say("ab\n");
    EXPECT_EQ(m_port->readBytes(10, '\n', &m_error), QByteArray("ab\n"));
    EXPECT_EQ(m_error.endCode, 1);
    Say("abcd\n");
    EXPECT_EQ(m_port->readBytes(3, '\n', KVText_Encoding::Utf8, &m_error), QStringLiteral("abc"));
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
    EXPECT_EQ(m_port->readStringUsingEncoding(KVText_Encoding::Ascii),
              QStringLiteral("caf") + QString(2, QChar::ReplacementCharacter));
}

TEST_F(Serial_Port_Reading, A_Device_That_Never_Stops_Talking_Fills_The_Buffer_And_No_More)
{
    Phone_Moods moods;
    moods.m_never_stops_talking = true;
    m_phone.Set_Moods(moods);
    m_port->setReadTimeout(10 * Test_Pace);
    EXPECT_EQ(m_port->readAndReturnError(&m_error).size(), 4096);
    EXPECT_EQ(m_error.code, 101);
}

TEST_F(Serial_Port_Reading, A_Hang_Up_During_A_Read_Ends_It_With_An_Error)
{
    m_port->setReadTimeout(60 * Test_Pace);
    std::thread puller([&] {
        Wait_For_A_Read();
        m_phone.Hang_Up();
    });
    const double start = Now_Seconds();
    EXPECT_TRUE(m_port->readAndReturnError(&m_error).isNull());
    puller.join();
    EXPECT_LT(Now_Seconds() - start, 10.0);
    EXPECT_EQ(m_error.code, 99);
}

TEST_F(Serial_Port_Reading, A_Close_During_A_Read_Ends_It_With_An_Error)
{
    m_port->setReadTimeout(60 * Test_Pace);
    std::thread closer([&] {
        Wait_For_A_Read();
        m_port->close();
    });
    EXPECT_TRUE(m_port->readAndReturnError(&m_error).isNull());
    closer.join();
    EXPECT_EQ(m_error.code, 99);
    EXPECT_EQ(m_error.underlyingError, EBADF);
}

TEST_F(Serial_Port_Reading, A_Read_Ends_At_Once_When_The_Program_Exits)
{
    m_port->setReadTimeout(60 * Test_Pace);
    std::thread ender([this] {
        Wait_For_A_Read();
        Begin_Program_Exit();
    });
    const double start = Now_Seconds();
    EXPECT_TRUE(m_port->readAndReturnError(&m_error).isNull());
    ender.join();
    EXPECT_LT(Now_Seconds() - start, 10.0);
    Forget_Program_Exit();
}

TEST_F(Serial_Port_Reading, A_Failing_System_Call_Is_Attached_To_The_Error)
{
    Watched_Calls calls;
    const auto port = Open_Port(m_phone, calls);
    m_phone.Says("text");
    calls.Will_Fail("read", EIO);
    EXPECT_TRUE(port->readAndReturnError(&m_error).isNull());
    EXPECT_EQ(m_error.code, 99);
    EXPECT_EQ(m_error.underlyingError, EIO);

    calls.Will_Do("wait", [](void*) {
        errno = EINVAL;
        return static_cast<int>(Line_Event::Failed);
    });
    EXPECT_TRUE(port->readAndReturnError(&m_error).isNull());
    EXPECT_EQ(m_error.code, 99);
    EXPECT_EQ(m_error.underlyingError, EINVAL);
}

TEST_F(Serial_Port_Reading, A_Read_That_A_Signal_Interrupts_Goes_On)
{
    Watched_Calls calls;
    const auto port = Open_Port(m_phone, calls);
    int interruptions = 2;
    calls.Will_Do("read", [&](void* buffer) {
        if (interruptions-- > 0) {
            errno = EINTR;
            return -1;
        }
        return static_cast<int>(::read(port->fileDescriptor(), buffer, 100));
    });
    m_phone.Says("text");
    EXPECT_EQ(port->readAndReturnError(&m_error), QByteArray("text"));
}

TEST_F(Serial_Port_Reading, Bytes_That_Another_Program_Took_First_Hold_No_Read_Up)
{
    Watched_Calls calls;
    const auto port = Open_Port(m_phone, calls);
    int turn = 0;
    calls.Will_Do("wait", [&](void*) { // the line is found ready, and yet there is nothing
        return static_cast<int>(turn++ < 3 ? Line_Event::Ready : Line_Event::Timed_Out);
    });
    EXPECT_TRUE(port->readAndReturnError(&m_error).isNull());
    EXPECT_EQ(m_error.code, 100);
    EXPECT_EQ(calls.Count("read"), 3);
    EXPECT_EQ(fcntl(port->fileDescriptor(), F_GETFL) & O_NONBLOCK, 0);
}

TEST_F(Serial_Port_Reading, A_Closed_Port_Reads_Nothing)
{
    m_port->close();
    EXPECT_TRUE(m_port->readAndReturnError(&m_error).isNull());
    EXPECT_EQ(m_error.code, 99);
    EXPECT_EQ(m_port->bytesAvailable(), -1);
    EXPECT_EQ(m_port->lastError(), EBADF);
}

TEST_F(Serial_Port_Reading, Bytes_Available_Counts_What_Waits)
{
    EXPECT_EQ(m_port->bytesAvailable(), 0);
    Say("12345");
    EXPECT_EQ(m_port->bytesAvailable(), 5);
    EXPECT_TRUE(m_port->flushInput(true, false));
    EXPECT_EQ(m_port->bytesAvailable(), 0);
}

TEST_F(Serial_Port_Reading, The_Older_Spellings_Do_The_Same)
{
    Say("abcdefg");
    EXPECT_EQ(Deprecated::readDataOfLength(*m_port, 2), QByteArray("ab"));
    EXPECT_EQ(Deprecated::readStringOfLength(*m_port, 2), QStringLiteral("cd"));
    EXPECT_EQ(Deprecated::readData(*m_port), QByteArray("efg"));
    Say("a;");
    EXPECT_EQ(Deprecated::readDataUpToChar(*m_port, ';'), QByteArray("a;"));
    Say("b;");
    EXPECT_EQ(Deprecated::readStringUpToChar(*m_port, ';'), QStringLiteral("b;"));
    Say("c");
    EXPECT_EQ(Deprecated::readString(*m_port), QStringLiteral("c"));
    EXPECT_EQ(Deprecated::writeString(*m_port, QStringLiteral("AT\r")), 3);
    m_port->close();
    EXPECT_EQ(Deprecated::writeData(*m_port, "AT\r"), -1);
}
