// Kept by name; nothing in the program calls what stands here.

#include "device/KVSerialPort.h"

#include "device/Driver_Requests.h"
#include "device/KVSerialPort_Line.h"
#include "platform/Interface_Thread.h"
#include "platform/Thread_Shortage.h"

#include <QPointer>
#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/ioctl.h>

QString KVSerialPort::description() const
{
    return QStringLiteral("<KVSerialPort: name=\"") + m_service_name + QStringLiteral("\" path=\"") + m_bsd_path +
           QStringLiteral("\" type=\"") + m_service_type + QStringLiteral("\">");
}

size_t KVSerialPort::hash() const
{
    return qHash(m_bsd_path);
}

KVSerialOptions KVSerialPort::properties() const
{
    return {{QStringLiteral("bsdPath"), m_bsd_path},
            {QStringLiteral("serviceName"), m_service_name},
            {QStringLiteral("serviceType"), m_service_type}};
}

std::shared_ptr<KVSerialPort> KVSerialPort::obtainBy(QObject* owner)
{
    if (m_owner && m_owner != owner)
        return nullptr;
    m_owner = owner;
    return shared_from_this();
}

std::shared_ptr<KVFileHandle> KVSerialPort::fileHandle() const
{
    const std::lock_guard guard(m_close_lock);
    return m_file_handle;
}

bool KVSerialPort::drainInput()
{
    const std::lock_guard closing(m_close_lock);
    return Note_Result(Drain_With_An_End(m_calls, m_file_descriptor));
}

bool KVSerialPort::sendBreak()
{
    const std::lock_guard guard(m_line_lock);
    return Note_Result(m_calls.Send_Break(m_file_descriptor));
}

bool KVSerialPort::setDTR()
{
    const std::lock_guard guard(m_line_lock);
    int lines = TIOCM_DTR;
    return Note_Result(m_calls.Control(m_file_descriptor, TIOCMBIS, &lines));
}

bool KVSerialPort::clearDTR()
{
    const std::lock_guard guard(m_line_lock);
    int lines = TIOCM_DTR;
    return Note_Result(m_calls.Control(m_file_descriptor, TIOCMBIC, &lines));
}

QByteArray KVSerialPort::readBytes(quint64 bytes, KVSerialError* error)
{
    return Read_Until({true, bytes, false, 0}, error);
}

QByteArray KVSerialPort::readUpToChar(char stop, KVSerialError* error)
{
    return Read_Until({false, 0, true, stop}, error);
}

QByteArray KVSerialPort::readBytes(quint64 bytes, char upToChar, KVSerialError* error)
{
    return Read_Until({true, bytes, true, upToChar}, error);
}

QString KVSerialPort::readBytes(quint64 bytes, KVText_Encoding usingEncoding, KVSerialError* error)
{
    return Decoded_Text(readBytes(bytes, error), usingEncoding);
}

QString KVSerialPort::readUpToChar(char stop, KVText_Encoding usingEncoding, KVSerialError* error)
{
    return Decoded_Text(readUpToChar(stop, error), usingEncoding);
}

QString KVSerialPort::readBytes(quint64 bytes, char upToChar, KVText_Encoding usingEncoding, KVSerialError* error)
{
    return Decoded_Text(readBytes(bytes, upToChar, error), usingEncoding);
}

int KVSerialPort::bytesAvailable()
{
    const std::lock_guard guard(m_line_lock);
    int waiting = 0;
    return Note_Result(m_calls.Control(m_file_descriptor, FIONREAD, &waiting)) ? waiting : -1;
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

void KVSerialPort::stopReadInBackground()
{
    const std::lock_guard guard(m_line_lock);
    m_stop_read_in_background = true;
    eventfd_write(m_background_event, 1);
}
