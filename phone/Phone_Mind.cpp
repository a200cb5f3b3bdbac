#include "phone/Phone_Mind.h"

#include "phone/Manner_Kinds.h"

#include <algorithm>
#include <utility>

namespace Handset {

namespace {

constexpr std::size_t Longest_Line = 1024;
constexpr std::size_t Longest_Body = 4096;
constexpr int Memory_Full = 322;   // +CMS ERROR, 27.005 3.2.5
constexpr int Wants_Report = 0x20; // TP-SRR, 23.040 9.2.3.5
constexpr char End_Of_Message = 0x1A;
constexpr char Escape = 0x1B;

bool Begins_A_Command(std::string_view line)
{
    return line.size() >= 2 && (line[0] == 'A' || line[0] == 'a') && (line[1] == 'T' || line[1] == 't');
}

using Kind = Message_Manner::Kind;

} // namespace

Phone_Mind::Phone_Mind(const Phone_Moods& moods, std::function<Time()> now)
    : m_moods(moods), m_now(std::move(now)), m_commands(moods, m_now()), m_voice(moods), m_reports(moods),
      m_next_reference(moods.m_first_reference % 256)
{
}

void Phone_Mind::Take(std::string_view bytes)
{
    std::string held = std::move(m_held_back);
    m_held_back.clear();
    held += bytes;
    for (std::size_t at = 0; at < held.size(); ++at) {
        if (m_happenings.m_hangs_up)
            return;
        if (Has_Stopped_Reading()) {
            m_held_back = held.substr(at);
            return;
        }
        m_happenings.m_bytes += held[at];
        ++m_taken;
        Take_Byte(held[at]);
        if (++m_heard_in_all == m_moods.m_hang_up_after_heard)
            m_happenings.m_hangs_up = true;
    }
}

Happenings Phone_Mind::Take_Happenings()
{
    m_happenings.m_said = m_voice.Take_Said();
    return std::exchange(m_happenings, {});
}

// As with +CNMI mode 2, nothing of its own comes between a prompt and the result.
void Phone_Mind::Look_At_The_Clock()
{
    if (m_state == State::Body)
        return;
    for (const auto& report : m_reports.Take_Due(m_now()))
        Report(report);
}

std::optional<Phone_Mind::Time> Phone_Mind::Next_Moment() const
{
    return m_state == State::Body ? std::nullopt : m_reports.Next_Moment();
}

bool Phone_Mind::Has_Stopped_Reading() const
{
    const bool has_had_enough = m_moods.m_stop_reading_after >= 0 && m_taken >= m_moods.m_stop_reading_after;
    return has_had_enough || (m_stopped_at > 0 && m_stopped_at == m_moods.m_stop_reading_at);
}

void Phone_Mind::Set_Moods(const Phone_Moods& moods)
{
    m_moods = moods;
    m_commands.Set_Moods(moods, m_now());
    m_voice.Set_Moods(moods);
    m_reports.Set_Moods(moods);
    Take({});
}

void Phone_Mind::Will_Answer(std::string_view command, std::string answer)
{
    m_commands.Will_Answer(command, std::move(answer));
}

void Phone_Mind::Plug_In()
{
    m_commands.Plug_In();
    m_voice.Plug_In();
    m_late_results.clear();
    m_state = State::Command;
    m_line.clear();
    m_last_line = "AT";
    m_held_back.clear();
    m_is_too_long = false;
    m_skips_line_feed = false;
    m_stopped_at = 0;
    m_taken = 0;
}

void Phone_Mind::Forget()
{
    m_joiner.Forget();
    m_reports.Forget();
    m_message_count = 0;
    m_heard_in_all = 0;
}

void Phone_Mind::Take_Byte(char byte)
{
    const bool is_passed_over = m_skips_line_feed && byte == '\n';
    m_skips_line_feed = false;
    if (is_passed_over)
        return;
    if (m_state == State::Body)
        Take_Body_Byte(byte);
    else
        Take_Command_Byte(byte);
}

void Phone_Mind::Take_Command_Byte(char byte)
{
    if (byte == '\r') {
        Take_Line();
        return;
    }
    const bool is_leading_blank = m_line.empty() && byte == ' ';
    if (byte == '\n' || byte == '\0' || byte == End_Of_Message || byte == Escape || is_leading_blank)
        return;
    if (byte == '/' && (m_line == "A" || m_line == "a")) { // V.250 5.2.4: at once, without a line end
        m_line.clear();
        m_happenings.m_lines.emplace_back("A/");
        Echo("A/");
        Hear(m_last_line, false);
        return;
    }
    if (m_line.size() == Longest_Line) {
        m_is_too_long = true;
        return;
    }
    m_line += byte;
    // A modem finds its speed by "AT" and echoes only from there on, not noise before it.
    if (Begins_A_Command(m_line))
        Echo(m_line.size() == 2 ? std::string_view(m_line) : std::string_view(m_line).substr(m_line.size() - 1));
}

void Phone_Mind::Take_Line()
{
    const std::string line = std::exchange(m_line, {});
    const bool is_too_long = std::exchange(m_is_too_long, false);
    m_skips_line_feed = true;
    if (line.empty())
        return;
    m_happenings.m_lines.push_back(line);
    if (!Begins_A_Command(line))
        return;
    Echo("\r");
    m_last_line = line;
    Hear(line, is_too_long);
}

void Phone_Mind::Hear(const std::string& line, bool is_too_long)
{
    if (m_moods.m_silent || m_moods.m_echo_only)
        return;
    Say_Late_Results(Kind::At_The_Next_Command, line);
    if (m_moods.m_garbage)
        m_voice.Make_Noise();
    else if (is_too_long)
        m_voice.Answer("\r\nERROR\r\n");
    else
        Obey(Normal_Command(line));
}

void Phone_Mind::Say_Late_Results(Kind kind, std::string_view command)
{
    std::erase_if(m_late_results, [&](const Late_Result& late) {
        const bool is_due = late.m_manner.m_kind == kind && command.starts_with(late.m_manner.m_text);
        if (is_due)
            m_voice.Answer(late.m_text);
        return is_due;
    });
}

void Phone_Mind::Obey(const std::string& command)
{
    const Command_Reply reply = m_commands.Obey(command, m_now());
    if (reply.m_as_given) {
        m_voice.Answer_As_Given(reply.m_text);
        return;
    }
    if (reply.m_wants == Command_Reply::Wants::Nothing) {
        m_voice.Answer(reply.m_text);
        return;
    }
    if (!reply.m_text.empty()) // of commands in front of it on its line
        m_voice.Answer(reply.m_text);
    Ask_For_Message(reply);
}

void Phone_Mind::Ask_For_Message(const Command_Reply& reply)
{
    const bool is_draft = reply.m_wants == Command_Reply::Wants::Message_To_Keep;
    const auto request = Request_Of(reply.m_argument, is_draft, m_commands.Settings());
    if (!request) {
        const bool is_text = m_commands.Settings().Is_Text_Format();
        Answer_Error(int(is_text ? Message_Error::Invalid_Text : Message_Error::Invalid_Pdu));
        return;
    }
    m_request = *request;
    if (!is_draft) {
        ++m_message_count;
        if (m_message_count == m_moods.m_hang_up_at) {
            m_happenings.m_hangs_up = true;
            return;
        }
        if (const std::string refusal = Refusal_At_Once(); !refusal.empty()) {
            m_voice.Answer(refusal);
            return;
        }
    }
    m_state = State::Body;
    m_voice.Prompt();
    Say_Late_Results(Kind::Behind_The_Next_Prompt);
    if (!is_draft && m_message_count == m_moods.m_stop_reading_at)
        m_stopped_at = m_message_count;
}

// An empty text when there is none.
std::string Phone_Mind::Refusal_At_Once()
{
    if (const Message_Manner* manner = Manner_For(m_request.m_number, Is_At_Once))
        return As_Told(manner->m_text);
    if (m_message_count == m_moods.m_network_lost_at)
        m_commands.Net().Get_Lost(m_now());
    if (!m_commands.Has_Network(m_now()))
        return m_commands.Error_Answer("+CMS ERROR: 331");
    return m_moods.m_memory_full && m_commands.Memory().Is_Full()
               ? m_commands.Error_Answer("+CMS ERROR: " + std::to_string(Memory_Full))
               : std::string();
}

void Phone_Mind::Take_Body_Byte(char byte)
{
    if (byte == End_Of_Message || byte == Escape) {
        m_state = State::Command;
        if (byte == End_Of_Message)
            End_Message();
        else
            m_voice.Answer("\r\nOK\r\n");
        m_line.clear();
        m_is_too_long = false;
        return;
    }
    if (m_line.size() == Longest_Body) {
        m_is_too_long = true;
        return;
    }
    m_line += byte;
    Echo(std::string_view(m_line).substr(m_line.size() - 1));
    const std::size_t half = m_commands.Settings().Is_Text_Format() ? 1 : std::size_t(m_request.m_announced);
    if (!m_request.m_is_draft && m_message_count == m_moods.m_hang_up_in_body_at && m_line.size() >= half)
        m_happenings.m_hangs_up = true;
}

void Phone_Mind::End_Message()
{
    if (!m_request.m_is_draft)
        Say_Late_Results(Kind::Behind_The_Next_Message);
    const bool is_text = m_commands.Settings().Is_Text_Format();
    const auto error_wanted = m_moods.m_cms_error_at.find(m_message_count);
    if (!m_request.m_is_draft && error_wanted != m_moods.m_cms_error_at.end()) {
        m_voice.Answer(As_Told("+CMS ERROR: " + std::to_string(error_wanted->second)));
        return;
    }
    if (m_is_too_long) {
        Answer_Error(int(is_text ? Message_Error::Invalid_Text : Message_Error::Invalid_Pdu));
        return;
    }
    if (m_request.m_is_draft) {
        End_Draft();
        return;
    }
    const Phone_Settings& settings = m_commands.Settings();
    const Submission submission = is_text ? Submission_Of_Text(m_line, m_request.m_number, settings)
                                          : Submission_Of_Pdu(m_line, m_request.m_announced, settings);
    const std::string number = submission.m_part ? submission.m_part->m_shown.m_number : m_request.m_number;
    const Message_Manner* manner = Manner_For(number, Is_Result);
    const bool is_refused = manner && (manner->m_kind == Kind::Refused || manner->m_kind == Kind::Second_Prompt);
    if (!is_refused && !submission.m_part) {
        Answer_Error(int(submission.m_error));
        return;
    }
    const std::string result = is_refused ? Refusal_Of(*manner) : Result_Of(Accepted(*submission.m_part), manner);
    const Message_Manner* delay = Manner_For(number, Is_Delay);
    if (delay && delay->m_kind != Kind::Delayed)
        m_late_results.push_back({*delay, result});
    else if (!result.empty())
        m_voice.Answer(result, Paced_Wait(m_moods, delay ? delay->m_seconds : 0));
}

std::string Phone_Mind::Refusal_Of(const Message_Manner& manner) const
{
    return manner.m_kind == Kind::Second_Prompt ? "\r\n> \r\nERROR\r\n" : As_Told(manner.m_text);
}

// What is said of a message that was sent; an empty text for nothing.
std::string Phone_Mind::Result_Of(int reference, const Message_Manner* manner) const
{
    if (manner && manner->m_kind == Kind::Without_Result)
        return {};
    if (manner && manner->m_kind == Kind::Refused_Though_Sent)
        return As_Told(manner->m_text);
    if (manner && manner->m_kind == Kind::Without_Reference)
        return "\r\nOK\r\n";
    return "\r\n+CMGS: " + std::to_string(reference) + "\r\n\r\nOK\r\n";
}

// The network has it; its reference.
int Phone_Mind::Accepted(Received_Part part)
{
    const int reference = std::exchange(m_next_reference, (m_next_reference + 1) % 256);
    part.m_shown.m_message_reference = reference;
    m_happenings.m_arrivals.push_back({part.m_shown, m_joiner.Take(part)});
    if ((part.m_shown.m_first_octet & Wants_Report) != 0)
        m_reports.Send_For(part.m_shown.m_number, reference, m_now());
    return reference;
}

const Message_Manner* Phone_Mind::Manner_For(const std::string& number, bool (*is_wanted)(Kind)) const
{
    const auto& rows = m_moods.m_message_manners;
    const auto fits = [&](const Message_Manner& row) {
        return is_wanted(row.m_kind) && m_message_count >= row.m_from && m_message_count <= row.m_to &&
               number.ends_with(row.m_number_end);
    };
    const auto found = std::find_if(rows.begin(), rows.end(), fits);
    return found == rows.end() ? nullptr : &*found;
}

void Phone_Mind::End_Draft()
{
    const Draft draft = Draft_Of(m_line, m_request, m_commands.Settings());
    if (!draft.m_message)
        Answer_Error(int(draft.m_error));
    else if (const auto place = m_commands.Memory().Write(*draft.m_message))
        m_voice.Answer("\r\n+CMGW: " + std::to_string(*place) + "\r\n\r\nOK\r\n");
    else
        Answer_Error(Memory_Full);
}

// 27.005 3.4.1
void Phone_Mind::Report(const Delivery_Report& report)
{
    const Phone_Settings& settings = m_commands.Settings();
    std::string told;
    if (settings.Report_Delivery() == 1) {
        const Frame_Writer frame = Frame_Of(report, settings.Centre());
        told = settings.Is_Text_Format()
                   ? Text_Line_Of(report)
                   : (m_moods.m_report_comma ? "," : "") + std::to_string(frame.Tpdu_Octets()) + "\r\n" + frame.Hex();
        told.insert(0, "+CDS: ");
    } else if (settings.Report_Delivery() == 2) {
        if (const auto place = m_commands.Memory().Put(report, settings.Centre()))
            told = "+CDSI: \"SR\"," + std::to_string(*place);
    }
    if (!told.empty())
        m_voice.Tell("\r\n" + told + "\r\n");
}

void Phone_Mind::Echo(std::string_view bytes)
{
    if (m_commands.Settings().Echo() && !m_moods.m_silent)
        m_voice.Say(std::string(bytes));
}

// A result that a mood gives: as it is, but for words where errors are in words.
std::string Phone_Mind::As_Told(const std::string& line) const
{
    const bool in_words = m_commands.Settings().Errors() == Error_Style::Words;
    return "\r\n" + (in_words ? Error_Line(line, Error_Style::Words) : line) + "\r\n";
}

} // namespace Handset
