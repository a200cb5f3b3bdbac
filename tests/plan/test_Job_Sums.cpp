#include "plan/Job_Sums.h"

#include "plan/Chosen_Manner.h"
#include "platform/Pace.h"

#include <gtest/gtest.h>

namespace {

// Four recipients: one message of two parts, a number that comes twice, and one that no frame can carry.
class Job_Sums_Test : public testing::Test
{
protected:
    Job_Sums_Test()
    {
        Add("00447700900100", QString(200, u'a'));
        Add("0171", "Hello");
        Add("0171", "Hello");
        Add("A1", "Hello");
    }

    void Add(const QString& number, const QString& message) { m_order.recipients.Append(number, message); }
    Plan_Manner Manner() const { return Manner_Of(m_order.choices); }
    Job_Sums Sums() const { return Sums_Of(Plan_Of(m_order, Manner())); }
    QString Verdict(int index) const { return Plan_Of(m_order, Manner()).At(index).skipped; }

    Send_Order m_order;
};

} // namespace

TEST_F(Job_Sums_Test, Fixed_Waits_Try_Everybody_Who_Is_Not_Left_Out)
{
    EXPECT_EQ(Sums(), (Job_Sums{4, 5, 0}));
    m_order.choices.skip_duplicates = true;
    EXPECT_EQ(Sums(), (Job_Sums{3, 4, 1}));
    EXPECT_EQ(Verdict(2), "duplicate");
    m_order.choices.exclusion = true;
    m_order.exclusions.Append(QStringLiteral("00447700900100"));
    EXPECT_EQ(Sums(), (Job_Sums{2, 2, 2}));
    EXPECT_EQ(Verdict(0), "excluded");
}

TEST_F(Job_Sums_Test, A_Confirmed_Job_Leaves_Out_What_No_Frame_Can_Carry)
{
    m_order.choices.confirm.confirms = true;
    EXPECT_EQ(Sums(), (Job_Sums{3, 4, 1}));
    EXPECT_EQ(Verdict(3), "invalid-number");
}

TEST_F(Job_Sums_Test, Unicode_Makes_More_Parts)
{
    m_order.choices.unicode = true;
    EXPECT_EQ(Sums(), (Job_Sums{4, 7, 0}));
}

TEST_F(Job_Sums_Test, A_Count_That_Is_Stopped_Ends_At_Once)
{
    EXPECT_EQ(Sums_Of(Plan_Of(m_order, Manner(), [] { return true; })), Job_Sums());
}

TEST_F(Job_Sums_Test, Pauses_Lie_Between_The_Batches_And_Each_One_Left_Out_Costs_A_Second_Of_Fixed_Waits)
{
    m_order.choices.delayed_delivery = true;
    m_order.choices.batch_size = "2";
    m_order.choices.pause_choice = " 2  Minutes";
    EXPECT_EQ(Seconds_For({4, 5, 0}, Manner(), 12), 5 * 12 + 120);
    EXPECT_EQ(Seconds_For({5, 5, 3}, Manner(), 12), 5 * 12 + 240 + 3);
    m_order.choices.confirm.confirms = true;
    EXPECT_EQ(Seconds_For({5, 5, 3}, Manner(), 4), 5 * 4 + 240);
    Set_Pace(10);
    EXPECT_EQ(Seconds_For({5, 5, 3}, Manner(), 4), 5 * 4 + 24);
    Set_Pace(1);
}

TEST(One_Phone, Is_Asked_Much_By_More_Than_A_Thousand_Parts_Or_Four_Hours)
{
    EXPECT_FALSE(Is_Much_For_One_Phone({1000, 1000, 0}, 4 * 3600));
    EXPECT_TRUE(Is_Much_For_One_Phone({500, 1001, 0}, 3600));
    EXPECT_TRUE(Is_Much_For_One_Phone({10, 10, 0}, 4 * 3600 + 1));
}
