#include "phone/Phone_Works.h"

#include <sys/epoll.h>
#include <sys/eventfd.h>
#include <sys/timerfd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <system_error>
#include <utility>

namespace Handset {

namespace {

using Clock = Answer_Queue::Clock;

constexpr std::size_t Most_Bytes_Remembered = 8 * 1024 * 1024;
constexpr std::size_t Most_Things_Remembered = 200'000; // lines, parts and messages, each
constexpr std::chrono::milliseconds Room_Check(5);      // while the line has no room for what is due
constexpr std::chrono::milliseconds Talk_Gap(1);        // of a phone that never stops talking

Descriptor Checked(int number, const char* what)
{
    if (number < 0)
        throw std::system_error(errno, std::generic_category(), what);
    return Descriptor(number);
}

void Watch(int events, int number, std::uint32_t what)
{
    epoll_event wanted{};
    wanted.events = what;
    wanted.data.fd = number;
    if (::epoll_ctl(events, EPOLL_CTL_ADD, number, &wanted) != 0)
        throw std::system_error(errno, std::generic_category(), "epoll_ctl");
}

template <typename Thing>
void Remember(std::deque<Thing>& things, const Thing& thing)
{
    things.push_back(thing);
    if (things.size() > Most_Things_Remembered)
        things.pop_front();
}

} // namespace

Phone_Works::Phone_Works(const Phone_Moods& moods)
    : m_mind(moods), m_waker(Checked(::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC), "eventfd")),
      m_timer(Checked(::timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC), "timerfd")),
      m_events(Checked(::epoll_create1(EPOLL_CLOEXEC), "epoll"))
{
    Watch(m_events.Number(), m_waker.Number(), EPOLLIN);
    Watch(m_events.Number(), m_timer.Number(), EPOLLIN);
    Plug_In();
    m_thread = std::thread([this] { Run(); });
}

Phone_Works::~Phone_Works()
{
    {
        const std::lock_guard guard(m_lock);
        m_is_ending = true;
        Wake();
    }
    m_thread.join();
}

// Edge-triggered: a line that nobody has open is "hung up" all the time and must not keep the worker busy.
void Phone_Works::Plug_In()
{
    Close_Line();
    m_mind.Plug_In();
    m_line.Open();
    Watch(m_events.Number(), m_line.Number(), EPOLLIN | EPOLLOUT | EPOLLET);
}

void Phone_Works::Close_Line()
{
    m_line.Close(); // which takes it out of the epoll set, too
    m_queue.Clear();
    m_has_no_room = false;
    m_somebody_is_there = false;
    m_was_used = false;
    m_words_are_out = false;
}

void Phone_Works::Forget()
{
    m_mind.Forget();
    m_lines.clear();
    m_bytes.clear();
    m_parts.clear();
    m_inbox.clear();
    m_heard_something = false;
}

bool Phone_Works::Says_Something_Before(Clock::time_point moment) const
{
    const auto next = m_queue.Next_Moment();
    return next && *next <= moment;
}

void Phone_Works::Wake() const
{
    const std::uint64_t one = 1;
    [[maybe_unused]] const auto written = ::write(m_waker.Number(), &one, sizeof one);
}

void Phone_Works::Run()
{
    for (;;) {
        News news;
        std::string new_path;
        Virtual_Phone::Listeners listeners;
        bool is_ending = false;
        {
            const std::lock_guard guard(m_lock);
            Serve();
            news = std::exchange(m_news, {});
            new_path = std::exchange(m_new_path, {});
            listeners = m_listeners;
            is_ending = m_is_ending;
        }
        Tell(listeners, news);
        if (!new_path.empty())
            listeners.m_on_new_line(new_path);
        if (is_ending)
            return;
        Wait_For_Events();
    }
}

