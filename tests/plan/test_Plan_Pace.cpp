#include "plan/Plan_Pace.h"

#include "platform/Pace.h"

#include <gtest/gtest.h>

TEST(Plan_Pace, Is_That_Of_Experience_Until_A_Part_Was_Measured_And_Each_Manner_Has_Its_Own)
{
    Plan_Pace pace;
    EXPECT_EQ(pace.Seconds_For_A_Part(true), 12);
    EXPECT_EQ(pace.Seconds_For_A_Part(false), 4);
    pace.Add(false, 6, 2);
    EXPECT_EQ(pace.Seconds_For_A_Part(false), 3);
    EXPECT_TRUE(pace.Has_Measured(false));
    EXPECT_EQ(pace.Seconds_For_A_Part(true), 12);
    EXPECT_FALSE(pace.Has_Measured(true));
}

TEST(Plan_Pace, Experience_Follows_The_Programs_Pace_And_What_Was_Measured_Does_Not)
{
    Plan_Pace pace;
    Set_Pace(4);
    EXPECT_EQ(pace.Seconds_For_A_Part(true), 3);
    pace.Add(true, 5, 1);
    EXPECT_EQ(pace.Seconds_For_A_Part(true), 5);
    Set_Pace(1);
}

TEST(Plan_Pace, A_Part_That_Was_Tried_Again_For_Long_Is_No_News_And_A_Network_That_Slows_Down_Is)
{
    Plan_Pace pace;
    for (int part = 0; part < 40; ++part)
        pace.Add(false, part % 5 == 0 ? 300 : 3, 1);
    EXPECT_EQ(pace.Seconds_For_A_Part(false), 3);
    for (int part = 0; part < 16; ++part)
        pace.Add(false, 9, 1);
    EXPECT_EQ(pace.Seconds_For_A_Part(false), 9);
}

TEST(Plan_Pace, What_Is_No_Measure_Is_Not_Taken)
{
    Plan_Pace pace;
    pace.Add(false, 3, 0);
    pace.Add(false, -1, 1);
    EXPECT_FALSE(pace.Has_Measured(false));
}
