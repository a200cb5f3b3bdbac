#include "list/Recipient_List.h"

#include "list/Number_Rules.h"
#include "platform/Waiting.h"

#include <QFile>
#include <QRandomGenerator>
#include <gtest/gtest.h>
#include <malloc.h>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

namespace {

// The list as a plain list with plain scans, which is what every look-up must agree with.
struct Scanned_List
{
    QStringList numbers;
    QStringList messages;

    void Remove_Rows(const std::vector<int>& removed)
    {
        for (auto row = removed.rbegin(); row != removed.rend(); ++row) {
            numbers.removeAt(*row);
            messages.removeAt(*row);
        }
    }
};

// Every sixth is none of digits alone.
QString Number_Of(int i)
{
    return i % 6 == 5 ? "no. " + QString::number(i) : QString::number(i);
}

void Expect_The_Same(const Recipient_List& list, const Scanned_List& scanned)
{
    ASSERT_EQ(list.Count(), scanned.numbers.size());
    for (int row = 0; row < list.Count(); ++row) {
        ASSERT_EQ(list.At(row).Number, scanned.numbers.at(row)) << row;
        ASSERT_EQ(list.At(row).Message, scanned.messages.at(row)) << row;
    }
    for (int i = 0; i < 60; ++i) {
        const QString number = Number_Of(i);
        ASSERT_EQ(list.Numbers().First_Index_Of(number), scanned.numbers.indexOf(number)) << i;
        ASSERT_EQ(list.Numbers().Count_Of(number), scanned.numbers.count(number)) << i;
    }
}

Recipient_List List_Of(std::initializer_list<const char*> numbers)
{
    Recipient_List list;
    for (const QString number : numbers)
        list.Append(number, "to " + number);
    return list;
}

QString Numbers_Of(const Recipient_List& list)
{
    QStringList numbers;
    for (int row = 0; row < list.Count(); ++row)
        numbers += list.At(row).Number;
    return numbers.join(u' ');
}

} // namespace

TEST(Recipient_List, It_Starts_Empty_And_A_Row_Outside_It_Is_An_Error)
{
    const Recipient_List list;
    EXPECT_EQ(list.Count(), 0);
    EXPECT_EQ(list.Numbers().First_Index_Of("1"), -1);
    EXPECT_EQ(list.Numbers().First_Index_Of({}), -1);
    EXPECT_EQ(list.Numbers().Count_Of(QString("1")), 0);
    EXPECT_THROW(static_cast<void>(List_Of({"1"}).At(1)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(List_Of({"1"}).At(-1)), std::out_of_range);
}

TEST(Recipient_List, Insertion_Order_Is_Kept_And_Messages_Stay_Exactly_As_Given)
{
    Recipient_List list;
    const QString message = QString("  two\nlines \r\n%1\t") + QChar(u'\0') + QChar(0xD83D);
    list.Append(QString("3"), message);
    list.Append(QString("1"), {});
    list.Append(QString("2"), "x");
    EXPECT_EQ(Numbers_Of(list), "3 1 2");
    EXPECT_EQ(list.At(0).Message, message);
    EXPECT_EQ(list.At(1).Message, QString());
    EXPECT_EQ(list.At(2).Value(u"Number"), "2") << "a table's columns go by these names";
    EXPECT_EQ(list.At(2).Value(u"Message"), "x");
    EXPECT_EQ(list.At(2).Value(u"number"), QString());
    EXPECT_EQ(list.At(2).Value(u"Status"), QString());
}

TEST(Recipient_List, Look_Ups_Are_By_Exact_Text_And_Of_Repeats_The_First_Is_Found_And_All_Are_Counted)
{
    const Recipient_List exact = List_Of({"004912", "+4912", "1", "01", "4912"});
    for (const auto& [number, row] : {std::pair("+4912", 1), {"004912", 0}, {"4912", 4}, {"491", -1}, {" 1", -1}})
        EXPECT_EQ(exact.Numbers().First_Index_Of(number), row) << number;

    Recipient_List list = List_Of({"5", "7", "5", "9", "7", "5"});
    const auto expect = [&](const QString& number, int row, int count) {
        EXPECT_EQ(list.Numbers().First_Index_Of(number), row) << number.toStdString();
        EXPECT_EQ(list.Numbers().Count_Of(number), count) << number.toStdString();
    };
    expect("5", 0, 3);
    expect("7", 1, 2);
    for (const auto& none : {std::vector<int>{}, {6}})
        list.Remove_Rows(none);
    EXPECT_EQ(Numbers_Of(list), "5 7 5 9 7 5");
    list.Remove_Rows({0, 1});
    expect("5", 0, 2);
    expect("7", 2, 1);
    list.Replace(0, "9", "new");
    EXPECT_EQ(Numbers_Of(list), "9 9 7 5");
    EXPECT_EQ(list.At(0).Message, "new");
    expect("5", 3, 1);
    expect("9", 0, 2);
    list.Replace(2, "8", {});
    expect("7", -1, 0);
    expect("8", 2, 1);
}

TEST(Recipient_List, It_Agrees_With_Plain_Scans_Whatever_Is_Done_To_It)
{
    QRandomGenerator random(20240607);
    for (int round = 0; round < 20; ++round) {
        Recipient_List list;
        Scanned_List scanned;
        for (int step = 0; step < 200; ++step) {
            const int what = random.bounded(100);
            const QString number = Number_Of(random.bounded(60));
            if (what < 65) {
                list.Append(number, QString::number(step));
                scanned.numbers += number;
                scanned.messages += QString::number(step);
            } else if (what < 95 && list.Count() > 0) {
                const int row = random.bounded(list.Count());
                list.Replace(row, number, "another");
                scanned.numbers[row] = number;
                scanned.messages[row] = "another";
            } else if (what < 99) {
                std::vector<int> removed;
                for (int row = random.bounded(4); row < list.Count(); row += 1 + random.bounded(7))
                    removed.push_back(row);
                list.Remove_Rows(removed);
                scanned.Remove_Rows(removed);
            } else {
                list.Clear();
                scanned = {};
            }
            if (step % 10 == 0)
                Expect_The_Same(list, scanned);
            ASSERT_FALSE(testing::Test::HasFatalFailure()) << "round " << round << ", step " << step;
        }
        Expect_The_Same(list, scanned);
    }
}

TEST(Recipient_List, A_Copy_Is_A_Snapshot)
{
    Recipient_List list = List_Of({"1", "2", "3"});
    const Recipient_List snapshot = list;
    EXPECT_EQ(&snapshot.Message_At(0), &std::as_const(list).Message_At(0)) << "nothing is copied before there is need";
    list.Append(QString("4"), {});
    list.Remove_Rows({0});
    EXPECT_EQ(Numbers_Of(snapshot), "1 2 3");
    EXPECT_EQ(Numbers_Of(list), "2 3 4");
    EXPECT_EQ(snapshot.Numbers().First_Index_Of("1"), 0);
    EXPECT_EQ(list.Numbers().First_Index_Of("1"), -1);
    list.Clear();
    EXPECT_EQ(snapshot.Count(), 3);
}

TEST(Recipient_List, A_Worker_Reads_Its_Snapshot_While_The_List_Changes)
{
    Recipient_List list;
    for (int i = 0; i < 1000; ++i)
        list.Append(QString::number(i), "text");
    int wrong = 0;
    std::thread worker([snapshot = list, &wrong] {
        for (int round = 0; round < 20; ++round) {
            for (int i = 0; i < 1000; ++i) {
                wrong += snapshot.Numbers().First_Index_Of(QString::number(i)) != i;
                wrong += snapshot.At(i).Message != "text";
            }
        }
    });
    for (int i = 0; i < 200; ++i) {
        list.Append(QString::number(i), "again");
        list.Remove_Rows({0});
    }
    list.Clear();
    worker.join();
    EXPECT_EQ(wrong, 0);
}

TEST(Recipient_List, A_Million_Look_Ups_And_The_Removal_Of_Half_Take_No_Scan)
{
    constexpr int Size = 1'000'000;
    const double start = Now_Seconds();
    Recipient_List list;
    for (int i = 0; i < Size; ++i)
        list.Append(QString::number(i), "text");
    int wrong = 0;
    for (int i = 0; i < Size; ++i)
        wrong += list.Numbers().First_Index_Of(QString::number(i)) != i;
    std::vector<int> every_second;
    for (int i = 0; i < Size; i += 2)
        every_second.push_back(i);
    list.Remove_Rows(every_second);
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(list.Count(), Size / 2);
    EXPECT_EQ(list.Numbers().First_Index_Of("999999"), Size / 2 - 1);
    // Scans would take half a million million steps: hours. This allows for a slow machine under a sanitizer.
    EXPECT_LT(Now_Seconds() - start, 120);
}

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) // which need the memory themselves

