#include "phone/Phone_Options.h"

#include "handset/Unicode_Text.h"
#include "phone/Phone_Option_Rows.h"

#include <algorithm>
#include <string_view>

namespace Handset {

namespace {

using Values = Phone_Option::Values;

std::size_t Count_Of_Values(const Phone_Option& option)
{
    const std::string_view names = option.m_values;
    return names.empty() ? 0 : std::size_t(std::count(names.begin(), names.end(), ' ')) + 1;
}

// Removes one option and its values from the front; "--name=value" is the same as "--name value" where there is one
// value.
std::string Take_Option(Phone_Options& options, Values& left)
{
    std::string name = left.front();
    std::vector<std::string> values;
    left = left.subspan(1);
    const auto equals = name.find('=');
    if (name.starts_with("--") && equals != std::string::npos) {
        values.push_back(name.substr(equals + 1));
        name.erase(equals);
    }
    const auto rows = Option_Rows();
    const auto option =
        std::find_if(rows.begin(), rows.end(), [&](const Phone_Option& row) { return name == row.m_name; });
    if (option == rows.end())
        return "unknown option: " + name;
    const std::size_t wanted = Count_Of_Values(*option);
    if (values.size() > wanted)
        return name + " takes no value";
    const std::size_t missing = wanted - values.size();
    if (left.size() < missing)
        return name + " needs " + option->m_values;
    values.insert(values.end(), left.begin(), left.begin() + std::ptrdiff_t(missing));
    left = left.subspan(missing);
    if (!option->m_apply(options, values))
        return name + " does not take \"" + values.front() + "\" as its " + option->m_values;
    return {};
}

// Arguments may hold anything; messages about them stay on one line and free of control characters.
std::string On_One_Line(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](unsigned char byte) { return byte < ' ' || byte == 0x7F; }, '?');
    return text;
}

constexpr std::string_view Help_Begin = R"(Usage: corvane-phone [option]...

A GSM phone on a pseudo-terminal. It takes SMS in PDU and text mode after 3GPP TS 27.005 and shows them as a handset
would.

The first line of its output is the path of its line, to be opened as a serial device. Then comes one line of JSON for
each SMS, {"event":"part",...}, and one for each complete message, {"event":"message",...}, with these fields:

  number     destination, "+" in front for an international one
  text       the text as a handset shows it
  alphabet   "GSM 7-bit", "8-bit" or "UCS2"
  class      message class 0 to 3 (0 is shown at once), or null
  part       number of this part, from 1 (in "part" alone)
  parts      number of parts of the message
  reference  concatenation reference, or null
  smsc       service centre: the message's own, or the phone's
  dcs        data coding scheme octet
  mode       "pdu" or "text"
  pdu        the frame as it came (in "part" alone; empty in text mode)

When the phone hangs up by one of its moods it prints {"event":"hang-up"} and stays until it is ended.

Options:
)";

constexpr std::string_view Help_End = R"(
Messages are counted by their AT+CMGS, from 1. WHICH is one of them, as 3, several, as 3-5 or 3-, or *DIGITS for those
to numbers that end so. RESULT is a line such as "+CMS ERROR: 500", "+CME ERROR: 14", ERROR or COMMAND NOT SUPPORT.
Waits in seconds may be fractions and are divided by the pace; waits in milliseconds are as they are.

The phone ends in good order on SIGTERM, SIGINT and SIGHUP.

Exit status: 0 when it was ended, 1 when it could not start, 2 when an option is unknown or its value is wrong.

Example: a phone under a fixed name that refuses the third message

  corvane-phone --link /tmp/phone --cms-error 3 500
)";

} // namespace

Phone_Options Read_Options(const std::vector<std::string>& arguments, const std::string& pace)
{
    Phone_Options options;
    if (!pace.empty()) {
        options.m_moods.m_pace = Positive_Number_Of(pace).value_or(0);
        if (options.m_moods.m_pace == 0)
            options.m_error = On_One_Line("CORVANE_PACE must be a positive number, not \"" + pace + "\"");
    }
    Values left(arguments);
    while (!left.empty() && options.m_error.empty())
        options.m_error = On_One_Line(Take_Option(options, left));
    return options;
}

std::string Help_Text()
{
    constexpr std::size_t column = 38;
    std::string text(Help_Begin);
    for (const Phone_Option& option : Option_Rows()) {
        std::string line = std::string("  ") + option.m_name + (*option.m_values ? " " : "") + option.m_values;
        line += line.size() < column ? std::string(column - line.size(), ' ') : "\n" + std::string(column, ' ');
        text += line + option.m_help + "\n";
    }
    return text + std::string(Help_End);
}

std::string Unescaped(const std::string& text)
{
    constexpr std::string_view letters = "rnte\\";
    constexpr std::string_view bytes = "\r\n\t\x1B\\";
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '\\' || at + 1 == text.size()) {
            plain += text[at];
            continue;
        }
        const auto letter = letters.find(text[at + 1]);
        const auto hex = text[at + 1] == 'x' ? Octets_Of_Hex(text.substr(at + 2, 2)) : std::nullopt;
        if (letter != std::string_view::npos) {
            plain += bytes[letter];
            at += 1;
        } else if (hex && hex->size() == 1) {
            plain += char(hex->front());
            at += 3;
        } else {
            plain += text[at];
        }
    }
    return plain;
}

} // namespace Handset
