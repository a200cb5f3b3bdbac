#include "phone/Answer_Queue.h"

#include <gtest/gtest.h>

using namespace Handset;
using namespace std::chrono_literals;

namespace {

const Answer_Queue::Clock::time_point Start{};

} // namespace

TEST(Answer_Queue, What_Has_No_Delay_Is_Due_At_Once)
{
    Answer_Queue queue;
    queue.Put({"OK", 0}, Start);
    EXPECT_EQ(queue.Due(Start), "OK");
    queue.Went_Out(1);
    EXPECT_EQ(queue.Due(Start), "K");
    queue.Went_Out(1);
    EXPECT_TRUE(queue.Is_Empty());
    EXPECT_EQ(queue.Due(Start), "");
    EXPECT_FALSE(queue.Next_Moment());
}

TEST(Answer_Queue, Nothing_Overtakes_A_Late_Answer)
{
    Answer_Queue queue;
    queue.Put({"late", 50}, Start);
    queue.Put({"next", 0}, Start);
    EXPECT_EQ(queue.Due(Start + 49ms), "");
    EXPECT_EQ(queue.Next_Moment(), Start + 50ms);
    EXPECT_EQ(queue.Due(Start + 50ms), "late");
    queue.Went_Out(4);
    EXPECT_EQ(queue.Next_Moment(), Start + 50ms);
    EXPECT_EQ(queue.Due(Start + 50ms), "next");
}

TEST(Answer_Queue, Split_Bytes_Go_One_By_One_Apart_From_Each_Other)
{
    Answer_Queue queue;
    queue.Put_Split({"OK", 0}, Start);
    EXPECT_EQ(queue.Due(Start), "");
    EXPECT_EQ(queue.Due(Start + 1ms), "O");
    queue.Went_Out(1);
    EXPECT_GT(queue.Next_Moment(), Start + 100us);
    EXPECT_EQ(queue.Due(Start + 1ms), "K");
}

TEST(Answer_Queue, What_Does_Not_Fit_Is_Lost)
{
    Answer_Queue queue;
    for (int i = 0; i < 1000; ++i)
        queue.Put({std::string(1024, 'x'), 0}, Start);
    std::size_t held = 0;
    for (auto due = queue.Due(Start); !due.empty(); due = queue.Due(Start)) {
        held += due.size();
        queue.Went_Out(due.size());
    }
    EXPECT_EQ(held, 256u * 1024u);
}

TEST(Answer_Queue, Clearing_Drops_Everything)
{
    Answer_Queue queue;
    queue.Put({"OK", 50}, Start);
    queue.Clear();
    EXPECT_TRUE(queue.Is_Empty());
    EXPECT_FALSE(queue.Next_Moment());
}
