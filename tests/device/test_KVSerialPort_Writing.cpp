#include "device/Device_Test.h"

#include "device/Bounded_Write.h"

#include <fcntl.h>
#include <poll.h>
#include <thread>

namespace {

class Serial_Port_Writing : public Device_Test
{
protected:
    Virtual_Phone m_phone;
    Watched_Calls m_calls;
    std::shared_ptr<KVSerialPort> m_port = Open_Port(m_phone, m_calls);
    KVSerialError m_error;
};

Phone_Moods Takes_No_Byte()
{
    Phone_Moods moods;
    moods.m_stop_reading_after = 0;
    return moods;
}

} // namespace

TEST_F(Serial_Port_Writing, A_Text_Goes_Out_Whole)
{
    EXPECT_TRUE(m_port->writeString(QStringLiteral("AT+GMI\r\n"), KVText_Encoding::Utf8, &m_error));
    EXPECT_EQ(m_error.code, 0);
    EXPECT_EQ(m_error.bytesWritten, 8u);
    ASSERT_TRUE(Serve_Until([&] { return m_phone.Heard_Bytes().size() == 8; }));
    EXPECT_EQ(m_phone.Heard(), Lines("AT+GMI"));
}

// Whoever reads slowly at the other end gets all that was written, and the last word after it.
TEST_F(Serial_Port_Writing, The_Last_Word_Waits_For_Room_On_The_Way_Out)
{
    Phone_Moods moods;
    moods.m_stop_reading_after = 0;
    m_phone.Set_Moods(moods);
    Set_Pace(1);
    const int descriptor = m_port->fileDescriptor();
    fcntl(descriptor, F_SETFL, fcntl(descriptor, F_GETFL) | O_NONBLOCK);
    const std::string octets(1000, '7');
    std::size_t written = 0;
    for (ssize_t now = 0; (now = ::write(descriptor, octets.data(), octets.size())) > 0;)
        written += static_cast<std::size_t>(now);
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
    Virtual_Phone phone(Takes_No_Byte());
    const auto port = Open_Port(phone, m_calls);
    const int descriptor = port->fileDescriptor();
    fcntl(descriptor, F_SETFL, fcntl(descriptor, F_GETFL) | O_NONBLOCK);
    const std::string octets(1000, '7');
    while (::write(descriptor, octets.data(), octets.size()) > 0) {
    }
    Begin_Program_Exit();
    const double begin = Now_Seconds();
    EXPECT_FALSE(port->writeInLeaving("\x1B"));
    port->close();
    EXPECT_GE(Now_Seconds() - begin, 2.0 / Test_Pace);
    EXPECT_LT(Now_Seconds() - begin, 3);
    Forget_Program_Exit();
}

TEST_F(Serial_Port_Writing, The_Encoding_Decides_What_Goes_Out)
{
    EXPECT_TRUE(m_port->writeString(QStringLiteral("é\r"), KVText_Encoding::Utf8));
    EXPECT_TRUE(m_port->writeString(QStringLiteral("é\r"), KVText_Encoding::Ascii));
    ASSERT_TRUE(Serve_Until([&] { return m_phone.Heard_Bytes().size() == 5; }));
    EXPECT_EQ(m_phone.Heard_Bytes(), "\xC3\xA9\r?\r");
}

TEST_F(Serial_Port_Writing, Empty_Data_Is_Refused)
{
    EXPECT_FALSE(m_port->writeData(QByteArray(), &m_error));
    EXPECT_EQ(m_error.code, 200);
    EXPECT_EQ(m_calls.Count("write"), 0);
    EXPECT_TRUE(m_phone.Is_Silent());
}

TEST_F(Serial_Port_Writing, A_System_Error_Is_Told_With_Its_Number)
{
    m_calls.Will_Fail("write", EIO);
    EXPECT_FALSE(m_port->writeBytes("AT", 2, &m_error));
    EXPECT_EQ(m_error.code, 99);
    EXPECT_EQ(m_error.underlyingError, EIO);
    EXPECT_EQ(m_error.bytesWritten, 0u);
}

TEST_F(Serial_Port_Writing, A_Write_That_A_Signal_Interrupts_Goes_On_With_The_Rest)
{
    int turn = 0;
    m_calls.Will_Do("write", [&](void*) {
        if (turn++ == 0) {
            errno = EINTR;
            return -1;
        }
        return static_cast<int>(::write(m_port->fileDescriptor(), "A", 1));
    });
    EXPECT_TRUE(m_port->writeData("AAA", &m_error));
    EXPECT_EQ(turn, 4);
    EXPECT_EQ(m_error.bytesWritten, 3u);
}

TEST_F(Serial_Port_Writing, A_Write_Of_No_Bytes_Is_Incomplete)
{
    m_calls.Will_Do("write", [](void*) { return 0; });
    EXPECT_FALSE(m_port->writeData("AT", &m_error));
    EXPECT_EQ(m_error.code, 201);
}

TEST_F(Serial_Port_Writing, A_Device_That_Takes_No_Bytes_Ends_The_Write_After_Its_Time)
{
    Virtual_Phone deaf_phone(Takes_No_Byte());
    const auto port = Open_Port(deaf_phone);
    const double start = Now_Seconds();
    EXPECT_FALSE(port->writeData(QByteArray(1 << 20, 'x'), &m_error));
    const double lasted = Now_Seconds() - start;
    EXPECT_EQ(m_error.code, 201);
    EXPECT_LT(m_error.bytesWritten, 1u << 20);
    EXPECT_GE(lasted, 1.0);
    port->close(); // returns, too
    EXPECT_FALSE(port->isOpen());
}

TEST_F(Serial_Port_Writing, A_Close_Ends_A_Write_That_Waits_For_Room)
{
    Virtual_Phone deaf_phone(Takes_No_Byte());
    Watched_Calls calls;
    const auto port = Open_Port(deaf_phone, calls);
    std::thread closer([&] {
        while (calls.Waits() == 0)
            std::this_thread::yield();
        port->close();
    });
    EXPECT_FALSE(port->writeData(QByteArray(1 << 20, 'x'), &m_error));
    closer.join();
    EXPECT_EQ(m_error.code, 99);
    EXPECT_EQ(m_error.underlyingError, EBADF);
}

TEST_F(Serial_Port_Writing, After_A_Write_The_Descriptor_Blocks_Again)
{
    ASSERT_TRUE(m_port->writeData("AT\r"));
    EXPECT_EQ(fcntl(m_port->fileDescriptor(), F_GETFL) & O_NONBLOCK, 0);
}

TEST_F(Serial_Port_Writing, A_Line_That_Hung_Up_Takes_Nothing)
{
    m_phone.Hang_Up();
    EXPECT_FALSE(m_port->writeData("AT\r", &m_error));
    EXPECT_EQ(m_error.code, 99);
    EXPECT_EQ(m_error.underlyingError, EIO);
}

TEST_F(Serial_Port_Writing, A_Closed_Port_Takes_Nothing)
{
    m_port->close();
    EXPECT_FALSE(m_port->writeData("AT\r", &m_error));
    EXPECT_EQ(m_error.code, 99);
    EXPECT_EQ(m_error.underlyingError, EBADF);
}

TEST_F(Serial_Port_Writing, A_Descriptor_That_Cannot_Be_Made_Non_Blocking_Is_Not_Written_To)
{
    m_calls.Will_Fail("F_SETFL", EPERM);
    EXPECT_FALSE(m_port->writeData("AT\r", &m_error));
    EXPECT_EQ(m_error.underlyingError, EPERM);
    EXPECT_EQ(m_calls.Count("write"), 0);
}
