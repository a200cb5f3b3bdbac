#include "platform/Pace.h"

#include <gtest/gtest.h>

TEST(Pace, Only_Positive_Finite_Numbers_Are_Paces)
{
    for (const auto& [text, pace] :
         {std::pair("1", 1.0), {"10", 10}, {"0.5", 0.5}, {"2.25", 2.25}, {" 4 ", 4}, {"1e3", 1000}})
        EXPECT_EQ(Parse_Pace(QString(text)), pace) << text;
    for (const char* text : {"", "  ", "0", "-1", "-0.5", "x", "nan", "inf", "-inf", "+inf", "1e999", "1,5", "1.000,5",
                             "10x", "x10", "1 2", "0.0", "-0"})
        EXPECT_EQ(Parse_Pace(QString(text)), std::nullopt) << text;
}

TEST(Pace, The_Environment_Sets_It_And_A_Bad_Variable_Is_Refused_With_One_Clear_Line_And_Changes_Nothing)
{
    qunsetenv("CORVANE_PACE");
    EXPECT_EQ(Take_Pace_From_Environment(), QString());
    EXPECT_EQ(Pace(), 1);
    qputenv("CORVANE_PACE", "12.5");
    EXPECT_EQ(Take_Pace_From_Environment(), QString());
    EXPECT_EQ(Pace(), 12.5);
    for (const QString bad : {"", "0", "-1", "x", "nan", "inf"}) {
        Set_Pace(3);
        qputenv("CORVANE_PACE", bad.toUtf8());
        EXPECT_EQ(Take_Pace_From_Environment(), "CORVANE_PACE must be a positive number, not \"" + bad + "\".");
        EXPECT_EQ(Pace(), 3) << bad.toStdString();
    }
    qunsetenv("CORVANE_PACE");
    Set_Pace(1);
}