namespace {

double Bytes_In_Use()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

rlim_t Address_Space_In_Use()
{
    QFile status("/proc/self/statm");
    if (!status.open(QIODevice::ReadOnly))
        std::_Exit(90);
    return status.readAll().split(' ').at(0).toULongLong() * static_cast<rlim_t>(getpagesize());
}

[[noreturn]] void Append_Until_Memory_Runs_Out()
{
    constexpr rlim_t room = 60'000'000; // which the next doubling of the index will not find
    rlimit limit{};
    getrlimit(RLIMIT_AS, &limit);
    limit.rlim_cur = Address_Space_In_Use() + room;
    setrlimit(RLIMIT_AS, &limit);
    Recipient_List list;
    const QString message = "text";
    int appended = 0;
    try {
        for (;; ++appended)
            list.Append(*Packed_Number::Of(QString::number(appended)), message);
    } catch (const std::bad_alloc&) {
        limit.rlim_cur = limit.rlim_max;
        setrlimit(RLIMIT_AS, &limit);
    }
    bool is_whole = appended > 1000 && list.Count() == appended;
    for (int row = 0; row < appended && is_whole; ++row)
        is_whole = list.At(row).Message == message && list.Numbers().First_Index_Of(QString::number(row)) == row;
    std::_Exit(is_whole ? 0 : 1);
}

} // namespace

TEST(Recipient_List, Where_Memory_Runs_Out_What_Came_Before_Stays_Whole)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(Append_Until_Memory_Runs_Out(), testing::ExitedWithCode(0), "");
}

TEST(Recipient_List, A_Recipient_With_A_Shared_Message_Takes_No_More_Than_200_Bytes)
{
    constexpr int Size = 1'000'000;
    const QString message(1600, u'x');
    const double before = Bytes_In_Use();
    Recipient_List list;
    for (int i = 0; i < Size; ++i)
        list.Append(Number_Rules::Normalised_Number("+44-7700-" + QString::number(1'000'000 + i)), message);
    const double bytes_each = (Bytes_In_Use() - before) / Size;
    RecordProperty("bytes_each", std::to_string(bytes_each));
    EXPECT_GT(bytes_each, 12 + 12 + 4) << "nothing was measured"; // number, slot and message
    EXPECT_LE(bytes_each, 200);
    EXPECT_EQ(list.Count(), Size);
}

#endif
