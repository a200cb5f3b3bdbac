#include "engine/Confirmed_Manner.h"

#include "engine/Composer_Rules.h"
#include "engine/Confirmed_Row.h"
#include "engine/Job_Details.h"
#include "engine/Message_Frames.h"
#include "engine/Outcome_Words.h"
#include "engine/Send_Progress.h"
#include "platform/Waiting.h"
#include "records/Job_Shelf.h"
#include "texts/Cause_Texts.h"
#include "texts/Confirmed_Texts.h"
#include "texts/Texts.h"

#include <QFileInfo>
#include <QRandomGenerator>

namespace {

namespace T = Texts::Confirmed;
using Until = Device_Hold::Until;

constexpr double Seconds_Between_Looks = 1;

// Why a row of a job is never sent, as its list says it.
constexpr QLatin1String Is_Excluded("excluded");
constexpr QLatin1String Is_Repeated("duplicate");
constexpr QLatin1String Is_Left_Out("skipped");

// What stands in the way passes, or is waited for.
bool Goes_Again(Cause_Class cause_class)
{
    return cause_class == Cause_Class::Hold || cause_class == Cause_Class::Retry ||
           cause_class == Cause_Class::Retry_Slowly;
}

} // namespace

Confirmed_Manner::Confirmed_Manner(const Send_Order& order, const Confirmed_Options& options, Send_Progress& progress,
                                   Confirmed_Watcher& watcher, Stop_Flag& stop, Serial_Calls& calls)
    : m_order(order), m_options(options), m_progress(progress), m_watcher(watcher), m_stop(stop),
      m_device_path(Lasting_Device_Path(order.device_path, options.device_links)), m_session(m_device_path, calls),
      m_hold(m_session, progress, watcher, stop, options.hold_seconds), m_late_reports(m_session, m_report_desk)
{
}

Confirmed_Manner::~Confirmed_Manner() = default;

bool Confirmed_Manner::Opens()
{
    return m_session.Open_Line();
}

bool Confirmed_Manner::Connect()
{
    switch (m_session.Open()) {
    case Confirmed_Session::Opening::Ready:
        return true;
    case Confirmed_Session::Opening::No_Messages:
        m_trouble = T::No_Messages;
        return false;
    case Confirmed_Session::Opening::Does_Not_Open:
    case Confirmed_Session::Opening::No_Modem:
        break;
    }
    m_trouble = Texts::Sending::No_Modem;
    return false;
}

void Confirmed_Manner::Prepare()
{
    switch (m_session.Condition().m_sim) {
    case Sim_State::Missing:
        m_trouble = Texts::Causes::No_Card;
        break;
    case Sim_State::Puk_Needed:
        m_trouble = Texts::Causes::Puk_Wanted;
        break;
    case Sim_State::Failed:
        m_trouble = Texts::Causes::Card_Failed;
        break;
    default:
        break;
    }
}

QString Confirmed_Manner::Completed() const
{
    if (m_journal && m_journal->Trouble() != Job_Trouble::None)
        return Not_Recorded(m_journal->Trouble());
    return m_has_failed ? QString(T::Not_All_Sent) : QString(Texts::Sending::Completed);
}

// From here on the job can be stopped.
void Confirmed_Manner::Begin_Sending()
{
    if (m_trouble.isEmpty())
        Hold_Until_Ready();
    if (!m_trouble.isEmpty() || m_stop == 1)
        return;
    if (Asks_For_Reports())
        m_session.Ask_For_Reports();
    Begin_Journal();
    if (m_trouble.isEmpty())
        Begin_Reports();
}

