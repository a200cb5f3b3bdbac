// A conversation with a phone's mind: bytes in, bytes out, and a clock of its own.
#pragma once

#include "phone/Phone_Mind.h"

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

// "a|b" as a phone says lines: each with a CR LF before and after it.
inline std::string Said(std::string_view lines)
{
    std::string said;
    for (std::size_t begin = 0; begin <= lines.size();) {
        const auto end = std::min(lines.find('|', begin), lines.size());
        said += "\r\n" + std::string(lines.substr(begin, end - begin)) + "\r\n";
        begin = end + 1;
    }
    return said;
}

// A phone without echo, so that its answers stand alone.
class Mind_Talk
{
public:
    explicit Mind_Talk(Phone_Moods moods = {})
        : m_moods(Without_Echo(std::move(moods))), m_mind(m_moods, [this] { return m_now; })
    {
    }
    Mind_Talk(const Mind_Talk&) = delete;
    Mind_Talk& operator=(const Mind_Talk&) = delete;

    // Everything said to these bytes; m_delay_ms is how late the last of it comes.
    std::string Hears(std::string_view bytes)
    {
        m_mind.Take(bytes);
        return What_Was_Said();
    }
    std::string Asks(const std::string& command) { return Hears(command + "\r"); }

    // Prompt and result in PDU mode: "hello" to +15550001234, or another frame of so many octets.
    std::string Sends(const std::string& length = "19",
                      const std::string& pdu = "0011000B915155001032F40000FF05E8329BFD06")
    {
        m_prompt = Asks("AT+CMGS=" + length);
        return Hears(pdu + "\x1A");
    }
    std::string Sends_With_Report() { return Sends("19", "0031000B915155001032F40000FF05E8329BFD06"); }

    // What it says by itself until then.
    std::string Waits(std::chrono::milliseconds time)
    {
        m_now += time;
        m_mind.Look_At_The_Clock();
        return What_Was_Said();
    }

    std::vector<std::string> Inbox() const { return m_inbox; }

    std::string m_prompt;
    int m_delay_ms = 0;
    bool m_hangs_up = false;

private:
    static Phone_Moods Without_Echo(Phone_Moods moods)
    {
        moods.m_no_echo = true;
        return moods;
    }

    std::string What_Was_Said()
    {
        const auto happenings = m_mind.Take_Happenings();
        std::string said;
        for (const auto& utterance : happenings.m_said) {
            said += utterance.m_bytes;
            m_delay_ms = utterance.m_delay_ms;
        }
        for (const auto& arrival : happenings.m_arrivals)
            m_inbox.push_back(arrival.m_part.m_number + " " + arrival.m_part.m_text);
        m_hangs_up = m_hangs_up || happenings.m_hangs_up;
        return said;
    }

    std::chrono::steady_clock::time_point m_now;
    Phone_Moods m_moods;
    Handset::Phone_Mind m_mind;
    std::vector<std::string> m_inbox;
};
