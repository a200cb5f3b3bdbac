#include "list/Number_List.h"

#include <QRandomGenerator>
#include <QStringList>
#include <gtest/gtest.h>

namespace {

Number_List Numbers_Of(const QStringList& texts)
{
    Number_List numbers;
    for (const QString& text : texts)
        numbers.Append(text);
    return numbers;
}

QStringList Texts_Of(const Number_List& numbers)
{
    QStringList texts;
    for (int row = 0; row < numbers.Count(); ++row)
        texts.append(numbers.At(row));
    return texts;
}

TEST(Number_List, It_Keeps_The_Order_And_The_Repeats)
{
    Number_List numbers;
    for (const char* number : {"3", "1", "3"})
        numbers.Append(QLatin1String(number));
    ASSERT_EQ(numbers.Count(), 3);
    EXPECT_EQ(numbers.At(0), QLatin1String("3"));
    EXPECT_EQ(numbers.At(1), QLatin1String("1"));
    EXPECT_EQ(numbers.At(2), QLatin1String("3"));
    EXPECT_EQ(numbers.Count_Of(QStringLiteral("3")), 2);
    EXPECT_EQ(numbers.Count_Of(QStringLiteral("03")), 0);
    EXPECT_TRUE(numbers.Contains(QStringLiteral("1")));
    EXPECT_FALSE(numbers.Contains(QStringLiteral("01")));
    EXPECT_THROW(static_cast<void>(numbers.At(3)), std::out_of_range);
}

TEST(Number_List, An_Empty_One_Holds_Nothing)
{
    Number_List numbers;
    EXPECT_EQ(numbers.Count(), 0);
    EXPECT_EQ(numbers.Count_Of(QStringLiteral("1")), 0);
    numbers.Append(QStringLiteral("1"));
    numbers.Clear();
    EXPECT_EQ(numbers.Count(), 0);
    EXPECT_EQ(numbers.Count_Of(QStringLiteral("1")), 0);
}

TEST(Number_List, It_Agrees_With_A_Plain_Scan_Whatever_Is_Done_To_It)
{
    QRandomGenerator random(77);
    Number_List numbers;
    QStringList scanned;
    for (int step = 0; step < 5000; ++step) {
        if (random.bounded(1000) == 0) {
            numbers.Clear();
            scanned.clear();
        } else {
            const QString number = QString::number(random.bounded(300));
            numbers.Append(number);
            scanned += number;
        }
        const QString wanted = QString::number(random.bounded(320));
        ASSERT_EQ(numbers.Count_Of(wanted), scanned.count(wanted)) << step;
        ASSERT_EQ(numbers.Count(), scanned.size());
    }
}

TEST(Number_List, A_Copy_Is_A_Snapshot)
{
    Number_List numbers;
    numbers.Append(QStringLiteral("1"));
    const Number_List snapshot = numbers;
    numbers.Append(QStringLiteral("2"));
    EXPECT_EQ(snapshot.Count(), 1);
    EXPECT_EQ(snapshot.Count_Of(QStringLiteral("2")), 0);
    numbers.Clear();
    EXPECT_EQ(snapshot.Count_Of(QStringLiteral("1")), 1);
}

TEST(Number_List, A_Replaced_Number_Is_Found_And_The_Old_One_Is_Not)
{
    auto numbers = Numbers_Of({"1", "2", "1"});
    numbers.Replace(0, "9");
    EXPECT_EQ(Texts_Of(numbers), QStringList({"9", "2", "1"}));
    EXPECT_TRUE(numbers.Contains("9"));
    EXPECT_TRUE(numbers.Contains("1"));
    numbers.Replace(2, "8");
    EXPECT_FALSE(numbers.Contains("1"));
}

TEST(Number_List, Rows_Are_Removed_In_One_Go)
{
    auto numbers = Numbers_Of({"0", "1", "2", "3", "4"});
    numbers.Remove_Rows({0, 2, 4});
    EXPECT_EQ(Texts_Of(numbers), QStringList({"1", "3"}));
    EXPECT_FALSE(numbers.Contains("4"));
    EXPECT_TRUE(numbers.Contains("3"));
    numbers.Remove_Rows({});
    EXPECT_EQ(numbers.Count(), 2);
    numbers.Remove_Rows({0, 1});
    EXPECT_EQ(numbers.Count(), 0);
    EXPECT_FALSE(numbers.Contains("3"));
}

} // namespace
