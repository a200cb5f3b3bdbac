#include "list/Number_List.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace {

QStringList Texts_Of(const Number_List& numbers)
{
    QStringList texts;
    for (int row = 0; row < numbers.Count(); ++row)
        texts.append(numbers.At(row));
    return texts;
}

// What it does on behalf of a list of recipients is tested with that.
TEST(Number_List, It_Keeps_The_Order_And_The_Repeats_Until_It_Is_Changed)
{
    Number_List numbers;
    EXPECT_EQ(numbers.Count_Of(QString("3")), 0);
    for (const QString number : {"3", "1", "3"})
        numbers.Append(number);
    EXPECT_EQ(Texts_Of(numbers), QStringList({"3", "1", "3"}));
    EXPECT_EQ(numbers.Count_Of(QString("3")), 2);
    EXPECT_EQ(numbers.Count_Of(QString("03")), 0);
    EXPECT_TRUE(numbers.Contains(QString("1")));
    EXPECT_FALSE(numbers.Contains(QString("01")));
    EXPECT_THROW(static_cast<void>(numbers.At(3)), std::out_of_range);

    const Number_List snapshot = numbers;
    numbers.Replace(0, "9");
    EXPECT_EQ(Texts_Of(numbers), QStringList({"9", "1", "3"}));
    numbers.Remove_Rows({});
    numbers.Remove_Rows({0, 2});
    EXPECT_EQ(Texts_Of(numbers), QStringList("1"));
    EXPECT_FALSE(numbers.Contains(QString("3")));
    numbers.Clear();
    EXPECT_EQ(numbers.Count(), 0);
    EXPECT_EQ(numbers.Count_Of(QString("1")), 0);
    EXPECT_EQ(Texts_Of(snapshot), QStringList({"3", "1", "3"}));
    EXPECT_EQ(snapshot.First_Index_Of("1"), 1);
}

} // namespace
