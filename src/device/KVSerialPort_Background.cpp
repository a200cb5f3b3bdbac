#include "device/KVSerialPort.h"

#include "device/KVSerialPort_Line.h"
#include "platform/Interface_Thread.h"
#include "platform/Thread_Shortage.h"

#include <QCoreApplication>
#include <algorithm>
#include <cerrno>
#include <poll.h>
#include <sys/eventfd.h>

void Tell_Interface_Thread(std::function<void()> step)
{
    if (auto* application = QCoreApplication::instance())
        Post_To_Interface_Thread(application, std::move(step));
}

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

// Waits without limit. Returns whether to deliver: bytes, or none when the line was closed or hung up.
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
        // While an answer is awaited the line is not polled: it would report ready over and over.
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
