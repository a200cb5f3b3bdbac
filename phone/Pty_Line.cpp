#include "phone/Pty_Line.h"

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <termios.h>

#include <array>
#include <cerrno>
#include <system_error>

namespace Handset {

namespace {

[[noreturn]] void Throw_Error(const char* what)
{
    throw std::system_error(errno, std::generic_category(), what);
}

Descriptor Opened_Other_End(const std::string& path)
{
    return Descriptor(::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC));
}

} // namespace

void Pty_Line::Open()
{
    Descriptor master(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC));
    if (!master.Is_Open())
        Throw_Error("no pseudo-terminal");
    std::array<char, 128> path{};
    if (::grantpt(master.Number()) != 0 || ::unlockpt(master.Number()) != 0 ||
        ::ptsname_r(master.Number(), path.data(), path.size()) != 0)
        Throw_Error("the pseudo-terminal cannot be unlocked");
    if (::fcntl(master.Number(), F_SETFL, O_RDWR | O_NONBLOCK) != 0)
        Throw_Error("the pseudo-terminal cannot be made non-blocking");
    // The system reports a hang-up only for a line that has been open before.
    Opened_Other_End(path.data());
    m_master = std::move(master);
    m_path = path.data();
    m_is_stopped = false;
}

void Pty_Line::Close()
{
    m_master.Close();
    m_path.clear();
}

bool Pty_Line::Somebody_Has_It_Open() const
{
    pollfd asked{m_master.Number(), POLLIN, 0};
    return Is_Open() && ::poll(&asked, 1, 0) >= 0 && (asked.revents & POLLHUP) == 0;
}

std::string Pty_Line::Read()
{
    std::array<char, 4096> bytes;
    for (;;) {
        const ssize_t count = ::read(m_master.Number(), bytes.data(), bytes.size());
        if (count > 0)
            return std::string(bytes.data(), std::size_t(count));
        if (count == 0 || errno != EINTR)
            return {}; // EIO while nobody has it open, EAGAIN when there is nothing
    }
}

std::size_t Pty_Line::Write(std::string_view bytes)
{
    for (;;) {
        const ssize_t count = ::write(m_master.Number(), bytes.data(), bytes.size());
        if (count >= 0)
            return std::size_t(count);
        if (errno != EINTR)
            return 0;
    }
}

bool Pty_Line::Is_Kept_By_Nobody() const
{
    int is_marked = 0;
    {
        const Descriptor other = Opened_Other_End(m_path);
        if (other.Is_Open() ? ::ioctl(other.Number(), TIOCGEXCL, &is_marked) != 0 || is_marked == 0 : errno != EBUSY)
            return false;
    }
    return !Somebody_Has_It_Open();
}

int Pty_Line::Not_Read_Yet() const
{
    const Descriptor other = Opened_Other_End(m_path);
    int waiting = 0;
    return other.Is_Open() && ::ioctl(other.Number(), FIONREAD, &waiting) == 0 ? waiting : 0;
}

void Pty_Line::Drop_What_Was_Not_Read() const
{
    const Descriptor other = Opened_Other_End(m_path);
    if (other.Is_Open())
        ::tcflush(other.Number(), TCIFLUSH);
}

bool Pty_Line::Stop_The_Other_End(bool stopped)
{
    if (stopped == m_is_stopped)
        return true;
    const Descriptor other = Opened_Other_End(m_path);
    if (!other.Is_Open() || ::tcflow(other.Number(), stopped ? TCOOFF : TCOON) != 0)
        return false;
    m_is_stopped = stopped;
    return true;
}

} // namespace Handset