// Those that have come since an earlier job are counted before there are new ones.
void Confirmed_Manner::Begin_Reports()
{
    if (m_record && Asks_For_Reports())
        m_report_desk = Report_Desk::Of(*m_record);
    m_late_reports.Set_Own_Job(m_journal.get(),
                               [this](const Report_Desk::Part& part, const Handset::Status_Report& report) {
                                   m_watcher.Report_Came(part.index, part.part, report.m_reference, report.m_status);
                               });
    const QString own_path = m_journal ? m_journal->Path() : QString();
    const QString folder = own_path.isEmpty() ? m_options.folder : QFileInfo(own_path).path();
    if (m_late_reports.Look_Into(folder, own_path) || !m_report_desk.Is_Empty())
        m_late_reports.Read_Memory();
}

void Confirmed_Manner::Hold_Until_Ready()
{
    const auto hold = [this](Until until, const QString& reason) {
        if (m_hold.Hold(until, reason) == Device_Hold::End::Too_Long)
            m_trouble = T::Waited_Too_Long;
    };
    Device_Condition condition = m_session.Condition();
    if (condition.m_sim == Sim_State::Pin_Needed || condition.m_sim == Sim_State::Locked) {
        const bool is_locked = condition.m_sim == Sim_State::Locked;
        hold(Until::Card_Is_Ready, is_locked ? Texts::Causes::Phone_Pin_Wanted : Texts::Causes::Pin_Wanted);
        condition = m_session.Condition();
    }
    if (m_trouble.isEmpty() && m_stop == 0 &&
        (condition.m_registration == Registration::Searching || condition.m_registration == Registration::Denied))
        hold(Until::Network_Is_There, Texts::Causes::No_Network);
}

void Confirmed_Manner::Begin_Journal()
{
    m_first_reference = QRandomGenerator::global()->bounded(256);
    m_open_rows = m_order.recipients.Count();
    if (m_options.folder.isEmpty() && m_options.resumed_path.isEmpty())
        return;
    if (m_options.resumed_path.isEmpty())
        Make_Journal();
    else
        Open_Journal();
    if (!m_journal)
        m_trouble = Not_Recorded(m_journal_trouble);
}

void Confirmed_Manner::Make_Journal()
{
    m_job_id = m_options.id.isEmpty() ? New_Job_Id() : m_options.id;
    auto opened = Job_Journal::Create(
        m_options.folder, {m_job_id, m_session.Imsi(), m_device_path, m_options.job, m_options.keeps_journal},
        [this, index = 0]() mutable -> std::optional<Job_Row> {
            if (index == m_order.recipients.Count())
                return std::nullopt;
            return Row_At(index++);
        });
    m_journal = std::move(opened.journal);
    m_journal_trouble = opened.trouble;
}

void Confirmed_Manner::Open_Journal()
{
    auto opened = Job_Journal::Open_To_Go_On(m_options.resumed_path);
    m_journal = std::move(opened.journal);
    m_record = std::move(opened.record);
    m_journal_trouble = opened.trouble;
    if (!m_record)
        return;
    m_job_id = m_record->Header().id;
    const Job_Counts counts = m_record->Counts();
    m_has_handed_over = counts.sent + counts.refused + counts.unknown > 0;
    if (!m_options.sends_unknown)
        return;
    for (int row = 1; row <= m_record->Row_Count(); ++row)
        if (May_Have_Been_Sent(m_record->State_Of(row).state))
            m_journal->Decide(row, Job_Decision::Send_Again, QStringLiteral("user"));
}

// The same row whenever it is asked for.
Job_Row Confirmed_Manner::Row_At(int index)
{
    if (m_record) {
        Job_Row row = m_record->Row(index + 1).value_or(Job_Row{});
        if (const Job_Row_State state = m_record->State_Of(index + 1); state.state == Sending_State::Skipped)
            row.skipped = state.words.isEmpty() ? QString(Is_Left_Out) : state.words;
        return row;
    }
    const Filled_Message filled = Text_To_Send(m_order.recipients, index);
    Job_Row row =
        Frozen_Row(index + 1, m_order.recipients.Numbers().At(index), Composer_Rules::Cut_To_Limit(filled.text),
                   m_options.job.alphabet, m_order.choices.flash, m_first_reference + index, m_session.Is_Text_Mode());
    if (const auto skipped = m_options.skipped.constFind(index); skipped != m_options.skipped.constEnd())
        row.skipped = *skipped;
    if (row.skipped == QLatin1String(Invalid_Number)) // which the plan of the list names first, too
        return row;
    switch (Reason_To_Skip(m_order, index)) {
    case Skip_Reason::Excluded:
        row.skipped = Is_Excluded;
        break;
    case Skip_Reason::Repeated:
        row.skipped = Is_Repeated;
        break;
    case Skip_Reason::Not_Filled:
        row.skipped = filled.fault;
        break;
    case Skip_Reason::None:
        break;
    }
    return row;
}

