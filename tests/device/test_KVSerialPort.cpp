#include "device/Device_Test.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/ioctl.h>

namespace {

class Serial_Port : public Device_Test
{
protected:
    std::shared_ptr<KVSerialPort> Make_Port()
    {
        const QString path = QString::fromStdString(m_phone.Path());
        return std::make_shared<KVSerialPort>(path, QStringLiteral("A name"), QStringLiteral("A type"), m_calls);
    }

    Virtual_Phone m_phone;
    Watched_Calls m_calls;
};

termios Settings_Of(int descriptor)
{
    termios settings{};
    EXPECT_EQ(tcgetattr(descriptor, &settings), 0);
    return settings;
}

} // namespace

TEST_F(Serial_Port, A_New_Port_Is_Closed_And_Knows_Its_Device)
{
    const auto port = Make_Port();
    EXPECT_FALSE(port->isOpen());
    EXPECT_EQ(port->fileDescriptor(), -1);
    EXPECT_EQ(port->readTimeout(), 0.0);
    EXPECT_EQ(port->bsdPath().toStdString(), m_phone.Path());
    EXPECT_EQ(port->name(), QStringLiteral("A name"));
    EXPECT_EQ(port->type(), QStringLiteral("A type"));
    EXPECT_EQ(port->properties().value(QStringLiteral("bsdPath")), port->bsdPath());
    EXPECT_TRUE(port->description().contains(port->bsdPath()));
}

TEST_F(Serial_Port, Ports_Are_Equal_By_Path)
{
    const auto port = Make_Port();
    const KVSerialPort same(port->bsdPath(), QStringLiteral("other"), QStringLiteral("other"));
    const KVSerialPort different(QStringLiteral("/dev/other"), port->name(), port->type());
    EXPECT_TRUE(port->isEqual(same));
    EXPECT_EQ(port->hash(), same.hash());
    EXPECT_FALSE(port->isEqual(different));
}

TEST_F(Serial_Port, A_Port_Can_Be_Reserved_By_One_Owner_At_A_Time)
{
    const auto port = Make_Port();
    QObject first;
    QObject second;
    EXPECT_TRUE(port->available());
    EXPECT_EQ(port->obtainBy(&first), port);
    EXPECT_EQ(port->obtainBy(&second), nullptr);
    EXPECT_EQ(port->owner(), &first);
    port->free();
    EXPECT_EQ(port->obtainBy(&second), port);
}

