#include "phone/Line_Peer.h"

#include <fcntl.h>
#include <poll.h>
#include <termios.h>

#include <algorithm>
#include <array>

using Clock = std::chrono::steady_clock;

namespace {

std::chrono::milliseconds Left_Until(Clock::time_point end)
{
    return std::max(std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()),
                    std::chrono::milliseconds(0));
}

} // namespace

Line_Peer::Line_Peer(const std::string& path) : m_line(::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC))
{
    termios settings{};
    ::tcgetattr(m_line.Number(), &settings);
    ::cfmakeraw(&settings);
    ::tcsetattr(m_line.Number(), TCSANOW, &settings);
}

bool Line_Peer::Says(std::string_view bytes)
{
    return ::write(m_line.Number(), bytes.data(), bytes.size()) == ssize_t(bytes.size());
}

std::optional<std::string> Line_Peer::Read(std::chrono::milliseconds time)
{
    pollfd asked{m_line.Number(), POLLIN, 0};
    if (::poll(&asked, 1, int(time.count())) == 0)
        return std::string();
    std::array<char, 4096> bytes;
    const ssize_t count = ::read(m_line.Number(), bytes.data(), bytes.size());
    if (count > 0)
        return std::string(bytes.data(), std::size_t(count));
    return count < 0 && errno == EAGAIN ? std::optional(std::string()) : std::nullopt;
}

std::string Line_Peer::Hears(std::string_view until, std::chrono::milliseconds time)
{
    const auto end = Clock::now() + time;
    std::string heard;
    while (heard.find(until) == std::string::npos) {
        const auto left = Left_Until(end);
        const auto more = Read(left);
        if (!more || left.count() == 0)
            break;
        heard += *more;
    }
    return heard;
}

std::string Line_Peer::Asks(const std::string& command)
{
    Says(command + "\r");
    const auto end = Clock::now() + std::chrono::seconds(10);
    std::string heard;
    while (heard.find("OK\r") == std::string::npos && heard.find("ERROR") == std::string::npos) {
        const auto more = Read(Left_Until(end));
        if (!more || Clock::now() >= end)
            break;
        heard += *more;
    }
    while (!heard.ends_with('\n')) { // the rest of an error's line
        const auto more = Read(Left_Until(end));
        if (!more || more->empty())
            break;
        heard += *more;
    }
    return heard;
}

bool Line_Peer::Hears_Nothing(std::chrono::milliseconds time)
{
    return Read(time) == std::string();
}

bool Line_Peer::Is_Cut_Off(std::chrono::milliseconds time)
{
    for (const auto end = Clock::now() + time; Clock::now() < end;) {
        if (!Read(Left_Until(end)))
            return true;
    }
    return false;
}
