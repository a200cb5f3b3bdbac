#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The GSM 7 bit default alphabet and its extension table (3GPP TS 23.038 6.2.1 and 6.2.1.1), as a handset reads and
// writes them. Pure.

namespace Handset {

struct Extension_Row
{
    std::uint8_t m_code;
    char32_t m_character;
};

/// Row n is the character of code n; the escape code 0x1B has none and stands as 0.
extern const std::array<char32_t, 128> Gsm_Default_Table;
extern const std::array<Extension_Row, 10> Gsm_Extension_Table;

constexpr std::uint8_t Gsm_Escape = 0x1B;

/// Where a character stands: a code of the default table, or one of the extension table, behind the escape.
struct Gsm_Place
{
    std::uint8_t m_code = 0;
    bool m_escaped = false;
};

/// Nothing for a character that neither table has, among them the small c with cedilla and U+001B itself.
std::optional<Gsm_Place> Gsm_Place_Of(char32_t character);

/// Septets (values 0 to 127) to UTF-8. An escape before a code that the extension table lacks shows the default table's
/// character; an escape before an escape, or at the very end, shows a blank.
std::string Text_Of_Septets(const std::vector<std::uint8_t>& septets);

/// Unpacks septets (23.038 6.1.2.1.1), the first after fill_bits bits. Nothing when there are too few octets.
std::optional<std::vector<std::uint8_t>> Unpack_Septets(std::span<const std::uint8_t> octets, std::size_t fill_bits,
                                                        std::size_t count);

/// Packs septets the same way, behind fill_bits (0 to 6) zero bits; zero bits fill the last octet.
std::vector<std::uint8_t> Pack_Septets(std::span<const std::uint8_t> septets, std::size_t fill_bits);

/// How many septets a UTF-8 text takes; a character that neither table knows counts as one.
std::size_t Septet_Count_Of(std::string_view utf8);

} // namespace Handset
