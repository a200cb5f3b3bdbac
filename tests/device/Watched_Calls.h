#pragma once

#include "support/Patient_Calls.h"

#include <atomic>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <vector>

/// The real system calls, with every step on the line noted by its name, and any of them made to fail or to answer
/// something else. Waiting is no step, and only counted. Any thread.
class Watched_Calls : public Patient_Calls
{
public:
    using Action = std::function<int(void* argument)>;
    /// The result of an action for "wait" that leaves the waiting to the system.
    static constexpr int Really = -100;

    /// Waits until the background readers that may still use it have ended.
    ~Watched_Calls() override;

    /// From now on this step fails with the error number and is not done.
    void Will_Fail(const std::string& step, int error);
    /// From now on this step is not done; the action's result is its result.
    void Will_Do(const std::string& step, Action action);

    std::vector<std::string> Steps() const;
    int Count(const std::string& step) const;
    int Last_Open_Flags() const;
    int Waits() const { return m_waits; }

    int Open(const char* path, int flags) override;
    int Close(int descriptor) override;
    int Get_Status_Flags(int descriptor) override;
    int Set_Status_Flags(int descriptor, int flags) override;
    int Lock_Exclusively(int descriptor) override;
    int Control(int descriptor, unsigned long request, void* argument) override;
    int Get_Attributes(int descriptor, termios& attributes) override;
    int Set_Attributes(int descriptor, const termios& attributes) override;
    int Flush(int descriptor, int queue) override;
    int Send_Break(int descriptor) override;
    ssize_t Read(int descriptor, void* buffer, size_t size) override;
    ssize_t Write(int descriptor, const void* bytes, size_t size) override;
    Line_Event Wait(int descriptor, short events, double seconds, int wake_descriptor) override;

private:
    /// Notes the step and gives its action, an empty one when the step is to be done.
    Action Note(const std::string& step);

    mutable std::mutex m_lock;
    std::vector<std::string> m_steps;
    std::map<std::string, Action> m_actions;
    int m_open_flags = 0;
    std::atomic<int> m_waits{0};
};
