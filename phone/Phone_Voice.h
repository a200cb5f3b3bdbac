#pragma once

#include "phone/Phone_Moods.h"

#include <chrono>
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

/// How a phone says what it says: line ends, delays, prompts, and what comes in between. Collects until it is asked.
/// Owned by the phone's mind, used under the phone's lock.
class Phone_Voice
{
public:
    explicit Phone_Voice(const Phone_Moods& moods) : m_moods(moods) {}

    void Set_Moods(const Phone_Moods& moods) { m_moods = moods; }
    void Plug_In() { m_kept_back = {}; } ///< what was kept back is gone

    /// Whole lines, with a CR LF before and after each.
    void Answer(std::string_view text, std::chrono::milliseconds later = {});
    void Answer_As_Given(std::string_view bytes, std::chrono::milliseconds later = {});
    void Make_Noise();
    void Prompt();

    /// What it says by itself: lines, at once.
    void Tell(std::string_view text) { Say(With_Line_Ends(text)); }
    void Say(std::string bytes) { m_said.push_back({std::move(bytes), 0}); }

    /// The next status line, for a phone that talks on its own.
    std::string Status_Line();

    /// Everything since it was last asked.
    std::vector<Utterance> Take_Said();

private:
    std::string With_Lines_Between(std::string_view text);
    std::string With_Line_Ends(std::string_view text) const;

    Phone_Moods m_moods;
    std::vector<Utterance> m_said;
    Utterance m_kept_back; // of a phone that is one answer behind
    unsigned m_status_count = 0;
    std::size_t m_between_count = 0;
};

/// The lines for Phone_Moods::m_between_lines by their names, commas between them: "ring", "cmti", "creg", "rssi" and
/// "cds", or "all". Empty when a name is none of these.
std::vector<std::string> Unsolicited_Lines(std::string_view names);

} // namespace Handset
