#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// UTF-8 and UTF-16 for the phone: what a handset shows is kept as UTF-8. Pure functions.

namespace Handset {

/// Appends one code point; a surrogate or a value past U+10FFFF becomes U+FFFD.
void Append_Code_Point(std::string& utf8, char32_t code_point);

/// UTF-16 code units, most significant octet first (3GPP TS 23.038 6.2.3). Pairs become one character, a lone surrogate
/// and a last octet without its partner become U+FFFD.
std::string Text_Of_Utf16_Octets(const std::vector<std::uint8_t>& octets);

/// One character for each octet (ISO 8859-1).
std::string Text_Of_Latin_1(std::string_view bytes);

/// The code points of well-formed UTF-8; nothing for any other bytes.
std::optional<std::u32string> Code_Points_Of(std::string_view utf8);

/// Upper- or lower-case hexadecimal digits, two an octet; nothing for anything else.
std::optional<std::vector<std::uint8_t>> Octets_Of_Hex(std::string_view hex);

/// UTF-8 to upper-case hexadecimal UTF-16, four digits a code unit.
std::string Hex_Utf16_Of(std::string_view utf8);

} // namespace Handset
