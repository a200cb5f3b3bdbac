#include "device/KVSerialPort.h"

#include "device/Driver_Requests.h"
#include "device/KVSerialPort_Line.h"

#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <sys/eventfd.h>
#include <sys/ioctl.h>
#include <unistd.h>

void KVFileHandle::closeFile()
{
    const int descriptor = m_descriptor.exchange(-1);
    if (descriptor != -1)
        m_calls.Close(descriptor);
}

KVSerialPort::KVSerialPort(const QString& bsdPath, const QString& withName, const QString& type, Serial_Calls& calls)
    : m_bsd_path(bsdPath), m_service_name(withName), m_service_type(type), m_calls(calls),
      m_background_event(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
}

KVSerialPort::~KVSerialPort()
{
    close();
    ::close(m_background_event);
}

std::shared_ptr<KVFileHandle> KVSerialPort::open()
{
    return Open_With(O_RDWR | O_NOCTTY, false);
}

std::shared_ptr<KVFileHandle> KVSerialPort::openExclusively()
{
    return Open_With(O_RDWR | O_NOCTTY | O_NONBLOCK, true);
}

std::shared_ptr<KVFileHandle> KVSerialPort::Open_With(int flags, bool exclusively)
{
    const std::lock_guard closing(m_close_lock);
    if (isOpen())
        return m_file_handle;
    if (m_file_handle) { // this thread is inside close() further up the stack
        errno = EBUSY;
        Note_Result(-1);
        return nullptr;
    }
    // Without O_NONBLOCK, open would wait for a carrier, which most phones never raise.
    const int descriptor = m_calls.Open(QFile::encodeName(m_bsd_path).constData(), flags | O_NONBLOCK | O_CLOEXEC);
    if (!Note_Result(descriptor))
        return nullptr;
    auto handle = std::make_shared<KVFileHandle>(descriptor, m_calls);
    if (!Take_Over(descriptor, exclusively)) {
        m_last_error = errno;
        m_got_error = true;
        return nullptr;
    }
    const std::lock_guard guard(m_line_lock);
    m_is_exclusive = exclusively;
    m_file_handle = std::move(handle);
    m_answer_awaited_until = 0;
    m_line = std::make_shared<const Line>(descriptor);
    m_file_descriptor = descriptor;
    return m_file_handle;
}

bool KVSerialPort::Take_Over(int descriptor, bool exclusively)
{
    if (Is_Claimed_Exclusively(m_calls, descriptor)) {
        errno = EBUSY;
        return false;
    }
    if (!exclusively) {
        const int flags = m_calls.Get_Status_Flags(descriptor);
        if (flags == -1 || m_calls.Set_Status_Flags(descriptor, flags & ~O_NONBLOCK) == -1)
            return false;
    }
    if (m_calls.Get_Attributes(descriptor, m_options) == -1)
        return false;
    m_original_options = m_options;
    Take_Raw_Settings();
    if (exclusively &&
        (m_calls.Lock_Exclusively(descriptor) == -1 || m_calls.Control(descriptor, TIOCEXCL, nullptr) == -1))
        return false;
    if (m_calls.Set_Attributes(descriptor, m_options) == 0)
        return true;
    const int error = errno;
    if (exclusively)
        Release_Exclusive_Use(m_calls, descriptor);
    errno = error;
    return false;
}

// A terminal starts with echo and line editing: it would send every answer back to the modem and never deliver a prompt
// without a line end.
void KVSerialPort::Take_Raw_Settings()
{
    cfmakeraw(&m_options);
    m_options.c_cflag &= ~static_cast<tcflag_t>(CSTOPB);
    m_options.c_cflag |= CLOCAL | CREAD;
    m_options.c_cc[VMIN] = 1;
    m_options.c_cc[VTIME] = 0;
}

void KVSerialPort::close()
{
    const std::lock_guard closing(m_close_lock);
    if (!isOpen())
        return;
    const int descriptor = m_file_descriptor;
    {
        // From here on nobody else touches the descriptor: each read and write first checks m_line under this lock.
        const std::lock_guard guard(m_line_lock);
        m_file_descriptor = -1;
        m_line->End();
        m_line = nullptr;
        eventfd_write(m_background_event, 1);
    }
    const int flags = m_calls.Get_Status_Flags(descriptor);
    if (flags != -1)
        m_calls.Set_Status_Flags(descriptor, flags | O_NONBLOCK);
    // On Linux, close waits for a driver that still holds bytes, even with O_NONBLOCK.
    Drain_With_An_End(m_calls, descriptor);
    m_calls.Set_Attributes(descriptor, m_original_options);
    if (m_is_exclusive)
        Release_Exclusive_Use(m_calls, descriptor);
    m_file_handle->closeFile();
    m_file_handle = nullptr;
}

bool KVSerialPort::flushInput(bool input, bool output)
{
    const std::lock_guard guard(m_line_lock);
    if (!input && !output)
        return true;
    return Note_Result(m_calls.Flush(m_file_descriptor, input && output ? TCIOFLUSH : input ? TCIFLUSH : TCOFLUSH));
}

bool KVSerialPort::Note_Result(int result)
{
    if (result != -1)
        return true;
    m_last_error = errno;
    m_got_error = true;
    return false;
}

void KVSerialPort::setDelegate(KVSerialPortDelegate* delegate)
{
    const std::lock_guard guard(m_delegate_lock);
    m_delegate = delegate ? delegate->Guard() : nullptr;
    m_delegate_handles_read_in_background = delegate && delegate->handlesReadInBackground();
    m_delegate_handles_write_in_background = delegate && delegate->handlesWriteInBackground();
}

std::shared_ptr<KVSerialPortDelegate::Delegate_Guard> KVSerialPort::Delegate() const
{
    const std::lock_guard guard(m_delegate_lock);
    return m_delegate;
}
