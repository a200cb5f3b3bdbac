#include "phone/Phone_Options.h"

#include "handset/Unicode_Text.h"
#include "phone/Phone_Settings.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

namespace Handset {

namespace {

using Values = std::span<const std::string>;

struct Option
{
    const char* m_name;
    const char* m_values; // names of its values, a blank between them
    const char* m_help;
    bool (*m_apply)(Phone_Options&, Values); // false when a value is not one it takes
};

template <bool Phone_Moods::*mood>
bool Turn_On(Phone_Options& options, Values)
{
    options.m_moods.*mood = true;
    return true;
}

template <auto mood>
bool Set_Number(Phone_Options& options, Values values)
{
    const auto number = Number_Of(values[0]);
    options.m_moods.*mood = number.value_or(0);
    return number.has_value();
}

// Names become the quoted list that +CSCS=? shows.
bool Set_Charsets(Phone_Options& options, Values values)
{
    std::string list;
    for (const std::string_view name : Arguments_Of(values[0])) {
        if (name.empty())
            return false;
        list += (list.empty() ? "\"" : ",\"") + std::string(Unquoted(name).value_or(name)) + "\"";
    }
    options.m_moods.m_charsets = list;
    return true;
}

bool Set_Battery(Phone_Options& options, Values values)
{
    const auto parts = Arguments_Of(values[0]);
    const auto status = Number_Of(parts.front());
    const auto charge = Number_Of(parts.back());
    if (parts.size() != 2 || !status || !charge)
        return false;
    options.m_moods.m_battery_status = *status;
    options.m_moods.m_battery_charge = *charge;
    return true;
}

bool Set_Cms_Error(Phone_Options& options, Values values)
{
    const auto message = Number_Of(values[0]);
    const auto error = Number_Of(values[1]);
    if (!message || *message == 0 || !error)
        return false;
    options.m_moods.m_cms_error_at[*message] = *error;
    return true;
}

// clang-format off
constexpr std::array Options = {
    Option{"--link", "PATH", "make a symbolic link to the line; removed at the end",
           [](Phone_Options& o, Values v) { o.m_link = v[0]; return !v[0].empty(); }},
    Option{"--until-stdin-closes", "", "end when standard input ends, as it does with the program behind it",
           [](Phone_Options& o, Values) { return o.m_until_stdin_closes = true; }},
    Option{"--help", "", "show this text", [](Phone_Options& o, Values) { return o.m_help = true; }},
    Option{"--version", "", "show the version", [](Phone_Options& o, Values) { return o.m_version = true; }},

    Option{"--no-echo", "", "start with echo off", Turn_On<&Phone_Moods::m_no_echo>},
    Option{"--echo-only", "", "echo every command and answer none", Turn_On<&Phone_Moods::m_echo_only>},
    Option{"--silent", "", "neither echo nor answer", Turn_On<&Phone_Moods::m_silent>},

    Option{"--pdu-only", "", "take PDU mode alone", Turn_On<&Phone_Moods::m_pdu_only>},
    Option{"--text-only", "", "take text mode alone", Turn_On<&Phone_Moods::m_text_only>},
    Option{"--no-sms-sending", "", "answer AT+CMGS=? with ERROR", Turn_On<&Phone_Moods::m_no_sms_sending>},
    Option{"--charsets", "LIST", "character sets that AT+CSCS=? lists, commas between them", Set_Charsets},

    Option{"--smsc", "NUMBER", "number of the stored service centre",
           [](Phone_Options& o, Values v) { o.m_moods.m_smsc = v[0]; return !v[0].empty(); }},
    Option{"--no-smsc", "", "no service centre is stored", Turn_On<&Phone_Moods::m_no_smsc>},
    Option{"--smsc-in-ucs2", "", "answer AT+CSCA? in hexadecimal UCS2", Turn_On<&Phone_Moods::m_smsc_in_ucs2>},
    Option{"--smsc-not-supported", "", "answer AT+CSCA? with COMMAND NOT SUPPORT",
           Turn_On<&Phone_Moods::m_smsc_not_supported>},

    Option{"--undefined-identity", "", "answer AT+GMI, AT+GMM, AT+CGSN and AT+GMR with \"Undefined\"",
           Turn_On<&Phone_Moods::m_undefined_identity>},
    Option{"--battery", "STATUS,CHARGE", "what AT+CBC answers: status 0 to 3, charge in percent", Set_Battery},
    Option{"--signal", "N", "what AT+CSQ answers: 0 to 31, or 99 for unknown", Set_Number<&Phone_Moods::m_signal>},

    Option{"--no-prompt", "", "no prompt after AT+CMGS", Turn_On<&Phone_Moods::m_no_prompt>},
    Option{"--late-prompt", "MS", "the prompt comes this many milliseconds late",
           Set_Number<&Phone_Moods::m_late_prompt_ms>},
    Option{"--prompt-without-blank", "", "the prompt is \">\" without its blank",
           Turn_On<&Phone_Moods::m_prompt_without_blank>},
    Option{"--split-answers", "", "every byte goes out in a write of its own", Turn_On<&Phone_Moods::m_split_answers>},
    Option{"--answer-delay", "MS", "every answer comes this many milliseconds late",
           Set_Number<&Phone_Moods::m_answer_delay_ms>},
    Option{"--one-answer-behind", "", "keep every answer back until the next command",
           Turn_On<&Phone_Moods::m_one_answer_behind>},
    Option{"--unsolicited", "", "RING, +CMTI and +CREG lines between answers", Turn_On<&Phone_Moods::m_unsolicited>},
    Option{"--cr-only", "", "line ends are a carriage return alone", Turn_On<&Phone_Moods::m_cr_only>},
    Option{"--garbage", "", "answer with noise", Turn_On<&Phone_Moods::m_garbage>},
    Option{"--never-stops-talking", "", "status lines without end", Turn_On<&Phone_Moods::m_never_stops_talking>},

    Option{"--answer", "COMMAND ANSWER", "this command gets these bytes; \\r \\n \\t \\e \\\\ \\xHH are understood",
           [](Phone_Options& o, Values v) { o.m_answers.emplace_back(v[0], Unescaped(v[1])); return !v[0].empty(); }},
    Option{"--error-for", "COMMAND TEXT", "this command gets \"ERROR: TEXT\"",
           [](Phone_Options& o, Values v) { o.m_moods.m_error_for[v[0]] = v[1]; return !v[0].empty(); }},
    Option{"--cms-error", "K N", "the K-th message gets \"+CMS ERROR: N\"", Set_Cms_Error},
    Option{"--hang-up-at", "K", "hang up when the K-th message is announced", Set_Number<&Phone_Moods::m_hang_up_at>},
    Option{"--hang-up-in-body-at", "K", "hang up in the midst of the K-th message's PDU or text",
           Set_Number<&Phone_Moods::m_hang_up_in_body_at>},
    Option{"--stop-reading-after", "N", "take N bytes and no more", Set_Number<&Phone_Moods::m_stop_reading_after>},
    Option{"--stop-reading-at", "K", "prompt for the K-th message and take no byte of it",
           Set_Number<&Phone_Moods::m_stop_reading_at>},
};
// clang-format on

std::size_t Count_Of_Values(const Option& option)
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
    const auto option =
        std::find_if(Options.begin(), Options.end(), [&](const Option& row) { return name == row.m_name; });
    if (option == Options.end())
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
Messages are counted by their AT+CMGS, from 1.

The phone ends in good order on SIGTERM, SIGINT and SIGHUP.

Exit status: 0 when it was ended, 1 when it could not start, 2 when an option is unknown or its value is wrong.

Example: a phone under a fixed name that refuses the third message

  corvane-phone --link /tmp/phone --cms-error 3 500
)";

} // namespace

Phone_Options Read_Options(const std::vector<std::string>& arguments)
{
    Phone_Options options;
    Values left(arguments);
    while (!left.empty() && options.m_error.empty())
        options.m_error = On_One_Line(Take_Option(options, left));
    return options;
}

std::string Help_Text()
{
    constexpr std::size_t column = 34;
    std::string text(Help_Begin);
    for (const Option& option : Options) {
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
