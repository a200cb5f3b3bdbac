#include "engine/Send_Order.h"

#include <gtest/gtest.h>
#include <random>

namespace {

// The rule as one would write it down: look through everything that comes before.
Skip_Reason Scanned_Reason(const Send_Order& order, int index)
{
    const QString number = order.recipients.At(index).Number;
    if (order.choices.exclusion) {
        for (int row = 0; row < order.exclusions.Count(); ++row) {
            if (order.exclusions.At(row) == number)
                return Skip_Reason::Excluded;
        }
    }
    if (order.choices.skip_duplicates) {
        for (int row = 0; row < index; ++row) {
            if (order.recipients.At(row).Number == number)
                return Skip_Reason::Repeated;
        }
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

TEST(Send_Order, An_Excluded_Number_Is_Excluded_Before_It_Is_Repeated)
{
    Send_Order order;
    order.choices.exclusion = true;
    order.choices.skip_duplicates = true;
    order.recipients.Append(QStringLiteral("1"), QString());
    order.recipients.Append(QStringLiteral("1"), QString());
    order.exclusions.Append(QStringLiteral("1"));
    EXPECT_EQ(Reason_To_Skip(order, 0), Skip_Reason::Excluded);
    EXPECT_EQ(Reason_To_Skip(order, 1), Skip_Reason::Excluded);
}

TEST(Send_Order, Only_The_Exact_Number_Is_The_Same)
{
    Send_Order order;
    order.choices.exclusion = true;
    order.choices.skip_duplicates = true;
    for (const char* number : {"+4912", "004912", "4912", "4912,1"})
        order.recipients.Append(QLatin1String(number), QString());
    order.exclusions.Append(QStringLiteral("12"));
    for (int index = 0; index < order.recipients.Count(); ++index)
        EXPECT_EQ(Reason_To_Skip(order, index), Skip_Reason::None);
}

} // namespace
