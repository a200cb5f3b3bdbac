#include "list/Message_List.h"

#include <QRandomGenerator>
#include <QStringList>
#include <gtest/gtest.h>
#include <malloc.h>
#include <numeric>

namespace {

void Expect_The_Same(const Message_List& list, const QStringList& plain)
{
    for (int row = 0; row < plain.size(); ++row)
        ASSERT_EQ(list.At(row), plain.at(row)) << row;
    EXPECT_THROW(static_cast<void>(list.At(static_cast<int>(plain.size()))), std::out_of_range);
}

} // namespace

TEST(Message_List, It_Agrees_With_A_Plain_List_Whatever_Is_Done_To_It)
{
    QRandomGenerator random(20261123);
    Message_List list;
    QStringList plain;
    for (int step = 0; step < 5000; ++step) {
        const QString message = QString::number(random.bounded(4));
        const int what = random.bounded(100);
        if (what < 45) {
            const int count = 1 + random.bounded(3);
            list.Append(message, static_cast<std::size_t>(count));
            plain += QStringList(count, message);
        } else if (what < 90 && !plain.isEmpty()) {
            const int row = random.bounded(static_cast<int>(plain.size()));
            list.Replace(row, message);
            plain[row] = message;
        } else if (what < 94 && plain.size() > 2) {
            list.Remove_Last(2);
            plain.remove(plain.size() - 2, 2);
        } else {
            std::vector<int> rows;
            for (int row = random.bounded(3); row < plain.size(); row += 1 + random.bounded(5))
                rows.push_back(row);
            list.Remove_Rows(rows);
            for (auto row = rows.rbegin(); row != rows.rend(); ++row)
                plain.removeAt(*row);
        }
        Expect_The_Same(list, plain);
        ASSERT_FALSE(testing::Test::HasFailure()) << "step " << step;
    }
}

TEST(Message_List, Rows_That_Get_The_Same_Message_One_After_The_Other_Share_It)
{
    Message_List list;
    list.Append("to all", 2);
    list.Append("to all", 1);
    list.Append("to one", 1);
    EXPECT_EQ(&list.At(0), &list.At(1));
    EXPECT_EQ(&list.At(0), &list.At(2));
    list.Replace(1, "to another");
    list.Replace(2, "to another");
    EXPECT_EQ(&list.At(1), &list.At(2));
    EXPECT_EQ(list.At(0), "to all");
    EXPECT_EQ(list.At(3), "to one");
}

TEST(Message_List, A_Row_May_Be_Given_The_Message_That_It_Has_Or_That_Of_Another)
{
    Message_List list;
    list.Append("one", 1);
    list.Append("two", 1);
    list.Replace(0, list.At(0));
    list.Replace(1, list.At(1));
    list.Append(list.At(0), 1);
    list.Replace(0, list.At(1));
    Expect_The_Same(list, {"two", "two", "one"});
}

TEST(Message_List, A_Copy_Does_Not_Follow_Its_Original)
{
    Message_List list;
    list.Append("one", 3);
    const Message_List copy = list;
    list.Replace(0, "two");
    list.Remove_Rows({1});
    Expect_The_Same(copy, {"one", "one", "one"});
    Expect_The_Same(list, {"two", "one"});
}

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) // which need the memory themselves

TEST(Message_List, A_Row_With_The_Message_Of_Many_Takes_Few_Bytes_And_What_Is_Removed_Takes_None)
{
    const auto bytes_in_use = [] {
        const struct mallinfo2 info = mallinfo2();
        return static_cast<double>(info.uordblks + info.hblkhd);
    };
    constexpr int Size = 1'000'000;
    const double before = bytes_in_use();
    Message_List list;
    list.Expect(Size);
    for (int row = 0; row < Size; ++row)
        list.Append("to all", 1);
    EXPECT_GT(bytes_in_use() - before, 4.0 * Size - 1) << "nothing was measured";
    EXPECT_LT(bytes_in_use() - before, 4.1 * Size);
    std::vector<int> all(Size);
    std::iota(all.begin(), all.end(), 0);
    list.Remove_Rows(all);
    EXPECT_LT(bytes_in_use() - before, 4.1 * Size) << "the indexes of the rows themselves";
}

#endif
