#pragma once

#include "handset/Message_Joiner.h"
#include "phone/Phone_Manners.h"
#include "phone/Phone_Moods.h"
#include "phone/Phone_Settings.h"
#include "phone/Submission.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Handset {

/// Bytes to send after a delay.
struct Utterance
{
    std::string m_bytes;
    int m_delay_ms = 0;
};

/// A part, and the message that it completed.
struct Arrival
{
    Handset_Part m_part;
    std::optional<Handset_Message> m_message;
};

/// What has happened since the last Take_Happenings.
struct Happenings
{
    std::vector<Utterance> m_said;
    std::vector<std::string> m_lines; ///< command lines heard
    std::string m_bytes;              ///< bytes taken off the line
    std::vector<Arrival> m_arrivals;
    bool m_hangs_up = false;
};

/// The phone without its line: bytes in, bytes and messages out. Has no descriptor, thread or clock, so that it can be
/// tested as a value. Owned by Virtual_Phone, which calls it under its lock.
class Phone_Mind
{
public:
    explicit Phone_Mind(const Phone_Moods& moods);

    /// Bytes from the line. A phone that has stopped reading keeps them back until its moods let it go on.
    void Take(std::string_view bytes);
    Happenings Take_Happenings();

    /// True while it takes nothing off the line.
    bool Has_Stopped_Reading() const;

    void Set_Moods(const Phone_Moods& moods);
    const Phone_Moods& Moods() const { return m_moods; }
    void Will_Answer(std::string_view command, std::string answer);

    void Plug_In(); ///< a half line or message is gone, settings are at their start
    void Forget();  ///< half-received messages are gone, messages count from 1

    /// The next status line, for a phone that talks on its own.
    std::string Status_Line();

private:
    enum class State
    {
        Command,
        Body
    };

    void Take_Byte(char byte);
    void Take_Command_Byte(char byte);
    void Take_Body_Byte(char byte);
    void Take_Line();
    void Obey(const std::string& command);
    void Ask_For_Message(std::string_view argument);
    void End_Message();
    void Accept(Received_Part part);

    void Echo(std::string_view bytes);
    void Answer(std::string_view text, bool as_given = false);
    void Answer_Error(int number) { Answer("\r\n+CMS ERROR: " + std::to_string(number) + "\r\n"); }
    std::string With_Line_Ends(std::string_view text) const;

    Phone_Moods m_moods;
    Phone_Manners m_manners;
    Phone_Settings m_settings;
    Message_Joiner m_joiner;
    Happenings m_happenings;

    State m_state = State::Command;
    std::string m_line; // the command line or message body so far
    bool m_is_too_long = false;
    bool m_skips_line_feed = false;
    std::string m_held_back;
    Utterance m_kept_back; // of a phone that is one answer behind

    int m_message_count = 0; // the k of "the k-th message"
    int m_announced = 0;     // TPDU octets that the current AT+CMGS announced
    std::string m_number;    // destination of the current text-mode message
    int m_next_reference = 0;
    int m_stopped_at = 0; // the message at which it stopped reading
    long m_taken = 0;     // bytes taken since it was plugged in
    unsigned m_status_count = 0;
};

} // namespace Handset
