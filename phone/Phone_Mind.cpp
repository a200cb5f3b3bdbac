#include "phone/Phone_Mind.h"

#include <array>
#include <utility>

namespace Handset {

namespace {

constexpr std::size_t Longest_Line = 1024;
constexpr std::size_t Longest_Body = 4096;
constexpr int Longest_Tpdu = 255;
constexpr char End_Of_Message = 0x1A;
constexpr char Escape = 0x1B;

constexpr std::array Status_Lines = {"\r\nRING\r\n", "\r\n+CMTI: \"SM\",1\r\n", "\r\n+CREG: 1\r\n"};

// Neither an answer nor text: control characters, a NUL, invalid UTF-8.
constexpr char Noise_Bytes[] = "\x80\xFE\xC3(\x00\x07~\xED\xA0\x80\x9F\x01}\xFF\r\n\xF8\x88{\x00\xC0\xAF^\x1F\xFF";
constexpr std::string_view Noise(Noise_Bytes, sizeof Noise_Bytes - 1);

bool Begins_A_Command(std::string_view line)
{
    return line.size() >= 2 && (line[0] == 'A' || line[0] == 'a') && (line[1] == 'T' || line[1] == 't');
}

} // namespace

Phone_Mind::Phone_Mind(const Phone_Moods& moods) : m_moods(moods), m_manners(moods), m_settings(moods) {}

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
    }
}

Happenings Phone_Mind::Take_Happenings()
{
    return std::exchange(m_happenings, {});
}

bool Phone_Mind::Has_Stopped_Reading() const
{
    const bool has_had_enough = m_moods.m_stop_reading_after >= 0 && m_taken >= m_moods.m_stop_reading_after;
    return has_had_enough || (m_stopped_at > 0 && m_stopped_at == m_moods.m_stop_reading_at);
}

void Phone_Mind::Set_Moods(const Phone_Moods& moods)
{
    m_moods = moods;
    m_manners.Set_Moods(moods);
    m_settings.Set_Moods(moods);
    Take({});
}

void Phone_Mind::Will_Answer(std::string_view command, std::string answer)
{
    m_manners.Will_Answer(command, std::move(answer));
}

void Phone_Mind::Plug_In()
{
    m_settings.Plug_In();
    m_kept_back = {};
    m_state = State::Command;
    m_line.clear();
    m_held_back.clear();
    m_is_too_long = false;
    m_skips_line_feed = false;
    m_stopped_at = 0;
    m_taken = 0;
}

void Phone_Mind::Forget()
{
    m_joiner.Forget();
    m_message_count = 0;
}

std::string Phone_Mind::Status_Line()
{
    return With_Line_Ends(Status_Lines.at(m_status_count++ % Status_Lines.size()));
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
    if (m_moods.m_silent || m_moods.m_echo_only)
        return;
    if (m_moods.m_garbage)
        Answer(Noise, true);
    else if (is_too_long)
        Answer("\r\nERROR\r\n");
    else
        Obey(Normal_Command(line));
}

void Phone_Mind::Obey(const std::string& command)
{
    const Manner manner = m_manners.Find(command);
    if (manner.m_as_given) {
        Answer(manner.m_answer, true);
        return;
    }
    const auto equals = command.find('=');
    const std::string_view argument =
        equals == std::string::npos ? std::string_view() : std::string_view(command).substr(equals + 1);
    if (manner.m_deed == Deed::Take_Message)
        Ask_For_Message(argument);
    else if (m_settings.Do(manner.m_deed, argument))
        Answer(m_settings.Filled(manner.m_answer));
    else
        Answer("\r\nERROR\r\n");
}

// +CMGS=<length> or +CMGS=<da>[,<toda>] (27.005 4.3 and 3.5.1)
void Phone_Mind::Ask_For_Message(std::string_view argument)
{
    const auto arguments = Arguments_Of(argument);
    if (m_settings.Is_Text_Format()) {
        const auto quoted = Unquoted(arguments.front());
        const auto type = arguments.size() == 2 ? arguments[1] : std::string_view();
        m_number = quoted && arguments.size() <= 2 ? m_settings.Number(*quoted, type) : std::string();
        if (m_number.empty()) {
            Answer_Error(int(Message_Error::Invalid_Text));
            return;
        }
    } else {
        m_announced = Number_Of(argument).value_or(0);
        if (m_announced < 1 || m_announced > Longest_Tpdu) {
            Answer_Error(int(Message_Error::Invalid_Pdu));
            return;
        }
    }
    ++m_message_count;
    if (m_message_count == m_moods.m_hang_up_at) {
        m_happenings.m_hangs_up = true;
        return;
    }
    m_state = State::Body;
    if (!m_moods.m_no_prompt)
        m_happenings.m_said.push_back(
            {With_Line_Ends(m_moods.m_prompt_without_blank ? "\r\n>" : "\r\n> "), m_moods.m_late_prompt_ms});
    if (m_message_count == m_moods.m_stop_reading_at)
        m_stopped_at = m_message_count;
}

void Phone_Mind::Take_Body_Byte(char byte)
{
    if (byte == End_Of_Message || byte == Escape) {
        m_state = State::Command;
        if (byte == End_Of_Message)
            End_Message();
        else
            Answer("\r\nOK\r\n");
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
    const std::size_t half = m_settings.Is_Text_Format() ? 1 : std::size_t(m_announced);
    if (m_message_count == m_moods.m_hang_up_in_body_at && m_line.size() >= half)
        m_happenings.m_hangs_up = true;
}

void Phone_Mind::End_Message()
{
    const auto error_wanted = m_moods.m_cms_error_at.find(m_message_count);
    if (error_wanted != m_moods.m_cms_error_at.end()) {
        Answer_Error(error_wanted->second);
        return;
    }
    const bool is_text = m_settings.Is_Text_Format();
    if (m_is_too_long) {
        Answer_Error(int(is_text ? Message_Error::Invalid_Text : Message_Error::Invalid_Pdu));
        return;
    }
    const Submission submission =
        is_text ? Submission_Of_Text(m_line, m_number, m_settings) : Submission_Of_Pdu(m_line, m_announced, m_settings);
    if (submission.m_part)
        Accept(*submission.m_part);
    else
        Answer_Error(int(submission.m_error));
}

void Phone_Mind::Accept(Received_Part part)
{
    part.m_shown.m_message_reference = m_next_reference;
    m_next_reference = (m_next_reference + 1) % 256;
    m_happenings.m_arrivals.push_back({part.m_shown, m_joiner.Take(part)});
    Answer("\r\n+CMGS: " + std::to_string(part.m_shown.m_message_reference) + "\r\n\r\nOK\r\n");
}

void Phone_Mind::Echo(std::string_view bytes)
{
    if (m_settings.Echo() && !m_moods.m_silent)
        m_happenings.m_said.push_back({std::string(bytes), 0});
}

void Phone_Mind::Answer(std::string_view text, bool as_given)
{
    Utterance answer{as_given ? std::string(text) : With_Line_Ends(text), m_moods.m_answer_delay_ms};
    if (m_moods.m_one_answer_behind)
        std::swap(answer, m_kept_back);
    m_happenings.m_said.push_back(std::move(answer));
    if (m_moods.m_unsolicited)
        m_happenings.m_said.push_back({Status_Line(), 0});
}

std::string Phone_Mind::With_Line_Ends(std::string_view text) const
{
    std::string said(text);
    if (m_moods.m_cr_only)
        std::erase(said, '\n');
    return said;
}

} // namespace Handset
