#include "device/Device_Test.h"

namespace {

// Keeps what a port tells, and reads on while it is told to.
class Listener : public KVSerialPortDelegate
{
public:
    ~Listener() override { No_More_Calls(); }

    bool handlesReadInBackground() const override { return m_wants_data; }
    bool handlesWriteInBackground() const override { return true; }

    void serialPortReadData(const std::shared_ptr<KVSerialPort>& serialPort, const QByteArray& data) override
    {
        EXPECT_TRUE(Is_Interface_Thread());
        m_reads.push_back(data.toStdString());
        if (m_reads_on && !data.isEmpty())
            serialPort->readDataInBackground();
    }

    void serialPortWriteProgress(const std::shared_ptr<KVSerialPort>&, quint64 value, quint64 total) override
    {
        EXPECT_TRUE(Is_Interface_Thread());
        m_progress.emplace_back(value, total);
    }

    std::string Heard() const
    {
        std::string text;
        for (const auto& read : m_reads)
            text += read;
        return text;
    }

    bool m_wants_data = true;
    bool m_reads_on = true;
    std::vector<std::string> m_reads;
    std::vector<std::pair<quint64, quint64>> m_progress;
};

class Serial_Port_Background : public Open_Port_Test
{
protected:
    ~Serial_Port_Background() override { m_port->close(); }

    // Serves events for a while in which nothing is to happen.
    static void Serve_For(double seconds)
    {
        const double end = Now_Seconds() + seconds;
        EXPECT_TRUE(Serve_Until([&] { return Now_Seconds() > end; }));
    }

    void Begin_Reading()
    {
        m_port->setDelegate(&m_listener);
        m_port->readDataInBackground();
    }

    // Begins, and returns when the reader waits for the line.
    void Start_Reading()
    {
        const int waits_before = m_calls.Waits();
        Begin_Reading();
        EXPECT_TRUE(Serve_Until([&] { return m_calls.Waits() > waits_before; }));
    }

    bool Hears(const std::string& text, double seconds = 20)
    {
        return Serve_Until([&] { return m_listener.Heard() == text; }, seconds);
    }

    bool No_Writer_Is_Left() const
    {
        return Serve_Until([&] { return m_port->numberOfWriteInBackgroundThreads() == 0; });
    }

    const std::string m_answer = "AT\r\r\nOK\r\n";
    Listener m_listener;
};

} // namespace

TEST_F(Serial_Port_Background, What_Arrives_Unasked_Reaches_The_Delegate)
{
    Start_Reading();
    m_phone.Says("RING\r\n");
    EXPECT_TRUE(Hears("RING\r\n"));
    m_phone.Says("RING\r\n");
    EXPECT_TRUE(Hears("RING\r\nRING\r\n"));
}

TEST_F(Serial_Port_Background, Without_A_Delegate_That_Wants_Data_Or_An_Open_Port_Nothing_Is_Read)
{
    m_port->readDataInBackground();
    m_listener.m_wants_data = false;
    Begin_Reading();
    EXPECT_EQ(m_port->numberOfReadInBackgroundThreads(), 0);
    EXPECT_EQ(Workers_Running(), 0);
    m_port->close();
    m_listener.m_wants_data = true;
    Begin_Reading();
    EXPECT_TRUE(No_Worker_Is_Left());
    Serve_For(0.02);
    EXPECT_TRUE(m_listener.m_reads.empty());
}

TEST_F(Serial_Port_Background, One_Call_Is_One_Read)
{
    m_listener.m_reads_on = false;
    Start_Reading();
    m_phone.Says("first");
    ASSERT_TRUE(Serve_Until([&] { return m_listener.m_reads.size() == 1; }));
    m_phone.Says("second");
    Serve_For(0.05);
    EXPECT_EQ(m_listener.m_reads.size(), 1u);
    EXPECT_EQ(m_port->readBytes(6), QByteArray("second"));
}

