#include "device/Bounded_Write.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>

namespace {

constexpr double Idle_Seconds = 10;
constexpr double Seconds_A_Byte = 0.01;
constexpr double Shortest_Limit = 1; // real seconds

double Real_Seconds(double seconds)
{
    return std::max(Paced(seconds), Shortest_Limit);
}

class Non_Blocking_Mode
{
public:
    Non_Blocking_Mode(Serial_Calls& calls, int descriptor)
        : m_calls(calls), m_descriptor(descriptor), m_flags(calls.Get_Status_Flags(descriptor))
    {
        m_is_on = m_flags != -1 && (m_flags & O_NONBLOCK) != 0;
        m_was_on = m_is_on;
        if (m_flags != -1 && !m_is_on)
            m_is_on = calls.Set_Status_Flags(descriptor, m_flags | O_NONBLOCK) != -1;
    }
    ~Non_Blocking_Mode()
    {
        const int error = errno;
        if (m_is_on && !m_was_on)
            m_calls.Set_Status_Flags(m_descriptor, m_flags);
        errno = error;
    }
    Non_Blocking_Mode(const Non_Blocking_Mode&) = delete;
    Non_Blocking_Mode& operator=(const Non_Blocking_Mode&) = delete;

    bool Is_On() const { return m_is_on; }

private:
    Serial_Calls& m_calls;
    int m_descriptor;
    int m_flags;
    bool m_is_on;
    bool m_was_on;
};

} // namespace

ssize_t Write_Without_Blocking(Serial_Calls& calls, int descriptor, const char* bytes, size_t size)
{
    const Non_Blocking_Mode mode(calls, descriptor);
    return mode.Is_On() ? calls.Write(descriptor, bytes, size) : -1;
}

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
