#include "windows/main/Outcome_Post.h"

#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"
#include "toolkit/Main_Window.h"

#include <cmath>
#include <utility>

namespace {

constexpr double Seconds_Between_Deliveries = 0.05;

} // namespace

Outcome_Post::Outcome_Post(Main_Window& window) : m_window(window)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer); // never too early
    QObject::connect(&m_timer, &QTimer::timeout, this, [this] { Deliver_In_Time(); });
}

void Outcome_Post::Add(int index, const Row_Outcome& outcome)
{
    {
        const std::lock_guard guard(m_lock);
        if (m_runs.empty() || m_runs.back().first_row + m_runs.back().marks.size() != index)
            m_runs.push_back({index, {}});
        m_runs.back().marks.append(static_cast<char>(m_codes.Code_Of(outcome)));
        if (std::exchange(m_is_on_its_way, true))
            return;
    }
    Post_To_Interface_Thread(this, [this] { Deliver_In_Time(); });
}

// On a busy machine the job's thread may have to wait for its turn in the middle of an Add, and the window does not
// wait with it.
void Outcome_Post::Deliver_In_Time()
{
    const double left = m_last_delivery + Seconds_Between_Deliveries - Now_Seconds();
    if (left > 0) {
        if (!m_timer.isActive())
            m_timer.start(static_cast<int>(std::ceil(left * 1000)));
        return;
    }
    std::unique_lock guard(m_lock, std::try_to_lock);
    if (guard)
        Deliver(std::move(guard));
    else
        m_timer.start(1);
}

void Outcome_Post::Deliver()
{
    Deliver(std::unique_lock(m_lock));
}

void Outcome_Post::Deliver(std::unique_lock<std::mutex> guard)
{
    m_timer.stop();
    m_last_delivery = Now_Seconds();
    const std::vector<Run> runs = std::exchange(m_runs, {});
    const Outcome_Codes codes = m_codes;
    m_is_on_its_way = false;
    guard.unlock();
    for (const Run& run : runs)
        m_window.Take_Outcomes(run.first_row, run.marks, codes);
}

void Outcome_Post::End()
{
    Deliver();
    m_window.End_Outcomes();
    const std::lock_guard guard(m_lock);
    m_codes = {};
}
