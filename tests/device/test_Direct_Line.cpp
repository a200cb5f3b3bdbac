#include "device/Device_Test.h"

#include <linux/serial.h>
#include <unistd.h>

namespace {

class Direct_Line : public Session_Test
{
protected:
    int Open() { return m_session.OpenSerialPort(QByteArray::fromStdString(m_phone.Path())); }

    int Opened()
    {
        const int descriptor = Open();
        EXPECT_NE(descriptor, -1) << m_log.Joined();
        m_log.Forget();
        return descriptor;
    }

    std::vector<std::string> Log_Of_Closing(int descriptor)
    {
        m_log.Forget();
        m_session.CloseSerialPort(descriptor);
        return m_log.All();
    }

    // "<text> <path> - <error text>(<number>).\n"
    std::string Failure(const std::string& text, int error) { return Failure(text, m_phone.Path(), error); }

    static std::string Failure(const std::string& text, const std::string& path, int error)
    {
        return text + " " + path + " - " + strerror(error) + "(" + std::to_string(error) + ").\n";
    }

    // A driver with all that a pseudo-terminal has not.
    static void Make_Line_Complete(Watched_Calls& calls)
    {
        for (const char* step : {"TIOCMBIS", "TIOCMBIC", "TIOCMSET", "TIOCGSERIAL", "TIOCSSERIAL"})
            calls.Will_Do(step, [](void*) { return 0; });
        calls.Will_Tell("TIOCMGET", [] { return 6; });
    }

    // The last line of the log of a modem check that fails.
    std::string Reason_Of_The_Modem_Check(int descriptor)
    {
        EXPECT_FALSE(m_session.InitializeModem(descriptor));
        return m_log.All().back();
    }
};

} // namespace

