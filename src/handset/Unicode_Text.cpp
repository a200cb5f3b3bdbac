#include "handset/Unicode_Text.h"

#include <array>

namespace Handset {

namespace {

constexpr char32_t Replacement = 0xFFFD;
constexpr std::string_view Hex_Digits = "0123456789ABCDEF";

bool Is_High_Surrogate(char32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}
bool Is_Low_Surrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

int Value_Of_Hex_Digit(char digit)
{
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    if (digit >= 'A' && digit <= 'F')
        return digit - 'A' + 10;
    if (digit >= 'a' && digit <= 'f')
        return digit - 'a' + 10;
    return -1;
}

// How many octets follow a first octet, and the least code point such a sequence may stand for (RFC 3629, 3).
struct Utf8_Lead
{
    int m_following;
    char32_t m_bits;
    char32_t m_least;
};

std::optional<Utf8_Lead> Lead_Of(unsigned char octet)
{
    if (octet < 0x80)
        return Utf8_Lead{0, octet, 0};
    if ((octet & 0xE0) == 0xC0)
        return Utf8_Lead{1, char32_t(octet & 0x1F), 0x80};
    if ((octet & 0xF0) == 0xE0)
        return Utf8_Lead{2, char32_t(octet & 0x0F), 0x800};
    if ((octet & 0xF8) == 0xF0)
        return Utf8_Lead{3, char32_t(octet & 0x07), 0x10000};
    return std::nullopt;
}

char32_t Of_Pair(char32_t high, char32_t low)
{
    return 0x10000 + ((high - 0xD800) << 10) + (low - 0xDC00);
}

void Append_Hex_Unit(std::string& hex, char32_t unit)
{
    for (int shift = 12; shift >= 0; shift -= 4)
        hex += Hex_Digits[(unit >> shift) & 0xF];
}

} // namespace

void Append_Code_Point(std::string& utf8, char32_t code_point)
{
    if (Is_Surrogate(code_point) || code_point > 0x10FFFF)
        code_point = Replacement;
    if (code_point < 0x80) {
        utf8 += char(code_point);
    } else if (code_point < 0x800) {
        utf8 += char(0xC0 | (code_point >> 6));
        utf8 += char(0x80 | (code_point & 0x3F));
    } else if (code_point < 0x10000) {
        utf8 += char(0xE0 | (code_point >> 12));
        utf8 += char(0x80 | ((code_point >> 6) & 0x3F));
        utf8 += char(0x80 | (code_point & 0x3F));
    } else {
        utf8 += char(0xF0 | (code_point >> 18));
        utf8 += char(0x80 | ((code_point >> 12) & 0x3F));
        utf8 += char(0x80 | ((code_point >> 6) & 0x3F));
        utf8 += char(0x80 | (code_point & 0x3F));
    }
}

std::string Text_Of_Utf16_Octets(const std::vector<std::uint8_t>& octets)
{
    std::string text;
    char32_t waiting = 0; // a high surrogate without its partner yet
    for (std::size_t at = 0; at + 1 < octets.size(); at += 2) {
        const char32_t unit = char32_t(octets[at]) << 8 | octets[at + 1];
        if (waiting != 0 && Is_Low_Surrogate(unit)) {
            Append_Code_Point(text, Of_Pair(waiting, unit));
            waiting = 0;
            continue;
        }
        if (waiting != 0)
            Append_Code_Point(text, Replacement);
        waiting = Is_High_Surrogate(unit) ? unit : 0;
        if (waiting == 0)
            Append_Code_Point(text, unit);
    }
    if (waiting != 0)
        Append_Code_Point(text, Replacement);
    if (octets.size() % 2 != 0)
        Append_Code_Point(text, Replacement);
    return text;
}

std::string Text_Of_Latin_1(std::string_view bytes)
{
    std::string text;
    for (const char byte : bytes)
        Append_Code_Point(text, static_cast<unsigned char>(byte));
    return text;
}

std::optional<std::u32string> Code_Points_Of(std::string_view utf8)
{
    std::u32string code_points;
    while (!utf8.empty()) {
        const auto lead = Lead_Of(static_cast<unsigned char>(utf8.front()));
        utf8.remove_prefix(1);
        if (!lead || utf8.size() < std::size_t(lead->m_following))
            return std::nullopt;
        char32_t code_point = lead->m_bits;
        for (int i = 0; i < lead->m_following; ++i) {
            const auto octet = static_cast<unsigned char>(utf8.front());
            utf8.remove_prefix(1);
            if ((octet & 0xC0) != 0x80)
                return std::nullopt;
            code_point = code_point << 6 | (octet & 0x3F);
        }
        if (code_point < lead->m_least || code_point > 0x10FFFF || Is_Surrogate(code_point))
            return std::nullopt;
        code_points += code_point;
    }
    return code_points;
}

char32_t Code_Point_At(std::u16string_view text, std::size_t at)
{
    const char32_t unit = text[at];
    if (!Is_High_Surrogate(unit) || at + 1 == text.size() || !Is_Low_Surrogate(text[at + 1]))
        return unit;
    return Of_Pair(unit, text[at + 1]);
}

bool Is_Surrogate(char32_t unit)
{
    return Is_High_Surrogate(unit) || Is_Low_Surrogate(unit);
}

std::optional<std::vector<std::uint8_t>> Octets_Of_Hex(std::string_view hex)
{
    if (hex.size() % 2 != 0)
        return std::nullopt;
    std::vector<std::uint8_t> octets;
    octets.reserve(hex.size() / 2);
    for (; !hex.empty(); hex.remove_prefix(2)) {
        const int high = Value_Of_Hex_Digit(hex[0]);
        const int low = Value_Of_Hex_Digit(hex[1]);
        if (high < 0 || low < 0)
            return std::nullopt;
        octets.push_back(std::uint8_t(high << 4 | low));
    }
    return octets;
}

std::string Hex_Of_Octets(std::span<const std::uint8_t> octets)
{
    std::string hex;
    hex.reserve(octets.size() * 2);
    for (const std::uint8_t octet : octets) {
        hex += Hex_Digits[octet >> 4];
        hex += Hex_Digits[octet & 0xF];
    }
    return hex;
}

std::string Hex_Of_Utf16(std::u16string_view text)
{
    std::string hex;
    hex.reserve(text.size() * 4);
    for (const char16_t unit : text)
        Append_Hex_Unit(hex, unit);
    return hex;
}

std::string Hex_Utf16_Of(std::string_view utf8)
{
    std::string hex;
    for (const char32_t code_point : Code_Points_Of(utf8).value_or(std::u32string())) {
        if (code_point < 0x10000) {
            Append_Hex_Unit(hex, code_point);
        } else {
            Append_Hex_Unit(hex, 0xD800 + ((code_point - 0x10000) >> 10));
            Append_Hex_Unit(hex, 0xDC00 + ((code_point - 0x10000) & 0x3FF));
        }
    }
    return hex;
}

} // namespace Handset
