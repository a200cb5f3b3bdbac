// Texts in the two forms that the room speaks.
#pragma once

#include "handset/Unicode_Text.h"

#include <string>
#include <string_view>

// What well-formed UTF-8 says, as UTF-16.
inline std::u16string Utf16_Of(std::string_view utf8)
{
    std::u16string text;
    const std::u32string code_points = Handset::Code_Points_Of(utf8).value();
    for (const char32_t code_point : code_points) {
        if (code_point > 0xFFFF) {
            text += char16_t(0xD800 + ((code_point - 0x10000) >> 10));
            text += char16_t(0xDC00 + ((code_point - 0x10000) & 0x3FF));
        } else {
            text += char16_t(code_point);
        }
    }
    return text;
}

inline std::string Utf8_Of(std::u16string_view text)
{
    std::vector<std::uint8_t> octets;
    for (const char16_t unit : text) {
        octets.push_back(std::uint8_t(unit >> 8));
        octets.push_back(std::uint8_t(unit));
    }
    return Handset::Text_Of_Utf16_Octets(octets);
}

inline std::u16string operator*(std::size_t count, const std::u16string& text)
{
    std::u16string repeated;
    for (std::size_t i = 0; i < count; ++i)
        repeated += text;
    return repeated;
}
