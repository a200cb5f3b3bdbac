#include "device/Stop_Flag.h"
#include "windows/main/Sending_Test.h"

// The program is left in the middle of a message: the phone must not go on waiting for the rest of it.

namespace {

constexpr char Escape = '\x1B';

struct Moment
{
    const char* after; // the write that is the last
    bool is_over;      // whether the message has gone out by then
};

class Leaving_The_Prompt : public Sending_Test
{
protected:
    void Leave_After(const char* write)
    {
        m_calls.m_after_write = [write](const QByteArray& bytes) {
            if (!bytes.startsWith(write))
                return;
            Begin_Program_Exit();
            Stop_SMS_Sending_Now = 1;
        };
        m_runner.Send_SMS_Btn();
        ASSERT_TRUE(Serve_Until([] { return Program_Is_Exiting(); }));
        Finish_Workers();
        Expect_Everything_Tidy();
        m_calls.m_after_write = nullptr;
    }

    // What a second start does, with the phone as the first has left it.
    void Expect_That_The_Next_Start_Sends()
    {
        Forget_Program_Exit();
        Stop_SMS_Sending_Now = 0;
        m_phone.Forget();
        m_user.Will_Press("OK");
        Send();
        EXPECT_EQ(m_user.Was_Shown().last(), Completed);
        EXPECT_EQ(Received(), (QStringList{"111: Hello", "222: Hello"}));
    }

    void Leave_And_Come_Back(const Moment& moment)
    {
        SCOPED_TRACE(moment.after);
        m_phone.Forget();
        Leave_After(moment.after);
        EXPECT_TRUE(Serve_Until([&] { return m_phone.Inbox().size() == (moment.is_over ? 1U : 0U); }));
        const QByteArray last = m_calls.Writes().back().bytes;
        EXPECT_EQ(last == QByteArray(1, Escape), !moment.is_over) << last.toStdString();
        Expect_That_The_Next_Start_Sends();
        m_calls.Forget_Writes();
    }
};

TEST_F(Leaving_The_Prompt, In_PDU_Mode_The_Message_Is_Called_Off)
{
    Add(QStringLiteral("111"));
    Add(QStringLiteral("222"));
    constexpr Moment moments[] = {{"AT+CMGS", false}, {"00", false}, {"\x1A", true}};
    for (const Moment& moment : moments)
        Leave_And_Come_Back(moment);
}

TEST_F(Leaving_The_Prompt, In_Text_Mode_The_Message_Is_Called_Off)
{
    Phone_Moods moods;
    moods.m_text_only = true;
    m_phone.Set_Moods(moods);
    Add(QStringLiteral("111"));
    Add(QStringLiteral("222"));
    for (const bool unicode : {false, true}) {
        m_window.m_choices.unicode = unicode;
        const Moment moments[] = {{"AT+CMGS", false}, {unicode ? "0048" : "Hello", false}, {"\x1A", true}};
        for (const Moment& moment : moments)
            Leave_And_Come_Back(moment);
    }
}

TEST_F(Leaving_The_Prompt, A_Prompt_That_Comes_Late_Is_Called_Off_As_Well)
{
    Phone_Moods moods;
    moods.m_late_prompt_ms = 300;
    m_phone.Set_Moods(moods);
    Add(QStringLiteral("111"));
    Add(QStringLiteral("222"));
    Leave_After("AT+CMGS");
    m_phone.Set_Moods({});
    Expect_That_The_Next_Start_Sends();
}

TEST_F(Leaving_The_Prompt, A_Phone_That_Takes_Nothing_Does_Not_Hold_The_Way_Out)
{
    Phone_Moods moods;
    moods.m_stop_reading_at = 1;
    m_phone.Set_Moods(moods);
    Add(QStringLiteral("111"));
    const double begin = Now_Seconds();
    Leave_After("AT+CMGS");
    EXPECT_LT(Now_Seconds() - begin, 10);
}

// Only the way out calls a message off: a job says what it has always said.
TEST_F(Leaving_The_Prompt, A_Stopped_Or_Broken_Job_Writes_Nothing_More)
{
    Add(QStringLiteral("111"), QString(300, u'a'));
    Add(QStringLiteral("222"));
    m_calls.m_after_write = [](const QByteArray& bytes) {
        if (bytes.startsWith("AT+CMGS"))
            Stop_SMS_Sending_Now = 1;
    };
    Send();
    EXPECT_EQ(m_calls.Writes().back().bytes, QByteArray("\x1A\r\n"));
    m_calls.Forget_Writes();
    m_calls.m_after_write = [this](const QByteArray& bytes) {
        if (bytes.startsWith("AT+CMGS"))
            m_phone.Hang_Up();
    };
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Connection_Error});
    for (const auto& write : m_calls.Writes())
        EXPECT_FALSE(write.bytes.contains(Escape));
}

} // namespace
