#include "phone/Phone_Settings.h"

#include "handset/Unicode_Text.h"

#include <algorithm>
#include <array>

namespace Handset {

namespace {

constexpr std::string_view International = "145"; // type of address 0x91
constexpr std::string_view Unknown_Type = "129";  // 0x81

bool Is_Dialled(std::string_view number)
{
    if (number.starts_with('+'))
        number.remove_prefix(1);
    return !number.empty() && number.find_first_not_of("0123456789*#abcABC") == std::string_view::npos;
}

std::optional<int> Number_Up_To(std::string_view digits, int most)
{
    const auto number = Number_Of(digits);
    return number && *number <= most ? number : std::nullopt;
}

// "(0-2),(0,1)": what each field may be.
std::vector<std::string_view> Ranges_Of(std::string_view takes)
{
    std::vector<std::string_view> ranges;
    while (!takes.empty()) {
        const auto close = takes.find(')');
        ranges.push_back(takes.substr(1, close - 1));
        takes.remove_prefix(std::min(takes.size(), close + 2));
    }
    return ranges;
}

// "0-2" or "0,1,4"
bool Is_In(std::string_view range, std::string_view text)
{
    const auto number = Number_Of(text);
    const auto dash = range.find('-');
    if (dash != std::string_view::npos)
        return number && number >= Number_Of(range.substr(0, dash)) && number <= Number_Of(range.substr(dash + 1));
    const auto listed = Arguments_Of(range);
    return std::any_of(listed.begin(), listed.end(), [&](auto one) { return number && number == Number_Of(one); });
}

} // namespace

std::optional<std::string_view> Unquoted(std::string_view text)
{
    if (text.size() < 2 || text.front() != '"' || text.back() != '"')
        return std::nullopt;
    return text.substr(1, text.size() - 2);
}

std::vector<std::string_view> Arguments_Of(std::string_view text)
{
    std::vector<std::string_view> arguments;
    bool in_quotes = false;
    std::size_t begin = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        in_quotes = in_quotes != (text[at] == '"');
        if (text[at] == ',' && !in_quotes) {
            arguments.push_back(text.substr(begin, at - begin));
            begin = at + 1;
        }
    }
    arguments.push_back(text.substr(begin));
    return arguments;
}

std::optional<int> Number_Of(std::string_view digits)
{
    if (digits.empty() || digits.size() > 9 || digits.find_first_not_of("0123456789") != std::string_view::npos)
        return std::nullopt;
    int number = 0;
    for (const char digit : digits)
        number = number * 10 + (digit - '0');
    return number;
}

void Phone_Settings::Reset()
{
    const auto centre = m_centre;
    Plug_In();
    m_centre = centre;
}

bool Phone_Settings::Do(Deed deed, std::string_view argument)
{
    switch (deed) {
    case Deed::Nothing:
        return true;
    case Deed::Echo_Off:
    case Deed::Echo_On:
        m_echo = deed == Deed::Echo_On;
        return true;
    case Deed::Start_Afresh:
        Reset();
        return true;
    case Deed::Set_Format: {
        const auto format = Number_Up_To(argument, 1);
        m_format = format ? format : m_format;
        return format.has_value();
    }
    case Deed::Set_Service: {
        const auto service = Number_Up_To(argument, 1);
        m_service = service.value_or(m_service);
        return service.has_value();
    }
    case Deed::Set_More: {
        const auto more = Number_Up_To(argument, 2);
        m_more = more.value_or(m_more);
        return more.has_value();
    }
    case Deed::Set_Centre:
        return Set_Centre(argument);
    case Deed::Set_Parameters:
        return Set_Parameters(argument);
    case Deed::Set_Charset:
        return Set_Charset(argument);
    case Deed::Set_Operator:
        return Set_Operator(argument);
    default:
        return false; // not a matter of settings
    }
}

