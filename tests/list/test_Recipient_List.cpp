#include "list/Recipient_List.h"
#include "platform/Waiting.h"

#include <QFile>
#include <QRandomGenerator>
#include <algorithm>
#include <gtest/gtest.h>
#include <new>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace {

// The list as a plain list with plain scans, which is what every look-up must agree with.
struct Scanned_List
{
    std::vector<std::pair<QString, QString>> rows;

    int First_Index_Of(const QString& number) const
    {
        const auto row = std::find_if(rows.begin(), rows.end(), [&](const auto& each) { return each.first == number; });
        return row == rows.end() ? -1 : static_cast<int>(row - rows.begin());
    }

    int Count_Of(const QString& number) const
    {
        return static_cast<int>(
            std::count_if(rows.begin(), rows.end(), [&](const auto& each) { return each.first == number; }));
    }

    void Remove_Rows(const std::vector<int>& removed)
    {
        for (auto row = removed.rbegin(); row != removed.rend(); ++row)
            rows.erase(rows.begin() + *row);
    }
};

// Every sixth is none of digits alone.
QString Number_Of(int i)
{
    return i % 6 == 5 ? QStringLiteral("no. ") + QString::number(i) : QString::number(i);
}

QString Some_Number(QRandomGenerator& random)
{
    return Number_Of(random.bounded(60));
}

void Expect_The_Same(const Recipient_List& list, const Scanned_List& scanned)
{
    ASSERT_EQ(list.Count(), static_cast<int>(scanned.rows.size()));
    for (int row = 0; row < list.Count(); ++row) {
        ASSERT_EQ(list.At(row).Number, scanned.rows[static_cast<std::size_t>(row)].first) << row;
        ASSERT_EQ(list.At(row).Message, scanned.rows[static_cast<std::size_t>(row)].second) << row;
    }
    for (int i = 0; i < 60; ++i) {
        const QString number = Number_Of(i);
        ASSERT_EQ(list.Numbers().First_Index_Of(number), scanned.First_Index_Of(number)) << i;
        ASSERT_EQ(list.Numbers().Count_Of(number), scanned.Count_Of(number)) << i;
    }
}