TEST_F(Serial_Port_Background, A_Port_Closed_Meanwhile_Delivers_Empty_Data_And_The_Next_Opening_Is_Not_Read)
{
    Start_Reading();
    EXPECT_EQ(m_port->numberOfReadInBackgroundThreads(), 1);
    m_port->close();
    ASSERT_TRUE(m_port->open());
    EXPECT_TRUE(No_Worker_Is_Left());
    Serve_For(0.02);
    EXPECT_EQ(m_listener.m_reads, Lines(""));
    m_phone.Says("new");
    EXPECT_EQ(m_port->readBytes(3), QByteArray("new"));
}

TEST_F(Serial_Port_Background, A_Hang_Up_Delivers_Empty_Data_Once_And_Ends_The_Reader)
{
    Start_Reading();
    m_phone.Hang_Up();
    ASSERT_TRUE(Serve_Until([&] { return !m_listener.m_reads.empty(); }));
    EXPECT_TRUE(No_Worker_Is_Left());
    EXPECT_EQ(m_listener.m_reads, Lines(""));
}

TEST_F(Serial_Port_Background, A_Reader_That_Is_Stopped_Ends_And_Leaves_The_Bytes)
{
    Start_Reading();
    m_port->stopReadInBackground();
    EXPECT_TRUE(No_Worker_Is_Left());
    m_phone.Says("later");
    EXPECT_EQ(m_port->readBytes(5), QByteArray("later"));
    EXPECT_TRUE(m_listener.m_reads.empty());
}

TEST_F(Serial_Port_Background, From_A_Write_To_The_End_Of_Its_Read_The_Reader_Leaves_Bytes_Alone)
{
    Start_Reading();
    ASSERT_TRUE(m_port->writeData("AT\r"));
    ASSERT_TRUE(Serve_Until([&] { return m_port->bytesAvailable() == static_cast<int>(m_answer.size()); }));
    Serve_For(Paced(8)); // the longest described wait: after the last part, after the message, and four skipped numbers
    EXPECT_TRUE(m_listener.m_reads.empty());
    EXPECT_EQ(m_port->readAndReturnError().toStdString(), m_answer);
    m_phone.Says("RING");
    EXPECT_TRUE(Hears("RING"));
}

TEST_F(Serial_Port_Background, An_Answer_That_No_Read_Follows_Goes_To_The_Reader_In_The_End)
{
    Start_Reading();
    Serve_For(0.05);
    const double written = Now_Seconds();
    ASSERT_TRUE(m_port->writeData("AT\r"));
    ASSERT_TRUE(Hears(m_answer));
    EXPECT_GE(Now_Seconds() - written, 1.0); // never sooner, however fast the pace
    m_phone.Says("RING");
    EXPECT_TRUE(Hears(m_answer + "RING"));
    // The next exchange has the line for itself again.
    ASSERT_TRUE(m_port->writeData("AT\r"));
    Serve_For(0.1);
    EXPECT_EQ(m_port->readAndReturnError().toStdString(), m_answer);
}

TEST_F(Serial_Port_Background, Told_That_No_Read_Follows_The_Reader_Has_The_Line_At_Once)
{
    Set_Pace(1);
    Start_Reading();
    Serve_For(0.05);
    ASSERT_TRUE(m_port->writeData("AT\r"));
    m_port->Await_No_Answer();
    EXPECT_TRUE(Hears(m_answer, 5));
}

TEST_F(Serial_Port_Background, While_An_Answer_Is_Awaited_The_Reader_Does_Not_Spin)
{
    ASSERT_TRUE(m_port->writeData("AT\r"));
    ASSERT_TRUE(Serve_Until([&] { return m_port->bytesAvailable() > 0; }));
    const int waits_before = m_calls.Waits();
    Start_Reading();
    Serve_For(0.1);
    EXPECT_LE(m_calls.Waits() - waits_before, 3); // each time it is woken it looks again
    EXPECT_EQ(m_port->numberOfReadInBackgroundThreads(), 1);
}

