#include "windows/main/Sending_Test.h"

namespace {

using Send_Waits = Sending_Test;

struct Expected_Write
{
    const char* beginning;
    double seconds_since_last;
};

// The fixed waits in real time: a read lasts its whole time-out, a second while preparing and five while sending.
TEST_F(Send_Waits, One_Message_At_Pace_One_Takes_Exactly_The_Described_Waits)
{
    Set_Pace(1);
    Add("111");
    double sent = 0;
    double own_sent = 0;
    m_progress.m_at_step = [&](const QString& step) {
        if (step != "timer off" || sent != 0)
            return;
        sent = Now_Seconds();
        own_sent = Own_Seconds() - m_calls.Patience();
    };
    Send_And_Read({Completed});
    const Expected_Write expected[] = {{"AT\r\n", 0},        {"AT\r\n", 1},        {"AT+CMGF=?", 1}, {"AT\r\n", 1},
                                       {"AT+CSMS=0\r\n", 1}, {"AT+CMGF=0\r\n", 1}, {"AT+CMGS=", 1},  {"00", 5},
                                       {"\x1A", 0}};
    const auto writes = m_calls.Writes();
    ASSERT_EQ(writes.size(), std::size(expected));
    constexpr double Late_At_Most = 0.9;
    EXPECT_TRUE(writes[0].bytes.startsWith(expected[0].beginning));
    for (std::size_t write = 1; write < writes.size(); ++write) {
        SCOPED_TRACE(write);
        const double at_least = expected[write].seconds_since_last;
        EXPECT_TRUE(writes[write].bytes.startsWith(expected[write].beginning));
        EXPECT_GE(writes[write].seconds - writes[write - 1].seconds, at_least);
        EXPECT_LT(writes[write].own_seconds - writes[write - 1].own_seconds, at_least + Late_At_Most);
    }
    EXPECT_GE(sent - writes.back().seconds, 7.0);
    EXPECT_LT(own_sent - writes.back().own_seconds, 7.0 + Late_At_Most);
    EXPECT_EQ(Received(), QStringList{"111: Hello"});
}

TEST_F(Send_Waits, A_Skipped_Item_Takes_One_Second)
{
    Set_Pace(10);
    Add_Each(QStringList(4, "111"));
    Exclude("111");
    m_window.m_choices.exclusion = true;
    double begin = 0;
    double end = 0;
    m_progress.m_at_step = [&](const QString& step) {
        if (step == "sending")
            begin = Now_Seconds();
        else if (step == "timer off" && end == 0)
            end = Now_Seconds();
    };
    Send_And_Read({Completed});
    EXPECT_GE(end - begin, 0.4);
    EXPECT_LT(end - begin, 1.5);
    EXPECT_EQ(Received(), QStringList());
}

} // namespace
