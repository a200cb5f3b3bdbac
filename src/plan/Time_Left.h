#pragma once

#include "plan/Job_Sums.h"
#include "plan/Plan_Pace.h"

#include <mutex>
#include <optional>

// How long a job that runs will still take, by what it has needed itself so far. Moments are in Now_Seconds. The job's
// thread tells it what happens; any thread asks.
class Time_Left
{
public:
    explicit Time_Left(Plan_Manner manner) : m_manner(std::move(manner)) {}

    /// What the job came to when it began.
    void Take_Sums(const Job_Sums& sums);

    enum class Row_End
    {
        Tried,
        Left_Out,
        Settled ///< before this job began
    };
    /// A message of so many parts is being handed over.
    void Row_Begins(int parts, double now);
    /// Returns the seconds that were spent on it, holds not counted.
    double Row_Ends(Row_End how, double now);
    void Pause_Begins(double now);
    void Pause_Ends();
    /// Nothing can be sent for a time that nobody knows.
    void Hold_Begins(double now);
    void Hold_Ends(double now);

    struct Answer
    {
        double seconds = 0; ///< as they pass
        bool is_held = false;
    };
    /// Nothing before a message was tried, and after the last.
    std::optional<Answer> At(double now) const;

private:
    double Seconds_For_The_Row(double now) const;
    double Seconds_Of_The_Pause(double now) const;

    const Plan_Manner m_manner;
    Plan_Pace m_pace;
    mutable std::mutex m_lock; // for what follows
    std::optional<Job_Sums> m_sums;
    Job_Sums m_done;
    int m_handled = 0;   // messages that count for the pauses
    int m_row_parts = 0; // 0 between two rows
    double m_row_begin = 0;
    double m_held = 0; // of this row
    std::optional<double> m_hold_begin;
    std::optional<double> m_pause_begin;
};
