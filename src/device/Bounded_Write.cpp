#include "device/Bounded_Write.h"

#include <algorithm>
#include <cerrno>
#include <poll.h>

namespace {

constexpr double Idle_Seconds = 10;
constexpr double Seconds_A_Byte = 0.01;
constexpr double Shortest_Limit = 1; // real seconds

double Real_Seconds(double seconds)
{
    return std::max(Paced(seconds), Shortest_Limit);
}

} // namespace

Write_Outcome Write_With_An_End(Serial_Calls& calls, int descriptor, const char* bytes, qsizetype length,
                                int wake_descriptor, const std::function<ssize_t(const char*, size_t)>& put)
{
    const double end = Now_Seconds() + Real_Seconds(Idle_Seconds + Seconds_A_Byte * static_cast<double>(length));
    double idle_end = Now_Seconds() + Real_Seconds(Idle_Seconds);
    Write_Outcome outcome;
    while (outcome.m_bytes_written < length) {
        const double left = std::min(end, idle_end) - Now_Seconds();
        if (left <= 0)
            return outcome;
        switch (calls.Wait(descriptor, POLLOUT, left, wake_descriptor)) {
        case Line_Event::Timed_Out:
            return outcome;
        case Line_Event::Failed:
            outcome.m_error = errno;
            return outcome;
        case Line_Event::Woken:
            outcome.m_error = EBADF;
            return outcome;
        case Line_Event::Ready:
            break;
        }
        const auto size = static_cast<size_t>(length - outcome.m_bytes_written);
        const ssize_t written = put(bytes + outcome.m_bytes_written, size);
        if (written > 0) {
            outcome.m_bytes_written += written;
            idle_end = Now_Seconds() + Real_Seconds(Idle_Seconds);
        } else if (written == 0) {
            return outcome;
        } else if (errno != EAGAIN && errno != EINTR) {
            outcome.m_error = errno;
            return outcome;
        }
    }
    return outcome;
}
