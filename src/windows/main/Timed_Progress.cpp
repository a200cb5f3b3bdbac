#include "windows/main/Timed_Progress.h"

#include "plan/Chosen_Manner.h"
#include "plan/Row_Preview.h"
#include "plan/Time_Words.h"
#include "platform/Thread_Shortage.h"
#include "platform/Waiting.h"
#include "toolkit/Desktop_Help.h"

#include <atomic>
#include <utility>

namespace {

// So few are counted before anybody notices.
constexpr int Few_Recipients = 200;

Plan_Manner Manner_Of_Order(const Send_Order& order)
{
    Plan_Manner manner = Manner_Of(order.choices, order.service_centre);
    if (order.choices.delayed_delivery && order.delivery) {
        manner.batch = order.delivery->batch_size;
        manner.pause_seconds = static_cast<double>(order.delivery->pause_in_seconds);
    }
    return manner;
}

} // namespace

Timed_Progress::Timed_Progress(Send_Progress& shown, const Send_Order& order, Plan_Pace& pace, Desktop_Help& desktop)
    : m_shown(shown), m_order(order), m_pace(pace), m_desktop(desktop), m_manner(Manner_Of_Order(order)),
      m_time_left(std::make_shared<Time_Left>(m_manner)), m_is_over(std::make_shared<std::atomic<bool>>(false))
{
}

Timed_Progress::~Timed_Progress()
{
    *m_is_over = true;
}

// The excluded numbers are known by now.
void Timed_Progress::Begin_Sending()
{
    m_shown.Begin_Sending();
    Count_What_Is_Ahead();
    m_shown.Tell_Time_Left([time_left = m_time_left] {
        const auto answer = time_left->At(Now_Seconds());
        return answer ? Time_Words::Left(*answer, Local_Time()) : QString();
    });
}

// Without a thread for a long list nothing is told.
void Timed_Progress::Count_What_Is_Ahead()
{
    if (m_order.recipients.Count() <= Few_Recipients) {
        m_time_left->Take_Sums(Sums_Of(Plan_Of(m_order, m_manner)));
        return;
    }
    Start_Worker_If_Possible("time left", [order = m_order, manner = m_manner, time_left = m_time_left,
                                           is_over = m_is_over] {
        const Job_Sums sums = Sums_Of(Plan_Of(order, manner, [&] { return is_over->load() || Program_Is_Exiting(); }));
        if (!*is_over)
            time_left->Take_Sums(sums);
    });
}

void Timed_Progress::Show_Item(int position, int total, const QString& number)
{
    const QString text = Text_To_Send(m_order.recipients, position - 1).text;
    m_row_parts = Parts_Of_Row({position, number, text, {}}, m_manner);
    m_was_settled = false;
    m_time_left->Row_Begins(m_row_parts, Now_Seconds());
    m_shown.Show_Item(position, total, number);
    m_desktop.Job_At(position, total);
}

void Timed_Progress::Row_Done(int /*index*/, const Row_Details& details)
{
    m_was_settled = details.is_earlier;
}

void Timed_Progress::Row_Ended(const Row_Outcome& outcome)
{
    switch (outcome.state) {
    case Row_State::Excluded:
    case Row_State::Repeated:
    case Row_State::Skipped:
    case Row_State::Invalid_Number:
    case Row_State::Not_Filled:
        m_time_left->Row_Ends(Time_Left::Row_End::Left_Out, Now_Seconds());
        return;
    case Row_State::Not_Tried: // it was stopped meanwhile
        return;
    default:
        break;
    }
    const auto how = m_was_settled ? Time_Left::Row_End::Settled : Time_Left::Row_End::Tried;
    const double seconds = m_time_left->Row_Ends(how, Now_Seconds());
    if (!m_was_settled)
        m_pace.Add(m_manner.fixed_waits, seconds, m_row_parts);
}

// The computer may sleep while the box that says so is open.
void Timed_Progress::Job_Says(const QString& text)
{
    m_desktop.Job_Says(text);
    m_desktop.Job_Ends();
}

void Timed_Progress::Held(const QString& reason)
{
    m_time_left->Hold_Begins(Now_Seconds());
    m_desktop.Job_Waits(reason);
}

void Timed_Progress::Goes_On()
{
    m_time_left->Hold_Ends(Now_Seconds());
    m_desktop.Job_Goes_On();
}

void Timed_Progress::End()
{
    m_desktop.Window_Closes();
    m_shown.End();
}

void Timed_Progress::Begin_Pause()
{
    m_time_left->Pause_Begins(Now_Seconds());
    m_shown.Begin_Pause();
}

void Timed_Progress::End_Pause()
{
    m_time_left->Pause_Ends();
    m_shown.End_Pause();
}
