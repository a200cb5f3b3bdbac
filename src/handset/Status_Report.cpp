#include "handset/Status_Report.h"

#include "handset/Address.h"
#include "handset/Octet_Cursor.h"
#include "handset/Report_Time.h"
#include "handset/Unicode_Text.h"

namespace Handset {

namespace {

// 9.2.3.11 and 9.2.3.13: both times have the same form.
std::string Read_Time(Octet_Cursor& cursor, const char* field)
{
    constexpr std::size_t length = 7;
    return Time_Of_Octets(cursor.Octets(length, field));
}

void Read_Fields(Octet_Cursor& cursor, Status_Report& report)
{
    const std::uint8_t first_octet = cursor.Octet("first octet");
    if (!Is_Status_Report(first_octet))
        cursor.Fail("first octet: not an SMS-STATUS-REPORT");
    report.m_reference = cursor.Octet("message reference");
    report.m_number = Read_Party(cursor, "recipient"); // TP-RA, 9.2.3.14
    report.m_submitted = Read_Time(cursor, "service-centre time");
    report.m_discharged = Read_Time(cursor, "discharge time");
    report.m_status = cursor.Octet("status");
}

} // namespace

Status_Report_Result Decode_Status_Report(std::string_view hex, std::optional<std::size_t> announced)
{
    const auto octets = Octets_Of_Hex(hex);
    if (!octets)
        return {std::nullopt, "not pairs of hexadecimal digits"};
    Octet_Cursor cursor(*octets);
    Status_Report report;
    report.m_smsc = Read_Service_Centre(cursor);
    Octet_Cursor frame(cursor.Octets(announced.value_or(cursor.Left()), "frame"));
    if (!cursor.Has_Failed())
        Read_Fields(frame, report);
    if (cursor.Has_Failed() || frame.Has_Failed())
        return {std::nullopt, cursor.Has_Failed() ? cursor.Reason() : frame.Reason()};
    return {report, {}};
}

} // namespace Handset
