// Kept by name; nothing in the program calls what stands here.

#include "device/KVSerialPort.h"

#include "device/Bounded_Write.h"
#include "device/KVSerialPort_Line.h"
#include "platform/Interface_Thread.h"

#include <algorithm>

void KVSerialPort::writeDataInBackground(const QByteArray& data)
{
    ++m_background_writers;
    Start_Worker("port writer", [self = shared_from_this(), data] {
        self->Write_In_Background(data);
        --self->m_background_writers;
    });
}

void KVSerialPort::stopWriteInBackground()
{
    m_stop_write_in_background = true;
}

void KVSerialPort::Write_In_Background(const QByteArray& data)
{
    constexpr double Long_Transfer_Seconds = 4;
    const std::lock_guard writing(m_write_lock);
    m_stop_write_in_background = false;
    const double line_speed = static_cast<double>(std::max(1L, speed()));
    const bool is_long = static_cast<double>(data.size()) * 8 / line_speed >= Long_Transfer_Seconds;
    bool has_reported = false;
    const quint64 written = Write_In_Pieces(data, is_long ? 0.0 : 2.0, has_reported);
    if (has_reported)
        Deliver_Progress(written, static_cast<quint64>(data.size()));
}

// Returns how many bytes went out. The first report comes that many seconds after the start, the others a second apart.
quint64 KVSerialPort::Write_In_Pieces(const QByteArray& data, double report_after, bool& has_reported)
{
    constexpr qsizetype Largest_Piece = 4096;
    const auto line = Present_Line();
    qsizetype written = 0;
    double next_report = Now_Seconds() + Paced(report_after);
    while (written < data.size() && !m_stop_write_in_background && line) {
        if (Now_Seconds() >= next_report) {
            Deliver_Progress(static_cast<quint64>(written), static_cast<quint64>(data.size()));
            has_reported = true;
            next_report = Now_Seconds() + Paced(1);
        }
        const qsizetype size = std::min(Largest_Piece, data.size() - written);
        const auto piece =
            Write_With_An_End(m_calls, line->Descriptor(), data.constData() + written, size, line->Is_Over(),
                              [&](const char* bytes, size_t length) { return Put_Bytes(*line, bytes, length); });
        written += piece.m_bytes_written;
        if (piece.m_bytes_written < size)
            break;
    }
    return static_cast<quint64>(written);
}

void KVSerialPort::Deliver_Progress(quint64 value, quint64 total)
{
    {
        const std::lock_guard guard(m_delegate_lock);
        if (!m_delegate_handles_write_in_background)
            return;
    }
    Tell_Interface_Thread([self = shared_from_this(), value, total] {
        if (const auto delegate = self->Delegate())
            delegate->Call(
                [&](KVSerialPortDelegate& listener) { listener.serialPortWriteProgress(self, value, total); });
    });
}
