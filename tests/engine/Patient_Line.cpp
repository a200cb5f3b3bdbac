#include "engine/Patient_Line.h"

#include <chrono>
#include <poll.h>
#include <thread>

namespace {
constexpr double Longest_Patience = 10;
constexpr std::chrono::milliseconds A_Moment(20);
} // namespace

Line_Counts Counts_Of(const Virtual_Phone& phone)
{
    const std::uint64_t heard = phone.Heard_Bytes().size();
    return {heard, phone.Said(A_Moment)};
}

int Patient_Line::Open(const char* path, int flags)
{
    m_begin = m_ask();
    m_now = {};
    return Serial_Calls::Open(path, flags);
}

ssize_t Patient_Line::Read(int descriptor, void* buffer, size_t size)
{
    const ssize_t count = Serial_Calls::Read(descriptor, buffer, size);
    m_now.said += count > 0 ? static_cast<std::uint64_t>(count) : 0;
    return count;
}

ssize_t Patient_Line::Write(int descriptor, const void* bytes, size_t size)
{
    const ssize_t count = Serial_Calls::Write(descriptor, bytes, size);
    m_now.heard += count > 0 ? static_cast<std::uint64_t>(count) : 0;
    return count;
}

Line_Event Patient_Line::Wait(int descriptor, short events, double seconds, int wake_descriptor)
{
    const Line_Event event = Serial_Calls::Wait(descriptor, events, seconds, wake_descriptor);
    const bool is_in_vain = event == Line_Event::Timed_Out && (events & POLLIN) != 0;
    return is_in_vain && Is_More_To_Come() ? Serial_Calls::Wait(descriptor, events, Longest_Patience, wake_descriptor)
                                           : event;
}

// What goes out on one end of a pseudo-terminal is on its way for a moment.
bool Patient_Line::Is_More_To_Come()
{
    using namespace std::chrono_literals;
    const double end = Now_Seconds() + Longest_Patience;
    Line_Counts counts = m_ask();
    while (counts.heard - m_begin.heard < m_now.heard && Now_Seconds() < end && !Program_Is_Exiting()) {
        std::this_thread::sleep_for(50us);
        counts = m_ask();
    }
    return counts.said - m_begin.said > m_now.said;
}
