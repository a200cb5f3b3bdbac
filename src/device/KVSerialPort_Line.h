#pragma once

#include "device/KVSerialPort.h"

#include <algorithm>
#include <limits>
#include <sys/eventfd.h>
#include <unistd.h>

// What the files that make up KVSerialPort share; nobody else includes it.

/// One opening of the line, held by every transfer that began with it: when the port's line is another one by now, the
/// descriptor in here is no longer the port's and must not be touched.
class KVSerialPort::Line
{
public:
    explicit Line(int descriptor) : m_descriptor(descriptor), m_is_over(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}
    ~Line() { ::close(m_is_over); }
    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;

    int Descriptor() const { return m_descriptor; }
    /// A descriptor that can be read from the line's end on: it ends the waits of whoever transfers.
    int Is_Over() const { return m_is_over; }
    void End() const { eventfd_write(m_is_over, 1); }

private:
    const int m_descriptor;
    const int m_is_over;
};

/// Leaves a step for the interface thread; without an application object nobody is told.
void Tell_Interface_Thread(std::function<void()> step);

/// Where a synchronous read ends beside the time-out and the full buffer.
struct KVSerialPort::Read_Ends
{
    bool m_counts = false;
    quint64 m_count = 0;
    bool m_stops = false;
    char m_stop = 0;
};

/// Real seconds for which a read may be late. A unicode message in text mode is answered to the next message's first
/// read, which comes 4 described seconds after the write (2 after the last part, 2 after the message) and one later for
/// each number skipped on the way; an answer gets 5 seconds everywhere else. 10 are more than both, and too few for a
/// talkative phone to fill a read's 4,096 octets unasked.
inline double Longest_Wait_For_Read()
{
    constexpr double Described_Seconds = 10;
    constexpr double Shortest_Wait = 1; // real seconds, so that a fast pace loses no answer
    return std::max(Paced(Described_Seconds), Shortest_Wait);
}

/// Keeps the background reader off the line's bytes, from its making until its end; or, once it is told so, until the
/// read that follows, which has to come in time.
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
