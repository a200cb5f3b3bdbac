#include "list/Excluded_Numbers.h"

#include <gtest/gtest.h>

namespace {

Excluded_Numbers Numbers_Of(const QStringList& texts)
{
    Excluded_Numbers numbers;
    for (const QString& text : texts)
        numbers.Append(text);
    return numbers;
}

QStringList Texts_Of(const Excluded_Numbers& numbers)
{
    QStringList texts;
    for (int row = 0; row < numbers.Count(); ++row)
        texts.append(numbers.At(row));
    return texts;
}

TEST(Excluded_Numbers, The_Order_And_The_Repeats_Are_Kept)
{
    const auto numbers = Numbers_Of({"3", "1", "3", "2"});
    EXPECT_EQ(Texts_Of(numbers), QStringList({"3", "1", "3", "2"}));
    EXPECT_TRUE(numbers.Contains("2"));
    EXPECT_FALSE(numbers.Contains("002"));
    EXPECT_FALSE(Excluded_Numbers().Contains("2"));
}

TEST(Excluded_Numbers, A_Replaced_Number_Is_Found_And_The_Old_One_Is_Not)
{
    auto numbers = Numbers_Of({"1", "2", "1"});
    numbers.Replace(0, "9");
    EXPECT_EQ(Texts_Of(numbers), QStringList({"9", "2", "1"}));
    EXPECT_TRUE(numbers.Contains("9"));
    EXPECT_TRUE(numbers.Contains("1"));
    numbers.Replace(2, "8");
    EXPECT_FALSE(numbers.Contains("1"));
}

TEST(Excluded_Numbers, Rows_Are_Removed_In_One_Go)
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

TEST(Excluded_Numbers, A_Copy_Does_Not_Follow_The_Original)
{
    auto numbers = Numbers_Of({"1"});
    const auto copy = numbers;
    numbers.Append("2");
    EXPECT_EQ(Texts_Of(copy), QStringList("1"));
    EXPECT_FALSE(copy.Contains("2"));
    EXPECT_TRUE(numbers.Contains("2"));
}

} // namespace