TEST_F(Serial_Port, Opening_Takes_The_Settings_Found_And_Makes_The_Line_Raw)
{
    const auto port = Make_Port();
    const auto handle = port->open();
    ASSERT_TRUE(handle);
    EXPECT_TRUE(port->isOpen());
    EXPECT_EQ(handle, port->fileHandle());
    EXPECT_EQ(handle->fileDescriptor(), port->fileDescriptor());
    EXPECT_EQ(m_calls.Steps(), Lines("open", "TIOCGEXCL", "F_GETFL", "F_SETFL", "tcgetattr", "tcsetattr"));
    EXPECT_EQ(m_calls.Last_Open_Flags(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    EXPECT_EQ(fcntl(port->fileDescriptor(), F_GETFL) & O_NONBLOCK, 0);
    const termios settings = Settings_Of(port->fileDescriptor());
    EXPECT_EQ(settings.c_lflag & (ECHO | ICANON | ISIG), 0u);
    EXPECT_EQ(settings.c_oflag & OPOST, 0u);
    EXPECT_EQ(settings.c_cflag & CSIZE, static_cast<tcflag_t>(CS8));
    EXPECT_EQ(settings.c_cflag & (CLOCAL | CREAD), static_cast<tcflag_t>(CLOCAL | CREAD));
    EXPECT_EQ(settings.c_cc[VMIN], 1);
    EXPECT_EQ(settings.c_cc[VTIME], 0);
}

TEST_F(Serial_Port, Closing_Restores_The_Settings_Found)
{
    const int witness = ::open(m_phone.Path().c_str(), O_RDWR | O_NOCTTY);
    ASSERT_NE(witness, -1);
    const termios before = Settings_Of(witness);
    const auto port = Make_Port();
    const auto handle = port->open();
    ASSERT_TRUE(handle);
    EXPECT_NE(Settings_Of(witness).c_lflag, before.c_lflag);
    port->close();
    EXPECT_EQ(Settings_Of(witness).c_lflag, before.c_lflag);
    EXPECT_EQ(Settings_Of(witness).c_cflag, before.c_cflag);
    EXPECT_FALSE(port->isOpen());
    EXPECT_EQ(port->fileHandle(), nullptr);
    EXPECT_EQ(handle->fileDescriptor(), -1);
    ::close(witness);
}

TEST_F(Serial_Port, Closing_A_Closed_Port_Does_Nothing)
{
    const auto port = Make_Port();
    port->close();
    EXPECT_TRUE(m_calls.Steps().empty());
    ASSERT_TRUE(port->open());
    port->close();
    const auto steps = m_calls.Steps();
    port->close();
    EXPECT_EQ(m_calls.Steps(), steps);
    EXPECT_EQ(m_calls.Count("close"), 1);
}

TEST_F(Serial_Port, Opening_An_Open_Port_Gives_The_Same_Handle)
{
    const auto port = Make_Port();
    const auto handle = port->open();
    EXPECT_EQ(port->open(), handle);
    EXPECT_EQ(m_calls.Count("open"), 1);
}

TEST_F(Serial_Port, A_Port_Can_Be_Opened_Again_And_Works)
{
    const auto port = Make_Port();
    port->setReadTimeout(1);
    for (int turn = 0; turn < 3; ++turn) {
        ASSERT_TRUE(port->open());
        ASSERT_TRUE(port->writeData("AT\r"));
        EXPECT_TRUE(port->readStringUsingEncoding(KVText_Encoding::Utf8).contains(QStringLiteral("OK"))) << turn;
        port->close();
    }
}

TEST_F(Serial_Port, A_Port_That_Is_Dropped_Closes_Its_Descriptor)
{
    {
        const auto port = Make_Port();
        ASSERT_TRUE(port->open());
    }
    EXPECT_EQ(m_calls.Count("close"), 1);
}

TEST_F(Serial_Port, An_Exclusive_Port_Keeps_Others_Out_And_Gives_The_Line_Free_At_Its_Close)
{
    const auto port = Make_Port();
    ASSERT_TRUE(port->openExclusively());
    EXPECT_NE(fcntl(port->fileDescriptor(), F_GETFL) & O_NONBLOCK, 0);
    const auto other = Make_Port();
    EXPECT_EQ(other->open(), nullptr);
    EXPECT_EQ(other->lastError(), EBUSY);
    EXPECT_FALSE(other->isOpen());
    port->close();
    EXPECT_TRUE(other->open());
}

TEST_F(Serial_Port, Each_Failing_Step_Of_Opening_Leaves_The_Port_Closed)
{
    for (const char* step : {"F_GETFL", "F_SETFL", "tcgetattr", "tcsetattr"}) {
        Watched_Calls calls;
        calls.Will_Fail(step, EIO);
        KVSerialPort port(QString::fromStdString(m_phone.Path()), QString(), QString(), calls);
        EXPECT_EQ(port.open(), nullptr) << step;
        EXPECT_FALSE(port.isOpen()) << step;
        EXPECT_EQ(calls.Count("close"), 1) << step;
        EXPECT_TRUE(port.gotError()) << step;
        EXPECT_EQ(port.lastError(), EIO) << step;
    }
    for (const char* step : {"flock", "TIOCEXCL", "tcsetattr"}) {
        Watched_Calls calls;
        calls.Will_Fail(step, EIO);
        KVSerialPort port(QString::fromStdString(m_phone.Path()), QString(), QString(), calls);
        EXPECT_EQ(port.openExclusively(), nullptr) << step;
        EXPECT_EQ(calls.Count("close"), 1) << step;
    }
    EXPECT_TRUE(Make_Port()->open());
}

TEST_F(Serial_Port, What_Is_No_Terminal_Does_Not_Open)
{
    for (const char* path : {"/dev/null", "/", "/etc/hostname", "/nowhere/at/all", ""}) {
        KVSerialPort port(QString::fromLatin1(path), QString(), QString());
        EXPECT_EQ(port.open(), nullptr) << path;
        EXPECT_FALSE(port.isOpen()) << path;
        EXPECT_TRUE(port.gotError()) << path;
    }
}

TEST_F(Serial_Port, A_Close_Does_Not_Wait_For_Bytes_That_The_Device_Never_Takes)
{
    const auto port = Make_Port();
    ASSERT_TRUE(port->open());
    m_calls.Will_Do("TIOCOUTQ", [](void* waiting) {
        *static_cast<int*>(waiting) = 100;
        return 0;
    });
    const Stopwatch watch;
    port->close();
    EXPECT_LT(watch.Lasted_For_The_Thread(), 2.0);
    EXPECT_EQ(m_calls.Count("tcflush"), 1);
    EXPECT_EQ(m_calls.Count("close"), 1);
}

TEST_F(Serial_Port, A_Close_On_The_Way_Out_Waits_For_What_Was_Written_As_Well)
{
    for (const bool takes_all : {true, false}) {
        const auto port = Make_Port();
        ASSERT_TRUE(port->open());
        const int flushes = m_calls.Count("tcflush");
        const int closes = m_calls.Count("close");
        int left = 3; // few looks, so that a busy machine gets through them in time
        m_calls.Will_Do("TIOCOUTQ", [&](void* waiting) {
            *static_cast<int*>(waiting) = takes_all ? --left : 100;
            return 0;
        });
        Begin_Program_Exit();
        const double start = Now_Seconds();
        port->close();
        Forget_Program_Exit();
        EXPECT_LT(Now_Seconds() - start, 2.0);
        EXPECT_EQ(m_calls.Count("tcflush") - flushes, takes_all ? 0 : 1);
        EXPECT_EQ(m_calls.Count("close") - closes, 1);
        EXPECT_EQ(left, takes_all ? 0 : 3);
    }
}

TEST_F(Serial_Port, What_Comes_Back_To_A_Port_While_It_Closes_Finds_It_Closed)
{
    const auto port = Make_Port();
    ASSERT_TRUE(port->open());
    bool has_come_back = false;
    m_calls.Will_Do("TIOCOUTQ", [&](void* waiting) {
        *static_cast<int*>(waiting) = has_come_back ? 0 : 100; // something to wait for, with events served meanwhile
        return 0;
    });
    Post_To_Interface_Thread(QCoreApplication::instance(), [&] {
        port->close();
        EXPECT_FALSE(port->isOpen());
        EXPECT_EQ(port->open(), nullptr);
        EXPECT_EQ(port->lastError(), EBUSY);
        has_come_back = true;
    });
    port->close();
    EXPECT_TRUE(has_come_back);
    EXPECT_EQ(m_calls.Count("close"), 1);
    EXPECT_EQ(m_calls.Count("tcflush"), 0);
    EXPECT_TRUE(port->open());
}

TEST_F(Serial_Port, Line_Control_Reports_What_The_System_Says)
{
    const auto port = Make_Port();
    EXPECT_FALSE(port->sendBreak());
    EXPECT_FALSE(port->drainInput());
    EXPECT_EQ(port->lastError(), EBADF);
    ASSERT_TRUE(port->open());
    EXPECT_TRUE(port->drainInput());
    EXPECT_TRUE(port->flushInput(true, true));
    EXPECT_TRUE(port->flushInput(false, false));
    EXPECT_EQ(m_calls.Count("tcflush"), 1);
    m_calls.Will_Do("TIOCMBIS", [](void* lines) { return *static_cast<int*>(lines) == TIOCM_DTR ? 0 : -1; });
    m_calls.Will_Do("TIOCMBIC", [](void* lines) { return *static_cast<int*>(lines) == TIOCM_DTR ? 0 : -1; });
    EXPECT_TRUE(port->setDTR());
    EXPECT_TRUE(port->clearDTR());
    m_calls.Will_Fail("TIOCMBIS", ENOTTY);
    port->clearError();
    EXPECT_FALSE(port->setDTR());
    EXPECT_EQ(port->lastError(), ENOTTY);
}
