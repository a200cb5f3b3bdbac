#include "handset/Report_Time.h"
#include "handset/Unicode_Text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace Handset;

namespace {

struct Row
{
    const char* m_octets; // 3GPP TS 23.040 9.2.3.11
    const char* m_text;   // 27.005 3.1
    const char* m_shown;
};

// The zone's sign is the bit with the value 8 in the octet's low semi-octet, which holds the tens.
constexpr Row Rows[] = {
    {"62111201510040", "26/11/21,10:15:00+04", "2026-11-21T10:15:00+01:00"},
    {"62111201510000", "26/11/21,10:15:00+00", "2026-11-21T10:15:00+00:00"},
    {"6211120151000A", "26/11/21,10:15:00-20", "2026-11-21T10:15:00-05:00"},
    {"62111201510049", "26/11/21,10:15:00-14", "2026-11-21T10:15:00-03:30"},
    {"62111201510032", "26/11/21,10:15:00+23", "2026-11-21T10:15:00+05:45"},
    {"62111201510065", "26/11/21,10:15:00+56", "2026-11-21T10:15:00+14:00"},
    {"82209232959500", "28/02/29,23:59:59+00", "2028-02-29T23:59:59+00:00"},
    {"00101000000000", "00/01/01,00:00:00+00", "2000-01-01T00:00:00+00:00"},
    {"99211332959500", "99/12/31,23:59:59+00", "2099-12-31T23:59:59+00:00"},
    // What is no time: a day, month, hour, minute, second or zone that there is not.
    {"62209232959500", "26/02/29,23:59:59+00", ""},
    {"62310101010100", "26/13/10,10:10:10+00", ""},
    {"62001001010100", "26/00/01,10:10:10+00", ""},
    {"62110001010100", "26/11/00,10:10:10+00", ""},
    {"62111242000000", "26/11/21,24:00:00+00", ""},
    {"62111201060000", "26/11/21,10:60:00+00", ""},
    {"62111201000600", "26/11/21,10:00:60+00", ""},
    {"62111201510075", "26/11/21,10:15:00+57", ""},
    {"00000000000000", "00/00/00,00:00:00+00", ""},
};

std::string Of_Octets(const char* hex)
{
    return Time_Of_Octets(Octets_Of_Hex(hex).value());
}

} // namespace

TEST(Report_Time, Both_Forms_Say_The_Same_Time)
{
    for (const Row& row : Rows) {
        EXPECT_EQ(Of_Octets(row.m_octets), row.m_shown) << row.m_octets;
        EXPECT_EQ(Time_Of_Text(row.m_text), row.m_shown) << row.m_text;
    }
}

TEST(Report_Time, What_Is_Not_Of_The_Form_Is_No_Time)
{
    for (const char* hex : {"", "621112015100", "6211120151004000", "6A111201510040", "A2111201510040",
                            "FFFFFFFFFFFFFF", "621112015100F0"})
        EXPECT_EQ(Of_Octets(hex), "") << hex;
    for (const char* text : {"", "26/11/21", "26/11/21,10:15:00", "26/11/21,10:15:00+0", "26/11/21,10:15:00+000",
                             "26-11-21,10:15:00+00", "26/11/21 10:15:00+00", "26/11/21,10:15:00*00",
                             "a6/11/21,10:15:00+00", "26/11/21,10:15:0:+00", "2/611/21,10:15:00+00"})
        EXPECT_EQ(Time_Of_Text(text), "") << text;
}
