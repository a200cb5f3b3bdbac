#include "handset/Status_Report.h"
#include "handset/Unicode_Text.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <tuple>
#include <vector>

using namespace Handset;

namespace {

// By 3GPP TS 23.040 9.2.2.3: service centre +15550009999; first octet with "no more messages"; reference 17; recipient
// +15550001234; submitted at 10:15:00 and delivered at 10:15:07 of the 21st of November 2026, an hour ahead of
// Greenwich; status 0.
const std::string Centre = "07915155009099F9";
const std::string Frame = "06"
                          "11"
                          "0B915155001032F4"
                          "62111201510040"
                          "62111201517040"
                          "00";

void Expect_Sound(const Status_Report_Result& result, const std::string& what)
{
    EXPECT_NE(result.m_report.has_value(), !result.m_reason.empty()) << what;
    if (!result.m_report)
        return;
    for (const std::string& time : {result.m_report->m_submitted, result.m_report->m_discharged})
        EXPECT_TRUE(time.empty() || time.size() == 25) << what;
    EXPECT_TRUE(result.m_report->m_reference >= 0 && result.m_report->m_reference <= 255) << what;
    EXPECT_FALSE(result.m_report->m_number.empty()) << what;
}

} // namespace

TEST(Status_Report, Says_All_Its_Fields)
{
    const auto result = Decode_Status_Report(Centre + Frame, 25);
    ASSERT_TRUE(result.m_report) << result.m_reason;
    EXPECT_EQ(result.m_report->m_smsc, "+15550009999");
    EXPECT_EQ(result.m_report->m_reference, 17);
    EXPECT_EQ(result.m_report->m_number, "+15550001234");
    EXPECT_EQ(result.m_report->m_submitted, "2026-11-21T10:15:00+01:00");
    EXPECT_EQ(result.m_report->m_discharged, "2026-11-21T10:15:07+01:00");
    EXPECT_EQ(result.m_report->m_status, 0);
}

TEST(Status_Report, The_Centre_May_Be_Left_Out_And_The_Length_Unknown)
{
    const auto result = Decode_Status_Report("00" + Frame);
    ASSERT_TRUE(result.m_report) << result.m_reason;
    EXPECT_EQ(result.m_report->m_smsc, "");
    EXPECT_EQ(result.m_report->m_reference, 17);
}

TEST(Status_Report, A_National_Recipient_Has_No_Plus)
{
    const auto result = Decode_Status_Report("0026FF0B817007091020F2621112015100406211120151704046");
    ASSERT_TRUE(result.m_report) << result.m_reason;
    EXPECT_EQ(result.m_report->m_number, "07709001022");
    EXPECT_EQ(result.m_report->m_reference, 255);
    EXPECT_EQ(result.m_report->m_status, 0x46);
}

TEST(Status_Report, Optional_Fields_And_What_Lies_Behind_The_Announced_Length_Do_No_Harm)
{
    // TP-PI, TP-PID, TP-DCS, TP-UDL and TP-UD.
    EXPECT_TRUE(Decode_Status_Report(Centre + Frame + "07000005E8329BFD06", 34).m_report);
    EXPECT_TRUE(Decode_Status_Report(Centre + Frame + "FF").m_report);
    EXPECT_TRUE(Decode_Status_Report(Centre + Frame + "FFFF", 25).m_report);
}

TEST(Status_Report, A_Time_That_Is_None_Loses_No_Report)
{
    const auto result = Decode_Status_Report("0006110B915155001032F400000000000000FFFFFFFFFFFFFF30");
    ASSERT_TRUE(result.m_report) << result.m_reason;
    EXPECT_EQ(result.m_report->m_submitted, "");
    EXPECT_EQ(result.m_report->m_discharged, "");
    EXPECT_EQ(result.m_report->m_status, 0x30);
}

TEST(Status_Report, Malformed_Frames_Are_Refused_With_Their_Reason)
{
    const std::vector<std::tuple<std::string, std::string>> cases = {
        {"", "service centre: the frame ends too early"},
        {"0", "not pairs of hexadecimal digits"},
        {"00061G", "not pairs of hexadecimal digits"},
        {"01" + Frame, "service centre: a length that no address has"},
        {"00", "first octet: the frame ends too early"},
        {"0004" + Frame.substr(2), "first octet: not an SMS-STATUS-REPORT"}, // SMS-DELIVER
        {"0001" + Frame.substr(2), "first octet: not an SMS-STATUS-REPORT"}, // SMS-SUBMIT
        {"0006", "message reference: the frame ends too early"},
        {"00061100", "recipient: no digits"},
        {"0006111591", "recipient: more than 20 digits"},
        {"0006110B11", "recipient: the type of address lacks its first bit"},
        {"0006110B91515500103244", "recipient: no fill behind its digits"},
        {"0006110B915155001032F4621112", "service-centre time: the frame ends too early"},
        {"0006110B915155001032F4621112015100406211", "discharge time: the frame ends too early"},
        {"00" + Frame.substr(0, Frame.size() - 2), "status: the frame ends too early"},
    };
    for (const auto& [hex, reason] : cases) {
        const auto result = Decode_Status_Report(hex);
        EXPECT_FALSE(result.m_report) << hex;
        EXPECT_EQ(result.m_reason, reason) << hex;
    }
}

TEST(Status_Report, Fewer_Octets_Than_Announced_Are_Refused)
{
    EXPECT_EQ(Decode_Status_Report(Centre + Frame, 26).m_reason, "frame: the frame ends too early");
    EXPECT_EQ(Decode_Status_Report(Centre + Frame, std::size_t(-1)).m_reason, "frame: the frame ends too early");
    EXPECT_EQ(Decode_Status_Report(Centre + Frame, 24).m_reason, "status: the frame ends too early");
    EXPECT_EQ(Decode_Status_Report("", 0).m_reason, "service centre: the frame ends too early");
}

TEST(Status_Report, Every_Truncation_Is_Refused_And_No_Changed_Digit_Does_Harm)
{
    const std::string whole = Centre + Frame;
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(Decode_Status_Report(whole.substr(0, length)).m_report) << length;
    for (std::size_t at = 0; at < whole.size(); ++at) {
        for (const char digit : std::string("0123456789ABCDEF")) {
            auto changed = whole;
            changed[at] = digit;
            Expect_Sound(Decode_Status_Report(changed, 25), changed);
        }
    }
}

TEST(Status_Report, Octets_At_Random_Do_No_Harm)
{
    std::mt19937 random(1);
    std::size_t taken = 0;
    for (int round = 0; round < 100'000; ++round) {
        std::vector<std::uint8_t> octets(random() % 48);
        for (auto& octet : octets)
            octet = std::uint8_t(random());
        if (octets.size() > 12 && round % 2 == 0) { // half of them with a beginning that gets further
            const std::uint8_t beginning[] = {0x00, 0x06, octets[2], std::uint8_t(octets[3] % 12), 0x91};
            std::copy(std::begin(beginning), std::end(beginning), octets.begin());
        }
        const std::string hex = Hex_Of_Octets(octets);
        const auto result = Decode_Status_Report(hex);
        if (result.m_report && octets[4] != 0xD0)
            Expect_Sound(result, hex);
        taken += result.m_report ? 1 : 0;
    }
    EXPECT_GT(taken, 100u);
}
