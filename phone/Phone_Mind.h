#pragma once

#include "handset/Message_Joiner.h"
#include "phone/Message_Request.h"
#include "phone/Phone_Commands.h"
#include "phone/Phone_Moods.h"
#include "phone/Phone_Voice.h"
#include "phone/Report_Post.h"
#include "phone/Submission.h"

#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Handset {

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

/// The phone without its line: bytes in, bytes and messages out. Has no descriptor or thread, and is given its clock,
/// so that it can be tested as a value. Owned by Virtual_Phone, which calls it under its lock.
class Phone_Mind
{
public:
    using Time = std::chrono::steady_clock::time_point;

    explicit Phone_Mind(const Phone_Moods& moods, std::function<Time()> now = std::chrono::steady_clock::now);

    /// Bytes from the line. A phone that has stopped reading keeps them back until its moods let it go on.
    void Take(std::string_view bytes);
    Happenings Take_Happenings();

    /// Says what it says by itself and is due; asked again at the next such moment.
    void Look_At_The_Clock();
    std::optional<Time> Next_Moment() const;

    /// True while it takes nothing off the line.
    bool Has_Stopped_Reading() const;

    void Set_Moods(const Phone_Moods& moods);
    const Phone_Moods& Moods() const { return m_moods; }
    void Will_Answer(std::string_view command, std::string answer);

    void Plug_In(); ///< a half line or message is gone, settings are at their start
    void Forget();  ///< half-received messages are gone, messages count from 1

    /// The next status line, for a phone that talks on its own.
    std::string Status_Line() { return m_voice.Status_Line(); }

private:
    enum class State
    {
        Command,
        Body
    };
    struct Late_Result
    {
        Message_Manner m_manner; // says when
        std::string m_text;
    };

    void Take_Byte(char byte);
    void Take_Command_Byte(char byte);
    void Take_Body_Byte(char byte);
    void Take_Line();
    void Hear(const std::string& line, bool is_too_long);
    void Say_Late_Results(Message_Manner::Kind kind, std::string_view command = {});
    void Obey(const std::string& command);
    void Ask_For_Message(const Command_Reply& reply);
    std::string Refusal_At_Once();
    void End_Message();
    void End_Draft();
    std::string Refusal_Of(const Message_Manner& manner) const;
    std::string Result_Of(int reference, const Message_Manner* manner) const;
    int Accepted(Received_Part part);
    const Message_Manner* Manner_For(const std::string& number, bool (*is_wanted)(Message_Manner::Kind)) const;
    void Report(const Delivery_Report& report);

    void Echo(std::string_view bytes);
    void Answer_Error(int number) { m_voice.Answer(m_commands.Error_Answer("+CMS ERROR: " + std::to_string(number))); }
    std::string As_Told(const std::string& line) const;

    Phone_Moods m_moods;
    std::function<Time()> m_now;
    Phone_Commands m_commands;
    Phone_Voice m_voice;
    Report_Post m_reports;
    Message_Joiner m_joiner;
    Happenings m_happenings;

    State m_state = State::Command;
    std::string m_line;             // the command line or message body so far
    std::string m_last_line = "AT"; // which "A/" repeats
    bool m_is_too_long = false;
    bool m_skips_line_feed = false;
    std::string m_held_back;
    std::vector<Late_Result> m_late_results;

    int m_message_count = 0;   // the k of "the k-th message"
    Message_Request m_request; // of the current message
    int m_next_reference;
    int m_stopped_at = 0;    // the message at which it stopped reading
    long m_taken = 0;        // bytes taken since it was plugged in
    long m_heard_in_all = 0; // since its start or the last Forget
};

} // namespace Handset
