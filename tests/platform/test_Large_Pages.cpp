#include "platform/Large_Pages.h"

#include <gtest/gtest.h>
#include <numeric>

namespace {

constexpr std::size_t Many = std::size_t{5} << 20; // twenty megabytes of them

std::vector<int> Counted(std::size_t count)
{
    std::vector<int> list(count);
    std::iota(list.begin(), list.end(), 1);
    return list;
}

} // namespace

TEST(Large_Pages, Room_Is_Made_Once_For_Many_And_Seldom_One_By_One)
{
    std::vector<int> list = Counted(10);
    Make_Room_In(list, Many);
    const int* const begin = list.data();
    EXPECT_GE(list.capacity(), 10 + Many);
    EXPECT_EQ(list, Counted(10));
    list.resize(10 + Many);
    Make_Room_In(list, 0);
    EXPECT_EQ(list.data(), begin) << "it was not moved";

    int moves = 0;
    std::vector<int> grown;
    for (int value = 1; value <= 100'000; ++value) {
        const int* const before = grown.data();
        Make_Room_In(grown, 1);
        moves += grown.data() != before ? 1 : 0;
        grown.push_back(value);
    }
    EXPECT_EQ(grown, Counted(100'000));
    EXPECT_LE(moves, 20);
}
