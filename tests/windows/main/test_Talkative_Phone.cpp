#include "support/Log_Lines.h"
#include "windows/main/Sending_Test.h"

// What a phone says by itself between two messages in text mode, where an answer is awaited without a read.

namespace {

const QString Polish = QStringLiteral("Zażółć gęślą jaźń");
const QByteArray Last_Line("\r\n+CREG: 2,1,\"00C3\",\"BEEF\"\r\n");

QByteArray More_Than_A_Read_Takes()
{
    return QByteArray("\r\n+CREG: 2,1,\"00C3\",\"2B01\"\r\n").repeated(200) + Last_Line;
}

class Talkative_Phone_Test : public Sending_Test
{
protected:
    static Phone_Moods Only_Text()
    {
        Phone_Moods moods;
        moods.m_text_only = true;
        return moods;
    }

    Talkative_Phone_Test() : Sending_Test(Only_Text())
    {
        m_window.m_choices.unicode = true;
        Add(QStringLiteral("111"), Polish);
    }

    bool The_Reader_Has(const char* piece) const
    {
        for (const auto& line : m_log.All()) {
            if (line.rfind("serialPortReadData", 0) == 0 && line.find(piece) != std::string::npos)
                return true;
        }
        return false;
    }

    // On the job's thread, while it waits for nothing.
    void Wait_Until_The_Reader_Has_All()
    {
        double left = 10;
        for (; left > 0 && !The_Reader_Has("BEEF"); left -= 0.01)
            Wait_Seconds(0.01 * Pace());
        EXPECT_GT(left, 0) << "nobody took what the phone said";
    }

    void Expect_Both_Messages_Whole()
    {
        EXPECT_EQ(Received(), (QStringList{QStringLiteral("111: ") + Polish, QStringLiteral("222: ") + Polish}));
        for (const auto& message : m_phone.Inbox())
            EXPECT_EQ(message.m_alphabet, "UCS2");
    }

    Log_Lines m_log;
};

TEST_F(Talkative_Phone_Test, What_It_Says_In_A_Pause_Is_Logged_And_Spoils_No_Message)
{
    Add(QStringLiteral("222"), Polish);
    m_window.m_choices.delayed_delivery = true;
    m_window.m_choices.batch_size = QStringLiteral("1");
    m_window.m_choices.pause_choice = QStringLiteral("10 Seconds");
    m_progress.m_at_step = [this](const QString& step) {
        if (step != QStringLiteral("pause"))
            return;
        m_phone.Says(More_Than_A_Read_Takes().toStdString());
        Wait_Until_The_Reader_Has_All();
    };
    m_user.Will_Press("OK");
    Send();
    Expect_Both_Messages_Whole();
}

TEST_F(Talkative_Phone_Test, What_It_Says_During_Many_Skipped_Numbers_Is_Logged_And_Spoils_No_Message)
{
    constexpr int Skipped = 21;
    for (int number = 0; number < Skipped; ++number)
        Add(QStringLiteral("111"), Polish);
    Add(QStringLiteral("222"), Polish);
    m_window.m_choices.skip_duplicates = true;
    int skipped = 0;
    m_progress.m_at_step = [&](const QString& step) {
        if (step != QStringLiteral("111 is Skipped."))
            return;
        if (++skipped == 1)
            m_phone.Says(More_Than_A_Read_Takes().toStdString());
        if (skipped == Skipped)
            Wait_Until_The_Reader_Has_All();
    };
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(skipped, Skipped);
    Expect_Both_Messages_Whole();
}

TEST_F(Talkative_Phone_Test, An_Answer_That_Nobody_Has_Read_Yet_Is_Found_By_The_Next_Read)
{
    Add(QStringLiteral("111"), Polish); // skipped: a second more before the read
    Add(QStringLiteral("222"), Polish.repeated(5));
    Add(QStringLiteral("333"), Polish);
    m_window.m_choices.skip_duplicates = true;
    m_user.Will_Press("OK");
    Send();
    for (const char* answer : {"+CMGS: 0", "+CMGS: 1", "+CMGS: 2"}) { // the first, and both parts of the second
        EXPECT_NE(m_log.Joined().find(answer), std::string::npos) << answer;
        EXPECT_FALSE(The_Reader_Has(answer)) << answer;
    }
    EXPECT_EQ(m_phone.Inbox().size(), 4u);
}

} // namespace
