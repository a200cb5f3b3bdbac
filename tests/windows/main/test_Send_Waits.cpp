#include "windows/main/Sending_Test.h"

namespace {

struct Expected_Write
{
    const char* beginning;
    double seconds_since_last;
};

// The fixed waits in real time: a read lasts its whole time-out, a second while preparing and five while sending.
TEST_F(Sending_Test, One_Message_At_Pace_One_Takes_Exactly_The_Described_Waits)
{
    Set_Pace(1);
    Add(QStringLiteral("111"));
    double sent = 0;
    double own_sent = 0;
    m_progress.m_at_step = [&](const QString& step) {
        if (step != QStringLiteral("timer off") || sent != 0)
            return;
        sent = Now_Seconds();
        own_sent = Own_Seconds() - m_calls.Patience();
    };
    m_user.Will_Press("OK");
    Send();
    const Expected_Write expected[] = {{"AT\r\n", 0},        {"AT\r\n", 1},        {"AT+CMGF=?", 1}, {"AT\r\n", 1},
                                       {"AT+CSMS=0\r\n", 1}, {"AT+CMGF=0\r\n", 1}, {"AT+CMGS=", 1},  {"00", 5},
                                       {"\x1A", 0}};
    const auto writes = m_calls.Writes();
    ASSERT_EQ(writes.size(), std::size(expected));
    constexpr double Late_At_Most = 0.9;
    for (std::size_t write = 0; write < writes.size(); ++write) {
        EXPECT_TRUE(writes[write].bytes.startsWith(expected[write].beginning)) << write;
        if (write == 0)
            continue;
        const double waited = writes[write].seconds - writes[write - 1].seconds;
        EXPECT_GE(waited, expected[write].seconds_since_last) << write;
        EXPECT_LT(writes[write].own_seconds - writes[write - 1].own_seconds,
                  expected[write].seconds_since_last + Late_At_Most)
            << write;
    }
    EXPECT_GE(sent - writes.back().seconds, 7.0);
    EXPECT_LT(own_sent - writes.back().own_seconds, 7.0 + Late_At_Most);
    EXPECT_EQ(Received(), QStringList{"111: Hello"});
}

TEST_F(Sending_Test, A_Skipped_Item_Takes_One_Second)
{
    Set_Pace(10);
    for (int item = 0; item < 4; ++item)
        Add(QStringLiteral("111"));
    Exclude(QStringLiteral("111"));
    m_window.m_choices.exclusion = true;
    double begin = 0;
    double end = 0;
    m_progress.m_at_step = [&](const QString& step) {
        if (step == QStringLiteral("sending"))
            begin = Now_Seconds();
        else if (step == QStringLiteral("timer off") && end == 0)
            end = Now_Seconds();
    };
    m_user.Will_Press("OK");
    Send();
    EXPECT_GE(end - begin, 0.4);
    EXPECT_LT(end - begin, 1.5);
}

} // namespace
