#include "handset/Report_Line.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <tuple>
#include <vector>

using namespace Handset;

namespace {

const std::string Frame = "07915155009099F906110B915155001032F4621112015100406211120151704000";
const std::string Times = R"("26/11/21,10:15:00+04","26/11/21,10:15:07+04")";

struct Said
{
    const char* m_name;
    std::string m_answer;
    std::string m_number = "+15550001234";
    int m_status = 0;
    std::string m_discharged = "2026-11-21T10:15:07+01:00";
};

class Taken_Reports : public testing::TestWithParam<Said>
{
};

// Digits of UCS2, as a device with that character set says its values.
std::string Ucs2(const std::string& ascii)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string hex;
    for (const char letter : ascii)
        hex += std::string("00") + digits[std::size_t(letter) >> 4] + digits[std::size_t(letter) & 15];
    return hex;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(
    All, Taken_Reports,
    testing::Values(
        Said{"As_The_Standard_Says", "+CDS: 25\r\n" + Frame},
        Said{"With_Line_Ends", "\r\n+CDS: 25\r\n" + Frame + "\r\n"}, Said{"Without_A_Blank", "+CDS:25\r\n" + Frame},
        Said{"With_A_Comma", "+CDS: ,25\r\n" + Frame},
        Said{"With_More_Line_Ends", "+CDS: 25\r\r\n\r\n" + Frame + "\r\n\r\nOK\r\n"},
        Said{"Text", "+CDS: 6,17,\"+15550001234\",145," + Times + ",0"},
        Said{"Text_With_Line_Ends", "\r\n+CDS: 6,17,\"+15550001234\",145," + Times + ",0\r\n\r\n+CMTI: 1"},
        Said{"Text_Says_The_Type", "+CDS: 6,17,\"15550001234\",145," + Times + ",0"},
        Said{"Text_National", "+CDS: 6,17,\"07700900102\",129," + Times + ",70", "07700900102", 70},
        Said{"Text_Without_Quotes", "+CDS:6,17,+15550001234,145,26/11/21,10:15:00+04,26/11/21,10:15:07+04,0"},
        Said{"Text_With_Blanks",
             "+CDS: 6, 17, \"+15550001234\", 145, \"26/11/21,10:15:00+04\", \"26/11/21,10:15:07+04\", 48",
             "+15550001234", 48},
        Said{"Text_Without_A_Recipient", "+CDS: 6,17,,," + Times + ",0", ""},
        Said{"Text_That_Leaves_The_Recipient_Out", "+CDS: 6,17," + Times + ",0", ""},
        Said{"Text_That_Leaves_The_Type_Out", "+CDS: 6,17,\"+15550001234\"," + Times + ",255", "+15550001234", 255},
        Said{"Text_In_Ucs2", "+CDS: 6,17,\"" + Ucs2("+15550001234") + "\",145," + Times + ",0"},
        Said{"Text_All_In_Ucs2", "+CDS: 6,17,\"" + Ucs2("15550001234") + "\",145,\"" + Ucs2("26/11/21,10:15:00+04") +
                                     "\",\"" + Ucs2("26/11/21,10:15:07+04") + "\",0"},
        Said{"Text_With_Digits_That_Are_Not_Ucs2", "+CDS: 6,17,\"00440044\",129," + Times + ",0", "00440044"},
        Said{"Text_Without_A_Time", "+CDS: 6,17,\"+15550001234\",145,\"\",\"26/11/21\",0", "+15550001234", 0, ""}),
    [](const auto& row) { return std::string(row.param.m_name); });

TEST_P(Taken_Reports, Say_What_Was_Delivered)
{
    const auto result = Read_Report(GetParam().m_answer);
    ASSERT_TRUE(result.m_report) << result.m_reason;
    EXPECT_EQ(result.m_report->m_reference, 17);
    EXPECT_EQ(result.m_report->m_number, GetParam().m_number);
    EXPECT_EQ(result.m_report->m_status, GetParam().m_status);
    EXPECT_EQ(result.m_report->m_discharged, GetParam().m_discharged);
    if (!GetParam().m_discharged.empty()) {
        EXPECT_EQ(result.m_report->m_submitted, "2026-11-21T10:15:00+01:00");
    }
}

TEST(Report_Line, Malformed_Ones_Are_Refused_With_Their_Reason)
{
    const std::vector<std::tuple<std::string, std::string>> cases = {
        {"", "line: not +CDS"},
        {"+CDSI: \"SR\",1", "line: not +CDS"},
        {"OK", "line: not +CDS"},
        {"+CDS:", "values: neither a length nor those of a report"},
        {"+CDS: ,", "values: neither a length nor those of a report"},
        {"+CDS: 6,17", "values: neither a length nor those of a report"},
        {"+CDS: 6,17,1,2,3,4,5,6", "values: neither a length nor those of a report"},
        {"+CDS: -1\r\n" + Frame, "values: neither a length nor those of a report"},
        {"+CDS: 99999999999999999999999\r\n" + Frame, "values: neither a length nor those of a report"},
        {"+CDS: 25", "service centre: the frame ends too early"},
        {"+CDS: 26\r\n" + Frame, "frame: the frame ends too early"},
        {"+CDS: 25\r\nOK\r\n", "not pairs of hexadecimal digits"},
        {"+CDS: 5,17,,," + Times + ",0", "first octet: not an SMS-STATUS-REPORT"},
        {"+CDS: x,17,,," + Times + ",0", "first octet: not an SMS-STATUS-REPORT"},
        {"+CDS: 262,17,,," + Times + ",0", "first octet: not an SMS-STATUS-REPORT"},
        {"+CDS: 6,256,,," + Times + ",0", "message reference: not a number from 0 to 255"},
        {"+CDS: 6,,,," + Times + ",0", "message reference: not a number from 0 to 255"},
        {"+CDS: 6,17,\"Ann\",208," + Times + ",0", "recipient: not a number"},
        {"+CDS: 6,17,\"+\",145," + Times + ",0", "recipient: not a number"},
        {"+CDS: 6,17,,," + Times + ",256", "status: not a number from 0 to 255"},
        {"+CDS: 6,17,,," + Times + ",", "status: not a number from 0 to 255"},
    };
    for (const auto& [answer, reason] : cases) {
        const auto result = Read_Report(answer);
        EXPECT_FALSE(result.m_report) << answer;
        EXPECT_EQ(result.m_reason, reason) << answer;
    }
}

TEST(Report_Line, Announces_A_Frame_On_The_Next_Line_Or_Not)
{
    for (const char* line : {"+CDS: 25", "+CDS:25", "+CDS: ,25", "\r\n+CDS: 25\r\n"})
        EXPECT_TRUE(Announces_A_Report(line)) << line;
    for (const char* line : {"", "25", "+CDS:", "+CDS: 6,17", "+CDSI: \"SR\",1", "+CMT: ,25"})
        EXPECT_FALSE(Announces_A_Report(line)) << line;
    EXPECT_FALSE(Announces_A_Report("+CDS: 6,17,\"+15550001234\",145," + Times + ",0"));
}

TEST(Report_Line, Lines_At_Random_Do_No_Harm)
{
    std::mt19937 random(3);
    const std::string pieces[] = {"+CDS:",           " ",           ",",    "\"",  "6",  "17", "0",
                                  "26/11/21",        "10:15:00+04", "\r\n", Frame, "25", "-",  "\xFF",
                                  std::string(1, 0), "0030",        "+1555"};
    for (int round = 0; round < 100'000; ++round) {
        std::string answer = round % 8 == 0 ? "" : "+CDS: 6,17,";
        const std::size_t count = random() % 20;
        for (std::size_t i = 0; i < count; ++i)
            answer += pieces[random() % std::size(pieces)];
        if (round % 16 == 1)
            answer[random() % answer.size()] = char(random());
        const auto result = Read_Report(answer);
        EXPECT_NE(result.m_report.has_value(), !result.m_reason.empty()) << answer;
        Announces_A_Report(answer);
    }
}

TEST(Report_Line, Lines_Without_End_Take_Their_Time_But_Once)
{
    for (const char* endless : {",", "\"", " ", "0", "26/11/21,", "\r\n", " ,", "00"}) {
        std::string answer = "+CDS: ";
        while (answer.size() < 500'000)
            answer += endless;
        EXPECT_FALSE(Read_Report(answer).m_report) << endless;
    }
}
