#pragma once

#include "device/Serial_Calls.h"

#include <functional>
#include <map>
#include <mutex>
#include <string>

/// The system's calls on a serial line, for tests whose phone lives in the same process: a write ends when the phone
/// has taken it and what it says to it at once has arrived, so that no answer is lost to a machine that gives the phone
/// no turn. What it says later than within a read is not waited for. Any thread.
class Patient_Calls : public Serial_Calls
{
public:
    ssize_t Read(int descriptor, void* buffer, size_t size) override;
    ssize_t Write(int descriptor, const void* bytes, size_t size) override;

    /// How long all writes so far have waited for what was said to them, in the writing thread's own seconds.
    double Patience();

    /// Calls this after each write, on the writing thread, when what is said to it has arrived; empty for nothing.
    void Look_After_Each_Write(std::function<void()> look);

private:
    std::function<void()> The_Look();
    long Arrived(int descriptor);
    void Wait_For_What_Is_Said(int descriptor, const std::string& path, long on_the_way);

    std::mutex m_lock;
    std::map<int, long> m_taken; // bytes, by descriptor
    double m_patience = 0;
    std::function<void()> m_look;
};

/// What the program under test uses as the system's calls.
Patient_Calls& The_Patient_Calls();
