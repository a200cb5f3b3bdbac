#include "device/Watched_Calls.h"

#include "platform/Interface_Thread.h"

#include <algorithm>
#include <asm/ioctls.h>
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

Watched_Calls::Action Watched_Calls::Action_For(const std::string& step) const
{
    const std::lock_guard guard(m_lock);
    const auto action = m_actions.find(step);
    return action == m_actions.end() ? Action() : action->second;
}

void Watched_Calls::Note(const std::string& step)
{
    const std::lock_guard guard(m_lock);
    m_steps.push_back(step);
}

void Watched_Calls::Will_Do(const std::string& step, Action action)
{
    const std::lock_guard guard(m_lock);
    m_actions[step] = std::move(action);
}

void Watched_Calls::Will_Fail(const std::string& step, int error)
{
    Will_Do(step, [error](void*) { return Failed(error); });
}

void Watched_Calls::Will_Tell(const std::string& step, std::function<int()> number)
{
    Will_Do(step, [number = std::move(number)](void* answer) {
        *static_cast<int*>(answer) = number();
        return 0;
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

int Watched_Calls::Control(int line, unsigned long request, void* argument)
{
    return Do(Name_Of(request), argument, &Real::Control, line, request, argument);
}

Line_Event Watched_Calls::Wait(int line, short events, double seconds, int wake_descriptor)
{
    ++m_waits;
    const auto action = Action_For("wait");
    const int result = action ? action(nullptr) : Really;
    return result == Really ? m_real.Wait(line, events, seconds, wake_descriptor) : static_cast<Line_Event>(result);
}
