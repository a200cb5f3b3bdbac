#include "engine/Send_Job.h"

#include "engine/Job_State.h"
#include "engine/Pause_Countdown.h"
#include "engine/Send_Listener.h"
#include "engine/Send_Manner.h"
#include "engine/Send_Progress.h"
#include "platform/Waiting.h"
#include "records/Data_Paths.h"
#include "records/Exclusion_Files.h"
#include "records/Sent_Item_Store.h"
#include "records/Template_Store.h"
#include "texts/Texts.h"

#include <utility>

Send_Job::Send_Job(Send_Order& order, Send_Manner& manner, Send_Progress& progress, Send_Listener& listener,
                   Stop_Flag& stop)
    : m_order(order), m_manner(manner), m_progress(progress), m_listener(listener), m_stop(stop)
{
}

void Send_Job::Send_SMS_Func()
{
    try {
        Run();
    } catch (...) {
        Clean_Up();
        throw;
    }
    Clean_Up();
}

void Send_Job::Run()
{
    if (!m_manner.Opens()) {
        m_listener.Tell(Texts::Sending::Does_Not_Open);
        return;
    }
    Reload_Exclusions();
    Find_Repeats(m_order);
    m_progress.Begin_Preparing(m_order.recipients.Count());
    m_progress.startTimerThread();
    if (!m_manner.Connect()) {
        m_listener.Tell(m_manner.Trouble());
        return;
    }
    if (m_order.choices.delayed_delivery)
        m_delivery = m_order.delivery.value_or(
            Delayed_Delivery::Read_Setting(m_order.choices.batch_size, m_order.choices.pause_choice));
    m_manner.Prepare();
    Begin_Sending();
    Send_Items();
    m_manner.End_Sending();
    Finish();
}

// What counts is what the applied lists hold now, not what they held when the exclusion option was switched on.
void Send_Job::Reload_Exclusions()
{
    if (!m_order.choices.exclusion)
        return;
    Check_Path_And_Create_Files();
    auto applied = Exclusion_Files::Read_Applied_Numbers();
    m_listener.Exclusions_Were_Read(applied);
    m_order.exclusions = std::move(applied.numbers);
}

void Send_Job::Begin_Sending()
{
    Pause_Timer_Running = false;
    m_stop = 0;
    if (Program_Is_Exiting()) // so that a stop that came with the exit is not lost
        m_stop = 1;
    m_date = Today().toString(QStringLiteral("dd/MM/yyyy"));
    m_progress.Begin_Sending();
    m_manner.Begin_Sending();
    m_has_error = false;
}

bool Send_Job::Is_Asked_To_Stop() const
{
    return m_stop == 1 || Program_Is_Exiting();
}

void Send_Job::Send_Items()
{
    const int count = m_order.recipients.Count();
    for (int index = 0; index < count; ++index) {
        if (Is_Asked_To_Stop() || !m_manner.Takes_Messages() || !Send_Item(index))
            return;
    }
}

// Returns whether another item may follow.
bool Send_Job::Send_Item(int index)
{
    const Recipient recipient{m_order.recipients.Numbers().At(index), Text_To_Send(m_order.recipients, index).text};
    m_progress.Show_Item(index + 1, m_order.recipients.Count(), recipient.Number);
    Pause_Timer_Running = false;
    if (Skip_Item(index, recipient.Number))
        return true;
    const Send_Manner::Submission submission = m_manner.Submit(index, recipient);
    m_listener.Row_Ended(index, submission.outcome);
    if (submission.is_handled) {
        ++m_batch_count;
        Keep_Records(recipient.Number, recipient.Message);
    }
    switch (submission.next) {
    case Send_Manner::Next::Go_On:
        Pause_If_Due(index);
        return true;
    case Send_Manner::Next::Fail:
        m_has_error = true;
        m_listener.Tell(submission.notice);
        return false;
    case Send_Manner::Next::Break_Off:
        break;
    }
    return false;
}

void Send_Job::Keep_Records(const QString& number, const QString& message)
{
    if (m_order.choices.save_sent_items)
        Sent_Item_Store::Append({number, message, m_date, {}});
    if (m_order.choices.save_templates)
        Template_Store::Append(message);
}

void Send_Job::Pause_If_Due(int index)
{
    if (!m_order.choices.delayed_delivery || m_batch_count != m_delivery.batch_size)
        return;
    m_batch_count = 0;
    if (index + 1 == m_order.recipients.Count() || m_delivery.pause_in_seconds <= 0)
        return;
    m_manner.Pause_Begins();
    Pause_Countdown(m_progress, m_stop).Pause(m_delivery.pause_in_seconds);
}

bool Send_Job::Skip_Item(int index, const QString& number)
{
    const Skip_Reason reason = Reason_To_Skip(m_order, index);
    if (reason == Skip_Reason::None || m_manner.Is_Settled(index))
        return false;
    const QString note = reason == Skip_Reason::Excluded ? Texts::Sending::Is_Excluded : Texts::Sending::Is_Skipped;
    m_progress.Show_Current(number + note);
    m_listener.Row_Ended(index, Outcome_Of_Skipped(m_order, index, reason));
    m_manner.Skipped(index, reason);
    return true;
}

void Send_Job::Finish()
{
    if (!m_manner.Takes_Messages()) {
        m_has_error = true;
        m_listener.Tell(m_manner.Trouble());
    }
    m_progress.Stop_Timers();
    m_progress.End();
    if (m_order.recipients.Count() == 0)
        m_has_error = true;
    if (m_stop == 0 && !m_has_error)
        m_listener.Tell(m_manner.Completed());
}

void Send_Job::Clean_Up()
{
    m_manner.Close();
    m_progress.Stop_Timers();
    m_progress.End();
}
