#include "support/Log_Lines.h"
#include "windows/main/Sending_Test.h"

// What a phone says by itself between two messages in text mode, where an answer is awaited without a read.

const QString Polish = "Zażółć gęślą jaźń";

class Talkative_Phone_Test : public Sending_Test
{
protected:
    Talkative_Phone_Test()
    {
        Put([](Phone_Moods& moods) { moods.m_text_only = true; });
        m_window.m_choices.unicode = m_window.m_choices.skip_duplicates = true;
        Add("111", Polish);
    }

    bool The_Reader_Has(const char* piece) const
    {
        for (const auto& line : m_log.All()) {
            if (line.rfind("serialPortReadData", 0) == 0 && line.find(piece) != std::string::npos)
                return true;
        }
        return false;
    }

    void Say_More_Than_A_Read_Takes()
    {
        m_phone.Says(QByteArray("\r\n+CREG: 2,1,\"00C3\",\"2B01\"\r\n").repeated(200).toStdString() +
                     "\r\n+CREG: 2,1,\"00C3\",\"BEEF\"\r\n");
    }

    // On the job's thread, while it waits for nothing.
    void Wait_Until_The_Reader_Has_All()
    {
        double left = 10;
        for (; left > 0 && !The_Reader_Has("BEEF"); left -= 0.01)
            Wait_Seconds(0.01 * Pace());
        EXPECT_GT(left, 0) << "nobody took what the phone said";
    }

    void Send_Both_And_Expect_Them_Whole()
    {
        Add("222", Polish);
        Send_And_Read({Completed});
        EXPECT_EQ(Received(), (QStringList{"111: " + Polish, "222: " + Polish}));
        for (const auto& message : m_phone.Inbox())
            EXPECT_EQ(message.m_alphabet, "UCS2");
    }

    Log_Lines m_log;
};

TEST_F(Talkative_Phone_Test, What_It_Says_In_A_Pause_Is_Logged_And_Spoils_No_Message)
{
    Pause_After_Each("1", "10 Seconds");
    At_Step("pause", [this] {
        Say_More_Than_A_Read_Takes();
        Wait_Until_The_Reader_Has_All();
    });
    Send_Both_And_Expect_Them_Whole();
}

TEST_F(Talkative_Phone_Test, What_It_Says_During_Many_Skipped_Numbers_Is_Logged_And_Spoils_No_Message)
{
    constexpr int Skipped = 21;
    Add_Each(QStringList(Skipped, "111"), Polish);
    int skipped = 0;
    At_Step("111 is Skipped.", [&] {
        if (++skipped == 1)
            Say_More_Than_A_Read_Takes();
        if (skipped == Skipped)
            Wait_Until_The_Reader_Has_All();
    });
    Send_Both_And_Expect_Them_Whole();
    EXPECT_EQ(skipped, Skipped);
}

TEST_F(Talkative_Phone_Test, An_Answer_That_Nobody_Has_Read_Yet_Is_Found_By_The_Next_Read)
{
    Add("111", Polish); // skipped: a second more before the read
    Add("222", Polish.repeated(5));
    Add("333", Polish);
    Send_And_Read({Completed});
    for (const char* answer : {"+CMGS: 0", "+CMGS: 1", "+CMGS: 2"}) { // the first, and both parts of the second
        EXPECT_NE(m_log.Joined().find(answer), std::string::npos) << answer;
        EXPECT_FALSE(The_Reader_Has(answer)) << answer;
    }
    EXPECT_EQ(m_phone.Inbox().size(), 4u);
}
