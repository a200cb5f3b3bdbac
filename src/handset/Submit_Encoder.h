#pragma once

#include "handset/Address.h"
#include "handset/Text_Parts.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Writes SMS-SUBMIT frames (3GPP TS 23.040 9.2.2.2) with the service-centre part in front of them (27.005 3.1), as the
// standard asks for them, and what text mode needs instead. Pure; what cannot be written is a fault, never an
// exception.

namespace Handset {

/// One message to one number.
struct Submit_Request
{
    Address m_destination;        ///< see Destination_Of
    std::string m_service_centre; ///< as a person writes it; empty for the device's own
    std::u16string m_text;
    Alphabet_Choice m_choice = Alphabet_Choice::Fitting;
    bool m_flash = false;         ///< class 0: shown at once, not kept
    bool m_status_report = false; ///< asks for a report on each part
    std::uint8_t m_reference = 0; ///< of the concatenation; unused when one part is enough
};

enum class Submit_Fault
{
    None,
    Number_Missing,
    Number_Too_Long, ///< more than 20 digits
    Number_Not_Digits,
    Centre_Missing, ///< "+" or "00" alone
    Centre_Too_Long,
    Centre_Not_Digits,
    Too_Many_Parts ///< more than the 255 that a concatenation counts
};

struct Encoded_Frame
{
    std::string m_hex;             ///< upper case, the service-centre part included
    std::size_t m_tpdu_octets = 0; ///< without it: what AT+CMGS announces
};

/// Frames and parts in the order of the text, one frame a part; both empty when there is a fault.
struct Submit_Frames
{
    Submit_Fault m_fault = Submit_Fault::None;
    std::vector<Encoded_Frame> m_frames;
    std::vector<Text_Part> m_parts;
};

Submit_Frames Encode_Submit(const Submit_Request& request);

/// TP-DCS, which is also text mode's <dcs>: 0, 8 for UCS2, and 16 or 24 for class 0 (23.038 4).
std::uint8_t Data_Coding_Of(Alphabet alphabet, bool flash);

/// The body of a part in text mode with the character set "UCS2" (27.005 3.5.1): four digits for each UTF-16 unit of
/// the text as it is written.
std::string Text_Mode_Body(std::u16string_view part, Alphabet alphabet);

} // namespace Handset
