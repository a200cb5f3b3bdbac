#pragma once

#include "handset/Handset_Message.h"
#include "phone/Answer_Queue.h"
#include "phone/Descriptor.h"
#include "phone/Phone_Mind.h"
#include "phone/Pty_Line.h"
#include "phone/Virtual_Phone.h"

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace Handset {

/// The inside of a Virtual_Phone, owned by it: worker thread, line and records. One mutex guards everything; callers
/// lock it as the worker does, so that any thread may serve the line.
class Phone_Works
{
public:
    explicit Phone_Works(const Phone_Moods& moods);
    ~Phone_Works();
    Phone_Works(const Phone_Works&) = delete;
    Phone_Works& operator=(const Phone_Works&) = delete;

    // The following require m_lock.
    void Plug_In();
    void Close_Line();
    void Serve(); ///< reads what has come and writes what is due
    void Say(const Utterance& said);
    void Forget();
    bool Somebody_Is_There() const { return m_somebody_is_there; }
    bool Says_Something_Before(Answer_Queue::Clock::time_point moment) const;

    std::mutex m_lock;
    std::condition_variable m_changed;
    Pty_Line m_line;
    Phone_Mind m_mind;
    Virtual_Phone::Listeners m_listeners;
    std::deque<std::string> m_lines;
    std::string m_bytes;
    std::deque<Handset_Part> m_parts;
    std::deque<Handset_Message> m_inbox;
    bool m_heard_something = false; ///< since it was last asked
    std::uint64_t m_said = 0;       ///< bytes that went out

private:
    // What the listeners have not been told yet; an arrival, or nothing for a hang-up.
    using News = std::vector<std::optional<Arrival>>;

    void Run();
    void Wait_For_Events() const;
    void Wake() const;
    void Listen();
    void Look_Who_Is_There();
    void Take_Another_Line();
    void Note(const Happenings& happenings);
    void Speak();
    std::uint64_t Left_To_Say() const;
    bool Has_Said_All() const { return Left_To_Say() == 0; } // and hangs up next
    void Leave_In_The_End();
    void Set_Timer() const;
    static void Tell(const Virtual_Phone::Listeners& listeners, const News& news);

    Answer_Queue m_queue;
    News m_news;
    std::string m_new_path;           // of the line that has taken the place of another, until the listener knows it
    bool m_somebody_is_there = false; // has the line open
    bool m_was_used = false;          // since its last user was seen to leave
    bool m_words_are_out = false;     // written and perhaps not read yet
    bool m_has_no_room = false;
    bool m_is_ending = false;
    Answer_Queue::Clock::time_point m_next_talk{};
    long m_left_after = -1; // how many bytes, when it last hung up for having said that many
    std::optional<Answer_Queue::Clock::time_point> m_said_all_at;
    std::optional<Answer_Queue::Clock::time_point> m_quiet_since; // the other end has read all

    Descriptor m_waker;
    Descriptor m_timer;
    Descriptor m_events;
    std::thread m_thread;
};

} // namespace Handset
