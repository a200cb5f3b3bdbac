#include "device/Chosen_Device.h"
#include "windows/main/Sending_Test.h"

#include "platform/System_Log.h"

#include <QTemporaryFile>
#include <gmock/gmock.h>
#include <mutex>
#include <stdexcept>

namespace {

const QString Does_Not_Open =
    QStringLiteral("\n\nSelected device is not working properly. Please use Mobile Phone Connection Wizard for finding "
                   "device or establishing connection.");

class Send_Failure_Test : public Sending_Test
{
protected:
    explicit Send_Failure_Test(const Phone_Moods& moods = {}) : Sending_Test(moods)
    {
        for (const char* number : {"111", "222", "333", "444", "555"})
            Add(QLatin1String(number));
    }

    void Have(void (*change)(Phone_Moods&))
    {
        auto moods = m_phone.Moods();
        change(moods);
        m_phone.Set_Moods(moods);
    }

    /// Something happens before the k-th write that begins so.
    void Before_Write(const QByteArray& beginning, int which, const std::function<void()>& happens)
    {
        auto seen = std::make_shared<int>(0);
        m_calls.m_before_write = [=](const QByteArray& bytes) {
            if (bytes.startsWith(beginning) && ++*seen == which)
                happens();
        };
    }

    std::function<void()> The_Phone_Vanishes()
    {
        return [this] { m_phone.Hang_Up(); };
    }
};

[[noreturn]] void Raise()
{
    throw std::runtime_error("the line broke");
}

TEST_F(Send_Failure_Test, A_Device_That_Does_Not_Open_Is_Told_Of_Before_Anything_Is_Shown)
{
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    const QString paths[] = {QStringLiteral("/dev/no-such-device"), QStringLiteral("/dev/null"), QStringLiteral("/"),
                             file.fileName()};
    for (const QString& path : paths) {
        sel_port_bsd_str = path;
        m_user.Will_Press("OK");
        Send();
        EXPECT_EQ(m_user.Was_Shown().takeLast(), Does_Not_Open) << path.toStdString();
    }
    EXPECT_FALSE(m_progress.Steps().contains(QStringLiteral("preparing 5")));
}

TEST_F(Send_Failure_Test, A_Silent_Device_Can_Not_Be_Initialized)
{
    Have([](Phone_Moods& moods) { moods.m_silent = true; });
    m_user.Will_Handle([this](QMessageBox& box) {
        EXPECT_TRUE(Progress_Window().isVisible());
        box.accept();
    });
    Send();
    EXPECT_EQ(m_user.Was_Shown(), QStringList{No_Modem});
    EXPECT_EQ(m_progress.Steps(), (QStringList{"preparing 5", "timer on", "timer off", "end"}));
}

TEST_F(Send_Failure_Test, A_Device_That_Only_Echoes_Passes_The_Check_But_Has_No_Mode)
{
    Have([](Phone_Moods& moods) { moods.m_echo_only = true; });
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(m_user.Was_Shown(), QStringList{No_Modem});
    EXPECT_EQ(m_progress.Steps(),
              (QStringList{"preparing 5", "timer on", "sending", "timer off", "end", "timer off", "end"}));
}

TEST_F(Send_Failure_Test, A_Device_Without_A_Usable_Mode_Is_Sent_Nothing)
{
    m_phone.Will_Answer("AT+CMGF=?", "\r\nERROR\r\n");
    m_user.Will_Handle([this](QMessageBox& box) {
        EXPECT_TRUE(Progress_Window().isVisible());
        box.accept();
    });
    Send();
    EXPECT_EQ(m_user.Was_Shown(), QStringList{No_Modem});
    EXPECT_EQ(m_phone.Heard(), Lines("AT", "AT", "AT+CMGF=?"));
}

TEST_F(Send_Failure_Test, A_Preparation_That_The_Device_Refuses_Does_Not_End_The_Job)
{
    m_phone.Will_Answer("AT+CSMS=0", "\r\nERROR\r\n");
    m_phone.Will_Answer("AT+CMGF=?", "\r\n+CMGF: (0)\r\n\r\nOK\r\n");
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Completed});
}

TEST_F(Send_Failure_Test, A_Failure_On_The_Third_Of_Five_Leaves_Two_Sent_And_No_Completion_Message)
{
    Have([](Phone_Moods& moods) { moods.m_hang_up_at = 3; });
    m_user.Will_Handle([this](QMessageBox& box) {
        EXPECT_TRUE(Progress_Window().isVisible());
        box.accept();
    });
    Send();
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Connection_Error});
    EXPECT_EQ(Received(), (QStringList{"111: Hello", "222: Hello"}));
    EXPECT_FALSE(m_progress.Steps().contains(QStringLiteral("4 / 5 444")));
}

