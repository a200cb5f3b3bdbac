#include "device/KVSerialPort.h"

#include "device/Bounded_Write.h"
#include "device/KVSerialPort_Line.h"
#include "platform/Interface_Thread.h"
#include "platform/Thread_Shortage.h"

#include <QCoreApplication>
#include <QPointer>
#include <algorithm>
#include <cerrno>
#include <poll.h>
#include <sys/eventfd.h>

namespace {

// Leaves a step for the interface thread; without one there is nobody to tell.
void Tell_Interface_Thread(std::function<void()> step)
{
    if (auto* application = QCoreApplication::instance())
        Post_To_Interface_Thread(application, std::move(step));
}

} // namespace

void KVSerialPort::readDataInBackground()
{
    {
        const std::lock_guard guard(m_delegate_lock);
        if (!m_delegate_handles_read_in_background)
            return;
    }
    ++m_background_readers;
    if (Start_Worker_If_Possible("port reader", [self = shared_from_this()] {
            self->Read_In_Background();
            --self->m_background_readers;
        }))
        return;
    --m_background_readers;
    m_reader_is_missing = true;
}

void KVSerialPort::Start_Missing_Reader()
{
    if (m_reader_is_missing.exchange(false))
        readDataInBackground();
}

void KVSerialPort::stopReadInBackground()
{
    const std::lock_guard guard(m_line_lock);
    m_stop_read_in_background = true;
    eventfd_write(m_background_event, 1);
}

void KVSerialPort::Read_In_Background()
{
    const std::lock_guard reading(m_read_lock);
    m_stop_read_in_background = false;
    std::shared_ptr<const Line> line;
    {
        const std::lock_guard closing(m_close_lock);
        line = Present_Line();
        if (!line || m_stop_read_in_background)
            return;
    }
    QByteArray data;
    if (Wait_For_Background_Data(*line, data))
        Deliver_Read(data);
}

// Waits as long as it takes. Whether there is something to deliver: bytes, or none when the line was closed or hung up.
bool KVSerialPort::Wait_For_Background_Data(const Line& line, QByteArray& data)
{
    std::array<char, Buffer_Size> bytes;
    for (;;) {
        double time_to_answer = 0;
        {
            const std::lock_guard guard(m_line_lock);
            if (m_line.get() != &line)
                return true;
            if (m_stop_read_in_background)
                return false;
            time_to_answer = std::min(m_answer_awaited_until - Now_Seconds(), Longest_Wait_For_Read());
        }
        // While an answer is awaited the line is not even looked at, or it would be found ready over and over.
        const bool is_awaited = time_to_answer > 0;
        const Line_Event event = m_calls.Wait(is_awaited ? -1 : line.Descriptor(), POLLIN,
                                              is_awaited ? time_to_answer : -1, m_background_event);
        if (event == Line_Event::Timed_Out && is_awaited && !Program_Is_Exiting())
            continue;
        if (event == Line_Event::Woken) {
            eventfd_t count = 0;
            eventfd_read(m_background_event, &count);
            continue;
        }
        if (event != Line_Event::Ready)
            return true;
        const ssize_t taken = Take_Bytes(line, bytes.data(), bytes.size(), true);
        if (taken < 0 && (errno == EAGAIN || errno == EINTR))
            continue;
        if (taken > 0)
            data = QByteArray(bytes.data(), taken);
        return true;
    }
}

void KVSerialPort::Deliver_Read(const QByteArray& data)
{
    Tell_Interface_Thread([self = shared_from_this(), data] {
        if (const auto delegate = self->Delegate())
            delegate->Call([&](KVSerialPortDelegate& listener) { listener.serialPortReadData(self, data); });
    });
}

void KVSerialPort::waitForInput(QObject* target, std::function<void()> selector)
{
    Start_Worker_If_Possible("port input", [self = shared_from_this(), target = QPointer<QObject>(target), selector] {
        const auto line = self->Present_Line();
        if (!line || self->m_calls.Wait(line->Descriptor(), POLLIN, -1, line->Is_Over()) != Line_Event::Ready)
            return;
        Tell_Interface_Thread([target, selector] {
            if (target)
                selector();
        });
    });
}

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
