#pragma once

#include "device/KVSerialPort.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <sys/eventfd.h>
#include <unistd.h>

// Shared by the files that make up KVSerialPort; private to them.

/// One opening of the line, held by every transfer that began with it. Once the port has another line, this descriptor
/// is no longer the port's and must not be touched.
class KVSerialPort::Line
{
public:
    explicit Line(int descriptor) : m_descriptor(descriptor), m_is_over(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}
    ~Line() { ::close(m_is_over); }
    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;

    int Descriptor() const { return m_descriptor; }
    /// A descriptor that becomes readable when the line ends, which ends the waits of all transfers.
    int Is_Over() const { return m_is_over; }
    void End() const { eventfd_write(m_is_over, 1); }

private:
    const int m_descriptor;
    const int m_is_over;
};

/// Queues a step for the interface thread; does nothing without an application object.
void Tell_Interface_Thread(std::function<void()> step);

/// What ends a synchronous read other than the time-out and a full buffer.
struct KVSerialPort::Read_Ends
{
    bool m_counts = false;
    quint64 m_count = 0;
    bool m_stops = false;
    char m_stop = 0;
    std::optional<double> m_seconds = {}; ///< real ones, in place of the port's read time-out; any bytes end the read
};

/// How late a read may come, in real seconds. The answer to a unicode message in text mode is taken by the next
/// message's first read, 4 described seconds after the write (2 after the last part, 2 after the message) and one more
/// for each number skipped; elsewhere an answer has 5 seconds. 10 exceed both, and are too few for a talkative phone to
/// fill a read's 4,096 octets unasked.
inline double Longest_Wait_For_Read()
{
    constexpr double Described_Seconds = 10;
    constexpr double Shortest_Wait = 1; // real seconds, so that a fast pace loses no answer
    return std::max(Paced(Described_Seconds), Shortest_Wait);
}

/// Keeps the background reader off the line's bytes while it lives; after Goes_On, until the read that follows, which
/// must come in time.
class KVSerialPort::Awaited_Answer
{
public:
    explicit Awaited_Answer(KVSerialPort& port) : m_port(port)
    {
        m_port.Await_Answer_Until(std::numeric_limits<double>::infinity());
    }
    ~Awaited_Answer() { m_port.Await_Answer_Until(m_ends_here ? 0 : Now_Seconds() + Longest_Wait_For_Read()); }
    Awaited_Answer(const Awaited_Answer&) = delete;
    Awaited_Answer& operator=(const Awaited_Answer&) = delete;

    void Goes_On() { m_ends_here = false; }

private:
    KVSerialPort& m_port;
    bool m_ends_here = true;
};
