#include "device/Device_Test.h"

#include <poll.h>

namespace {

class Serial_Port_Writing : public Open_Port_Test
{
protected:
    // A write to the port fails so.
    void Expect_Failure(int code, int underlying)
    {
        m_error = {};
        EXPECT_FALSE(m_port->writeData("AT\r", &m_error));
        EXPECT_EQ(m_error.code, code);
        EXPECT_EQ(m_error.underlyingError, underlying);
        EXPECT_EQ(m_error.bytesWritten, 0u);
    }

    // From now on the phone takes no byte; returns how many the line has taken until it was full.
    std::size_t Fill_The_Line()
    {
        Stop_Taking();
        const int descriptor = m_port->fileDescriptor();
        fcntl(descriptor, F_SETFL, fcntl(descriptor, F_GETFL) | O_NONBLOCK);
        const std::string octets(1000, '7');
        std::size_t written = 0;
        for (ssize_t now = 0; (now = ::write(descriptor, octets.data(), octets.size())) > 0;)
            written += static_cast<std::size_t>(now);
        return written;
    }
    void Stop_Taking() { m_phone.Set_Moods(Mood(&Phone_Moods::m_stop_reading_after, 0)); }
};

} // namespace

TEST_F(Serial_Port_Writing, A_Text_Goes_Out_Whole_And_Its_Encoding_Decides_As_What)
{
    EXPECT_TRUE(m_port->writeString("AT+GMI\r\n", KVText_Encoding::Utf8, &m_error));
    EXPECT_EQ(m_error.code, 0);
    EXPECT_EQ(m_error.bytesWritten, 8u);
    EXPECT_TRUE(m_port->writeString("é\r", KVText_Encoding::Utf8));
    EXPECT_TRUE(m_port->writeString("é\r", KVText_Encoding::Ascii));
    EXPECT_TRUE(Serve_Until([&] { return m_phone.Heard_Bytes() == "AT+GMI\r\n\xC3\xA9\r?\r"; }));
    EXPECT_TRUE(Blocks(m_port->fileDescriptor()));
}

// Whoever reads slowly at the other end gets all that was written, and the last word after it.
TEST_F(Serial_Port_Writing, The_Last_Word_Waits_For_Room_On_The_Way_Out)
{
    Set_Pace(1);
    const std::size_t written = Fill_The_Line();
    std::thread slow_reader([this] {
        Wait_For_Descriptor(-1, POLLIN, 0.3);
        m_phone.Set_Moods({});
    });
    Begin_Program_Exit();
    const double begin = Now_Seconds();
    const bool is_written = m_port->writeInLeaving("\x1B");
    m_port->close();
    EXPECT_LT(Now_Seconds() - begin, 4);
    Forget_Program_Exit();
    slow_reader.join();
    EXPECT_TRUE(is_written);
    ASSERT_TRUE(Serve_Until([&] { return m_phone.Heard_Bytes().size() == written + 1; }));
    EXPECT_EQ(m_phone.Heard_Bytes().back(), '\x1B');
}

TEST_F(Serial_Port_Writing, A_Device_That_Takes_Nothing_Is_Left_After_Two_Seconds)
{
    Fill_The_Line();
    Begin_Program_Exit();
    const double begin = Now_Seconds();
    EXPECT_FALSE(m_port->writeInLeaving("\x1B"));
    m_port->close();
    EXPECT_GE(Now_Seconds() - begin, 2.0 / Test_Pace);
    EXPECT_LT(Now_Seconds() - begin, 3);
    Forget_Program_Exit();
}

TEST_F(Serial_Port_Writing, A_Write_That_Fails_Says_Why)
{
    EXPECT_FALSE(m_port->writeData(QByteArray(), &m_error));
    EXPECT_EQ(m_error.code, 200) << "nothing to write";
    EXPECT_EQ(m_calls.Count("write"), 0);
    m_calls.Will_Do("write", [](void*) { return 0; });
    Expect_Failure(201, 0);
    m_calls.Will_Fail("write", EIO);
    Expect_Failure(99, EIO);
    const int writes = m_calls.Count("write");
    m_calls.Will_Fail("F_SETFL", EPERM); // what cannot be made non-blocking is not written to
    Expect_Failure(99, EPERM);
    EXPECT_EQ(m_calls.Count("write"), writes);
    m_port->close();
    Expect_Failure(99, EBADF);
}

TEST_F(Serial_Port_Writing, A_Line_That_Hung_Up_Takes_Nothing)
{
    m_phone.Hang_Up();
    Expect_Failure(99, EIO);
}

TEST_F(Serial_Port_Writing, A_Write_That_A_Signal_Interrupts_Goes_On_With_The_Rest)
{
    int turn = 0;
    m_calls.Will_Do("write", [&](void*) {
        return turn++ == 0 ? Watched_Calls::Failed(EINTR) : static_cast<int>(::write(m_port->fileDescriptor(), "A", 1));
    });
    EXPECT_TRUE(m_port->writeData("AAA", &m_error));
    EXPECT_EQ(turn, 4);
    EXPECT_EQ(m_error.bytesWritten, 3u);
}

TEST_F(Serial_Port_Writing, A_Device_That_Takes_No_Bytes_Ends_The_Write_After_Its_Time)
{
    Stop_Taking();
    const double start = Now_Seconds();
    EXPECT_FALSE(m_port->writeData(QByteArray(1 << 20, 'x'), &m_error));
    EXPECT_GE(Now_Seconds() - start, 1.0);
    EXPECT_EQ(m_error.code, 201);
    EXPECT_LT(m_error.bytesWritten, 1u << 20);
    m_port->close(); // returns, too
    EXPECT_FALSE(m_port->isOpen());
}

TEST_F(Serial_Port_Writing, A_Close_Ends_A_Write_That_Waits_For_Room)
{
    Stop_Taking();
    std::thread closer([&] {
        while (m_calls.Waits() == 0)
            std::this_thread::yield();
        m_port->close();
    });
    EXPECT_FALSE(m_port->writeData(QByteArray(1 << 20, 'x'), &m_error));
    closer.join();
    EXPECT_EQ(m_error.code, 99);
    EXPECT_EQ(m_error.underlyingError, EBADF);
}