TEST_F(Send_Failure_Test, A_Device_That_Vanishes_Before_The_Check_Can_Not_Be_Initialized)
{
    m_progress.m_at_step = [this](const QString& step) {
        if (step == QStringLiteral("timer on"))
            m_phone.Hang_Up();
    };
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(m_user.Was_Shown(), QStringList{No_Modem});
}

TEST_F(Send_Failure_Test, A_Device_That_Vanishes_During_The_Check_Can_Not_Be_Initialized)
{
    Before_Write("AT\r\n", 1, The_Phone_Vanishes());
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(m_user.Was_Shown(), QStringList{No_Modem});
}

TEST_F(Send_Failure_Test, A_Device_That_Vanishes_When_Asked_For_Its_Modes_Has_None)
{
    Before_Write("AT+CMGF=?", 1, The_Phone_Vanishes());
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(m_user.Was_Shown(), QStringList{No_Modem});
}

TEST_F(Send_Failure_Test, A_Device_That_Vanishes_While_It_Is_Prepared_Fails_At_The_First_Message)
{
    Before_Write("AT+CSMS=0", 1, The_Phone_Vanishes());
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Connection_Error});
    EXPECT_TRUE(m_progress.Steps().contains(QStringLiteral("1 / 5 111")));
}

TEST_F(Send_Failure_Test, A_Device_That_Vanishes_Before_Its_First_Message_Is_A_Connection_Error)
{
    Before_Write("AT+CMGS=", 1, The_Phone_Vanishes());
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Connection_Error});
}

TEST_F(Send_Failure_Test, A_Device_That_Vanishes_At_The_Terminator_Is_A_Connection_Error)
{
    Before_Write("\x1A", 2, The_Phone_Vanishes());
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Connection_Error});
    EXPECT_EQ(Received(), QStringList{"111: Hello"});
}

TEST_F(Send_Failure_Test, A_Device_That_Vanishes_In_Mid_Pdu_Is_A_Connection_Error)
{
    Have([](Phone_Moods& moods) { moods.m_hang_up_in_body_at = 2; });
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Connection_Error});
    EXPECT_EQ(Received(), QStringList{"111: Hello"});
}

TEST_F(Send_Failure_Test, A_Device_That_Vanishes_In_Text_Mode_Is_A_Connection_Error_As_Well)
{
    Have([](Phone_Moods& moods) {
        moods.m_text_only = true;
        moods.m_hang_up_at = 2;
    });
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Connection_Error});
    EXPECT_EQ(Received(), QStringList{"111: Hello"});
}

TEST_F(Send_Failure_Test, A_Device_That_Stops_Reading_Ends_The_Job)
{
    Have([](Phone_Moods& moods) { moods.m_stop_reading_at = 2; });
    m_window.m_recipients.Clear();
    for (int item = 0; item < 40; ++item)
        Add(QStringLiteral("111"), QString(1000, u'a'));
    Set_Pace(200);
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Connection_Error});
}

TEST_F(Send_Failure_Test, An_Exception_In_Pdu_Mode_Leaves_The_Loop_Without_An_Error)
{
    Before_Write("AT+CMGS=", 2, Raise);
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), QStringList{"111: Hello"});
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Completed});
    EXPECT_FALSE(m_progress.Steps().contains(QStringLiteral("3 / 5 333")));
}

TEST_F(Send_Failure_Test, An_Exception_In_Text_Mode_Counts_As_Handled)
{
    Have([](Phone_Moods& moods) { moods.m_text_only = true; });
    Before_Write("AT+CMGS=", 2, Raise);
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), (QStringList{"111: Hello", "333: Hello", "444: Hello", "555: Hello"}));
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Completed});
}

TEST_F(Send_Failure_Test, An_Exception_Outside_A_Submission_Is_Told_And_Leaves_Everything_Tidy)
{
    std::mutex lock;
    QStringList lines;
    Set_Log_Listener([&](const QString& line) {
        const std::lock_guard guard(lock);
        lines.append(line);
    });
    for (const char* command : {"AT\r\n", "AT+CMGF=?", "AT+CSMS=0"}) {
        Before_Write(command, 1, Raise);
        m_user.Will_Press("OK");
        Send();
    }
    Set_Log_Listener({});
    EXPECT_EQ(lines.count(QStringLiteral("The send job ended early: the line broke")), 3);
    EXPECT_EQ(m_user.Was_Shown(),
              QStringList(3, QStringLiteral("\nSending has ended early because of an unexpected error. The sent items "
                                            "show which messages were sent.")));
}

} // namespace
