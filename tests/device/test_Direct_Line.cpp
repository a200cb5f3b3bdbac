#include "device/Device_Test.h"

#include <fcntl.h>
#include <linux/serial.h>
#include <pwd.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class Direct_Line : public Device_Test
{
protected:
    int Open() { return m_session.OpenSerialPort(QByteArray::fromStdString(m_phone.Path())); }

    // "<text> <path> - <error text>(<number>).\n"
    std::string Failure(const std::string& text, int error) { return Failure(text, m_phone.Path(), error); }

    static std::string Failure(const std::string& text, const std::string& path, int error)
    {
        return text + " " + path + " - " + strerror(error) + "(" + std::to_string(error) + ").\n";
    }

    // A driver with all that a pseudo-terminal has not.
    void Make_Line_Complete()
    {
        for (const char* step : {"TIOCMBIS", "TIOCMBIC", "TIOCMSET", "TIOCGSERIAL", "TIOCSSERIAL"})
            m_calls.Will_Do(step, [](void*) { return 0; });
        m_calls.Will_Do("TIOCMGET", [](void* lines) {
            *static_cast<int*>(lines) = 6;
            return 0;
        });
    }

    Virtual_Phone m_phone;
    Watched_Calls m_calls;
    MFCSMS m_session{m_calls};
};

termios Settings_Of(int descriptor)
{
    termios settings{};
    EXPECT_EQ(tcgetattr(descriptor, &settings), 0);
    return settings;
}

} // namespace

