#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Handset {

enum class Alphabet
{
    Gsm_7_Bit,
    Eight_Bit,
    Ucs2
};

/// What a TP-DCS octet says (3GPP TS 23.038 4). A value.
struct Coding_Scheme
{
    std::uint8_t m_octet = 0;
    Alphabet m_alphabet = Alphabet::Gsm_7_Bit;
    int m_class = -1; ///< 0 to 3; -1 none
    bool m_compressed = false;
    bool m_to_be_deleted = false;      ///< marked for automatic deletion
    bool m_waiting_indication = false; ///< a message-waiting group
};

/// Never fails: reserved codings mean the default alphabet (23.038 4).
Coding_Scheme Coding_Scheme_Of(std::uint8_t dcs);

/// "GSM 7-bit", "8-bit" or "UCS2".
std::string Name_Of(Alphabet alphabet);

/// Units are septets for the 7-bit alphabet and octets for the others; 8-bit data is shown as ISO 8859-1.
std::string Shown_Text(Alphabet alphabet, const std::vector<std::uint8_t>& units);

} // namespace Handset
