#pragma once

#include <array>
#include <deque>
#include <mutex>

// How long a part takes, by what the device has needed so far: the median of the last parts, for each of the two
// manners. Remembered in memory only. Any thread.
class Plan_Pace
{
public:
    /// A message of so many parts has taken so long, in seconds as they passed; pauses and holds do not count.
    void Add(bool fixed_waits, double seconds, int parts);
    bool Has_Measured(bool fixed_waits) const;
    /// Seconds as they pass for a part; those of experience at the present pace before one was measured.
    double Seconds_For_A_Part(bool fixed_waits) const;

private:
    mutable std::mutex m_lock;
    std::array<std::deque<double>, 2> m_seconds; // of the last parts, the latest at the end; with fixed waits at 1
};
