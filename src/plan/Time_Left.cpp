#include "plan/Time_Left.h"

#include "plan/Plan_Time.h"
#include "platform/Waiting.h"

#include <algorithm>
#include <utility>

void Time_Left::Take_Sums(const Job_Sums& sums)
{
    const std::lock_guard guard(m_lock);
    m_sums = sums;
}

void Time_Left::Row_Begins(int parts, double now)
{
    const std::lock_guard guard(m_lock);
    m_row_parts = parts;
    m_row_begin = now;
    m_held = 0;
    m_hold_begin.reset();
    m_pause_begin.reset();
}

double Time_Left::Row_Ends(Row_End how, double now)
{
    const std::lock_guard guard(m_lock);
    if (m_hold_begin)
        m_held += now - *std::exchange(m_hold_begin, std::nullopt);
    const int parts = std::exchange(m_row_parts, 0);
    const double seconds = std::max(0.0, now - m_row_begin - m_held);
    if (how == Row_End::Left_Out) {
        ++m_done.left_out;
        return seconds;
    }
    ++m_done.recipients;
    m_done.parts += parts;
    if (how == Row_End::Tried) {
        ++m_handled;
        m_pace.Add(m_manner.fixed_waits, seconds, parts);
    }
    return seconds;
}

void Time_Left::Pause_Begins(double now)
{
    const std::lock_guard guard(m_lock);
    m_pause_begin = now;
}

void Time_Left::Pause_Ends()
{
    const std::lock_guard guard(m_lock);
    m_pause_begin.reset();
}

void Time_Left::Hold_Begins(double now)
{
    const std::lock_guard guard(m_lock);
    m_hold_begin = now;
}

void Time_Left::Hold_Ends(double now)
{
    const std::lock_guard guard(m_lock);
    if (m_hold_begin)
        m_held += now - *std::exchange(m_hold_begin, std::nullopt);
}

std::optional<Time_Left::Answer> Time_Left::At(double now) const
{
    const std::lock_guard guard(m_lock);
    if (!m_sums || !m_pace.Has_Measured(m_manner.fixed_waits))
        return std::nullopt;
    const int recipients = m_sums->recipients - m_done.recipients;
    if (recipients <= 0)
        return std::nullopt;
    const double part = m_pace.Seconds_For_A_Part(m_manner.fixed_waits);
    const int pauses = Pauses_Between(m_handled + recipients, m_manner) -
                       (m_manner.batch > 0 && m_manner.pause_seconds > 0 ? m_handled / m_manner.batch : 0);
    const double seconds = std::max(0, m_sums->parts - m_done.parts) * part - Seconds_For_The_Row(now) +
                           Seconds_Of_Pauses(std::max(0, pauses), m_manner) + Seconds_Of_The_Pause(now) +
                           Seconds_For_Left_Out(std::max(0, m_sums->left_out - m_done.left_out), m_manner);
    return Answer{std::max(0.0, seconds), m_hold_begin.has_value()};
}

// What has been spent on the row that is being sent, but never more than it is counted with.
double Time_Left::Seconds_For_The_Row(double now) const
{
    const double spent = m_hold_begin.value_or(now) - m_row_begin - m_held;
    return std::clamp(spent, 0.0, m_row_parts * m_pace.Seconds_For_A_Part(m_manner.fixed_waits));
}

double Time_Left::Seconds_Of_The_Pause(double now) const
{
    return m_pause_begin ? std::max(0.0, Paced(m_manner.pause_seconds) - (now - *m_pause_begin)) : 0;
}