void Phone_Works::Wait_For_Events() const
{
    std::array<epoll_event, 4> events;
    const int count = ::epoll_wait(m_events.Number(), events.data(), int(events.size()), -1);
    for (int i = 0; i < count; ++i) {
        const int number = events.at(std::size_t(i)).data.fd;
        std::uint64_t ticks = 0;
        if (number == m_waker.Number() || number == m_timer.Number()) [[maybe_unused]]
            const auto taken = ::read(number, &ticks, sizeof ticks);
    }
}

void Phone_Works::Serve()
{
    if (m_line.Is_Open())
        Listen();
    m_mind.Look_At_The_Clock();
    const Happenings happenings = m_mind.Take_Happenings();
    Note(happenings);
    if (happenings.m_hangs_up)
        Close_Line();
    if (m_line.Is_Open()) {
        Look_Who_Is_There();
        Speak();
        Leave_In_The_End();
    }
    Set_Timer();
    if (!m_news.empty())
        Wake();
    m_changed.notify_all();
}

// A few reads at most, so that a peer that never stops cannot keep the phone from answering or ending.
void Phone_Works::Listen()
{
    constexpr int most_reads = 16;
    int reads = 0;
    for (; reads < most_reads && !m_mind.Has_Stopped_Reading(); ++reads) {
        const std::string bytes = m_line.Read();
        if (bytes.empty())
            break;
        m_was_used = true;
        m_mind.Take(bytes);
    }
    if (reads == most_reads)
        Wake();
    m_line.Stop_The_Other_End(m_mind.Has_Stopped_Reading());
}

void Phone_Works::Note(const Happenings& happenings)
{
    // A line feed alone ends the command before it and is no new word.
    if (happenings.m_bytes.find_first_not_of('\n') != std::string::npos)
        m_heard_something = true;
    m_bytes += happenings.m_bytes;
    if (m_bytes.size() > Most_Bytes_Remembered)
        m_bytes.erase(0, m_bytes.size() - Most_Bytes_Remembered / 2);
    for (const auto& line : happenings.m_lines)
        Remember(m_lines, line);
    for (const auto& arrival : happenings.m_arrivals) {
        Remember(m_parts, arrival.m_part);
        if (arrival.m_message)
            Remember(m_inbox, *arrival.m_message);
        m_news.emplace_back(arrival);
    }
    if (happenings.m_hangs_up)
        m_news.emplace_back(std::nullopt);
    for (const auto& said : happenings.m_said)
        Say(said);
}

void Phone_Works::Say(const Utterance& said)
{
    const Phone_Moods& moods = m_mind.Moods();
    if (moods.m_byte_gap_ms > 0)
        m_queue.Put_Split(said, Clock::now(), std::chrono::milliseconds(moods.m_byte_gap_ms));
    else if (moods.m_split_answers)
        m_queue.Put_Split(said, Clock::now());
    else
        m_queue.Put(said, Clock::now());
}

// Bytes are lost while nobody has the line open, and when it is closed unread.
void Phone_Works::Look_Who_Is_There()
{
    const bool somebody_is_there = m_line.Somebody_Has_It_Open();
    if (!somebody_is_there)
        m_queue.Clear();
    if (!somebody_is_there && m_words_are_out)
        m_line.Drop_What_Was_Not_Read();
    m_words_are_out = m_words_are_out && somebody_is_there;
    m_somebody_is_there = somebody_is_there;
    if (!somebody_is_there && m_was_used && m_listeners.m_on_new_line && m_line.Is_Kept_By_Nobody())
        Take_Another_Line();
    m_was_used = somebody_is_there;
}

// The phone stays as it is; only its line is another.
void Phone_Works::Take_Another_Line()
{
    try {
        m_line.Open();
        Watch(m_events.Number(), m_line.Number(), EPOLLIN | EPOLLOUT | EPOLLET);
    } catch (const std::system_error&) {
        return; // the system has no other: whoever may open the old one still can
    }
    m_new_path = m_line.Path();
    Wake();
}

