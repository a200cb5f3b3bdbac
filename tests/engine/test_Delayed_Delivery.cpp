#include "engine/Delayed_Delivery.h"

#include "pdu/Text_Printing.h"

#include <gmock/gmock.h>

namespace {

using Delayed_Delivery::Countdown_Text;
using Delayed_Delivery::Read_Setting;
using Delayed_Delivery::Whole_Pause_Text;

qint64 Pause_Of(const QString& choice)
{
    return Read_Setting(QStringLiteral("1"), choice).pause_in_seconds;
}

} // namespace

TEST(Delayed_Delivery, The_Boxes_Offer_Their_Choices_In_This_Order)
{
    EXPECT_EQ(Delayed_Delivery::Batch_Sizes().join(u'|'),
              QStringLiteral("1|2|3|4|5|10|15|20|25|50|75|100|150|200|250|300|400|500|1000"));
    EXPECT_EQ(Delayed_Delivery::Pause_Choices().join(u'|'),
              QStringLiteral("5  Seconds|10 Seconds|15 Seconds|20 Seconds|25 Seconds|30 Seconds|35 Seconds|40 Seconds|"
                             "45 Seconds|50 Seconds|55 Seconds| 1  Minute| 2  Minutes| 3  Minutes| 4  Minutes|"
                             " 5  Minutes| 6  Minutes| 7  Minutes| 8  Minutes| 9  Minutes|10 Minutes|20 Minutes|"
                             "30 Minutes|40 Minutes|50 Minutes| 1  Hour"));
    EXPECT_EQ(Delayed_Delivery::Batch_Sizes().at(Delayed_Delivery::Preselected_Batch_Size), QStringLiteral("15"));
    EXPECT_EQ(Delayed_Delivery::Pause_Choices().at(Delayed_Delivery::Preselected_Pause_Choice),
              QStringLiteral(" 2  Minutes"));
}

TEST(Delayed_Delivery, Every_Choice_Means_What_It_Says)
{
    QList<qint64> seconds;
    for (const auto& choice : Delayed_Delivery::Pause_Choices())
        seconds.append(Pause_Of(choice));
    EXPECT_EQ(seconds, (QList<qint64>{5,   10,  15,  20,  25,  30,  35,  40,  45,   50,   55,   60,   120,
                                      180, 240, 300, 360, 420, 480, 540, 600, 1200, 1800, 2400, 3000, 3600}));
}

TEST(Delayed_Delivery, The_Unit_Is_The_Fourth_Character_Of_What_Was_Typed)
{
    EXPECT_EQ(Pause_Of(QStringLiteral("7 Seconds")), 0); // its fourth character is an e
    EXPECT_EQ(Pause_Of(QStringLiteral("07 Seconds")), 7);
    EXPECT_EQ(Pause_Of(QStringLiteral("7  S")), 7);
    EXPECT_EQ(Pause_Of(QStringLiteral("99 M")), 5940);
    EXPECT_EQ(Pause_Of(QStringLiteral("2  Hours")), 7200);
    EXPECT_EQ(Pause_Of(QStringLiteral("10 minutes")), 0);
    EXPECT_EQ(Pause_Of(QStringLiteral("100 Seconds")), 0); // its fourth character is a blank
    EXPECT_EQ(Pause_Of(QStringLiteral("10S")), 0);
    EXPECT_EQ(Pause_Of(QString()), 0);
}

TEST(Delayed_Delivery, An_Amount_That_Is_No_Number_Makes_No_Pause)
{
    EXPECT_EQ(Pause_Of(QStringLiteral("No Minutes")), 0);
    EXPECT_EQ(Pause_Of(QStringLiteral("xx Seconds")), 0);
    EXPECT_EQ(Pause_Of(QStringLiteral("-5 Seconds")), 0);
    EXPECT_EQ(Pause_Of(QStringLiteral("0  Seconds")), 0);
    EXPECT_EQ(Pause_Of(QStringLiteral("5x Seconds")), 5);
}

TEST(Delayed_Delivery, A_Batch_Size_Is_The_Number_That_The_Text_Begins_With)
{
    const auto size_of = [](const QString& text) { return Read_Setting(text, {}).batch_size; };
    EXPECT_EQ(size_of(QStringLiteral(" 15 ")), 15);
    EXPECT_EQ(size_of(QStringLiteral("12 or so")), 12);
    EXPECT_EQ(size_of(QStringLiteral("many")), 0);
    EXPECT_EQ(size_of(QStringLiteral("-3")), -3);
    EXPECT_EQ(size_of(QStringLiteral("99999999999999999999")), 2147483647);
}

TEST(Delayed_Delivery, The_Whole_Length_Is_Shown_With_Its_Hours)
{
    EXPECT_EQ(Whole_Pause_Text(0), QStringLiteral("Pausing the process for 0 Seconds."));
    EXPECT_EQ(Whole_Pause_Text(59), QStringLiteral("Pausing the process for 59 Seconds."));
    EXPECT_EQ(Whole_Pause_Text(60), QStringLiteral("Pausing the process for 1 Minute 0 Seconds."));
    EXPECT_EQ(Whole_Pause_Text(120), QStringLiteral("Pausing the process for 2 Minute 0 Seconds."));
    EXPECT_EQ(Whole_Pause_Text(3600), QStringLiteral("Pausing the process for 1 Hour 0 Minute 0 Seconds."));
    EXPECT_EQ(Whole_Pause_Text(7325), QStringLiteral("Pausing the process for 2 Hour 2 Minute 5 Seconds."));
}

TEST(Delayed_Delivery, The_Countdown_Never_Shows_Hours)
{
    EXPECT_EQ(Countdown_Text(3599), QStringLiteral("Pausing the process for 59 Minute 59 Seconds."));
    EXPECT_EQ(Countdown_Text(60), QStringLiteral("Pausing the process for 1 Minute 0 Seconds."));
    EXPECT_EQ(Countdown_Text(1), QStringLiteral("Pausing the process for 1 Seconds."));
    EXPECT_EQ(Countdown_Text(3605), QStringLiteral("Pausing the process for 5 Seconds."));
}
