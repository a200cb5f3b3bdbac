#include "send/Job_Watcher.h"

#include "device/MFCSMS.h"
#include "device/Stop_Flag.h"
#include "device/Submission_Rules.h"
#include "handset/Delivery_Status.h"
#include "platform/Waiting.h"
#include "send/Stop_Signals.h"

Job_Watcher::Job_Watcher(const Job_To_Send& job, const std::vector<int>& positions, Outcome_Book& book,
                         Printer& printer, Stop_Signals& signals)
    : m_job(job), m_positions(positions), m_book(book), m_printer(printer), m_signals(signals)
{
}

// The first that a job says once its device is open.
void Job_Watcher::Begin_Preparing(int)
{
    m_does_open = true;
    m_printer.Progress(QStringLiteral("Preparing ..."));
}

void Job_Watcher::Begin_Sending()
{
    m_book.Begin();
    m_signals.Sending_Begins();
}

void Job_Watcher::Show_Item(int position, int total, const QString& number)
{
    m_reached = Position_Of(position - 1);
    m_place = QStringLiteral("%1 / %2  ").arg(position).arg(total);
    m_printer.Progress(m_place + number);
}

void Job_Watcher::Show_Current(const QString& text)
{
    m_printer.Progress(m_place + text);
}

void Job_Watcher::Row_Done(int index, const Row_Details& details)
{
    m_book.Settle(Position_Of(index), details);
}

void Job_Watcher::Held(const QString& reason)
{
    m_book.Begin();
    m_printer.Held(reason);
}

void Job_Watcher::Report_Came(int index, int part, int reference, int status)
{
    const Planned_Row& row = m_job.rows[static_cast<std::size_t>(Position_Of(index))];
    const auto meaning = Handset::Delivery_Status_Of(static_cast<std::uint8_t>(status));
    m_printer.Report({row.row, row.number, part, reference, status,
                      QString::fromLatin1(Handset::Name_Of(meaning.m_delivery).data())});
}

void Job_Watcher::Written(int index, bool is_whole, const QString& reason)
{
    m_book.Settle_Written(Position_Of(index), is_whole, reason);
}

void Job_Watcher::Cut_Off(int index)
{
    m_has_cut_one_off = true;
    Written(index, false, QStringLiteral("The program was stopped before the message was whole."));
}

Told_Fixed_Waits::Told_Fixed_Waits(const Send_Order& order, MFCSMS& session, Job_Watcher& watcher)
    : Fixed_Wait_Manner(order, session), m_is_unicode(order.choices.unicode), m_session(session), m_watcher(watcher)
{
}

// A stop takes effect between the parts of a message, too. An answer is read for each part but those of text mode in
// Unicode.
Send_Manner::Submission Told_Fixed_Waits::Submit(int index, const Recipient& recipient)
{
    const Submission submission = Fixed_Wait_Manner::Submit(index, recipient);
    const bool is_asked_to_stop = Stop_SMS_Sending_Now == 1 || Program_Is_Exiting();
    const qsizetype answers = m_session.Message_Answers().size();
    const bool may_be_cut = answers > 0 && answers < Pdu_Part_Count(recipient.Message.size(), m_is_unicode);
    if (submission.next != Next::Go_On)
        m_watcher.Written(index, false, QStringLiteral("The line to the device failed."));
    else if (is_asked_to_stop && (may_be_cut || Program_Is_Exiting()))
        m_watcher.Cut_Off(index);
    else
        m_watcher.Written(index, true, {});
    return submission;
}
