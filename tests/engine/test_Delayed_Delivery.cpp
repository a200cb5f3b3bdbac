#include "engine/Delayed_Delivery.h"

#include <gtest/gtest.h>

using namespace Delayed_Delivery;

namespace {

qint64 Pause_Of(const QString& choice)
{
    return Read_Setting("1", choice).pause_in_seconds;
}

int Batch_Of(const QString& text)
{
    return Read_Setting(text, {}).batch_size;
}

TEST(Delayed_Delivery, The_Boxes_Offer_Their_Choices_In_This_Order)
{
    EXPECT_EQ(Batch_Sizes().join(u'|'), "1|2|3|4|5|10|15|20|25|50|75|100|150|200|250|300|400|500|1000");
    EXPECT_EQ(Pause_Choices().join(u'|'),
              "5  Seconds|10 Seconds|15 Seconds|20 Seconds|25 Seconds|30 Seconds|35 Seconds|40 Seconds|45 Seconds|"
              "50 Seconds|55 Seconds| 1  Minute| 2  Minutes| 3  Minutes| 4  Minutes| 5  Minutes| 6  Minutes|"
              " 7  Minutes| 8  Minutes| 9  Minutes|10 Minutes|20 Minutes|30 Minutes|40 Minutes|50 Minutes| 1  Hour");
    EXPECT_EQ(Batch_Sizes().at(Preselected_Batch_Size), "15");
    EXPECT_EQ(Pause_Choices().at(Preselected_Pause_Choice), " 2  Minutes");
    QList<qint64> seconds;
    for (const auto& choice : Pause_Choices())
        seconds.append(Pause_Of(choice));
    EXPECT_EQ(seconds, (QList<qint64>{5,   10,  15,  20,  25,  30,  35,  40,  45,   50,   55,   60,   120,
                                      180, 240, 300, 360, 420, 480, 540, 600, 1200, 1800, 2400, 3000, 3600}));
}

TEST(Delayed_Delivery, The_Unit_Is_The_Fourth_Character_Of_What_Was_Typed)
{
    EXPECT_EQ(Pause_Of("7 Seconds"), 0); // its fourth character is an e
    EXPECT_EQ(Pause_Of("07 Seconds"), 7);
    EXPECT_EQ(Pause_Of("7  S"), 7);
    EXPECT_EQ(Pause_Of("99 M"), 5940);
    EXPECT_EQ(Pause_Of("2  Hours"), 7200);
    EXPECT_EQ(Pause_Of("10 minutes"), 0);
    EXPECT_EQ(Pause_Of("100 Seconds"), 0); // its fourth character is a blank
    EXPECT_EQ(Pause_Of("10S"), 0);
    EXPECT_EQ(Pause_Of(""), 0);
}

TEST(Delayed_Delivery, An_Amount_That_Is_No_Number_Makes_No_Pause)
{
    for (const char* choice : {"No Minutes", "xx Seconds", "-5 Seconds", "0  Seconds"})
        EXPECT_EQ(Pause_Of(choice), 0) << choice;
    EXPECT_EQ(Pause_Of("5x Seconds"), 5);
}

TEST(Delayed_Delivery, A_Batch_Size_Is_The_Number_That_The_Text_Begins_With)
{
    EXPECT_EQ(Batch_Of(" 15 "), 15);
    EXPECT_EQ(Batch_Of("12 or so"), 12);
    EXPECT_EQ(Batch_Of("many"), 0);
    EXPECT_EQ(Batch_Of("-3"), -3);
    EXPECT_EQ(Batch_Of("99999999999999999999"), 2147483647);
}

TEST(Delayed_Delivery, The_Whole_Length_Is_Shown_With_Its_Hours_And_The_Countdown_Without)
{
    EXPECT_EQ(Whole_Pause_Text(0), "Pausing the process for 0 Seconds.");
    EXPECT_EQ(Whole_Pause_Text(59), "Pausing the process for 59 Seconds.");
    EXPECT_EQ(Whole_Pause_Text(60), "Pausing the process for 1 Minute 0 Seconds.");
    EXPECT_EQ(Whole_Pause_Text(120), "Pausing the process for 2 Minute 0 Seconds.");
    EXPECT_EQ(Whole_Pause_Text(3600), "Pausing the process for 1 Hour 0 Minute 0 Seconds.");
    EXPECT_EQ(Whole_Pause_Text(7325), "Pausing the process for 2 Hour 2 Minute 5 Seconds.");
    EXPECT_EQ(Countdown_Text(3599), "Pausing the process for 59 Minute 59 Seconds.");
    EXPECT_EQ(Countdown_Text(60), "Pausing the process for 1 Minute 0 Seconds.");
    EXPECT_EQ(Countdown_Text(1), "Pausing the process for 1 Seconds.");
    EXPECT_EQ(Countdown_Text(3605), "Pausing the process for 5 Seconds.");
}

} // namespace
