#include "phone/Frame_Writer.h"

#include "handset/Unicode_Text.h"

namespace Handset {

namespace {

constexpr int International = 0x91;
constexpr int Unknown_Type = 0x81;

std::string_view Without_Plus(std::string_view number)
{
    return number.starts_with('+') ? number.substr(1) : number;
}

int Type_Of(std::string_view number)
{
    return number.starts_with('+') ? International : Unknown_Type;
}

// 9.1.2.3; what is no digit becomes the end mark.
int Semi_Octet_Of(char digit)
{
    constexpr std::string_view row = "0123456789*#abc";
    const auto found = row.find(digit >= 'A' && digit <= 'C' ? char(digit - 'A' + 'a') : digit);
    return found == std::string_view::npos ? 0xF : int(found);
}

// The decimal digits of a number below 100, swapped.
int Swapped(int number)
{
    return number % 10 * 16 + number / 10 % 10;
}

} // namespace

void Frame_Writer::Put_Octet(int octet)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    m_hex += digits[std::size_t(octet >> 4 & 0xF)];
    m_hex += digits[std::size_t(octet & 0xF)];
}

void Frame_Writer::Put_Centre(std::string_view number)
{
    const auto digits = Without_Plus(number);
    Put_Octet(digits.empty() ? 0 : int(1 + (digits.size() + 1) / 2));
    if (!digits.empty()) {
        Put_Octet(Type_Of(number));
        Put_Digits(digits);
    }
    m_centre_digits = m_hex.size();
}

void Frame_Writer::Put_Address(std::string_view number)
{
    const auto digits = Without_Plus(number);
    Put_Octet(int(digits.size()));
    Put_Octet(Type_Of(number));
    Put_Digits(digits);
}

void Frame_Writer::Put_Digits(std::string_view number)
{
    for (std::size_t at = 0; at < number.size(); at += 2) {
        const int second = at + 1 < number.size() ? Semi_Octet_Of(number[at + 1]) : 0xF;
        Put_Octet(second * 16 + Semi_Octet_Of(number[at]));
    }
}

void Frame_Writer::Put_Time(std::time_t time)
{
    std::tm parts{};
    gmtime_r(&time, &parts);
    for (const int value :
         {parts.tm_year % 100, parts.tm_mon + 1, parts.tm_mday, parts.tm_hour, parts.tm_min, parts.tm_sec, 0})
        Put_Octet(Swapped(value));
}

void Frame_Writer::Put_Ucs2(std::string_view utf8)
{
    m_hex += Hex_Utf16_Of(utf8);
}

} // namespace Handset
