#pragma once

#include "handset/Coding_Scheme.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// Decodes an SMS-SUBMIT frame (3GPP TS 23.040 9.2.2.2) and the service-centre address in front of it (27.005 3.1).
// Pure; a malformed frame gives a reason.

namespace Handset {

enum class Validity_Format
{
    None = 0,
    Enhanced = 1,
    Relative = 2,
    Absolute = 3
};

/// Concatenation information element (23.040 9.2.3.24.1 and 9.2.3.24.8).
struct Concatenation
{
    int m_reference = 0;
    int m_parts = 1;
    int m_part = 1;
    bool m_wide = false; ///< a 16-bit reference
};

struct Submit_Frame
{
    std::string m_smsc; ///< empty when the frame leaves the centre to the phone
    std::uint8_t m_first_octet = 0;
    bool m_reject_duplicates = false;
    bool m_status_report = false;
    bool m_reply_path = false;
    bool m_has_header = false;
    Validity_Format m_validity_format = Validity_Format::None;
    std::uint8_t m_message_reference = 0;
    std::string m_number;
    std::uint8_t m_protocol = 0;
    Coding_Scheme m_coding;
    std::vector<std::uint8_t> m_validity; ///< 0, 1 or 7 octets
    std::optional<Concatenation> m_concatenation;
    std::vector<std::uint8_t> m_units; ///< septets or octets of the text, the header taken off
    std::size_t m_centre_octets = 0;   ///< of the service-centre part, its length octet included
    std::size_t m_tpdu_octets = 0;     ///< of the rest: what AT+CMGS announces

    /// What a handset shows; empty for compressed user data, which is not taken apart.
    std::string Text() const;
};

struct Submit_Result
{
    std::optional<Submit_Frame> m_frame;
    std::string m_reason; ///< why there is no frame; empty when there is one
};

/// Hexadecimal text as it follows the prompt of AT+CMGS.
Submit_Result Decode_Submit(std::string_view hex);

/// The same from octets.
Submit_Result Decode_Submit_Octets(std::span<const std::uint8_t> octets);

} // namespace Handset
