#pragma once

#include "support/Patient_Calls.h"

#include <atomic>
#include <cerrno>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <type_traits>
#include <vector>

/// The real system calls, with every step on the line noted by its name, and any of them made to fail or to answer
/// something else. Waiting is no step, and only counted. Any thread.
class Watched_Calls : public Serial_Calls
{
public:
    using Real = Serial_Calls;
    using Action = std::function<int(void* argument)>;
    /// The result of an action for "wait" that leaves the waiting to the system.
    static constexpr int Really = -100;
    /// As a result of an action, what a failed call leaves.
    static int Failed(int error)
    {
        errno = error;
        return -1;
    }

    /// Waits until the background readers that may still use it have ended.
    ~Watched_Calls() override;

    /// From now on this step fails with the error number and is not done.
    void Will_Fail(const std::string& step, int error);
    /// From now on this step is not done; the action's result is its result.
    void Will_Do(const std::string& step, Action action);
    /// From now on this step is not done and succeeds with this number for its answer.
    void Will_Tell(const std::string& step, std::function<int()> number);

    std::vector<std::string> Steps() const;
    int Count(const std::string& step) const;
    int Last_Open_Flags() const { return m_open_flags; }
    int Waits() const { return m_waits; }

    int Open(const char* path, int flags) override
    {
        m_open_flags = flags;
        return Do("open", nullptr, &Real::Open, path, flags);
    }
    int Close(int line) override { return Do("close", nullptr, &Real::Close, line); }
    int Get_Status_Flags(int line) override { return Do("F_GETFL", nullptr, &Real::Get_Status_Flags, line); }
    int Set_Status_Flags(int line, int flags) override
    {
        return Do("F_SETFL", &flags, &Real::Set_Status_Flags, line, flags);
    }
    int Lock_Exclusively(int line) override { return Do("flock", nullptr, &Real::Lock_Exclusively, line); }
    int Control(int line, unsigned long request, void* argument) override;
    int Get_Attributes(int line, termios& attributes) override
    {
        return Do("tcgetattr", &attributes, &Real::Get_Attributes, line, attributes);
    }
    int Set_Attributes(int line, const termios& attributes) override
    {
        termios copy = attributes;
        return Do("tcsetattr", &copy, &Real::Set_Attributes, line, attributes);
    }
    int Flush(int line, int queue) override { return Do("tcflush", &queue, &Real::Flush, line, queue); }
    int Send_Break(int line) override { return Do("tcsendbreak", nullptr, &Real::Send_Break, line); }
    ssize_t Read(int line, void* bytes, size_t size) override
    {
        return Do("read", bytes, &Real::Read, line, bytes, size);
    }
    ssize_t Write(int line, const void* bytes, size_t size) override
    {
        return Do("write", nullptr, &Real::Write, line, bytes, size);
    }
    Line_Event Wait(int line, short events, double seconds, int wake_descriptor) override;

private:
    /// An empty one when the step is to be done.
    Action Action_For(const std::string& step) const;
    void Note(const std::string& step);

    template <typename Result, typename... Given>
    Result Do(const std::string& step, void* argument, Result (Real::*call)(Given...),
              std::type_identity_t<Given>... given)
    {
        Note(step);
        const auto action = Action_For(step);
        return action ? action(argument) : (m_real.*call)(given...);
    }

    Patient_Calls m_real;
    mutable std::mutex m_lock;
    std::vector<std::string> m_steps;
    std::map<std::string, Action> m_actions;
    std::atomic<int> m_open_flags{0};
    std::atomic<int> m_waits{0};
};
