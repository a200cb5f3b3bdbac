#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Reads SMS-STATUS-REPORT frames (3GPP TS 23.040 9.2.2.3). Pure; a malformed one gives a reason.

namespace Handset {

struct Status_Report
{
    std::string m_smsc;        ///< empty when the frame does not say it, and in text mode
    int m_reference = 0;       ///< TP-MR: what "+CMGS: <mr>" answered for the part that this is about
    std::string m_number;      ///< of the recipient, "+" in front for the international type; may be empty in text mode
    std::string m_submitted;   ///< TP-SCTS, as in Report_Time.h; empty when it is no time
    std::string m_discharged;  ///< TP-DT: when it was delivered or last tried, in the same form
    std::uint8_t m_status = 0; ///< TP-ST, see Delivery_Status.h
};

struct Status_Report_Result
{
    std::optional<Status_Report> m_report;
    std::string m_reason; ///< why there is no report; empty when there is one
};

/// Whether the first octet of a frame says so (TP-MTI, 9.2.3.1).
constexpr bool Is_Status_Report(std::uint8_t first_octet)
{
    return (first_octet & 0x03) == 0x02;
}

/// A frame in hexadecimal, the service-centre part in front of it. announced: how many octets follow that part, if
/// known; more are left alone, fewer are a failure. The optional fields behind the status are not looked at.
Status_Report_Result Decode_Status_Report(std::string_view hex, std::optional<std::size_t> announced = std::nullopt);

} // namespace Handset
