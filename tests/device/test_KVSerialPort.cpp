#include "device/Device_Test.h"

namespace {

class Serial_Port : public Device_Test
{
protected:
    std::shared_ptr<KVSerialPort> Make_Port() { return Make_Port(m_calls); }
    std::shared_ptr<KVSerialPort> Make_Port(Serial_Calls& calls)
    {
        return std::make_shared<KVSerialPort>(Path_Of(m_phone), "A name", "A type", calls);
    }

    std::shared_ptr<KVSerialPort> Opened()
    {
        const auto port = Make_Port();
        EXPECT_TRUE(port->open());
        return port;
    }

    Virtual_Phone m_phone;
    Watched_Calls m_calls;
};

} // namespace

TEST_F(Serial_Port, A_New_Port_Is_Closed_And_Knows_Its_Device_And_Its_Equals_By_Path)
{
    const auto port = Make_Port();
    EXPECT_FALSE(port->isOpen());
    EXPECT_EQ(port->fileDescriptor(), -1);
    EXPECT_EQ(port->readTimeout(), 0.0);
    EXPECT_EQ(port->bsdPath(), Path_Of(m_phone));
    EXPECT_EQ(port->name(), "A name");
    EXPECT_EQ(port->type(), "A type");
    EXPECT_EQ(port->properties().value("bsdPath"), port->bsdPath());
    EXPECT_TRUE(port->description().contains(port->bsdPath()));
    const KVSerialPort same(port->bsdPath(), "other", "other");
    EXPECT_TRUE(port->isEqual(same));
    EXPECT_EQ(port->hash(), same.hash());
    EXPECT_FALSE(port->isEqual(KVSerialPort("/dev/other", port->name(), port->type())));
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

TEST_F(Serial_Port, Opening_Makes_The_Line_Raw_And_Closing_Restores_The_Settings_Found)
{
    const int witness = ::open(m_phone.Path().c_str(), O_RDWR | O_NOCTTY);
    ASSERT_NE(witness, -1);
    const termios before = Settings_Of(witness);
    const auto port = Make_Port();
    const auto handle = port->open();
    ASSERT_TRUE(handle);
    EXPECT_TRUE(port->isOpen());
    EXPECT_EQ(handle, port->fileHandle());
    EXPECT_EQ(handle->fileDescriptor(), port->fileDescriptor());
    EXPECT_EQ(port->open(), handle) << "an open port gives the same";
    EXPECT_EQ(m_calls.Steps(), Lines("open", "TIOCGEXCL", "F_GETFL", "F_SETFL", "tcgetattr", "tcsetattr"));
    EXPECT_EQ(m_calls.Last_Open_Flags(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    EXPECT_TRUE(Blocks(port->fileDescriptor()));
    const termios settings = Settings_Of(port->fileDescriptor());
    EXPECT_NE(settings.c_lflag, before.c_lflag);
    EXPECT_EQ(settings.c_lflag & (ECHO | ICANON | ISIG), 0u);
    EXPECT_EQ(settings.c_oflag & OPOST, 0u);
    EXPECT_EQ(settings.c_cflag & CSIZE, static_cast<tcflag_t>(CS8));
    EXPECT_EQ(settings.c_cflag & (CLOCAL | CREAD), static_cast<tcflag_t>(CLOCAL | CREAD));
    EXPECT_EQ(settings.c_cc[VMIN], 1);
    EXPECT_EQ(settings.c_cc[VTIME], 0);

    port->close();
    EXPECT_EQ(Settings_Of(witness).c_lflag, before.c_lflag);
    EXPECT_EQ(Settings_Of(witness).c_cflag, before.c_cflag);
    EXPECT_FALSE(port->isOpen());
    EXPECT_EQ(port->fileHandle(), nullptr);
    EXPECT_EQ(handle->fileDescriptor(), -1);
    ::close(witness);
}

TEST_F(Serial_Port, Closing_A_Closed_Port_Does_Nothing_And_A_Dropped_One_Closes_Its_Descriptor)
{
    auto port = Make_Port();
    port->close();
    EXPECT_TRUE(m_calls.Steps().empty());
    ASSERT_TRUE(port->open());
    port->close();
    const auto steps = m_calls.Steps();
    port->close();
    EXPECT_EQ(m_calls.Steps(), steps);
    EXPECT_EQ(m_calls.Count("close"), 1);
    ASSERT_TRUE(port->open());
    port.reset();
    EXPECT_EQ(m_calls.Count("close"), 2);
}

TEST_F(Serial_Port, A_Port_Can_Be_Opened_Again_And_Works)
{
    const auto port = Make_Port();
    port->setReadTimeout(1);
    for (int turn = 0; turn < 3; ++turn) {
        ASSERT_TRUE(port->open());
        ASSERT_TRUE(port->writeData("AT\r"));
        EXPECT_TRUE(port->readStringUsingEncoding(KVText_Encoding::Utf8).contains("OK")) << turn;
        port->close();
    }
}

TEST_F(Serial_Port, An_Exclusive_Port_Keeps_Others_Out_And_Gives_The_Line_Free_At_Its_Close)
{
    const auto port = Make_Port();
    ASSERT_TRUE(port->openExclusively());
    EXPECT_FALSE(Blocks(port->fileDescriptor()));
    const auto other = Make_Port();
    EXPECT_EQ(other->open(), nullptr);
    EXPECT_EQ(other->lastError(), EBUSY);
    EXPECT_FALSE(other->isOpen());
    port->close();
    EXPECT_TRUE(other->open());
}

TEST_F(Serial_Port, Each_Failing_Step_Of_Opening_Leaves_The_Port_Closed)
{
    const auto failing = [this](const char* step, auto open) {
        SCOPED_TRACE(step);
        Watched_Calls calls;
        calls.Will_Fail(step, EIO);
        const auto port = Make_Port(calls);
        EXPECT_EQ(((*port).*open)(), nullptr);
        EXPECT_FALSE(port->isOpen());
        EXPECT_EQ(calls.Count("close"), 1);
        EXPECT_TRUE(port->gotError());
        EXPECT_EQ(port->lastError(), EIO);
    };
    for (const char* step : {"F_GETFL", "F_SETFL", "tcgetattr", "tcsetattr"})
        failing(step, &KVSerialPort::open);
    for (const char* step : {"flock", "TIOCEXCL", "tcsetattr"})
        failing(step, &KVSerialPort::openExclusively);
    Opened();
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

TEST_F(Serial_Port, A_Close_Waits_For_What_Was_Written_As_Well_On_The_Way_Out_But_Not_For_What_Is_Never_Taken)
{
    struct Row
    {
        bool is_leaving;
        bool takes_all;
    };
    for (const Row& row : {Row{false, false}, Row{true, true}, Row{true, false}}) {
        const auto port = Opened();
        const int flushes = m_calls.Count("tcflush");
        const int closes = m_calls.Count("close");
        int left = 3; // few looks, so that a busy machine gets through them in time
        m_calls.Will_Tell("TIOCOUTQ", [&] { return row.takes_all ? --left : 100; });
        (row.is_leaving ? Begin_Program_Exit : Forget_Program_Exit)();
        const Stopwatch watch;
        port->close();
        Forget_Program_Exit();
        EXPECT_LT(watch.Lasted_For_The_Thread(), 2.0);
        EXPECT_EQ(m_calls.Count("tcflush") - flushes, row.takes_all ? 0 : 1);
        EXPECT_EQ(m_calls.Count("close") - closes, 1);
        EXPECT_EQ(left, row.takes_all ? 0 : 3);
    }
}

TEST_F(Serial_Port, What_Comes_Back_To_A_Port_While_It_Closes_Finds_It_Closed)
{
    const auto port = Opened();
    bool has_come_back = false;
    // Something to wait for, with events served meanwhile.
    m_calls.Will_Tell("TIOCOUTQ", [&] { return has_come_back ? 0 : 100; });
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
    for (const char* step : {"TIOCMBIS", "TIOCMBIC"})
        m_calls.Will_Do(step, [](void* lines) { return *static_cast<int*>(lines) == TIOCM_DTR ? 0 : -1; });
    EXPECT_TRUE(port->setDTR());
    EXPECT_TRUE(port->clearDTR());
    m_calls.Will_Fail("TIOCMBIS", ENOTTY);
    port->clearError();
    EXPECT_FALSE(port->setDTR());
    EXPECT_EQ(port->lastError(), ENOTTY);
}
