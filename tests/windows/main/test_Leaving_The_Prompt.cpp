#include "windows/main/Sending_Test.h"

// The program is left in the middle of a message: the phone must not go on waiting for the rest of it.

namespace {

constexpr char Escape = '\x1B';

struct Way
{
    const char* name;
    bool text_mode;
    bool unicode;
    const char* body; // how it begins on the line
};

class Leaving_The_Prompt : public Sending_Test, public testing::WithParamInterface<Way>
{
protected:
    Leaving_The_Prompt() { Add_Each({"111", "222"}); }

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
        Send_And_Read({Completed});
        EXPECT_EQ(Received(), (QStringList{"111: Hello", "222: Hello"}));
    }

    void Leave_And_Come_Back(const char* after, bool is_message_out)
    {
        SCOPED_TRACE(after);
        m_phone.Forget();
        Leave_After(after);
        EXPECT_TRUE(Serve_Until([&] { return m_phone.Inbox().size() == (is_message_out ? 1U : 0U); }));
        const QByteArray last = m_calls.Writes().back().bytes;
        EXPECT_EQ(last == QByteArray(1, Escape), !is_message_out) << last.toStdString();
        Expect_That_The_Next_Start_Sends();
        m_calls.Forget_Writes();
    }
};

TEST_P(Leaving_The_Prompt, The_Message_Is_Called_Off_Unless_It_Is_Out)
{
    Put([](Phone_Moods& moods) { moods.m_text_only = GetParam().text_mode; });
    m_window.m_choices.unicode = GetParam().unicode;
    Leave_And_Come_Back("AT+CMGS", false);
    Leave_And_Come_Back(GetParam().body, false);
    Leave_And_Come_Back("\x1A", true);
}

INSTANTIATE_TEST_SUITE_P(In, Leaving_The_Prompt,
                         testing::Values(Way{"PDU_Mode", false, false, "00"}, Way{"Text_Mode", true, false, "Hello"},
                                         Way{"Text_Mode_And_Unicode", true, true, "0048"}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(Leaving_The_Prompt, A_Prompt_That_Comes_Late_Is_Called_Off_As_Well)
{
    Put([](Phone_Moods& moods) { moods.m_late_prompt_ms = 300; });
    Leave_After("AT+CMGS");
    m_phone.Set_Moods({});
    Expect_That_The_Next_Start_Sends();
}

TEST_F(Leaving_The_Prompt, A_Phone_That_Takes_Nothing_Does_Not_Hold_The_Way_Out)
{
    Put([](Phone_Moods& moods) { moods.m_stop_reading_at = 1; });
    const double begin = Now_Seconds();
    Leave_After("AT+CMGS");
    EXPECT_LT(Now_Seconds() - begin, 10);
}

// Only the way out calls a message off: a job says what it has always said.
TEST_F(Leaving_The_Prompt, A_Stopped_Or_Broken_Job_Writes_Nothing_More)
{
    m_window.m_recipients.Clear();
    Add("111", QString(300, u'a'));
    Add("222");
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
    Send_And_Read({Connection_Error});
    for (const auto& write : m_calls.Writes())
        EXPECT_FALSE(write.bytes.contains(Escape));
}

} // namespace