TEST_F(Direct_Line, Opening_Takes_Its_Steps_In_Their_Order)
{
    Make_Line_Complete();
    const int descriptor = Open();
    ASSERT_NE(descriptor, -1);
    EXPECT_EQ(m_calls.Steps(),
              Lines("open", "TIOCGEXCL", "TIOCEXCL", "F_SETFL", "tcgetattr", "TCGETS2", "TCSETS2", "tcsetattr",
                    "TIOCMBIS", "TIOCMBIC", "TIOCMSET", "TIOCMGET", "TIOCGSERIAL", "TIOCSSERIAL"));
    EXPECT_EQ(m_calls.Last_Open_Flags(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    EXPECT_EQ(m_log.All(), Lines("Current input baud rate is 38400\n", "Current output baud rate is 38400\n",
                                 "Input baud rate changed to 19200\n", "Output baud rate changed to 19200\n",
                                 "Handshake lines currently set to 6\n"));
    m_session.CloseSerialPort(descriptor);
}

TEST_F(Direct_Line, The_Line_Is_Raw_With_19200_Baud_Even_Parity_And_Hardware_Flow_Control)
{
    termios applied{};
    m_calls.Will_Do("tcsetattr", [&](void* settings) {
        applied = *static_cast<termios*>(settings);
        return 0;
    });
    const int descriptor = Open();
    ASSERT_NE(descriptor, -1);
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

TEST_F(Direct_Line, The_Arbitrary_Speed_Asked_For_Is_14400_And_19200_Stays)
{
    unsigned asked = 0;
    m_calls.Will_Do("TCSETS2", [&](void* record) {
        asked = static_cast<unsigned*>(record)[10]; // c_ospeed, behind four flags, c_line, 19 characters and c_ispeed
        return 0;
    });
    const int descriptor = Open();
    ASSERT_NE(descriptor, -1);
    EXPECT_EQ(asked, 14400u);
    const termios settings = Settings_Of(descriptor);
    EXPECT_EQ(cfgetospeed(&settings), static_cast<speed_t>(B19200));
    m_session.CloseSerialPort(descriptor);
}

TEST_F(Direct_Line, The_Descriptor_Blocks_And_Is_Claimed)
{
    const int descriptor = Open();
    ASSERT_NE(descriptor, -1);
    EXPECT_EQ(fcntl(descriptor, F_GETFL) & O_NONBLOCK, 0);
    int is_claimed = 0;
    EXPECT_EQ(ioctl(descriptor, TIOCGEXCL, &is_claimed), 0);
    EXPECT_NE(is_claimed, 0);
    m_session.CloseSerialPort(descriptor);
}

TEST_F(Direct_Line, Each_Fatal_Step_Is_Logged_And_Leaves_Nothing_Open)
{
    const std::map<std::string, std::string> steps = {{"TIOCEXCL", "Error setting TIOCEXCL on"},
                                                      {"F_SETFL", "Error clearing O_NONBLOCK"},
                                                      {"tcgetattr", "Error getting tty attributes"},
                                                      {"tcsetattr", "Error setting tty attributes"},
                                                      {"TIOCGSERIAL", "Error setting read latency"}};
    for (const auto& [step, text] : steps) {
        Watched_Calls calls;
        MFCSMS session(calls);
        calls.Will_Fail(step, EIO);
        m_log.Forget();
        EXPECT_EQ(session.OpenSerialPort(QByteArray::fromStdString(m_phone.Path())), -1) << step;
        EXPECT_TRUE(m_log.Has(Failure(text, EIO))) << m_log.Joined();
        EXPECT_EQ(calls.Count("close"), 1) << step;
    }
    const int descriptor = Open(); // the line is free after each of them
    EXPECT_NE(descriptor, -1) << m_log.Joined();
    m_session.CloseSerialPort(descriptor);
}

TEST_F(Direct_Line, A_Latency_That_Cannot_Be_Set_Is_Fatal)
{
    Make_Line_Complete();
    m_calls.Will_Fail("TIOCSSERIAL", EIO);
    EXPECT_EQ(Open(), -1);
    EXPECT_TRUE(m_log.Has(Failure("Error setting read latency", EIO)));
}

TEST_F(Direct_Line, A_Driver_Without_A_Low_Latency_Is_No_Failure)
{
    for (const int error : {ENOTTY, EINVAL, EOPNOTSUPP, EPERM}) {
        Make_Line_Complete();
        m_calls.Will_Fail("TIOCSSERIAL", error);
        const int descriptor = Open();
        EXPECT_NE(descriptor, -1) << error;
        m_session.CloseSerialPort(descriptor);
    }
}

TEST_F(Direct_Line, A_Driver_With_A_Low_Latency_Gets_It_Once)
{
    Make_Line_Complete();
    int flags = -1;
    m_calls.Will_Do("TIOCSSERIAL", [&](void* driver) {
        flags = static_cast<serial_struct*>(driver)->flags;
        return 0;
    });
    m_session.CloseSerialPort(Open());
    EXPECT_EQ(flags & ASYNC_LOW_LATENCY, ASYNC_LOW_LATENCY);
    m_calls.Will_Do("TIOCGSERIAL", [](void* driver) {
        static_cast<serial_struct*>(driver)->flags = ASYNC_LOW_LATENCY;
        return 0;
    });
    m_session.CloseSerialPort(Open());
    EXPECT_EQ(m_calls.Count("TIOCSSERIAL"), 1);
}

TEST_F(Direct_Line, The_Other_Steps_Only_Log_Their_Failure)
{
    for (const char* step : {"TCSETS2", "TIOCMBIS", "TIOCMBIC", "TIOCMSET", "TIOCMGET"})
        m_calls.Will_Fail(step, ENXIO);
    const int descriptor = Open();
    ASSERT_NE(descriptor, -1);
    EXPECT_EQ(m_log.All(),
              Lines("Current input baud rate is 38400\n", "Current output baud rate is 38400\n",
                    Failure("Error calling ioctl(..., IOSSIOSPEED, ...)", ENXIO), "Input baud rate changed to 19200\n",
                    "Output baud rate changed to 19200\n", Failure("Error asserting DTR", ENXIO),
                    Failure("Error clearing DTR", ENXIO), Failure("Error setting handshake lines", ENXIO),
                    Failure("Error getting handshake lines", ENXIO), "Handshake lines currently set to 294\n"));
    m_session.CloseSerialPort(descriptor);
}

TEST_F(Direct_Line, Dtr_And_The_Handshake_Lines_Are_Asked_For_By_Their_Bits)
{
    std::vector<int> asked;
    for (const char* step : {"TIOCMBIS", "TIOCMBIC", "TIOCMSET"})
        m_calls.Will_Do(step, [&](void* lines) {
            asked.push_back(*static_cast<int*>(lines));
            return 0;
        });
    m_session.CloseSerialPort(Open());
    EXPECT_EQ(asked, (std::vector<int>{TIOCM_DTR, TIOCM_DTR, 294}));
}

TEST_F(Direct_Line, A_Path_That_Cannot_Be_Opened_Is_Refused_With_Its_Line)
{
    EXPECT_EQ(m_session.OpenSerialPort("/nowhere/at/all"), -1);
    EXPECT_EQ(m_session.OpenSerialPort("/tmp"), -1);
    EXPECT_EQ(m_session.OpenSerialPort(""), -1);
    EXPECT_EQ(m_log.All(), Lines(Failure("Error opening serial port", "/nowhere/at/all", ENOENT),
                                 Failure("Error opening serial port", "/tmp", EISDIR),
                                 Failure("Error opening serial port", "", ENOENT)));
}

TEST_F(Direct_Line, What_Is_No_Terminal_Is_Refused_When_It_Is_To_Be_Claimed)
{
    EXPECT_EQ(m_session.OpenSerialPort("/dev/null"), -1);
    EXPECT_EQ(m_session.OpenSerialPort("/etc/passwd"), -1);
    EXPECT_EQ(m_log.All(), Lines(Failure("Error setting TIOCEXCL on", "/dev/null", ENOTTY),
                                 Failure("Error setting TIOCEXCL on", "/etc/passwd", ENOTTY)));
    EXPECT_EQ(m_calls.Count("close"), 2);
}

TEST_F(Direct_Line, A_Device_Without_Permission_Is_Refused_With_Its_Line)
{
    m_calls.Will_Fail("open", EACCES);
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
    const int descriptor = Open();
    EXPECT_NE(descriptor, -1);
    m_session.CloseSerialPort(descriptor);
}

TEST_F(Direct_Line, Closing_Takes_Its_Steps_In_Their_Order_And_Restores_The_Settings)
{
    const int witness = ::open(m_phone.Path().c_str(), O_RDWR | O_NOCTTY);
    ASSERT_NE(witness, -1);
    const termios before = Settings_Of(witness);
    const int descriptor = Open();
    ASSERT_NE(descriptor, -1);
    EXPECT_EQ(gOriginalTTYAttrs.c_lflag, before.c_lflag);
    EXPECT_NE(Settings_Of(witness).c_lflag, before.c_lflag);
    const auto steps_before = m_calls.Steps().size();
    m_log.Forget();
    m_session.CloseSerialPort(descriptor);
    auto steps = m_calls.Steps();
    steps.erase(steps.begin(), steps.begin() + static_cast<long>(steps_before));
    EXPECT_EQ(steps, Lines("F_GETFL", "F_SETFL", "TIOCOUTQ", "tcsetattr", "TIOCNXCL", "close"));
    EXPECT_TRUE(m_log.All().empty());
    EXPECT_EQ(Settings_Of(witness).c_lflag, before.c_lflag);
    EXPECT_EQ(Settings_Of(witness).c_cflag, before.c_cflag);
    ::close(witness);
}

TEST_F(Direct_Line, A_Close_Whose_Steps_Fail_Closes_All_The_Same)
{
    const int descriptor = Open();
    ASSERT_NE(descriptor, -1);
    m_log.Forget();
    m_calls.Will_Fail("TIOCOUTQ", EIO);
    m_calls.Will_Fail("tcsetattr", ENXIO);
    m_session.CloseSerialPort(descriptor);
    EXPECT_EQ(m_log.All(), Lines("Error waiting for drain - Input/output error(5).\n",
                                 "Error resetting tty attributes - No such device or address(6).\n"));
    EXPECT_EQ(m_calls.Count("close"), 1);
}

TEST_F(Direct_Line, A_Drain_That_Never_Ends_Is_Given_Up_And_Logged)
{
    const int descriptor = Open();
    m_calls.Will_Do("TIOCOUTQ", [](void* waiting) {
        *static_cast<int*>(waiting) = 12;
        return 0;
    });
    m_log.Forget();
    m_session.CloseSerialPort(descriptor);
    EXPECT_EQ(m_log.All(), Lines("Error waiting for drain - Connection timed out(110).\n"));
    EXPECT_EQ(m_calls.Count("tcflush"), 1);
    EXPECT_EQ(m_calls.Count("close"), 1);
}

TEST_F(Direct_Line, What_Is_Closed_While_A_Close_Waits_Does_Not_Get_In_Its_Way)
{
    Virtual_Phone other;
    const int descriptor = Open();
    const int other_descriptor = m_session.OpenSerialPort(QByteArray::fromStdString(other.Path()));
    ASSERT_NE(other_descriptor, -1);
    bool has_come_back = false;
    m_calls.Will_Do("TIOCOUTQ", [&](void* waiting) {
        *static_cast<int*>(waiting) = has_come_back ? 0 : 100; // something to wait for, with events served meanwhile
        return 0;
    });
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

    const int descriptor = Open();
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
        session.initPort(QString::fromLatin1("/dev/null"));
    }
    EXPECT_EQ(m_calls.Count("close"), m_calls.Count("open"));
}

TEST_F(Direct_Line, A_Hang_Up_Before_The_Close_Is_Logged_And_Nothing_Hangs)
{
    const int descriptor = Open();
    ASSERT_NE(descriptor, -1);
    m_phone.Hang_Up();
    m_log.Forget();
    m_session.CloseSerialPort(descriptor);
    EXPECT_EQ(m_log.All(), Lines("Error waiting for drain - Input/output error(5).\n",
                                 "Error resetting tty attributes - Input/output error(5).\n"));
    EXPECT_EQ(m_calls.Count("close"), 1);
}

TEST_F(Direct_Line, A_Modem_That_Answers_Is_Initialized)
{
    const int descriptor = Open();
    m_log.Forget();
    EXPECT_TRUE(m_session.InitializeModem(descriptor));
    EXPECT_EQ(m_log.All(), Lines("Try #1\n", "Wrote 4 bytes \"AT\\r\\n\"\n", "Looking for \"\\r\\nOK\\r\\n\"\n",
                                 "\neverything is ok\n"));
    EXPECT_EQ(m_phone.Heard(), Lines("AT"));
    m_session.CloseSerialPort(descriptor);
}

TEST_F(Direct_Line, The_Answer_May_Begin_With_Ok_Or_Have_The_Echo)
{
    const std::vector<std::pair<std::string, bool>> answers = {
        {"\r\nOK\r\n", true},           {"AT", true},      {"noise AT", true},
        {"noise \r\nOK\r\n", false},    {"OK\r\n", false}, {"\r\nERROR\r\n", false},
        {std::string("\0AT", 3), false}};
    Phone_Moods moods;
    moods.m_no_echo = true;
    for (const auto& [answer, is_success] : answers) {
        Virtual_Phone phone(moods);
        phone.Will_Answer("AT", answer);
        const int descriptor = m_session.OpenSerialPort(QByteArray::fromStdString(phone.Path()));
        EXPECT_EQ(m_session.InitializeModem(descriptor), is_success) << MFCSMS::LogString(answer.c_str());
        m_session.CloseSerialPort(descriptor);
    }
}

TEST_F(Direct_Line, A_Silent_Modem_Times_Out)
{
    Phone_Moods moods;
    moods.m_silent = true;
    m_phone.Set_Moods(moods);
    const int descriptor = Open();
    m_log.Forget();
    const double start = Now_Seconds();
    EXPECT_FALSE(m_session.InitializeModem(descriptor));
    EXPECT_GE(Now_Seconds() - start, 5 / Test_Pace);
    EXPECT_EQ(m_log.All().back(), "\nTIME OUT HAS OCCUR\n");
    m_session.CloseSerialPort(descriptor);
}

TEST_F(Direct_Line, Each_Failure_Of_The_Modem_Check_Has_Its_Line)
{
    const int descriptor = Open();
    m_calls.Will_Fail("read", EIO);
    EXPECT_FALSE(m_session.InitializeModem(descriptor));
    EXPECT_EQ(m_log.All().back(), "Error reading from modem - Input/output error(5).\n");
    m_calls.Will_Do("read", [](void*) { return 0; });
    EXPECT_FALSE(m_session.InitializeModem(descriptor));
    EXPECT_EQ(m_log.All().back(), "Nothing read.\n");
    m_calls.Will_Do("read", [](void*) { // another program was faster
        errno = EAGAIN;
        return -1;
    });
    EXPECT_FALSE(m_session.InitializeModem(descriptor));
    EXPECT_EQ(m_log.All().back(), "Error reading from modem - Resource temporarily unavailable(11).\n");
    m_calls.Will_Fail("write", ENXIO);
    EXPECT_FALSE(m_session.InitializeModem(descriptor));
    EXPECT_EQ(m_log.All().back(), "Error writing to modem - No such device or address(6).\n");
    m_calls.Will_Do("write", [](void*) { return 0; });
    EXPECT_FALSE(m_session.InitializeModem(descriptor));
    EXPECT_EQ(m_log.All().back(), "Wrote 0 bytes \"AT\\r\\n\"\n");
    int turn = 0;
    m_calls.Will_Do("write", [](void*) { return 4; });
    m_calls.Will_Do("wait",
                    [&](void*) { return static_cast<int>(turn++ == 0 ? Line_Event::Ready : Line_Event::Failed); });
    EXPECT_FALSE(m_session.InitializeModem(descriptor));
    EXPECT_EQ(m_log.All().back(), "\nSOME Other\n");
    m_session.CloseSerialPort(descriptor);
}

TEST_F(Direct_Line, The_Modem_Check_Writes_To_No_Foreign_Descriptor)
{
    EXPECT_FALSE(m_session.InitializeModem(1));
    EXPECT_EQ(m_log.All(), Lines("Try #1\n", "Error writing to modem - Bad file descriptor(9).\n"));
    EXPECT_EQ(m_calls.Count("write"), 0);
}
