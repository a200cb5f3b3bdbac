#include "device/KVSerialPort.h"

#include "device/Bounded_Write.h"
#include "device/Driver_Requests.h"
#include "device/KVSerialPort_Line.h"
#include "device/Non_Blocking_Transfer.h"
#include "platform/Leaving_Wait.h"

#include <cerrno>

// Never blocks: what does not fit is left for the next call.
ssize_t KVSerialPort::Put_Bytes(const Line& line, const char* bytes, size_t size)
{
    const std::lock_guard guard(m_line_lock);
    if (m_line.get() != &line) {
        errno = EBADF;
        return -1;
    }
    return Write_Without_Blocking(m_calls, line.Descriptor(), bytes, size);
}

bool KVSerialPort::writeBytes(const char* bytes, qsizetype length, KVSerialError* error)
{
    KVSerialError outcome;
    if (length <= 0) {
        outcome.code = KVSerial_Nothing_To_Write;
    } else {
        Awaited_Answer awaited(*this);
        const auto line = Present_Line();
        Write_Outcome written{0, EBADF};
        if (line)
            written = Write_With_An_End(m_calls, line->Descriptor(), bytes, length, line->Is_Over(),
                                        [&](const char* piece, size_t size) { return Put_Bytes(*line, piece, size); });
        outcome.bytesWritten = static_cast<quint64>(written.m_bytes_written);
        outcome.underlyingError = written.m_error;
        if (written.m_error != 0)
            outcome.code = KVSerial_System_Error;
        else if (written.m_bytes_written < length)
            outcome.code = KVSerial_Write_Incomplete;
        else
            awaited.Goes_On();
    }
    if (error)
        *error = outcome;
    return outcome.code == KVSerial_Ended_Normally;
}

bool KVSerialPort::writeInLeaving(const QByteArray& data)
{
    const auto line = Present_Line();
    if (!line)
        return false;
    qsizetype written = 0;
    bool has_gone = false;
    Wait_Seconds_Also_In_Leaving(Seconds_To_Drain(), [&] {
        const ssize_t now = Put_Bytes(*line, data.constData() + written, static_cast<size_t>(data.size() - written));
        if (now > 0)
            written += now;
        has_gone = now == 0 || (now < 0 && errno != EAGAIN && errno != EINTR);
        return has_gone || written == data.size();
    });
    if (!has_gone && written < data.size())
        flushInput(false, true);
    return written == data.size();
}

bool KVSerialPort::writeData(const QByteArray& data, KVSerialError* error)
{
    return writeBytes(data.constData(), data.size(), error);
}

bool KVSerialPort::writeString(const QString& string, KVText_Encoding usingEncoding, KVSerialError* error)
{
    return writeData(Encoded_Text(string, usingEncoding), error);
}
