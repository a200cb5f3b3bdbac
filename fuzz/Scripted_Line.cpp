#include "fuzz/Scripted_Line.h"

#include "device/MFCSMS.h"
#include "platform/Waiting.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <sys/ioctl.h>

namespace {
constexpr int Descriptor = 1000000; // of no file: every call on it ends here
constexpr double Read_Seconds = 60; // never waited for
} // namespace

void Scripted_Line::Say(const std::string& bytes)
{
    if (!bytes.empty())
        m_waiting.push_back(bytes);
}

void Scripted_Line::Put_Under(MFCSMS& session)
{
    Begin_Program_Exit(); // from then on no wait lasts
    const QString path = QStringLiteral("/dev/none");
    const auto port = std::make_shared<KVSerialPort>(path, path, QStringLiteral("IOModemSerialStream"), *this);
    port->open();
    port->setReadTimeout(Read_Seconds);
    session.setPort(port);
}

int Scripted_Line::Open(const char*, int)
{
    return Descriptor;
}

int Scripted_Line::Close(int)
{
    return 0;
}

int Scripted_Line::Get_Status_Flags(int)
{
    return 0;
}

int Scripted_Line::Set_Status_Flags(int, int)
{
    return 0;
}

int Scripted_Line::Lock_Exclusively(int)
{
    return 0;
}

int Scripted_Line::Control(int, unsigned long request, void* argument)
{
    if (request == TIOCGEXCL || request == TIOCOUTQ || request == FIONREAD)
        *static_cast<int*>(argument) = 0;
    return 0;
}

int Scripted_Line::Get_Attributes(int, termios& attributes)
{
    attributes = {};
    return 0;
}

int Scripted_Line::Set_Attributes(int, const termios&)
{
    return 0;
}

int Scripted_Line::Flush(int, int)
{
    return 0;
}

int Scripted_Line::Send_Break(int)
{
    return 0;
}

ssize_t Scripted_Line::Read(int, void* buffer, std::size_t size)
{
    if (m_is_broken) {
        errno = EIO;
        return -1;
    }
    if (m_waiting.empty()) {
        errno = EAGAIN;
        return -1;
    }
    std::string& next = m_waiting.front();
    if (next.empty())
        return 0;
    const std::size_t taken = std::min(size, next.size());
    std::memcpy(buffer, next.data(), taken);
    next.erase(0, taken);
    if (next.empty())
        m_waiting.pop_front();
    return static_cast<ssize_t>(taken);
}

ssize_t Scripted_Line::Write(int, const void* bytes, std::size_t size)
{
    if (m_is_broken) {
        errno = EIO;
        return -1;
    }
    m_peer(*this, std::string(static_cast<const char*>(bytes), size));
    return static_cast<ssize_t>(size);
}

Line_Event Scripted_Line::Wait(int, short events, double, int)
{
    if (m_is_broken || events == POLLOUT || !m_waiting.empty())
        return Line_Event::Ready;
    return Line_Event::Timed_Out;
}
