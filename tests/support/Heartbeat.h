#pragma once

#include "support/Own_Seconds.h"

#include <QTimer>
#include <algorithm>

/// How long the interface thread was away from its events at its longest, in seconds, while something went on. Where
/// the computer gave the thread no turn, it was not away. Where a host took whole processors from the computer
/// meanwhile, the clock does not tell one from the other, and the time counts that a processor worked for the thread.
class Heartbeat
{
public:
    Heartbeat()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { Beat(); });
        m_timer.start(1);
    }

    double Longest_Gap()
    {
        Beat();
        return Times_The_Host_Took() == m_taken ? m_longest : m_longest_work;
    }
    /// How long it worked at a stretch at its longest, in seconds of the processor: less than Longest_Gap by what it
    /// waited for others, which on a busy computer are put off while they hold what it needs.
    double Longest_Work()
    {
        Beat();
        return m_longest_work;
    }
    double Whole() const { return Own_Seconds() - m_begin; }

private:
    void Beat()
    {
        const double now = Own_Seconds();
        m_longest = std::max(m_longest, now - m_last);
        m_last = now;
        const double worked = Worked_Seconds();
        m_longest_work = std::max(m_longest_work, worked - m_last_worked);
        m_last_worked = worked;
    }

    QTimer m_timer;
    unsigned long long m_taken = Times_The_Host_Took();
    double m_begin = Own_Seconds();
    double m_last = m_begin;
    double m_longest = 0;
    double m_last_worked = Worked_Seconds();
    double m_longest_work = 0;
};
