#pragma once

#include "support/Own_Seconds.h"

#include <QTimer>
#include <algorithm>

/// How long the interface thread was away from its events at its longest, in seconds, while something went on. Where
/// the computer gave the thread no turn, it was not away.
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
        return m_longest;
    }
    double Whole() const { return Own_Seconds() - m_begin; }

private:
    void Beat()
    {
        const double now = Own_Seconds();
        m_longest = std::max(m_longest, now - m_last);
        m_last = now;
    }

    QTimer m_timer;
    double m_begin = Own_Seconds();
    double m_last = m_begin;
    double m_longest = 0;
};
