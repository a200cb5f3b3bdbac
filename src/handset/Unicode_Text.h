#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// UTF-8, UTF-16 and hexadecimal digits: what a handset shows is kept as UTF-8, what a person writes comes as UTF-16.
// Pure functions.

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

/// The code point that begins at this unit of a UTF-16 text; a lone surrogate as it is.
char32_t Code_Point_At(std::u16string_view text, std::size_t at);

/// 2 for a code point that UTF-16 writes as a surrogate pair, else 1.
constexpr std::size_t Utf16_Units_Of(char32_t code_point)
{
    return code_point > 0xFFFF ? 2 : 1;
}

/// Whether it is one half of a surrogate pair.
bool Is_Surrogate(char32_t unit);

/// Upper- or lower-case hexadecimal digits, two an octet; nothing for anything else.
std::optional<std::vector<std::uint8_t>> Octets_Of_Hex(std::string_view hex);

/// Upper-case hexadecimal digits, two an octet.
std::string Hex_Of_Octets(std::span<const std::uint8_t> octets);

/// UTF-16 to upper-case hexadecimal, four digits a code unit.
std::string Hex_Of_Utf16(std::u16string_view text);

/// UTF-8 to upper-case hexadecimal UTF-16, four digits a code unit.
std::string Hex_Utf16_Of(std::string_view utf8);

} // namespace Handset
