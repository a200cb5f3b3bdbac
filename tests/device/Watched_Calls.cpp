#include "device/Watched_Calls.h"

#include "platform/Interface_Thread.h"

#include <algorithm>
#include <asm/ioctls.h>
#include <cerrno>
#include <sys/ioctl.h>

namespace {

std::string Name_Of(unsigned long request)
{
    static const std::map<unsigned long, std::string> names = {
        {TIOCEXCL, "TIOCEXCL"},       {TIOCNXCL, "TIOCNXCL"}, {TIOCGEXCL, "TIOCGEXCL"}, {TIOCMBIS, "TIOCMBIS"},
        {TIOCMBIC, "TIOCMBIC"},       {TIOCMSET, "TIOCMSET"}, {TIOCMGET, "TIOCMGET"},   {TIOCGSERIAL, "TIOCGSERIAL"},
        {TIOCSSERIAL, "TIOCSSERIAL"}, {TIOCOUTQ, "TIOCOUTQ"}, {FIONREAD, "FIONREAD"},   {0x802C542AUL, "TCGETS2"},
        {0x402C542BUL, "TCSETS2"}};
    const auto row = names.find(request);
    return row == names.end() ? "request " + std::to_string(request) : row->second;
}

} // namespace

Watched_Calls::~Watched_Calls()
{
    Finish_Workers();
}

Watched_Calls::Action Watched_Calls::Note(const std::string& step)
{
    const std::lock_guard guard(m_lock);
    m_steps.push_back(step);
    const auto action = m_actions.find(step);
    return action == m_actions.end() ? Action() : action->second;
}

void Watched_Calls::Will_Do(const std::string& step, Action action)
{
    const std::lock_guard guard(m_lock);
    m_actions[step] = std::move(action);
}

void Watched_Calls::Will_Fail(const std::string& step, int error)
{
    Will_Do(step, [error](void*) {
        errno = error;
        return -1;
    });
}

std::vector<std::string> Watched_Calls::Steps() const
{
    const std::lock_guard guard(m_lock);
    return m_steps;
}

int Watched_Calls::Count(const std::string& step) const
{
    const auto steps = Steps();
    return static_cast<int>(std::count(steps.begin(), steps.end(), step));
}

int Watched_Calls::Last_Open_Flags() const
{
    const std::lock_guard guard(m_lock);
    return m_open_flags;
}

int Watched_Calls::Open(const char* path, int flags)
{
    const auto action = Note("open");
    {
        const std::lock_guard guard(m_lock);
        m_open_flags = flags;
    }
    return action ? action(nullptr) : Patient_Calls::Open(path, flags);
}

int Watched_Calls::Close(int descriptor)
{
    Note("close");
    return Patient_Calls::Close(descriptor);
}

int Watched_Calls::Get_Status_Flags(int descriptor)
{
    const auto action = Note("F_GETFL");
    return action ? action(nullptr) : Patient_Calls::Get_Status_Flags(descriptor);
}

int Watched_Calls::Set_Status_Flags(int descriptor, int flags)
{
    const auto action = Note("F_SETFL");
    return action ? action(&flags) : Patient_Calls::Set_Status_Flags(descriptor, flags);
}

int Watched_Calls::Lock_Exclusively(int descriptor)
{
    const auto action = Note("flock");
    return action ? action(nullptr) : Patient_Calls::Lock_Exclusively(descriptor);
}

int Watched_Calls::Control(int descriptor, unsigned long request, void* argument)
{
    const auto action = Note(Name_Of(request));
    return action ? action(argument) : Patient_Calls::Control(descriptor, request, argument);
}

int Watched_Calls::Get_Attributes(int descriptor, termios& attributes)
{
    const auto action = Note("tcgetattr");
    return action ? action(&attributes) : Patient_Calls::Get_Attributes(descriptor, attributes);
}

int Watched_Calls::Set_Attributes(int descriptor, const termios& attributes)
{
    const auto action = Note("tcsetattr");
    termios copy = attributes;
    return action ? action(&copy) : Patient_Calls::Set_Attributes(descriptor, attributes);
}

int Watched_Calls::Flush(int descriptor, int queue)
{
    const auto action = Note("tcflush");
    return action ? action(&queue) : Patient_Calls::Flush(descriptor, queue);
}

int Watched_Calls::Send_Break(int descriptor)
{
    const auto action = Note("tcsendbreak");
    return action ? action(nullptr) : Patient_Calls::Send_Break(descriptor);
}

ssize_t Watched_Calls::Read(int descriptor, void* buffer, size_t size)
{
    const auto action = Note("read");
    return action ? action(buffer) : Patient_Calls::Read(descriptor, buffer, size);
}

ssize_t Watched_Calls::Write(int descriptor, const void* bytes, size_t size)
{
    const auto action = Note("write");
    return action ? action(nullptr) : Patient_Calls::Write(descriptor, bytes, size);
}

Line_Event Watched_Calls::Wait(int descriptor, short events, double seconds, int wake_descriptor)
{
    ++m_waits;
    Action action;
    {
        const std::lock_guard guard(m_lock);
        const auto row = m_actions.find("wait");
        if (row != m_actions.end())
            action = row->second;
    }
    const int result = action ? action(nullptr) : Really;
    return result == Really ? Patient_Calls::Wait(descriptor, events, seconds, wake_descriptor)
                            : static_cast<Line_Event>(result);
}