Recipient_List List_Of(std::initializer_list<const char*> numbers)
{
    Recipient_List list;
    for (const char* number : numbers)
        list.Append(QLatin1String(number), QLatin1String("to ") + QLatin1String(number));
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

TEST(Recipient_List, It_Starts_Empty)
{
    const Recipient_List list;
    EXPECT_EQ(list.Count(), 0);
    EXPECT_EQ(list.Numbers().First_Index_Of(QStringLiteral("1")), -1);
    EXPECT_EQ(list.Numbers().First_Index_Of({}), -1);
    EXPECT_EQ(list.Numbers().Count_Of(QStringLiteral("1")), 0);
}

TEST(Recipient_List, Insertion_Order_Is_Kept_And_Messages_Stay_Exactly_As_Given)
{
    Recipient_List list;
    const QString message = QStringLiteral("  two\nlines \r\n%1\t") + QChar(u'\0') + QChar(0xD83D);
    list.Append(QStringLiteral("3"), message);
    list.Append(QStringLiteral("1"), {});
    list.Append(QStringLiteral("2"), QStringLiteral("x"));
    EXPECT_EQ(Numbers_Of(list), QLatin1String("3 1 2"));
    EXPECT_EQ(list.At(0).Message, message);
    EXPECT_EQ(list.At(1).Message, QString());
}

TEST(Recipient_List, A_Cell_Shows_The_Value_Under_Its_Identifier)
{
    const Recipient recipient{QStringLiteral("12"), QStringLiteral("text")};
    EXPECT_EQ(recipient.Value(u"Number"), QLatin1String("12"));
    EXPECT_EQ(recipient.Value(u"Message"), QLatin1String("text"));
    EXPECT_EQ(recipient.Value(u"number"), QString());
    EXPECT_EQ(recipient.Value(u"Status"), QString());
}

TEST(Recipient_List, A_Row_Outside_The_List_Is_An_Error)
{
    const Recipient_List list = List_Of({"1"});
    EXPECT_THROW(static_cast<void>(list.At(1)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(list.At(-1)), std::out_of_range);
}

TEST(Recipient_List, Look_Ups_Are_By_Exact_Text)
{
    const Recipient_List list = List_Of({"004912", "+4912", "1", "01", "4912"});
    EXPECT_EQ(list.Numbers().First_Index_Of(QStringLiteral("+4912")), 1);
    EXPECT_EQ(list.Numbers().First_Index_Of(QStringLiteral("004912")), 0);
    EXPECT_EQ(list.Numbers().First_Index_Of(QStringLiteral("4912")), 4);
    EXPECT_EQ(list.Numbers().First_Index_Of(QStringLiteral("491")), -1);
    EXPECT_EQ(list.Numbers().First_Index_Of(QStringLiteral(" 1")), -1);
}

TEST(Recipient_List, Of_Repeated_Numbers_The_First_Is_Found_And_All_Are_Counted)
{
    Recipient_List list = List_Of({"5", "7", "5", "9", "7", "5"});
    EXPECT_EQ(list.Numbers().First_Index_Of(QStringLiteral("5")), 0);
    EXPECT_EQ(list.Numbers().Count_Of(QStringLiteral("5")), 3);
    EXPECT_EQ(list.Numbers().First_Index_Of(QStringLiteral("7")), 1);
    list.Remove_Rows({0, 1});
    EXPECT_EQ(list.Numbers().First_Index_Of(QStringLiteral("5")), 0);
    EXPECT_EQ(list.Numbers().Count_Of(QStringLiteral("5")), 2);
    EXPECT_EQ(list.Numbers().First_Index_Of(QStringLiteral("7")), 2);
    EXPECT_EQ(list.Numbers().Count_Of(QStringLiteral("7")), 1);
}

TEST(Recipient_List, Rows_Are_Removed_Wherever_They_Stand)
{
    struct Case
    {
        std::vector<int> removed;
        const char* left;
    };
    const Case cases[]{{{}, "0 1 2 3 4"}, {{0}, "1 2 3 4"},      {{4}, "0 1 2 3"},  {{1, 3}, "0 2 4"},
                       {{0, 4}, "1 2 3"}, {{0, 1, 2, 3, 4}, ""}, {{5}, "0 1 2 3 4"}};
    for (const auto& each : cases) {
        Recipient_List list = List_Of({"0", "1", "2", "3", "4"});
        list.Remove_Rows(each.removed);
        EXPECT_EQ(Numbers_Of(list), QLatin1String(each.left));
    }
}

TEST(Recipient_List, A_Replaced_Number_Is_Found_In_Its_New_Place_Alone)
{
    Recipient_List list = List_Of({"5", "7", "5", "9", "5"});
    list.Replace(0, QStringLiteral("9"), QStringLiteral("new"));
    EXPECT_EQ(Numbers_Of(list), QLatin1String("9 7 5 9 5"));
    EXPECT_EQ(list.At(0).Message, QLatin1String("new"));
    EXPECT_EQ(list.Numbers().First_Index_Of(QStringLiteral("5")), 2);
    EXPECT_EQ(list.Numbers().Count_Of(QStringLiteral("5")), 2);
    EXPECT_EQ(list.Numbers().First_Index_Of(QStringLiteral("9")), 0);
    EXPECT_EQ(list.Numbers().Count_Of(QStringLiteral("9")), 2);
    list.Replace(1, QStringLiteral("8"), {});
    EXPECT_EQ(list.Numbers().First_Index_Of(QStringLiteral("7")), -1);
    EXPECT_EQ(list.Numbers().Count_Of(QStringLiteral("7")), 0);
    EXPECT_EQ(list.Numbers().First_Index_Of(QStringLiteral("8")), 1);
}

TEST(Recipient_List, It_Agrees_With_Plain_Scans_Whatever_Is_Done_To_It)
{
    QRandomGenerator random(20240607);
    for (int round = 0; round < 20; ++round) {
        Recipient_List list;
        Scanned_List scanned;
        for (int step = 0; step < 200; ++step) {
            const int what = random.bounded(100);
            if (what < 65) {
                const QString number = Some_Number(random);
                const QString message = QString::number(step);
                list.Append(number, message);
                scanned.rows.emplace_back(number, message);
            } else if (what < 95 && list.Count() > 0) {
                const int row = random.bounded(list.Count());
                const QString number = Some_Number(random);
                list.Replace(row, number, QStringLiteral("another"));
                scanned.rows[static_cast<std::size_t>(row)] = {number, QStringLiteral("another")};
            } else if (what < 99) {
                std::vector<int> removed;
                for (int row = 0; row < list.Count(); ++row) {
                    if (random.bounded(4) == 0)
                        removed.push_back(row);
                }
                list.Remove_Rows(removed);
                scanned.Remove_Rows(removed);
            } else {
                list.Clear();
                scanned.rows.clear();
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
    list.Append(QStringLiteral("4"), {});
    list.Remove_Rows({0});
    EXPECT_EQ(Numbers_Of(snapshot), QLatin1String("1 2 3"));
    EXPECT_EQ(Numbers_Of(list), QLatin1String("2 3 4"));
    EXPECT_EQ(snapshot.Numbers().First_Index_Of(QStringLiteral("1")), 0);
    EXPECT_EQ(list.Numbers().First_Index_Of(QStringLiteral("1")), -1);
    list.Clear();
    EXPECT_EQ(snapshot.Count(), 3);
}

TEST(Recipient_List, A_Worker_Reads_Its_Snapshot_While_The_List_Changes)
{
    Recipient_List list;
    for (int i = 0; i < 1000; ++i)
        list.Append(QString::number(i), QStringLiteral("text"));
    int wrong = 0;
    std::thread worker([snapshot = list, &wrong] {
        for (int round = 0; round < 20; ++round) {
            for (int i = 0; i < 1000; ++i)
                wrong +=
                    snapshot.Numbers().First_Index_Of(QString::number(i)) == i && snapshot.At(i).Message.size() == 4
                        ? 0
                        : 1;
        }
    });
    for (int i = 0; i < 200; ++i) {
        list.Append(QString::number(i), QStringLiteral("again"));
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
        list.Append(QString::number(i), QStringLiteral("text"));
    int wrong = 0;
    for (int i = 0; i < Size; ++i)
        wrong += list.Numbers().First_Index_Of(QString::number(i)) == i ? 0 : 1;
    std::vector<int> every_second;
    for (int i = 0; i < Size; i += 2)
        every_second.push_back(i);
    list.Remove_Rows(every_second);
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(list.Count(), Size / 2);
    EXPECT_EQ(list.Numbers().First_Index_Of(QStringLiteral("999999")), Size / 2 - 1);
    // Scans would take half a million million steps: hours. This allows for a slow machine under a sanitizer.
    EXPECT_LT(Now_Seconds() - start, 120);
}

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) // which need the address space themselves

namespace {

rlim_t Address_Space_In_Use()
{
    QFile status(QStringLiteral("/proc/self/statm"));
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
    const QString message = QStringLiteral("text");
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

#endif
