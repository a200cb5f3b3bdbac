#include "phone/Phone_Option_Rows.h"

#include "phone/Phone_Settings.h"
#include "phone/Phone_Voice.h"

#include <array>
#include <charconv>
#include <climits>
#include <cmath>
#include <string_view>

namespace Handset {

namespace {

using Values = Phone_Option::Values;

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

// Any number above 0, for waits in seconds and the pace.
template <auto mood>
bool Set_Positive(Phone_Options& options, Values values)
{
    const auto number = Positive_Number_Of(values[0]);
    options.m_moods.*mood = number.value_or(1);
    return number.has_value();
}

// The row for "K", "K-L", "K-" or "*DIGITS".
std::optional<Message_Manner> Manner_Of(const std::string& which, Message_Manner::Kind kind)
{
    Message_Manner manner;
    manner.m_kind = kind;
    if (which.starts_with('*')) {
        manner.m_number_end = which.substr(1);
        return which.find_first_not_of("0123456789", 1) == std::string::npos && which.size() > 1 ? std::optional(manner)
                                                                                                 : std::nullopt;
    }
    const auto dash = which.find('-');
    const auto from = Number_Of(which.substr(0, dash));
    const bool is_open = dash != std::string::npos && dash + 1 == which.size();
    const auto to =
        is_open ? std::optional(INT_MAX) : Number_Of(which.substr(dash == std::string::npos ? 0 : dash + 1));
    if (!from || *from == 0 || !to || *to < *from)
        return std::nullopt;
    manner.m_from = *from;
    manner.m_to = *to;
    return manner;
}

template <Message_Manner::Kind kind>
bool Add_Manner(Phone_Options& options, Values values)
{
    auto manner = Manner_Of(values[0], kind);
    if (!manner)
        return false;
    if (kind == Message_Manner::Kind::Delayed) {
        const auto seconds = Positive_Number_Of(values[1]);
        manner->m_seconds = seconds.value_or(0);
        manner = seconds ? manner : std::nullopt;
    } else if (values.size() > 1) {
        manner->m_text = values[1];
    }
    if (manner)
        options.m_moods.m_message_manners.push_back(*manner);
    return manner.has_value();
}

bool Add_Report_Status(Phone_Options& options, Values values)
{
    const auto status = Number_Of(values[1]);
    options.m_moods.m_report_status.emplace_back(values[0], status.value_or(0));
    return values[0].find_first_not_of("+0123456789") == std::string::npos && status && *status <= 255;
}

bool Set_Lines_Between(Phone_Options& options, Values values)
{
    options.m_moods.m_between_lines = Unsolicited_Lines(values[0]);
    return !options.m_moods.m_between_lines.empty();
}

bool Set_First_Reference(Phone_Options& options, Values values)
{
    const auto number = Number_Of(values[0]);
    options.m_moods.m_first_reference = number.value_or(0);
    return number && *number <= 255;
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
constexpr std::array Rows = {
    Phone_Option{"--link", "PATH", "make a symbolic link to the line; removed at the end",
           [](Phone_Options& o, Values v) { o.m_link = v[0]; return !v[0].empty(); }},
    Phone_Option{"--until-stdin-closes", "", "end when standard input ends, as it does with the program behind it",
           [](Phone_Options& o, Values) { return o.m_until_stdin_closes = true; }},
    Phone_Option{"--pace", "P", "divides waits given in seconds; without it CORVANE_PACE does",
           Set_Positive<&Phone_Moods::m_pace>},
    Phone_Option{"--help", "", "show this text", [](Phone_Options& o, Values) { return o.m_help = true; }},
    Phone_Option{"--version", "", "show the version", [](Phone_Options& o, Values) { return o.m_version = true; }},

    Phone_Option{"--no-echo", "", "start with echo off", Turn_On<&Phone_Moods::m_no_echo>},
    Phone_Option{"--echo-only", "", "echo every command and answer none", Turn_On<&Phone_Moods::m_echo_only>},
    Phone_Option{"--silent", "", "neither echo nor answer", Turn_On<&Phone_Moods::m_silent>},

    Phone_Option{"--pdu-only", "", "take PDU mode alone", Turn_On<&Phone_Moods::m_pdu_only>},
    Phone_Option{"--text-only", "", "take text mode alone", Turn_On<&Phone_Moods::m_text_only>},
    Phone_Option{"--no-sms-sending", "", "answer AT+CMGS=? with ERROR", Turn_On<&Phone_Moods::m_no_sms_sending>},
    Phone_Option{"--charsets", "LIST", "character sets that AT+CSCS=? lists, commas between them", Set_Charsets},

    Phone_Option{"--smsc", "NUMBER", "number of the stored service centre",
           [](Phone_Options& o, Values v) { o.m_moods.m_smsc = v[0]; return !v[0].empty(); }},
    Phone_Option{"--no-smsc", "", "no service centre is stored", Turn_On<&Phone_Moods::m_no_smsc>},
    Phone_Option{"--smsc-in-ucs2", "", "answer AT+CSCA? in hexadecimal UCS2", Turn_On<&Phone_Moods::m_smsc_in_ucs2>},
    Phone_Option{"--smsc-not-supported", "", "answer AT+CSCA? with COMMAND NOT SUPPORT",
           Turn_On<&Phone_Moods::m_smsc_not_supported>},

    Phone_Option{"--undefined-identity", "", "answer AT+GMI, AT+GMM, AT+CGSN and AT+GMR with \"Undefined\"",
           Turn_On<&Phone_Moods::m_undefined_identity>},
    Phone_Option{"--battery", "STATUS,CHARGE", "what AT+CBC answers: status 0 to 3, charge in percent", Set_Battery},
    Phone_Option{"--signal", "N", "what AT+CSQ answers: 0 to 31, or 99 for unknown", Set_Number<&Phone_Moods::m_signal>},

    Phone_Option{"--pin", "DIGITS", "the SIM asks for this PIN",
           [](Phone_Options& o, Values v) { o.m_moods.m_pin = v[0]; return Number_Of(v[0]).has_value(); }},
    Phone_Option{"--puk", "", "the SIM asks for its PUK", Turn_On<&Phone_Moods::m_puk_needed>},
    Phone_Option{"--memory-full", "", "+CMS ERROR: 322 until AT+CMGD has made room", Turn_On<&Phone_Moods::m_memory_full>},
    Phone_Option{"--no-network", "", "no network at the start", Turn_On<&Phone_Moods::m_no_network>},
    Phone_Option{"--network-lost-at", "K", "the network is lost when the K-th message is announced",
           Set_Number<&Phone_Moods::m_network_lost_at>},
    Phone_Option{"--network-back-after-queries", "N", "it comes back after N of AT+CREG?, AT+CGREG? and AT+CEREG?",
           Set_Number<&Phone_Moods::m_network_back_after_queries>},
    Phone_Option{"--network-back-after", "SECONDS", "it comes back after that time",
           Set_Positive<&Phone_Moods::m_network_back_after_seconds>},

    Phone_Option{"--no-prompt", "", "no prompt after AT+CMGS", Turn_On<&Phone_Moods::m_no_prompt>},
    Phone_Option{"--late-prompt", "MS", "the prompt comes this many milliseconds late",
           Set_Number<&Phone_Moods::m_late_prompt_ms>},
    Phone_Option{"--prompt-without-blank", "", "the prompt is \">\" without its blank",
           Turn_On<&Phone_Moods::m_prompt_without_blank>},
    Phone_Option{"--prompt-with-line-end", "", "the prompt is \">\" and a line end",
           Turn_On<&Phone_Moods::m_prompt_with_line_end>},
    Phone_Option{"--byte-gap", "MS", "every byte goes out so long after the one before",
           Set_Number<&Phone_Moods::m_byte_gap_ms>},
    Phone_Option{"--split-answers", "", "every byte goes out in a write of its own", Turn_On<&Phone_Moods::m_split_answers>},
    Phone_Option{"--answer-delay", "MS", "every answer comes this many milliseconds late",
           Set_Number<&Phone_Moods::m_answer_delay_ms>},
    Phone_Option{"--one-answer-behind", "", "keep every answer back until the next command",
           Turn_On<&Phone_Moods::m_one_answer_behind>},
    Phone_Option{"--unsolicited", "", "RING, +CMTI and +CREG lines between answers", Turn_On<&Phone_Moods::m_unsolicited>},
    Phone_Option{"--between-lines", "LINES", "ring, cmti, creg, rssi, cds or all, before every line of an answer",
           Set_Lines_Between},
    Phone_Option{"--error-words", "", "errors in words, as after AT+CMEE=2", Turn_On<&Phone_Moods::m_error_words>},
    Phone_Option{"--command-not-support", "", "unknown commands get COMMAND NOT SUPPORT",
           Turn_On<&Phone_Moods::m_command_not_support>},
    Phone_Option{"--cpin-without-ok", "", "the answer to AT+CPIN? has no OK", Turn_On<&Phone_Moods::m_cpin_without_ok>},
    Phone_Option{"--cr-only", "", "line ends are a carriage return alone", Turn_On<&Phone_Moods::m_cr_only>},
    Phone_Option{"--garbage", "", "answer with noise", Turn_On<&Phone_Moods::m_garbage>},
    Phone_Option{"--never-stops-talking", "", "status lines without end", Turn_On<&Phone_Moods::m_never_stops_talking>},

    Phone_Option{"--no-reports", "", "the network reports no deliveries", Turn_On<&Phone_Moods::m_no_reports>},
    Phone_Option{"--report-after", "SECONDS", "a delivery is reported after that time, 1 second unless this is given",
           Set_Positive<&Phone_Moods::m_report_after_seconds>},
    Phone_Option{"--reports-out-of-order", "", "each second report overtakes the one before it",
           Turn_On<&Phone_Moods::m_reports_out_of_order>},
    Phone_Option{"--reports-twice", "", "each report comes twice", Turn_On<&Phone_Moods::m_reports_twice>},
    Phone_Option{"--stray-reports", "", "each comes behind one with a reference that no message has",
           Turn_On<&Phone_Moods::m_stray_reports>},
    Phone_Option{"--report-status", "DIGITS N", "TP-ST for numbers that end so; several: one report each",
           Add_Report_Status},
    Phone_Option{"--reports-in-memory", "", "reports wait in memory \"SR\" and are announced by +CDSI alone",
           Turn_On<&Phone_Moods::m_reports_in_memory_alone>},
    Phone_Option{"--report-comma", "", "\"+CDS: ,LENGTH\"", Turn_On<&Phone_Moods::m_report_comma>},
    Phone_Option{"--first-reference", "N", "message reference of the first message, 0 to 255", Set_First_Reference},

    Phone_Option{"--refuse", "WHICH RESULT", "these messages are not sent and get this result line",
           Add_Manner<Message_Manner::Kind::Refused>},
    Phone_Option{"--refuse-at-once", "WHICH RESULT", "the same in place of the prompt",
           Add_Manner<Message_Manner::Kind::Refused_At_Once>},
    Phone_Option{"--refuse-though-sent", "WHICH RESULT", "these are sent and get this result line",
           Add_Manner<Message_Manner::Kind::Refused_Though_Sent>},
    Phone_Option{"--result-after", "WHICH SECONDS", "the result comes that much later",
           Add_Manner<Message_Manner::Kind::Delayed>},
    Phone_Option{"--result-at-next-command", "WHICH", "the result comes when the next command was heard",
           Add_Manner<Message_Manner::Kind::At_The_Next_Command>},
    Phone_Option{"--result-at-command", "WHICH COMMAND", "the result comes when a command that begins so was heard",
           Add_Manner<Message_Manner::Kind::At_The_Next_Command>},
    Phone_Option{"--result-behind-next-prompt", "WHICH", "the result comes behind the next prompt",
           Add_Manner<Message_Manner::Kind::Behind_The_Next_Prompt>},
    Phone_Option{"--result-behind-next-message", "WHICH", "the result comes in front of the next message's own",
           Add_Manner<Message_Manner::Kind::Behind_The_Next_Message>},
    Phone_Option{"--without-result", "WHICH", "these are sent and nothing is said about them",
           Add_Manner<Message_Manner::Kind::Without_Result>},
    Phone_Option{"--without-reference", "WHICH", "these are sent and get OK without +CMGS",
           Add_Manner<Message_Manner::Kind::Without_Reference>},
    Phone_Option{"--second-prompt", "WHICH", "these are not sent and get another prompt, and ERROR",
           Add_Manner<Message_Manner::Kind::Second_Prompt>},

    Phone_Option{"--answer", "COMMAND ANSWER", "this command gets these bytes; \\r \\n \\t \\e \\\\ \\xHH are understood",
           [](Phone_Options& o, Values v) { o.m_answers.emplace_back(v[0], Unescaped(v[1])); return !v[0].empty(); }},
    Phone_Option{"--error-for", "COMMAND TEXT", "this command gets \"ERROR: TEXT\"",
           [](Phone_Options& o, Values v) { o.m_moods.m_error_for[v[0]] = v[1]; return !v[0].empty(); }},
    Phone_Option{"--cms-error", "K N", "the K-th message gets \"+CMS ERROR: N\"", Set_Cms_Error},
    Phone_Option{"--hang-up-at", "K", "hang up when the K-th message is announced", Set_Number<&Phone_Moods::m_hang_up_at>},
    Phone_Option{"--hang-up-in-body-at", "K", "hang up in the midst of the K-th message's PDU or text",
           Set_Number<&Phone_Moods::m_hang_up_in_body_at>},
    Phone_Option{"--hang-up-after-heard", "N", "hang up when N bytes have come",
           Set_Number<&Phone_Moods::m_hang_up_after_heard>},
    Phone_Option{"--hang-up-after-said", "N", "hang up when N bytes went out",
           Set_Number<&Phone_Moods::m_hang_up_after_said>},
    Phone_Option{"--stop-reading-after", "N", "take N bytes and no more", Set_Number<&Phone_Moods::m_stop_reading_after>},
    Phone_Option{"--stop-reading-at", "K", "prompt for the K-th message and take no byte of it",
           Set_Number<&Phone_Moods::m_stop_reading_at>},
};
// clang-format on

} // namespace

std::span<const Phone_Option> Option_Rows()
{
    return Rows;
}

// Digits, and a decimal point where there is a fraction.
std::optional<double> Positive_Number_Of(const std::string& text)
{
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    const bool is_whole = error == std::errc() && end == text.data() + text.size();
    return is_whole && std::isfinite(number) && number > 0 ? std::optional(number) : std::nullopt;
}

} // namespace Handset
