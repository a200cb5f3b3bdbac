#include "list/Recipient_List.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>
#include <malloc.h>
#include <thread>

namespace {

Recipient_List List_Of(int count)
{
    Recipient_List list;
    for (int row = 0; row < count; ++row)
        list.Append(QString::number(row), "text");
    return list;
}

// Every row's mark as a digit.
std::string Marks_Of(const Recipient_List& list)
{
    std::string marks;
    for (int row = 0; row < list.Count(); ++row)
        marks += std::to_string(list.Mark_At(row));
    return marks;
}

// Five recipients with the marks 1 to 5.
Recipient_List Marked_List()
{
    Recipient_List list = List_Of(5);
    list.Begin_Marks();
    list.Set_Marks(0, QByteArray("\1\2\3\4\5"));
    return list;
}

TEST(Recipient_Marks, There_Are_None_Until_They_Begin_And_Then_Each_Is_Zero)
{
    Recipient_List list = List_Of(3);
    EXPECT_FALSE(list.Has_Marks());
    list.Set_Marks(0, QByteArray("\1\2\3"));
    EXPECT_FALSE(list.Has_Marks());
    EXPECT_EQ(Marks_Of(list), "000");
    list.Begin_Marks();
    EXPECT_TRUE(list.Has_Marks());
    EXPECT_EQ(Marks_Of(list), "000");
    list.Set_Marks(1, QByteArray("\7"));
    EXPECT_EQ(Marks_Of(list), "070");
    list.Set_Marks(0, QByteArray(1, '\377'));
    EXPECT_EQ(list.Mark_At(0), 255);
}

TEST(Recipient_Marks, They_Are_All_Zero_When_They_Begin_Again_And_Gone_When_They_Are_Forgotten)
{
    Recipient_List list = Marked_List();
    list.Begin_Marks();
    EXPECT_EQ(Marks_Of(list), "00000");
    list.Set_Marks(0, QByteArray("\1"));
    list.Forget_Marks();
    EXPECT_FALSE(list.Has_Marks());
    EXPECT_EQ(Marks_Of(list), "00000");
}

struct Change
{
    const char* name;
    void (*change)(Recipient_List& list);
    const char* marks;
};

void PrintTo(const Change& row, std::ostream* stream)
{
    *stream << row.name;
}

class Changed_Recipients : public testing::TestWithParam<Change>
{
};

TEST_P(Changed_Recipients, Have_Lost_Their_Marks_And_All_Others_Keep_Theirs)
{
    Recipient_List list = Marked_List();
    GetParam().change(list);
    EXPECT_EQ(Marks_Of(list), GetParam().marks);
    EXPECT_EQ(list.Has_Marks(), list.Count() > 0);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(After, Changed_Recipients, testing::Values(
    Change{"An_Append", [](Recipient_List& list) { list.Append("9", "text"); }, "123450"},
    Change{"A_Packed_Append", [](Recipient_List& list) { list.Append(*Packed_Number::Of(u"9"), "text"); }, "123450"},
    Change{"An_Append_And_Its_Mark",
           [](Recipient_List& list) { list.Append("9", "text"); list.Set_Marks(4, QByteArray("\6\7")); }, "123467"},
    Change{"Another_Number", [](Recipient_List& list) { list.Replace(1, "9", "text"); }, "10345"},
    Change{"Another_Message", [](Recipient_List& list) { list.Replace(1, "1", "other"); }, "10345"},
    Change{"Nothing_New", [](Recipient_List& list) { list.Replace(1, "1", "text"); }, "12345"},
    Change{"A_Change_Behind_Them",
           [](Recipient_List& list) { list.Append("9", "text"); list.Replace(5, "8", "text"); }, "123450"},
    Change{"Another_Message_For_Some", [](Recipient_List& list) { list.Set_Messages({0, 2, 4}, "other"); }, "02040"},
    Change{"The_Same_Message_For_Some", [](Recipient_List& list) { list.Set_Messages({0, 2, 4}, "text"); }, "12345"},
    Change{"A_Message_For_Some_Behind_Them",
           [](Recipient_List& list) { list.Append("9", ""); list.Set_Messages({4, 5}, "other"); }, "123400"},
    Change{"A_Removal", [](Recipient_List& list) { list.Remove_Rows({0, 3}); }, "235"},
    Change{"A_Removal_Of_None", [](Recipient_List& list) { list.Remove_Rows({}); }, "12345"},
    Change{"A_Removal_Of_The_Last", [](Recipient_List& list) { list.Remove_Rows({4}); }, "1234"},
    Change{"A_Removal_Behind_Them",
           [](Recipient_List& list) { list.Append("8", ""); list.Append("9", ""); list.Remove_Rows({2, 5}); },
           "12450"},
    Change{"A_Removal_Of_All", [](Recipient_List& list) { list.Remove_Rows({0, 1, 2, 3, 4}); }, ""},
    Change{"A_Clear", [](Recipient_List& list) { list.Clear(); }, ""}),
    [](const auto& row) { return std::string(row.param.name); });
// clang-format on

TEST(Recipient_Marks, What_Is_Added_To_An_Emptied_List_Has_None)
{
    Recipient_List list = Marked_List();
    list.Remove_Rows({0, 1, 2, 3, 4});
    list.Append("9", "text");
    EXPECT_FALSE(list.Has_Marks());
}

TEST(Recipient_Marks, A_Copy_Has_Its_Own)
{
    Recipient_List list = Marked_List();
    Recipient_List copy = list;
    copy.Set_Marks(0, QByteArray("\7\7"));
    list.Remove_Rows({4});
    EXPECT_EQ(Marks_Of(list), "1234");
    EXPECT_EQ(Marks_Of(copy), "77345");
    copy.Begin_Marks();
    copy.Forget_Marks();
    EXPECT_EQ(Marks_Of(list), "1234");
}

TEST(Recipient_Marks, A_Worker_Reads_Its_Copy_While_They_Change)
{
    constexpr int Size = 10'000;
    Recipient_List list = List_Of(Size);
    list.Begin_Marks();
    const Recipient_List copy = list;
    long sum = 0;
    std::thread worker([&copy, &sum] {
        for (int round = 0; round < 20; ++round) {
            for (int row = 0; row < copy.Count(); ++row)
                sum += copy.Mark_At(row);
        }
    });
    for (int row = 0; row < Size; row += 100)
        list.Set_Marks(row, QByteArray(100, '\1'));
    worker.join();
    EXPECT_EQ(sum, 0);
    EXPECT_EQ(list.Mark_At(Size - 1), 1);
}

// Each recipient's mark is remembered beside its number, which no other has.
TEST(Recipient_Marks, They_Follow_Their_Recipients_Whatever_Is_Done)
{
    QRandomGenerator random(20261122);
    Recipient_List list;
    QHash<QString, int> expected;
    int next = 0;
    const auto some_rows = [&] {
        std::vector<int> rows;
        for (int row = 0; row < list.Count(); ++row) {
            if (random.bounded(4) == 0)
                rows.push_back(row);
        }
        return rows;
    };
    const auto append = [&] { list.Append(QString::number(next++), "text"); };
    for (int i = 0; i < 60; ++i)
        append();
    list.Begin_Marks();
    for (int step = 0; step < 2'000; ++step) {
        const int row = random.bounded(list.Count());
        switch (random.bounded(6)) {
        case 0:
            append();
            break;
        case 1:
            expected.remove(list.At(row).Number);
            list.Replace(row, QString::number(next++), "text");
            break;
        case 2: {
            const auto rows = some_rows();
            for (const int each : rows)
                expected.remove(list.At(each).Number);
            list.Set_Messages(rows, "text " + QString::number(step));
            break;
        }
        case 3:
            list.Remove_Rows(some_rows());
            while (list.Count() < 40)
                append();
            break;
        default:
            const int marked = qMin(list.Count() - row, 5);
            list.Set_Marks(row, QByteArray(marked, static_cast<char>(step % 255 + 1)));
            for (int each = row; each < row + marked; ++each)
                expected[list.At(each).Number] = step % 255 + 1;
        }
        for (int each = 0; each < list.Count(); ++each)
            ASSERT_EQ(list.Mark_At(each), expected.value(list.At(each).Number)) << step << ", " << each;
    }
}

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) // which need the memory themselves

double Bytes_In_Use()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

TEST(Recipient_Marks, A_Million_Take_A_Byte_Each_And_Nothing_Before_They_Begin)
{
    constexpr int Size = 1'000'000;
    constexpr double Once = 10'000; // whatever the allocator rounds up to
    Recipient_List list = List_Of(Size);
    const double before = Bytes_In_Use();
    list.Begin_Marks();
    const double begun = Bytes_In_Use();
    EXPECT_GE(begun - before, Size) << "nothing was measured";
    EXPECT_LE(begun - before, Size + Once);
    for (int row = 0; row < Size; row += 1000)
        list.Set_Marks(row, QByteArray(1000, '\5'));
    EXPECT_LE(Bytes_In_Use() - begun, Once);
    EXPECT_EQ(list.Mark_At(Size - 1), 5);
    list.Forget_Marks();
    EXPECT_LE(Bytes_In_Use() - before, Once);
}

#endif

} // namespace
