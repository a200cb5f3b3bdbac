#include "platform/Pace.h"

#include <gtest/gtest.h>

namespace {

class Pace_From_Environment : public testing::Test
{
protected:
    ~Pace_From_Environment() override
    {
        qunsetenv("CORVANE_PACE");
        Set_Pace(1);
    }
};

} // namespace

TEST(Pace, Only_Positive_Finite_Numbers_Are_Paces)
{
    struct Case
    {
        const char* text;
        double pace; // 0 for none
    };
    const Case cases[]{{"1", 1},       {"10", 10}, {"0.5", 0.5}, {"2.25", 2.25}, {" 4 ", 4},   {"1e3", 1000},
                       {"", 0},        {"  ", 0},  {"0", 0},     {"-1", 0},      {"-0.5", 0},  {"x", 0},
                       {"nan", 0},     {"inf", 0}, {"-inf", 0},  {"+inf", 0},    {"1e999", 0}, {"1,5", 0},
                       {"1.000,5", 0}, {"10x", 0}, {"x10", 0},   {"1 2", 0},     {"0.0", 0},   {"-0", 0}};
    for (const auto& each : cases)
        EXPECT_EQ(Parse_Pace(QLatin1String(each.text)).value_or(0), each.pace) << each.text;
}

TEST_F(Pace_From_Environment, Without_The_Variable_The_Pace_Is_1)
{
    qunsetenv("CORVANE_PACE");
    EXPECT_EQ(Take_Pace_From_Environment(), QString());
    EXPECT_EQ(Pace(), 1);
}

TEST_F(Pace_From_Environment, The_Variable_Sets_The_Pace)
{
    qputenv("CORVANE_PACE", "12.5");
    EXPECT_EQ(Take_Pace_From_Environment(), QString());
    EXPECT_EQ(Pace(), 12.5);
}

TEST_F(Pace_From_Environment, A_Bad_Variable_Is_Refused_With_One_Clear_Line_And_Changes_Nothing)
{
    for (const char* bad : {"", "0", "-1", "x", "nan", "inf"}) {
        Set_Pace(3);
        qputenv("CORVANE_PACE", bad);
        EXPECT_EQ(Take_Pace_From_Environment(), QLatin1String("CORVANE_PACE must be a positive number, not \"") +
                                                    QLatin1String(bad) + QLatin1String("\"."));
        EXPECT_EQ(Pace(), 3) << bad;
    }
}
