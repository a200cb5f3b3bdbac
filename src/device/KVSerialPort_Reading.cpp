#include "device/KVSerialPort.h"

#include "device/KVSerialPort_Line.h"
#include "device/Non_Blocking_Transfer.h"
#include "platform/Waiting.h"

#include <algorithm>
#include <cerrno>
#include <poll.h>
#include <sys/eventfd.h>

namespace {

constexpr double Shortest_Poll = 1e-6; // 0 would poll for nothing

} // namespace

std::shared_ptr<const KVSerialPort::Line> KVSerialPort::Present_Line()
{
    const std::lock_guard guard(m_line_lock);
    return m_line;
}

// While an answer is awaited the background reader takes no byte. It is woken when the wait ends at once; otherwise it
// watches the clock itself.
void KVSerialPort::Await_Answer_Until(double moment)
{
    {
        const std::lock_guard guard(m_line_lock);
        m_answer_awaited_until = moment;
        if (moment <= 0)
            eventfd_write(m_background_event, 1);
    }
    Start_Missing_Reader();
}

// The only place that takes bytes off the line. EAGAIN: no byte for this caller; another reader, here or in another
// program, has taken what made the line ready.
ssize_t KVSerialPort::Take_Bytes(const Line& line, char* bytes, size_t size, bool in_background)
{
    const std::lock_guard guard(m_line_lock);
    if (m_line.get() != &line) {
        errno = EBADF;
        return -1;
    }
    if (in_background && Now_Seconds() < m_answer_awaited_until) {
        errno = EAGAIN;
        return -1;
    }
    return Read_Without_Blocking(m_calls, line.Descriptor(), bytes, size);
}

QByteArray KVSerialPort::Read_Until(const Read_Ends& ends, KVSerialError* error)
{
    const Awaited_Answer awaited(*this);
    KVSerialError outcome;
    const qsizetype length = Read_Into_Buffer(ends, outcome);
    outcome.bytesRead = static_cast<quint64>(length);
    if (error)
        *error = outcome;
    if (length == 0 || outcome.code == KVSerial_System_Error)
        return {};
    return QByteArray(m_buffer.data(), length);
}

qsizetype KVSerialPort::Read_Into_Buffer(const Read_Ends& ends, KVSerialError& outcome)
{
    const double start = Now_Seconds();
    const double read_timeout = ends.m_seconds ? *ends.m_seconds : Paced_Read_Timeout(m_read_timeout);
    const auto line = Present_Line();
    const quint64 limit = ends.m_counts ? std::min<quint64>(ends.m_count, Buffer_Size) : Buffer_Size;
    quint64 length = 0;
    const auto end_with = [&](int code, int underlying_error = 0, int end_code = KVSerial_No_End) {
        outcome.code = code;
        outcome.underlyingError = underlying_error;
        outcome.endCode = end_code;
        return static_cast<qsizetype>(length);
    };
    for (double remaining = read_timeout;; remaining = read_timeout - (Now_Seconds() - start)) {
        if (remaining <= 0)
            return end_with(KVSerial_Read_Timeout);
        if (!line)
            return end_with(KVSerial_System_Error, EBADF);
        const Line_Event event =
            m_calls.Wait(line->Descriptor(), POLLIN, std::max(remaining, Shortest_Poll), line->Is_Over());
        if (event == Line_Event::Timed_Out)
            return end_with(KVSerial_Read_Timeout);
        if (event != Line_Event::Ready)
            return end_with(KVSerial_System_Error, event == Line_Event::Woken ? EBADF : errno);
        const ssize_t taken = Take_Bytes(*line, m_buffer.data() + length, limit - length, false);
        if (taken < 0 && (errno == EAGAIN || errno == EINTR))
            continue;
        if (taken < 1)
            return end_with(KVSerial_System_Error, taken < 0 ? errno : 0);
        length += static_cast<quint64>(taken);
        if (ends.m_seconds)
            return end_with(KVSerial_Ended_Normally);
        if (ends.m_counts && length >= ends.m_count)
            return end_with(KVSerial_Ended_Normally, 0,
                            length == ends.m_count ? KVSerial_Requested_Length : KVSerial_More_Than_Requested);
        if (ends.m_stops && m_buffer[length - 1] == ends.m_stop)
            return end_with(KVSerial_Ended_Normally, 0, KVSerial_Stop_Character);
        if (length >= Buffer_Size)
            return end_with(KVSerial_Buffer_Full);
    }
}

QByteArray KVSerialPort::readAndReturnError(KVSerialError* error)
{
    return Read_Until({}, error);
}

QByteArray KVSerialPort::readAvailable(double seconds, KVSerialError* error)
{
    return Read_Until({.m_seconds = std::max(seconds, Shortest_Poll)}, error);
}

QString KVSerialPort::readStringUsingEncoding(KVText_Encoding encoding, KVSerialError* error)
{
    return Decoded_Text(readAndReturnError(error), encoding);
}
