#include "list/Cell_Format.h"

#include <gtest/gtest.h>

namespace {

struct Formatted
{
    const char* code;
    double value;
    const char* shown;
};

class Cell_Formats : public testing::TestWithParam<Formatted>
{
};

} // namespace

TEST_P(Cell_Formats, Show_Numbers)
{
    EXPECT_EQ(Cell_Format(GetParam().code).Shown(GetParam().value, false).toStdString(), GetParam().shown)
        << GetParam().code;
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, Cell_Formats,
    testing::Values(
        Formatted{"General", 447700900100, "447700900100"}, Formatted{"General", 0.1 + 0.2, "0.3"},
        Formatted{"General", -12.5, "-12.5"}, Formatted{"General", 123456789012345, "123456789012345"},
        Formatted{"General", 1234567890123456, "1.23456789012346E+15"}, Formatted{"General", 0.00001, "0.00001"},
        Formatted{"@", 42, "42"}, Formatted{"0.00E+00", 447700900100, "447700900100"}, Formatted{"# ?/?", 0.5, "0.5"},
        Formatted{"0", 12.7, "13"}, Formatted{"0", 0, "0"}, Formatted{"#", 0, ""},
        Formatted{"00000000000", 7700900100, "07700900100"}, Formatted{"\"0\"0000 000000", 7700900100, "07700 900100"},
        Formatted{"(000) 000-0000", 2125550123, "(212) 555-0123"}, Formatted{"\\+##", 447700900100, "+447700900100"},
        Formatted{"[<=9999999]###\\-####;\\(###\\)\\ ###\\-####", 5550123, "555-0123"},
        Formatted{"[<=9999999]###\\-####;\\(###\\)\\ ###\\-####", 2125550123, "(212) 555-0123"},
        Formatted{"0.00", 1.005, "1.00"}, Formatted{"0.0#", 1.5, "1.5"}, Formatted{"0.##", 1, "1"},
        Formatted{".00", 1.5, "1.50"}, Formatted{"#,##0", 1234567, "1,234,567"}, Formatted{"#,##0", 12, "12"},
        Formatted{"#,##0.00", 1234.5, "1,234.50"}, Formatted{"0000,000", 1234, "0,001,234"},
        Formatted{"0,", 1234567, "1235"}, Formatted{"0%", 0.25, "25%"},
        Formatted{"[$\xE2\x82\xAC-407] 0.00", 9.5, "\xE2\x82\xAC 9.50"},
        Formatted{"0.00_);[Red](0.00)", -9.5, "(9.50)"}, Formatted{"0;-0;\"none\"", 0, "none"},
        Formatted{"0;-0", -3, "-3"}, Formatted{"\"Nr. \"0", 7, "Nr. 7"}, Formatted{";;;", 7, ""}));

INSTANTIATE_TEST_SUITE_P(
    Dates, Cell_Formats,
    testing::Values(Formatted{"dd/mm/yyyy", 46380, "24/12/2026"}, Formatted{"d.m.yy", 46023, "1.1.26"},
                    Formatted{"dddd, d mmmm yyyy", 46380, "Thursday, 24 December 2026"},
                    Formatted{"ddd mmm mmmmm", 46380, "Thu Dec D"},
                    Formatted{"yyyy-mm-dd hh:mm:ss", 46380.75, "2026-12-24 18:00:00"},
                    Formatted{"h:mm AM/PM", 46380.0 + 0.5 / 24, "12:30 AM"}, Formatted{"h:mm A/P", 46380.75, "6:00 P"},
                    Formatted{"mm:ss", 0.5 + 65.0 / 86400, "01:05"}, Formatted{"[h]:mm", 2.5, "60:00"},
                    Formatted{"d \"de\" mmmm", 46380, "24 de December"}, Formatted{"dd/mm/yyyy", 1, "01/01/1900"},
                    Formatted{"dd/mm/yyyy", 61, "01/03/1900"}, Formatted{"dd/mm/yyyy", -1, "-1"},
                    Formatted{"dd/mm/yyyy", 1e300, "1E+300"}, Formatted{"hh:mm", 0.9999999, "00:00"}));

TEST(Cell_Format, Is_Known_By_Number)
{
    EXPECT_EQ(Cell_Format::Built_In(0).Shown(7, false), "7");
    EXPECT_EQ(Cell_Format::Built_In(14).Shown(46380, false), "2026-12-24");
    EXPECT_EQ(Cell_Format::Built_In(14).Shown(46380 - 1462, true), "2026-12-24");
    EXPECT_EQ(Cell_Format::Built_In(10).Shown(0.125, false), "12.50%");
    EXPECT_EQ(Cell_Format::Built_In(20).Shown(0.75, false), "18:00");
    EXPECT_TRUE(Cell_Format::Built_In(49).Is_Plain());
    EXPECT_TRUE(Cell_Format::Built_In(123456).Is_Plain());
}

TEST(Cell_Format, Takes_Whatever_Stands_In_A_Code)
{
    for (const char* code : {"", "\"", "\\", "[", "[]", "[$", "[h", "_", "*", ";", "[<", "[<=x]0", "0.0.0", "....",
                             "AM/PM", "%%%", ",,,,0,,,,"})
        for (const double value : {0.0, -1.5, 1e15, 46380.5})
            Cell_Format(code).Shown(value, false);
    EXPECT_EQ(Cell_Format("0.0.0").Shown(1.25, false), "1.25.");
}