TEST_F(Direct_Line, Opening_Takes_Its_Steps_In_Their_Order)
{
    Make_Line_Complete(m_calls);
    unsigned speed = 0;
    m_calls.Will_Do("TCSETS2", [&](void* record) {
        speed = static_cast<unsigned*>(record)[10]; // c_ospeed, behind four flags, c_line, 19 characters and c_ispeed
        return 0;
    });
    std::vector<int> bits;
    for (const char* step : {"TIOCMBIS", "TIOCMBIC", "TIOCMSET"})
        m_calls.Will_Do(step, [&](void* lines) {
            bits.push_back(*static_cast<int*>(lines));
            return 0;
        });
    const int descriptor = Open();
    ASSERT_NE(descriptor, -1);
    EXPECT_EQ(m_calls.Steps(),
              Lines("open", "TIOCGEXCL", "TIOCEXCL", "F_SETFL", "tcgetattr", "TCGETS2", "TCSETS2", "tcsetattr",
                    "TIOCMBIS", "TIOCMBIC", "TIOCMSET", "TIOCMGET", "TIOCGSERIAL", "TIOCSSERIAL"));
    EXPECT_EQ(m_calls.Last_Open_Flags(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    EXPECT_EQ(m_log.All(), Lines("Current input baud rate is 38400\n", "Current output baud rate is 38400\n",
                                 "Input baud rate changed to 19200\n", "Output baud rate changed to 19200\n",
                                 "Handshake lines currently set to 6\n"));
    EXPECT_EQ(speed, 14400u);
    const termios settings = Settings_Of(descriptor);
    EXPECT_EQ(cfgetospeed(&settings), static_cast<speed_t>(B19200)) << "which stays";
    EXPECT_EQ(bits, (std::vector<int>{TIOCM_DTR, TIOCM_DTR, 294}));
    EXPECT_TRUE(Blocks(descriptor));
    int is_claimed = 0;
    EXPECT_EQ(ioctl(descriptor, TIOCGEXCL, &is_claimed), 0);
    EXPECT_NE(is_claimed, 0);
}

TEST_F(Direct_Line, The_Line_Is_Raw_With_19200_Baud_Even_Parity_And_Hardware_Flow_Control)
{
    termios applied{};
    m_calls.Will_Do("tcsetattr", [&](void* settings) {
        applied = *static_cast<termios*>(settings);
        return 0;
    });
    const int descriptor = Opened();
    EXPECT_EQ(applied.c_cflag & CSIZE, static_cast<tcflag_t>(CS8));
    EXPECT_EQ(applied.c_cflag & (PARENB | PARODD), static_cast<tcflag_t>(PARENB));
    EXPECT_NE(applied.c_cflag & CRTSCTS, 0u);
    EXPECT_EQ(applied.c_lflag & (ECHO | ICANON | ISIG), 0u);
    EXPECT_EQ(applied.c_oflag & OPOST, 0u);
    EXPECT_EQ(applied.c_cc[VMIN], 1);
    EXPECT_EQ(applied.c_cc[VTIME], 10);
    EXPECT_EQ(cfgetispeed(&applied), static_cast<speed_t>(B19200));
    EXPECT_EQ(cfgetospeed(&applied), static_cast<speed_t>(B19200));
    m_session.CloseSerialPort(descriptor);
    EXPECT_EQ(m_calls.Count("tcsetattr"), 2);
}

TEST_F(Direct_Line, Each_Fatal_Step_Is_Logged_And_Leaves_Nothing_Open)
{
    for (const auto& [step, text] :
         {std::pair("TIOCEXCL", "Error setting TIOCEXCL on"), std::pair("F_SETFL", "Error clearing O_NONBLOCK"),
          std::pair("tcgetattr", "Error getting tty attributes"),
          std::pair("tcsetattr", "Error setting tty attributes"),
          std::pair("TIOCGSERIAL", "Error setting read latency"),
          std::pair("TIOCSSERIAL", "Error setting read latency")}) {
        Watched_Calls calls;
        MFCSMS session(calls);
        Make_Line_Complete(calls);
        calls.Will_Fail(step, EIO);
        m_log.Forget();
        EXPECT_EQ(session.OpenSerialPort(QByteArray::fromStdString(m_phone.Path())), -1) << step;
        EXPECT_TRUE(m_log.Has(Failure(text, EIO))) << m_log.Joined();
        EXPECT_EQ(calls.Count("close"), 1) << step;
    }
    Opened(); // the line is free after each of them
}

TEST_F(Direct_Line, A_Driver_Without_A_Low_Latency_Is_No_Failure_And_One_With_It_Gets_It_Once)
{
    Make_Line_Complete(m_calls);
    for (const int error : {ENOTTY, EINVAL, EOPNOTSUPP, EPERM}) {
        m_calls.Will_Fail("TIOCSSERIAL", error);
        m_session.CloseSerialPort(Opened());
    }
    int flags = -1;
    m_calls.Will_Do("TIOCSSERIAL", [&](void* driver) {
        flags = static_cast<serial_struct*>(driver)->flags;
        return 0;
    });
    m_session.CloseSerialPort(Opened());
    EXPECT_EQ(flags & ASYNC_LOW_LATENCY, ASYNC_LOW_LATENCY);
    m_calls.Will_Do("TIOCGSERIAL", [](void* driver) {
        static_cast<serial_struct*>(driver)->flags = ASYNC_LOW_LATENCY;
        return 0;
    });
    m_session.CloseSerialPort(Opened());
    EXPECT_EQ(m_calls.Count("TIOCSSERIAL"), 5);
}

TEST_F(Direct_Line, The_Other_Steps_Only_Log_Their_Failure)
{
    for (const char* step : {"TCSETS2", "TIOCMBIS", "TIOCMBIC", "TIOCMSET", "TIOCMGET"})
        m_calls.Will_Fail(step, ENXIO);
    ASSERT_NE(Open(), -1);
    EXPECT_EQ(m_log.All(),
              Lines("Current input baud rate is 38400\n", "Current output baud rate is 38400\n",
                    Failure("Error calling ioctl(..., IOSSIOSPEED, ...)", ENXIO), "Input baud rate changed to 19200\n",
                    "Output baud rate changed to 19200\n", Failure("Error asserting DTR", ENXIO),
                    Failure("Error clearing DTR", ENXIO), Failure("Error setting handshake lines", ENXIO),
                    Failure("Error getting handshake lines", ENXIO), "Handshake lines currently set to 294\n"));
}

TEST_F(Direct_Line, What_Cannot_Be_Opened_Or_Is_No_Terminal_Is_Refused_With_Its_Line)
{
    for (const auto& [path, text, error] :
         {std::tuple("/nowhere/at/all", "Error opening serial port", ENOENT),
          std::tuple("/tmp", "Error opening serial port", EISDIR), std::tuple("", "Error opening serial port", ENOENT),
          std::tuple("/dev/null", "Error setting TIOCEXCL on", ENOTTY),
          std::tuple("/etc/passwd", "Error setting TIOCEXCL on", ENOTTY)}) {
        m_log.Forget();
        EXPECT_EQ(m_session.OpenSerialPort(path), -1) << path;
        EXPECT_EQ(m_log.All(), Lines(Failure(text, path, error)));
    }
    EXPECT_EQ(m_calls.Count("close"), 2);

    m_calls.Will_Fail("open", EACCES);
    m_log.Forget();
    EXPECT_EQ(Open(), -1);
    EXPECT_EQ(m_log.All(), Lines(Failure("Error opening serial port", EACCES)));
}

TEST_F(Direct_Line, A_Device_Opened_Exclusively_By_Another_Is_Refused_With_Its_Line)
{
    MFCSMS other;
    const int held = other.OpenSerialPort(QByteArray::fromStdString(m_phone.Path()));
    ASSERT_NE(held, -1);
    m_log.Forget();
    EXPECT_EQ(Open(), -1);
    EXPECT_EQ(m_log.All(), Lines(Failure("Error opening serial port", EBUSY)));
    other.CloseSerialPort(held);
    EXPECT_NE(Open(), -1);
}

TEST_F(Direct_Line, Closing_Takes_Its_Steps_In_Their_Order_And_Restores_The_Settings)
{
    const int witness = ::open(m_phone.Path().c_str(), O_RDWR | O_NOCTTY);
    ASSERT_NE(witness, -1);
    const termios before = Settings_Of(witness);
    const int descriptor = Opened();
    EXPECT_EQ(gOriginalTTYAttrs.c_lflag, before.c_lflag);
    EXPECT_NE(Settings_Of(witness).c_lflag, before.c_lflag);
    const auto steps_before = m_calls.Steps().size();
    EXPECT_TRUE(Log_Of_Closing(descriptor).empty());
    auto steps = m_calls.Steps();
    steps.erase(steps.begin(), steps.begin() + static_cast<long>(steps_before));
    EXPECT_EQ(steps, Lines("F_GETFL", "F_SETFL", "TIOCOUTQ", "tcsetattr", "TIOCNXCL", "close"));
    EXPECT_EQ(Settings_Of(witness).c_lflag, before.c_lflag);
    EXPECT_EQ(Settings_Of(witness).c_cflag, before.c_cflag);
    ::close(witness);
}

TEST_F(Direct_Line, A_Close_Whose_Steps_Fail_Closes_All_The_Same)
{
    int descriptor = Opened();
    m_calls.Will_Tell("TIOCOUTQ", [] { return 12; }); // for ever
    EXPECT_EQ(Log_Of_Closing(descriptor), Lines("Error waiting for drain - Connection timed out(110).\n"));
    EXPECT_EQ(m_calls.Count("tcflush"), 1);
    EXPECT_EQ(m_calls.Count("close"), 1);
    descriptor = Opened();
    m_calls.Will_Fail("TIOCOUTQ", EIO);
    m_calls.Will_Fail("tcsetattr", ENXIO);
    EXPECT_EQ(Log_Of_Closing(descriptor), Lines("Error waiting for drain - Input/output error(5).\n",
                                                "Error resetting tty attributes - No such device or address(6).\n"));
    EXPECT_EQ(m_calls.Count("close"), 2);
}

TEST_F(Direct_Line, A_Hang_Up_Before_The_Close_Is_Logged_And_Nothing_Hangs)
{
    const int descriptor = Opened();
    m_phone.Hang_Up();
    EXPECT_EQ(Log_Of_Closing(descriptor), Lines("Error waiting for drain - Input/output error(5).\n",
                                                "Error resetting tty attributes - Input/output error(5).\n"));
    EXPECT_EQ(m_calls.Count("close"), 1);
}

TEST_F(Direct_Line, What_Is_Closed_While_A_Close_Waits_Does_Not_Get_In_Its_Way)
{
    Virtual_Phone other;
    const int descriptor = Opened();
    const int other_descriptor = m_session.OpenSerialPort(QByteArray::fromStdString(other.Path()));
    ASSERT_NE(other_descriptor, -1);
    bool has_come_back = false;
    // Something to wait for, with events served meanwhile.
    m_calls.Will_Tell("TIOCOUTQ", [&] { return has_come_back ? 0 : 100; });
    Post_To_Interface_Thread(QCoreApplication::instance(), [&] {
        has_come_back = true;
        m_session.CloseSerialPort(descriptor);
        m_session.CloseSerialPort(other_descriptor);
    });
    m_session.CloseSerialPort(descriptor);
    EXPECT_TRUE(has_come_back);
    EXPECT_EQ(m_calls.Count("close"), 2);
}

TEST_F(Direct_Line, A_Descriptor_That_Is_Not_The_Sessions_Own_Is_Not_Touched)
{
    m_session.CloseSerialPort(-1);
    const int foreign = ::open("/dev/null", O_RDWR);
    m_session.CloseSerialPort(foreign);
    EXPECT_NE(fcntl(foreign, F_GETFD), -1);
    ::close(foreign);
    EXPECT_TRUE(m_calls.Steps().empty());

    const int descriptor = Opened();
    m_session.CloseSerialPort(descriptor);
    const auto steps = m_calls.Steps();
    m_session.CloseSerialPort(descriptor); // the number may be another file's by now
    EXPECT_EQ(m_calls.Steps(), steps);
    EXPECT_EQ(m_calls.Count("close"), 1);
}

TEST_F(Direct_Line, A_Session_That_Ends_Closes_What_It_Left_Open)
{
    {
        MFCSMS session(m_calls);
        ASSERT_NE(session.OpenSerialPort(QByteArray::fromStdString(m_phone.Path())), -1);
        session.initPort("/dev/null");
    }
    EXPECT_EQ(m_calls.Count("close"), m_calls.Count("open"));
}

TEST_F(Direct_Line, A_Modem_That_Answers_Is_Initialized)
{
    EXPECT_TRUE(m_session.InitializeModem(Opened()));
    EXPECT_EQ(m_log.All(), Lines("Try #1\n", "Wrote 4 bytes \"AT\\r\\n\"\n", "Looking for \"\\r\\nOK\\r\\n\"\n",
                                 "\neverything is ok\n"));
    EXPECT_EQ(m_phone.Heard(), Lines("AT"));
}

TEST_F(Direct_Line, The_Answer_May_Begin_With_Ok_Or_Have_The_Echo)
{
    Wears(Mood(&Phone_Moods::m_no_echo));
    const int descriptor = Opened();
    const auto is_taken = [&](const std::string& answer) {
        m_phone.Will_Answer("AT", answer);
        return m_session.InitializeModem(descriptor);
    };
    for (const char* answer : {"\r\nOK\r\n", "AT", "noise AT"})
        EXPECT_TRUE(is_taken(answer)) << answer;
    for (const char* answer : {"noise \r\nOK\r\n", "OK\r\n", "\r\nERROR\r\n"})
        EXPECT_FALSE(is_taken(answer)) << answer;
    EXPECT_FALSE(is_taken(std::string("\0AT", 3)));
}

TEST_F(Direct_Line, A_Silent_Modem_Times_Out)
{
    Wears(Mood(&Phone_Moods::m_silent));
    const int descriptor = Opened();
    const double start = Now_Seconds();
    EXPECT_EQ(Reason_Of_The_Modem_Check(descriptor), "\nTIME OUT HAS OCCUR\n");
    EXPECT_GE(Now_Seconds() - start, 5 / Test_Pace);
}

TEST_F(Direct_Line, Each_Failure_Of_The_Modem_Check_Has_Its_Line)
{
    EXPECT_EQ(Reason_Of_The_Modem_Check(1), "Error writing to modem - Bad file descriptor(9).\n") << "a foreign one";
    EXPECT_EQ(m_calls.Count("write"), 0);
    const int descriptor = Opened();
    m_calls.Will_Fail("read", EIO);
    EXPECT_EQ(Reason_Of_The_Modem_Check(descriptor), "Error reading from modem - Input/output error(5).\n");
    m_calls.Will_Do("read", [](void*) { return 0; });
    EXPECT_EQ(Reason_Of_The_Modem_Check(descriptor), "Nothing read.\n");
    m_calls.Will_Fail("read", EAGAIN); // another program was faster
    EXPECT_EQ(Reason_Of_The_Modem_Check(descriptor),
              "Error reading from modem - Resource temporarily unavailable(11).\n");
    m_calls.Will_Fail("write", ENXIO);
    EXPECT_EQ(Reason_Of_The_Modem_Check(descriptor), "Error writing to modem - No such device or address(6).\n");
    m_calls.Will_Do("write", [](void*) { return 0; });
    EXPECT_EQ(Reason_Of_The_Modem_Check(descriptor), "Wrote 0 bytes \"AT\\r\\n\"\n");
    int turn = 0;
    m_calls.Will_Do("write", [](void*) { return 4; });
    m_calls.Will_Do("wait",
                    [&](void*) { return static_cast<int>(turn++ == 0 ? Line_Event::Ready : Line_Event::Failed); });
    EXPECT_EQ(Reason_Of_The_Modem_Check(descriptor), "\nSOME Other\n");
}
