#include "plan/Time_Left.h"

#include <gtest/gtest.h>

namespace {

using End = Time_Left::Row_End;

// A job with fixed waits that pauses for 100 seconds after every two messages, at moments that the test gives.
class Time_Left_Test : public testing::Test
{
protected:
    static Plan_Manner Manner()
    {
        Plan_Manner manner;
        manner.fixed_waits = true;
        manner.batch = 2;
        manner.pause_seconds = 100;
        return manner;
    }

    /// A row that begins and ends at these moments.
    void Row(int parts, double begin, double end, End how = End::Tried)
    {
        m_time_left.Row_Begins(parts, begin);
        m_time_left.Row_Ends(how, end);
    }
    double Left(double now) const { return m_time_left.At(now).value_or(Time_Left::Answer{-1}).seconds; }

    Time_Left m_time_left{Manner()};
};

} // namespace

TEST_F(Time_Left_Test, Nothing_Is_Said_Before_A_Message_Was_Tried_Or_The_Rest_Is_Known_And_After_The_Last)
{
    EXPECT_EQ(Left(0), -1);
    m_time_left.Take_Sums({2, 2, 0});
    EXPECT_EQ(Left(0), -1);
    Row(1, 0, 10);
    EXPECT_EQ(Left(10), 10);
    Row(1, 10, 20);
    EXPECT_EQ(Left(20), -1);

    Time_Left unknown(Manner());
    unknown.Row_Begins(1, 0);
    unknown.Row_Ends(End::Tried, 10);
    EXPECT_EQ(unknown.At(10), std::nullopt);
}

TEST_F(Time_Left_Test, It_Shrinks_With_The_Time_During_A_Message_And_No_Further_Than_That_Is_Counted_With)
{
    m_time_left.Take_Sums({2, 3, 0});
    Row(1, 0, 10);
    m_time_left.Row_Begins(2, 10);
    EXPECT_EQ(Left(10), 20);
    EXPECT_EQ(Left(15), 15);
    EXPECT_EQ(Left(100), 0);
}

TEST_F(Time_Left_Test, Pauses_That_Are_To_Come_Count_And_The_Present_One_By_What_Is_Left_Of_It)
{
    m_time_left.Take_Sums({5, 5, 0});
    Row(1, 0, 10);
    EXPECT_EQ(Left(10), 4 * 10 + 2 * 100);
    Row(1, 10, 20);
    m_time_left.Pause_Begins(20);
    EXPECT_EQ(Left(20), 3 * 10 + 2 * 100);
    EXPECT_EQ(Left(90), 3 * 10 + 100 + 30);
    m_time_left.Pause_Ends();
    EXPECT_EQ(Left(120), 3 * 10 + 100);
}

TEST_F(Time_Left_Test, A_Hold_Is_Told_And_Counts_Neither_As_Work_Nor_For_The_Pace)
{
    m_time_left.Take_Sums({2, 2, 0});
    m_time_left.Row_Begins(1, 0);
    m_time_left.Hold_Begins(4);
    m_time_left.Hold_Ends(1004);
    EXPECT_EQ(m_time_left.Row_Ends(End::Tried, 1010), 10);
    EXPECT_EQ(Left(1010), 10);
    m_time_left.Row_Begins(1, 1010);
    m_time_left.Hold_Begins(1013);
    const auto held = m_time_left.At(2000);
    EXPECT_TRUE(held && held->is_held);
    EXPECT_EQ(held->seconds, 7);
    m_time_left.Hold_Ends(2000);
    EXPECT_FALSE(m_time_left.At(2000)->is_held);
    EXPECT_EQ(Left(2002), 5);
}

TEST_F(Time_Left_Test, Who_Is_Left_Out_Or_Was_Settled_Before_Is_No_Measure)
{
    m_time_left.Take_Sums({3, 3, 2});
    Row(1, 0, 0.001, End::Settled);
    Row(1, 1, 2, End::Left_Out);
    EXPECT_EQ(Left(2), -1);
    Row(1, 2, 12);
    EXPECT_EQ(Left(12), 10 + 1);
}
