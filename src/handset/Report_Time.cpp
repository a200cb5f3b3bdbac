#include "handset/Report_Time.h"

#include <array>
#include <chrono>
#include <cstddef>

namespace Handset {

namespace {

/// Each as it was read; -1 for what was no number.
struct Read_Time
{
    std::array<int, 6> m_fields{}; ///< year of the century, month, day, hour, minute, second
    int m_quarters = -1;           ///< of an hour
    bool m_west = false;           ///< behind Greenwich
};

constexpr int Most_Quarters = 14 * 4; // no zone is further away

bool Is_Time(const Read_Time& time)
{
    const auto [year, month, day, hour, minute, second] = time.m_fields;
    if (year < 0 || month < 0 || day < 0)
        return false;
    const std::chrono::year_month_day date{std::chrono::year(2000 + year), std::chrono::month(unsigned(month)),
                                           std::chrono::day(unsigned(day))};
    const auto is_within = [](int value, int most) { return value >= 0 && value <= most; };
    return date.ok() && is_within(hour, 23) && is_within(minute, 59) && is_within(second, 59) &&
           is_within(time.m_quarters, Most_Quarters);
}

std::string Two_Digits(int value)
{
    return {char('0' + value / 10), char('0' + value % 10)};
}

std::string Shown(const Read_Time& time)
{
    if (!Is_Time(time))
        return {};
    constexpr std::array<const char*, 6> before = {"20", "-", "-", "T", ":", ":"};
    std::string shown;
    for (std::size_t at = 0; at < time.m_fields.size(); ++at)
        shown += before.at(at) + Two_Digits(time.m_fields.at(at));
    const int minutes = time.m_quarters * 15;
    return shown + (time.m_west ? "-" : "+") + Two_Digits(minutes / 60) + ":" + Two_Digits(minutes % 60);
}

int Value_Of(int tens, int units)
{
    const auto is_digit = [](int value) { return value >= 0 && value <= 9; };
    return is_digit(tens) && is_digit(units) ? tens * 10 + units : -1;
}

} // namespace

std::string Time_Of_Octets(std::span<const std::uint8_t> octets)
{
    constexpr std::uint8_t west = 0x08; // the sign stands in the zone's first semi-octet
    Read_Time time;
    if (octets.size() != time.m_fields.size() + 1)
        return {};
    for (std::size_t at = 0; at < time.m_fields.size(); ++at)
        time.m_fields.at(at) = Value_Of(octets[at] & 0x0F, octets[at] >> 4);
    time.m_west = (octets.back() & west) != 0;
    time.m_quarters = Value_Of(octets.back() & 0x07, octets.back() >> 4);
    return Shown(time);
}

std::string Time_Of_Text(std::string_view text)
{
    constexpr std::string_view form = "00/00/00,00:00:00+00"; // a digit for each 0, either sign for the +
    if (text.size() != form.size())
        return {};
    for (std::size_t at = 0; at < form.size(); ++at) {
        const bool is_sign = form[at] == '+' && text[at] == '-';
        if (form[at] != '0' && form[at] != text[at] && !is_sign)
            return {};
    }
    const auto number = [&](std::size_t at) { return Value_Of(text[at] - '0', text[at + 1] - '0'); };
    Read_Time time;
    for (std::size_t field = 0; field < time.m_fields.size(); ++field)
        time.m_fields.at(field) = number(field * 3);
    time.m_west = text[form.size() - 3] == '-';
    time.m_quarters = number(form.size() - 2);
    return Shown(time);
}

} // namespace Handset
