#include "send/Sending.h"

#include "device/MFCSMS.h"
#include "device/Stop_Flag.h"
#include "engine/Confirmed_Manner.h"
#include "engine/Job_Order.h"
#include "engine/Send_Job.h"
#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"
#include "records/Job_Paths.h"
#include "send/Device_Choice.h"
#include "send/Stop_Signals.h"

#include <cmath>
#include <exception>

namespace {

constexpr double At_Once = 0.001; // a hold of 0 seconds has no end to the engine

// Without its full stop, to stand in brackets.
QString Inside(QString sentence)
{
    if (sentence.endsWith(u'.'))
        sentence.chop(1);
    return sentence;
}

} // namespace

Sending::Sending(const Arguments& arguments, const Job_To_Send& job, Printer& printer, Stop_Signals& signals)
    : m_arguments(arguments), m_job(job), m_printer(printer), m_signals(signals), m_book(job, printer)
{
    for (std::size_t i = 0; i < job.rows.size(); ++i)
        if (!job.fixed_waits || job.rows[i].Is_To_Be_Sent())
            m_positions.push_back(static_cast<int>(i));
}

int Sending::Run(const std::function<void(const Trouble&)>& complain)
{
    const double begin = Now_Seconds();
    if (Has_Something_To_Send())
        Choose();
    else
        End_Journal();
    if (m_trouble && m_trouble.status == Exit_Status::Unusable_Input) {
        complain(m_trouble);
        return m_trouble.status;
    }
    if (!m_device.isEmpty())
        Walk();
    m_book.Settle_The_Rest();
    End_Facts end = m_book.Counts();
    end.seconds = std::llround(Now_Seconds() - begin);
    m_printer.End(end);
    const bool is_stopped = m_signals.Is_Asked() && (end.not_tried > 0 || m_has_cut_one_off || Program_Is_Exiting());
    if (is_stopped)
        complain({QStringLiteral("stopped"), QStringLiteral("by a signal; %1 not tried").arg(end.not_tried)});
    else if (m_trouble && (end.not_tried > 0 || m_has_lost_its_journal))
        complain(m_trouble);
    if (is_stopped)
        return Exit_Status::Stopped;
    if (m_trouble && end.not_tried > 0 && !m_book.Has_News() && !m_has_handed_over)
        return m_trouble.status;
    return m_book.Is_All_Well() && !m_has_lost_its_journal ? Exit_Status::Done : Exit_Status::Not_All_Sent;
}

bool Sending::Has_Something_To_Send() const
{
    if (!m_job.record)
        return m_job.Parts_To_Send() > 0;
    const Job_Counts counts = m_job.record->Counts();
    return !m_job.record->Has_Ended() && counts.not_tried + (m_arguments.sends_unknown ? counts.unknown : 0) > 0;
}

void Sending::Choose()
{
    Run_On_Worker([this] {
        const Device_Choice choice =
            Choose_Device(m_arguments.devices, m_job.record ? m_job.record->Header().device : QString());
        m_device = choice.path;
        m_trouble = choice.trouble;
    });
}

Send_Order Sending::Make_Order() const
{
    Send_Order order = Order_Of(m_job.options, m_device);
    order.choices.flash = m_job.flash;
    for (const int position : m_positions) {
        const Planned_Row& row = m_job.rows[static_cast<std::size_t>(position)];
        order.recipients.Append(row.number, row.text);
    }
    return order;
}

void Sending::Walk()
{
    Send_Order order = Make_Order();
    if (m_job.fixed_waits)
        Walk_With_Fixed_Waits(order);
    else
        Walk_Confirmed(order);
}

void Sending::Walk_Confirmed(Send_Order& order)
{
    Confirmed_Options options;
    options.id = m_job.id;
    options.folder = m_job.journal_folder;
    options.job = m_job.options;
    options.hold_seconds = m_arguments.hold_seconds > 0 ? m_arguments.hold_seconds : At_Once;
    options.keeps_journal = Keeps_Journal();
    options.sends_unknown = m_arguments.sends_unknown;
    if (m_job.record)
        options.resumed_path = Journal_Path();
    for (std::size_t i = 0; i < m_job.rows.size(); ++i)
        if (!m_job.rows[i].Is_To_Be_Sent())
            options.skipped.insert(static_cast<int>(i), m_job.rows[i].skipped);
    Job_Watcher watcher(m_job, m_positions, m_book, m_printer, m_signals);
    Confirmed_Manner manner(order, options, watcher, watcher, Stop_SMS_Sending_Now);
    Run_Job(order, manner, watcher);
    m_has_handed_over = manner.Has_Handed_Over();
    m_has_lost_its_journal = manner.Journal_Trouble() != Job_Trouble::None;
    if (m_has_lost_its_journal)
        m_trouble = {QStringLiteral("the job's journal cannot be kept"),
                     Job_Trouble_Sentence(manner.Journal_Trouble())};
}

void Sending::Walk_With_Fixed_Waits(Send_Order& order)
{
    MFCSMS session;
    Job_Watcher watcher(m_job, m_positions, m_book, m_printer, m_signals);
    Told_Fixed_Waits manner(order, session, watcher);
    Run_Job(order, manner, watcher);
    m_has_cut_one_off = watcher.Has_Cut_One_Off();
}

void Sending::Run_Job(Send_Order& order, Send_Manner& manner, Job_Watcher& watcher)
{
    try {
        Run_On_Worker([&] { Send_Job(order, manner, watcher, watcher, Stop_SMS_Sending_Now).Send_SMS_Func(); });
        m_trouble = Trouble_Of(watcher);
    } catch (const std::exception& failure) {
        m_trouble = {QStringLiteral("the job broke off"), QString::fromLocal8Bit(failure.what()),
                     Exit_Status::Not_All_Sent};
        Row_Details details; // nobody knows how far its message got
        details.outcome.state = Row_State::May_Have_Been_Sent;
        if (watcher.Reached() >= 0 && !m_book.Is_Settled(watcher.Reached()))
            m_book.Settle(watcher.Reached(), details);
    }
}

// Before the first row was reached it is about the device.
Trouble Sending::Trouble_Of(const Job_Watcher& watcher) const
{
    if (watcher.Has_Begun())
        return {QStringLiteral("the job ended early"), Inside(watcher.Told()), Exit_Status::No_Device};
    if (!watcher.Does_Open())
        return Why_It_Does_Not_Open(m_device);
    return {m_device + QStringLiteral(" cannot send"), Inside(watcher.Told()), Exit_Status::No_Device};
}

// A job with nothing left to be sent has ended, whatever cut it off before it could say so.
void Sending::End_Journal() const
{
    if (!m_job.record || m_job.record->Has_Ended() || m_job.record->Counts().unknown > 0)
        return;
    Job_Journal::Opened opened = Job_Journal::Open_To_Go_On(Journal_Path());
    const bool has_ended = opened.journal && opened.journal->End() && opened.journal->Sync();
    opened.journal.reset();
    if (has_ended && !Keeps_Journal())
        Remove_Job(Journal_Path());
}

// Wanted now, or when the job began.
bool Sending::Keeps_Journal() const
{
    return m_arguments.keeps_journal || (m_job.record && m_job.record->Header().keeps_receipt.value_or(false));
}

QString Sending::Journal_Path() const
{
    return Job_Journal_Path(m_job.journal_folder, m_job.id);
}