bool Phone_Settings::Keep(const Manner& manner, std::string_view argument)
{
    const std::string name = manner.m_command.substr(2, manner.m_command.find('=') - 2);
    const auto ranges = Ranges_Of(manner.m_takes);
    const std::string current = Kept(name, manner.m_start);
    const auto present = Arguments_Of(current);
    const auto given = Arguments_Of(argument);
    if (argument.empty() || given.size() > ranges.size())
        return false;
    std::string kept;
    for (std::size_t at = 0; at < ranges.size(); ++at) {
        const bool is_left_out = at >= given.size() || given[at].empty();
        if (!is_left_out && !Is_In(ranges[at], given[at]))
            return false;
        const std::string_view old = at < present.size() ? present[at] : std::string_view("0");
        kept += (at == 0 ? "" : ",") + std::string(is_left_out ? old : given[at]);
    }
    m_kept[name] = kept;
    return true;
}

std::string Phone_Settings::Kept(const std::string& name, std::string_view start) const
{
    const auto found = m_kept.find(name);
    return found == m_kept.end() ? std::string(start) : found->second;
}

Error_Style Phone_Settings::Errors() const
{
    constexpr std::array styles = {Error_Style::None, Error_Style::Numbers, Error_Style::Words};
    if (m_moods.m_error_words)
        return Error_Style::Words;
    const auto set = Number_Of(Kept("+CMEE", ""));
    return set ? styles.at(std::size_t(*set)) : Error_Style::Untouched;
}

int Phone_Settings::Report_Delivery() const
{
    constexpr std::size_t position = 3; // <mode>,<mt>,<bm>,<ds>,<bfr>
    const std::string kept = Kept("+CNMI", "");
    const auto fields = Arguments_Of(kept);
    return fields.size() > position ? Number_Of(fields[position]).value_or(0) : 0;
}

// +COPS=<mode>[,<format>[,<oper>]] (27.007 7.3); mode 3 sets the format alone.
bool Phone_Settings::Set_Operator(std::string_view argument)
{
    constexpr int format_alone = 3;
    const auto arguments = Arguments_Of(argument);
    const auto mode = Number_Up_To(arguments.front(), 4);
    const auto format = arguments.size() > 1 && !arguments[1].empty() ? Number_Up_To(arguments[1], 2)
                                                                      : std::optional(m_operator_format);
    if (!mode || !format || arguments.size() > 4)
        return false;
    m_operator_mode = *mode == format_alone ? m_operator_mode : *mode;
    m_operator_format = *format;
    return true;
}

std::string Phone_Settings::Operator() const
{
    constexpr std::array names = {"Corvane Test", "Corvane", "00101"};
    return std::to_string(m_operator_mode) + "," + std::to_string(m_operator_format) + ",\"" +
           names.at(std::size_t(m_operator_format)) + "\"";
}

// +CSCA=<sca>[,<tosca>] (27.005 3.3.1)
bool Phone_Settings::Set_Centre(std::string_view argument)
{
    const auto arguments = Arguments_Of(argument);
    const auto quoted = Unquoted(arguments.front());
    if (!quoted || arguments.size() > 2)
        return false;
    const auto number = Number(*quoted, arguments.size() == 2 ? arguments[1] : std::string_view());
    if (number.empty())
        return false;
    m_centre = number;
    return true;
}

// +CSMP=[<fo>[,<vp>[,<pid>[,<dcs>]]]] (27.005 3.3.2); what is left out keeps its value, and a refused line changes
// nothing.
bool Phone_Settings::Set_Parameters(std::string_view argument)
{
    const auto arguments = Arguments_Of(argument);
    if (arguments.size() > 4)
        return false;
    Phone_Settings changed = *this;
    int position = 0;
    for (const std::string_view value : arguments) {
        const int field = position++;
        if (value.empty())
            continue;
        const auto octet = Number_Up_To(value, 255);
        if (!octet && !(field == 1 && Unquoted(value)))
            return false;
        if (field == 0)
            changed.m_first_octet = *octet;
        else if (field == 1)
            changed.m_validity = value;
        else if (field == 2)
            changed.m_protocol = *octet;
        else
            changed.m_coding = *octet;
    }
    *this = changed;
    return true;
}