void Phone_Works::Speak()
{
    m_has_no_room = false;
    const bool talks_on = m_mind.Moods().m_never_stops_talking;
    if (!m_somebody_is_there || (m_queue.Is_Empty() && !talks_on))
        return;
    const auto now = Clock::now();
    if (talks_on && m_queue.Is_Empty() && now >= m_next_talk) {
        m_queue.Put({m_mind.Status_Line(), 0}, now);
        m_next_talk = now + Talk_Gap;
    }
    for (auto due = m_queue.Due(now); !due.empty() && !m_has_no_room && !Has_Said_All(); due = m_queue.Due(now)) {
        const std::size_t count = m_line.Write(due.substr(0, Left_To_Say()));
        m_queue.Went_Out(count);
        m_said += count;
        m_has_no_room = count == 0;
        m_words_are_out = m_words_are_out || count > 0;
    }
}

// How many bytes may go out before the phone hangs up.
std::uint64_t Phone_Works::Left_To_Say() const
{
    const long limit = m_mind.Moods().m_hang_up_after_said;
    if (limit < 0 || limit == m_left_after)
        return UINT64_MAX;
    return std::uint64_t(limit) > m_said ? std::uint64_t(limit) - m_said : 0;
}

// What was said last is to be heard: a pseudo-terminal drops what was not read when it is closed. Bytes may still be on
// their way when nothing waits to be read, so that it must stay so.
void Phone_Works::Leave_In_The_End()
{
    constexpr std::chrono::milliseconds quiet(10);
    constexpr std::chrono::seconds patience(2);
    if (!Has_Said_All() || !m_somebody_is_there)
        return;
    const auto now = Clock::now();
    m_said_all_at = m_said_all_at.value_or(now);
    if (m_line.Not_Read_Yet() != 0)
        m_quiet_since.reset();
    else
        m_quiet_since = m_quiet_since.value_or(now);
    if ((!m_quiet_since || now - *m_quiet_since < quiet) && now - *m_said_all_at < patience)
        return;
    m_left_after = m_mind.Moods().m_hang_up_after_said;
    m_said_all_at.reset();
    m_quiet_since.reset();
    Close_Line();
    m_news.emplace_back(std::nullopt);
}

// Arms the timer for the next bytes due, or to check for room again. An idle phone leaves it unarmed and costs nothing.
void Phone_Works::Set_Timer() const
{
    const auto now = Clock::now();
    auto moment = m_queue.Next_Moment();
    if ((moment && m_has_no_room) || (m_line.Is_Open() && m_somebody_is_there && Has_Said_All()))
        moment = now + Room_Check;
    if (const auto of_mind = m_mind.Next_Moment(); of_mind && (!moment || *of_mind < *moment))
        moment = of_mind;
    if (!moment && m_line.Is_Open() && m_mind.Moods().m_never_stops_talking)
        moment = m_somebody_is_there ? m_next_talk : now + Room_Check;
    itimerspec setting{};
    if (moment) {
        const auto left = std::max<Clock::duration>(*moment - now, std::chrono::microseconds(1));
        const auto nanoseconds = std::chrono::duration_cast<std::chrono::nanoseconds>(left).count();
        setting.it_value.tv_sec = nanoseconds / 1'000'000'000;
        setting.it_value.tv_nsec = nanoseconds % 1'000'000'000;
    }
    ::timerfd_settime(m_timer.Number(), 0, &setting, nullptr);
}

void Phone_Works::Tell(const Virtual_Phone::Listeners& listeners, const News& news)
{
    for (const auto& arrival : news) {
        if (!arrival) {
            if (listeners.m_on_hang_up)
                listeners.m_on_hang_up();
            continue;
        }
        if (listeners.m_on_part)
            listeners.m_on_part(arrival->m_part);
        if (listeners.m_on_message && arrival->m_message)
            listeners.m_on_message(*arrival->m_message);
    }
}

} // namespace Handset
