#include "engine/Send_Order.h"

#include <gtest/gtest.h>
#include <random>

namespace {

// The rule as one would write it down: look through everything that comes before.
Skip_Reason Scanned_Reason(const Send_Order& order, int index)
{
    const QString number = order.recipients.At(index).Number;
    for (int row = 0; order.choices.exclusion && row < order.exclusions.Count(); ++row) {
        if (order.exclusions.At(row) == number)
            return Skip_Reason::Excluded;
    }
    for (int row = 0; order.choices.skip_duplicates && row < index; ++row) {
        if (order.recipients.At(row).Number == number)
            return Skip_Reason::Repeated;
    }
    return Skip_Reason::None;
}

TEST(Send_Order, The_Look_Ups_Answer_Exactly_As_Scans_Do)
{
    std::mt19937 random(20261120);
    Send_Order order;
    for (int row = 0; row < 400; ++row)
        order.recipients.Append(QString::number(random() % 150), QString());
    for (int row = 0; row < 60; ++row)
        order.exclusions.Append(QString::number(random() % 200));
    for (const bool exclusion : {false, true}) {
        for (const bool skip_duplicates : {false, true}) {
            order.choices.exclusion = exclusion;
            order.choices.skip_duplicates = skip_duplicates;
            for (int index = 0; index < order.recipients.Count(); ++index)
                EXPECT_EQ(Reason_To_Skip(order, index), Scanned_Reason(order, index)) << index;
        }
    }
}

TEST(Send_Order, Only_The_Exact_Number_Is_The_Same_And_It_Is_Excluded_Before_It_Is_Repeated)
{
    Send_Order order;
    order.choices.exclusion = order.choices.skip_duplicates = true;
    for (const char* number : {"+4912", "004912", "4912", "4912,1", "1", "1"})
        order.recipients.Append(number, QString());
    order.exclusions.Append("12");
    order.exclusions.Append("1");
    for (int index = 0; index < order.recipients.Count(); ++index)
        EXPECT_EQ(Reason_To_Skip(order, index), index < 4 ? Skip_Reason::None : Skip_Reason::Excluded) << index;
}

} // namespace
