#include "handset/Report_Line.h"

#include "handset/Address.h"
#include "handset/Report_Time.h"
#include "handset/Unicode_Text.h"

#include <algorithm>
#include <charconv>
#include <vector>

namespace Handset {

namespace {

constexpr std::string_view Prefix = "+CDS:";

std::string_view Trimmed(std::string_view text)
{
    constexpr std::string_view blank = " \t\r\n";
    const auto first = text.find_first_not_of(blank);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blank) - first + 1);
}

// Takes the first line, without its end, from a trimmed text.
std::string_view Take_Line(std::string_view& text)
{
    const auto end = std::min(text.find_first_of("\r\n"), text.size());
    const std::string_view line = Trimmed(text.substr(0, end));
    text = Trimmed(text.substr(end));
    return line;
}

template <typename Number>
std::optional<Number> Number_Of(std::string_view digits)
{
    Number number = 0;
    const char* const end = digits.data() + digits.size();
    const auto [last, error] = std::from_chars(digits.data(), end, number);
    if (error != std::errc() || last != end)
        return std::nullopt;
    return number;
}

// What <length> says in a line that announces a frame; nothing for any other values.
std::optional<std::size_t> Announced_Octets(std::string_view values)
{
    values = Trimmed(values);
    if (values.starts_with(','))
        values.remove_prefix(1);
    return Number_Of<std::size_t>(Trimmed(values));
}

// The values of text mode, without their quotes. The comma between a date and its time parts nothing, even where a
// device leaves the quotes out.
std::vector<std::string_view> Values_Of(std::string_view line)
{
    const auto is_date = [](std::string_view text) { return text.size() == 8 && text[2] == '/' && text[5] == '/'; };
    std::vector<std::string_view> values;
    bool is_quoted = false;
    std::size_t first = 0;
    for (std::size_t at = 0; at <= line.size(); ++at) {
        if (at < line.size()) {
            is_quoted = is_quoted != (line[at] == '"');
            if (line[at] != ',' || is_quoted || is_date(Trimmed(line.substr(first, at - first))))
                continue;
        }
        std::string_view value = Trimmed(line.substr(first, at - first));
        if (value.size() >= 2 && value.front() == '"' && value.back() == '"')
            value = value.substr(1, value.size() - 2);
        values.push_back(value);
        first = at + 1;
    }
    return values;
}

// The ASCII text that these digits are in UCS2; nothing where they are none.
std::optional<std::string> Text_Of_Ucs2_Digits(std::string_view digits)
{
    const auto octets = Octets_Of_Hex(digits);
    if (!octets || octets->size() % 2 != 0)
        return std::nullopt;
    std::string text;
    for (std::size_t at = 0; at < octets->size(); at += 2) {
        if ((*octets)[at] != 0 || (*octets)[at + 1] > 0x7F)
            return std::nullopt;
        text += char((*octets)[at + 1]);
    }
    return text;
}

bool Is_Number(std::string_view text)
{
    return Fault_Of(Destination_Of(text)) == Address_Fault::None;
}

// <ra> by its <tora>; nothing for what is no number.
std::optional<std::string> Number_Of_Values(std::string_view number, std::string_view type)
{
    constexpr std::size_t sure = 3 * 4; // fewer digits than of three characters in UCS2 may be a number themselves
    std::string found(number);
    if (const auto decoded = Text_Of_Ucs2_Digits(number); decoded && number.size() >= sure && Is_Number(*decoded))
        found = *decoded;
    if (found.empty())
        return found;
    if (!Is_Number(found))
        return std::nullopt;
    const bool is_international = (Number_Of<std::uint8_t>(type).value_or(0) & 0x70) == 0x10; // 23.040 9.1.2.5
    return is_international && !found.starts_with('+') ? "+" + found : found;
}

std::string Time_Of_Value(std::string_view value)
{
    return Time_Of_Text(Text_Of_Ucs2_Digits(value).value_or(std::string(value)));
}

Status_Report_Result Report_Of_Values(const std::vector<std::string_view>& values)
{
    constexpr std::size_t fewest = 5; // <ra> and <tora> may be left out, commas and all
    const std::size_t count = values.size();
    if (count < fewest || count > fewest + 2)
        return {std::nullopt, "values: neither a length nor those of a report"};
    const auto first_octet = Number_Of<std::uint8_t>(values[0]);
    if (!first_octet || !Is_Status_Report(*first_octet))
        return {std::nullopt, "first octet: not an SMS-STATUS-REPORT"};
    const auto reference = Number_Of<std::uint8_t>(values[1]);
    if (!reference)
        return {std::nullopt, "message reference: not a number from 0 to 255"};
    const auto number = count > fewest ? Number_Of_Values(values[2], count > fewest + 1 ? values[3] : "") : "";
    if (!number)
        return {std::nullopt, "recipient: not a number"};
    const auto status = Number_Of<std::uint8_t>(values.back());
    if (!status)
        return {std::nullopt, "status: not a number from 0 to 255"};
    return {Status_Report{
                {}, *reference, *number, Time_Of_Value(values[count - 3]), Time_Of_Value(values[count - 2]), *status},
            {}};
}

} // namespace

Status_Report_Result Read_Report(std::string_view answer)
{
    answer = Trimmed(answer);
    if (!answer.starts_with(Prefix))
        return {std::nullopt, "line: not +CDS"};
    const std::string_view values = Take_Line(answer).substr(Prefix.size());
    if (const auto announced = Announced_Octets(values))
        return Decode_Status_Report(Take_Line(answer), announced);
    return Report_Of_Values(Values_Of(values));
}

bool Announces_A_Report(std::string_view line)
{
    line = Trimmed(line);
    return line.starts_with(Prefix) && Announced_Octets(line.substr(Prefix.size())).has_value();
}

} // namespace Handset
