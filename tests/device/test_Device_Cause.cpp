#include "device/Device_Cause.h"

#include <gtest/gtest.h>

namespace {

using Kind = Device_Cause::Kind;

struct Row
{
    const char* m_line;
    std::optional<Device_Cause> m_cause;
};

Device_Cause Words(const char* words)
{
    return {Kind::Words, -1, QString::fromUtf8(words)};
}

const Row Rows[] = {
    {"+CMS ERROR: 500", Device_Cause{Kind::Cms, 500, {}}},
    {"+CMS ERROR:500", Device_Cause{Kind::Cms, 500, {}}},
    {"+CMS ERROR : 500", Device_Cause{Kind::Cms, 500, {}}},
    {"+CMS ERROR 500", Device_Cause{Kind::Cms, 500, {}}},
    {"\r\n+CMS ERROR: 38\r\n", Device_Cause{Kind::Cms, 38, {}}},
    {"+CMS ERROR: 0", Device_Cause{Kind::Cms, 0, {}}},
    {"+CMS ERROR: 007", Device_Cause{Kind::Cms, 7, {}}},
    {"+CMS Error: 332", Device_Cause{Kind::Cms, 332, {}}},
    {"+CME ERROR: 11", Device_Cause{Kind::Cme, 11, {}}},
    {"+CME ERROR:\t11 ", Device_Cause{Kind::Cme, 11, {}}},
    {"+CMS ERROR: SIM busy", Words("SIM busy")},
    {"+CME ERROR: SIM PIN required", Words("SIM PIN required")},
    {"+CMS ERROR: 500,1", Words("500,1")},
    {"+CMS ERROR: -1", Words("-1")},
    {"+CMS ERROR: +5", Words("+5")},
    {"+CMS ERROR: 12345678901234567890", Words("12345678901234567890")},
    {"+CMS ERROR: 999999999", Device_Cause{Kind::Cms, 999999999, {}}},
    {"+CMS ERROR: \u0665", Words("\u0665")}, // a digit of another script
    {"ERROR", Device_Cause{}},
    {" ERROR\r", Device_Cause{}},
    {"+CMS ERROR", Device_Cause{}},
    {"+CME ERROR:", Device_Cause{}},
    {"COMMAND NOT SUPPORT", Words("COMMAND NOT SUPPORT")},
    {"MODEM ERROR: 5", Words("MODEM ERROR: 5")},
    {"NA", Words("NA")},
    {"", std::nullopt},
    {"OK", std::nullopt},
    {">", std::nullopt},
    {"NO CARRIER", std::nullopt},
    {"BUSY", std::nullopt},
    {"RING", std::nullopt},
    {"+CMGS: 17", std::nullopt},
    {"+CMTI: \"SM\",1", std::nullopt},
    {"+CMS ERRORS: 5", std::nullopt},
    {"ERRORS", std::nullopt},
    {"NAME", std::nullopt},
    {"AT+CMS ERROR: 5", std::nullopt},
    {"0", std::nullopt},
};

} // namespace

TEST(Device_Cause, Every_Line_Says_Its_Cause_Or_None)
{
    for (const Row& row : Rows)
        EXPECT_EQ(Cause_Of_Line(QString::fromUtf8(row.m_line)), row.m_cause) << row.m_line;
}

TEST(Device_Cause, Every_Number_Of_Either_Kind_Is_Read)
{
    for (int number = 0; number <= 600; ++number) {
        EXPECT_EQ(Cause_Of_Line(QStringLiteral("+CMS ERROR: %1").arg(number)), (Device_Cause{Kind::Cms, number, {}}));
        EXPECT_EQ(Cause_Of_Line(QStringLiteral("+CME ERROR: %1").arg(number)), (Device_Cause{Kind::Cme, number, {}}));
    }
}