// +CSCS=<chset> (27.007 5.5): one of the list that +CSCS=? shows.
bool Phone_Settings::Set_Charset(std::string_view argument)
{
    const auto listed = Arguments_Of(m_moods.m_charsets);
    const auto name = Unquoted(argument);
    if (!name || std::find(listed.begin(), listed.end(), argument) == listed.end())
        return false;
    m_charset = std::string(*name);
    return true;
}

std::string Phone_Settings::Centre() const
{
    if (m_centre)
        return *m_centre;
    return m_moods.m_no_smsc ? std::string() : m_moods.m_smsc;
}

std::string Phone_Settings::Charset() const
{
    if (m_charset)
        return *m_charset;
    if (m_moods.m_charsets.find("\"GSM\"") != std::string::npos)
        return "GSM";
    return std::string(Unquoted(Arguments_Of(m_moods.m_charsets).front()).value_or("GSM"));
}

std::string Phone_Settings::Number(std::string_view text, std::string_view type) const
{
    std::string number(text);
    if (Charset() == "UCS2" || Charset() == "HEX") {
        const auto octets = Octets_Of_Hex(text);
        if (octets && octets->size() % 2 == 0 && Is_Dialled(Text_Of_Utf16_Octets(*octets)))
            number = Text_Of_Utf16_Octets(*octets);
    }
    if (type == International && !number.starts_with('+'))
        number = "+" + number;
    return Is_Dialled(number) ? number : std::string();
}

std::optional<std::string> Phone_Settings::Value(std::string_view name) const
{
    if (name == "format")
        return Is_Text_Format() ? "1" : "0";
    if (name == "service")
        return std::to_string(m_service);
    if (name == "more")
        return std::to_string(m_more);
    if (name == "centre")
        return m_moods.m_smsc_in_ucs2 || Charset() == "UCS2" ? Hex_Utf16_Of(Centre()) : Centre();
    if (name == "centre type")
        return std::string(Centre().starts_with('+') ? International : Unknown_Type);
    if (name == "parameters")
        return std::to_string(m_first_octet) + "," + m_validity + "," + std::to_string(m_protocol) + "," +
               std::to_string(m_coding);
    if (name == "charsets")
        return m_moods.m_charsets;
    if (name == "charset")
        return Charset();
    if (name == "battery")
        return std::to_string(m_moods.m_battery_status) + "," + std::to_string(m_moods.m_battery_charge);
    if (name == "signal")
        return std::to_string(m_moods.m_signal);
    if (name == "operator")
        return Operator();
    if (name == "acknowledged") // the report that +CNMA is for (27.005 3.4.4)
        return m_service == 1 ? "OK" : "+CMS ERROR: 340";
    if (const auto start = name.find('|'); name.starts_with('+') && start != std::string_view::npos)
        return Kept(std::string(name.substr(0, start)), name.substr(start + 1));
    return std::nullopt;
}

std::string Phone_Settings::Filled(std::string_view answer) const
{
    return Filled_In(answer, [this](std::string_view name) { return Value(name); });
}

std::string Filled_In(std::string_view answer, const std::function<std::optional<std::string>(std::string_view)>& of)
{
    std::string filled;
    while (!answer.empty()) {
        const auto open = answer.find('{');
        filled += answer.substr(0, open);
        if (open == std::string_view::npos)
            break;
        answer.remove_prefix(open);
        const auto close = answer.find('}');
        const auto value = close == std::string_view::npos ? std::nullopt : of(answer.substr(1, close - 1));
        filled += value ? *value : std::string(1, '{');
        answer.remove_prefix(value ? close + 1 : 1);
    }
    return filled;
}

} // namespace Handset