bool Confirmed_Manner::Is_Sent_Already(int index, int part) const
{
    return m_record && m_record->Part(index + 1, part).state == Sending_State::Accepted;
}

// Nothing where the row is still to be sent.
std::optional<Row_Details> Confirmed_Manner::Settled_Before(int index) const
{
    if (!m_record)
        return std::nullopt;
    const Job_Row_State state = m_record->State_Of(index + 1);
    if (state.state == Sending_State::Waiting || state.state == Sending_State::Skipped ||
        (May_Have_Been_Sent(state.state) && m_options.sends_unknown))
        return std::nullopt;
    return Details_Of_State(state);
}

Send_Manner::Submission Confirmed_Manner::Submit(int index, const Recipient&)
{
    const Job_Row row = Row_At(index);
    if (auto earlier = Settled_Before(index)) {
        const Row_State state = earlier->outcome.state;
        m_open_rows -= state == Row_State::May_Have_Been_Sent ? 0 : 1;
        m_has_failed = m_has_failed || state != Row_State::Sent;
        m_watcher.Row_Done(index, *earlier);
        return {Next::Go_On, Shown_Outcome(*earlier), false, {}};
    }
    if (!row.skipped.isEmpty())
        return Pass_Over(index, row.skipped);
    Row_Walk walk(*this, index, row);
    const Submission submission = walk.Run();
    Take_Reports();
    if (m_open_case)
        Settle_Open_Case();
    const Row_State state = walk.Details().outcome.state;
    if (state == Row_State::Sent || state == Row_State::Refused)
        --m_open_rows;
    m_has_failed = m_has_failed || state != Row_State::Sent;
    if (state != Row_State::Not_Tried || walk.Details().parts_sent > 0 || walk.Was_Handed_Over())
        m_watcher.Row_Done(index, walk.Details());
    return submission;
}

void Confirmed_Manner::Note_Accepted(const Open_Case& part, int reference, const QByteArray& time)
{
    if (m_journal)
        m_journal->Accepted(part.index + 1, part.part, reference, QString::fromUtf8(time));
    if (reference >= 0 && Asks_For_Reports())
        m_report_desk.Expect(part.number,
                             {part.index, part.part, reference, Local_Time().toSecsSinceEpoch(), 0, part.imsi});
}

// The result of a part that came too late to be told. What was said of its row stays; the journal knows better.
void Confirmed_Manner::Settle_Open_Case()
{
    const auto late = m_session.Take_Late_Result();
    if (!late)
        return;
    const Open_Case part = *std::exchange(m_open_case, std::nullopt);
    const auto cause_class = late->m_cause ? Cause_Row(*late->m_cause).cause_class : Cause_Class::Counts_As_Sent;
    if (cause_class == Cause_Class::Unknown_Outcome || cause_class == Cause_Class::Ignore)
        return;
    const bool is_sent = cause_class == Cause_Class::Counts_As_Sent;
    const bool goes_again = Goes_Again(cause_class);
    if (is_sent)
        Note_Accepted(part, late->m_reference, late->m_time);
    else if (m_journal && goes_again)
        m_journal->Refused_For_Now(part.index + 1, part.part, Cause_Field(*late->m_cause));
    else if (m_journal)
        m_journal->Refused(part.index + 1, part.part, Cause_Field(*late->m_cause));
    const bool is_open = is_sent ? part.part < part.parts : goes_again;
    m_open_rows -= is_open ? 0 : 1;
}