TEST_F(Serial_Port_Background, A_Write_That_Fails_Gives_The_Line_Back_To_The_Reader)
{
    Begin_Reading();
    Serve_For(0.05);
    m_calls.Will_Fail("write", EIO);
    EXPECT_FALSE(m_port->writeData("AT\r"));
    m_phone.Says("RING");
    EXPECT_TRUE(Hears("RING"));
}

TEST_F(Serial_Port_Background, A_Delegate_That_Has_Gone_Is_Not_Called)
{
    auto listener = std::make_unique<Listener>();
    m_port->setDelegate(listener.get());
    m_port->readDataInBackground();
    m_phone.Says("RING");
    Wait_Until_Posted(*m_port);
    listener.reset();
    Serve_For(0.05);
    EXPECT_EQ(Workers_Running(), 0);
}

TEST_F(Serial_Port_Background, Data_That_Was_Posted_Keeps_Its_Port_Alive)
{
    auto port = Open_Port(m_phone);
    const std::weak_ptr<KVSerialPort> watch = port;
    port->setDelegate(&m_listener);
    port->readDataInBackground();
    m_phone.Says("RING");
    Wait_Until_Posted(*port);
    port->close();
    port.reset();
    EXPECT_FALSE(watch.expired());
    EXPECT_TRUE(Serve_Until([&] { return watch.expired(); }));
    EXPECT_EQ(m_listener.Heard(), "RING");
}

TEST_F(Serial_Port_Background, A_Reader_Ends_When_The_Program_Exits)
{
    Start_Reading();
    Begin_Program_Exit();
    Finish_Workers();
    EXPECT_EQ(Workers_Running(), 0);
    Forget_Program_Exit();
}

TEST_F(Serial_Port_Background, Waiting_For_Input_Tells_The_Target_And_Takes_Nothing)
{
    QObject target;
    int told = 0;
    m_port->waitForInput(&target, [&] { ++told; });
    Serve_For(0.03);
    EXPECT_EQ(told, 0);
    m_phone.Says("input");
    ASSERT_TRUE(Serve_Until([&] { return told == 1; }));
    EXPECT_EQ(m_port->readBytes(5), QByteArray("input"));
    m_port->waitForInput(&target, [&] { ++told; });
    m_port->close();
    EXPECT_TRUE(No_Worker_Is_Left());
    EXPECT_EQ(told, 1);
}

TEST_F(Serial_Port_Background, A_Background_Write_Reports_Its_Start_And_Its_End_If_It_Is_A_Long_One)
{
    m_port->setDelegate(&m_listener);
    m_port->setSpeed(115200);
    m_port->writeDataInBackground("AT\r");
    EXPECT_TRUE(Serve_Until([&] { return m_phone.Heard_Bytes() == "AT\r"; }));
    EXPECT_TRUE(No_Writer_Is_Left());
    EXPECT_TRUE(m_listener.m_progress.empty());

    m_port->setSpeed(9600); // 20,000 bytes would take 16 seconds
    m_port->writeDataInBackground(QByteArray(20000, 'x'));
    ASSERT_TRUE(No_Writer_Is_Left());
    Serve_For(0.02);
    ASSERT_GE(m_listener.m_progress.size(), 2u);
    EXPECT_EQ(m_listener.m_progress.front(), std::make_pair(quint64(0), quint64(20000)));
    EXPECT_EQ(m_listener.m_progress.back(), std::make_pair(quint64(20000), quint64(20000)));
}

TEST_F(Serial_Port_Background, A_Background_Write_Can_Be_Stopped)
{
    m_calls.Will_Do("write", [&](void*) {
        m_port->stopWriteInBackground();
        return static_cast<int>(::write(m_port->fileDescriptor(), std::string(4096, 'x').data(), 4096));
    });
    m_port->writeDataInBackground(QByteArray(100000, 'x'));
    EXPECT_TRUE(No_Writer_Is_Left());
    EXPECT_LE(m_calls.Count("write"), 8); // one piece, in as many writes as the line had room for
}
