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

std::string Line_Peer::Hears_Until(const std::function<bool(const std::string&)>& is_over,
                                   std::chrono::milliseconds time)
{
    const auto end = Clock::now() + time;
    std::string heard;
    while (!is_over(heard)) {
        const auto left = Left_Until(end);
        const auto more = Read(left);
        if (!more || left.count() == 0)
            break;
        heard += *more;
    }
    return heard;
}

std::string Line_Peer::Hears(std::string_view until, std::chrono::milliseconds time)
{
    return Hears_Until([&](const std::string& heard) { return heard.find(until) != std::string::npos; }, time);
}

std::string Line_Peer::Asks(const std::string& command)
{
    Says(command + "\r");
    const auto is_answered = [](const std::string& heard) {
        return heard.ends_with('\n') &&
               (heard.find("OK\r") != std::string::npos || heard.find("ERROR") != std::string::npos);
    };
    return Hears_Until(is_answered, std::chrono::seconds(10));
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