// For reasons that the walk has not seen: the number, or what held when a job that is gone on with began.
Send_Manner::Submission Confirmed_Manner::Pass_Over(int index, const QString& why)
{
    Row_Details details;
    details.is_earlier = m_record.has_value();
    if (why == Is_Excluded)
        details.outcome.state = Row_State::Excluded;
    else if (why == Is_Repeated)
        details.outcome.state = Row_State::Repeated;
    else {
        const bool is_about_number = why == QLatin1String(Invalid_Number);
        const QString words = Words_For_Skip(why);
        details.outcome.state = is_about_number ? Row_State::Invalid_Number : Row_State::Skipped;
        if (!words.isEmpty())
            details.outcome = {Row_State::Not_Filled, {Device_Cause::Kind::Words, -1, words}};
        details.reason = is_about_number ? QString(T::Number_Invalid) : why;
        m_has_failed = true;
    }
    --m_open_rows;
    m_watcher.Row_Done(index, details);
    return {Next::Go_On, details.outcome, false, {}};
}

bool Confirmed_Manner::Is_Settled(int index)
{
    return Settled_Before(index).has_value() || Row_At(index).skipped == QLatin1String(Invalid_Number);
}

void Confirmed_Manner::Skipped(int index, Skip_Reason reason)
{
    Row_Details details;
    details.outcome = Outcome_Of_Skipped(m_order, index, reason);
    details.reason = details.outcome.cause.words;
    m_has_failed = m_has_failed || reason == Skip_Reason::Not_Filled;
    details.is_earlier = m_record.has_value();
    if (m_record && m_journal) // a new job's list says it
        m_journal->Skipped(index + 1, reason == Skip_Reason::Excluded ? Is_Excluded : Is_Repeated);
    --m_open_rows;
    m_watcher.Row_Done(index, details);
}

void Confirmed_Manner::Pause_Begins()
{
    if (m_journal)
        m_journal->Sync();
}

void Confirmed_Manner::End_Sending()
{
    if (Asks_For_Reports() && m_trouble.isEmpty())
        Await_Reports();
    End_Journal();
}

// No report is no news: a part without one has been sent all the same.
void Confirmed_Manner::Await_Reports()
{
    if (!m_report_desk.Is_Empty())
        m_progress.Show_Waiting(T::Waiting_For_Reports);
    const double end = Now_Seconds() + Paced(m_options.job.report_seconds);
    while (!m_report_desk.Is_Empty() && m_stop == 0 && !Program_Is_Exiting() && Now_Seconds() < end &&
           m_session.Listen(Seconds_Between_Looks))
        Take_Reports();
}

// While somebody can still be told when that fails.
void Confirmed_Manner::End_Journal()
{
    if (m_open_case)
        Settle_Open_Case();
    if (!m_journal)
        return;
    m_has_ended = m_has_ended || (m_open_rows == 0 && m_journal->End());
    m_journal->Sync();
    if (m_journal->Trouble() != Job_Trouble::None)
        m_journal_trouble = m_journal->Trouble();
}

void Confirmed_Manner::Take_Reports()
{
    if (Asks_For_Reports() || m_late_reports.Are_Awaited())
        m_late_reports.Take(m_session.Take_Reports());
}

// A job that has nothing left to be decided or sent leaves nothing behind, unless that is wanted.
void Confirmed_Manner::Close()
{
    End_Journal();
    m_session.Close();
    if (!m_journal)
        return;
    const QString path = m_journal->Path();
    if (m_options.hands_out_record)
        m_last_record = Read_Job(path).record;
    m_journal.reset();
    if (m_has_ended && !m_options.keeps_journal)
        Remove_Job(path);
}

QString Confirmed_Manner::Job_Id() const
{
    return m_job_id;
}
