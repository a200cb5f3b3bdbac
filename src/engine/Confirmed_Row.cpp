#include "engine/Confirmed_Row.h"

#include "device/Cause_Words.h"
#include "engine/Message_Frames.h"
#include "engine/Send_Progress.h"
#include "platform/Waiting.h"
#include "texts/Confirmed_Texts.h"

#include <algorithm>
#include <utility>

namespace {

using Doubt = Part_Result::Doubt;
using Obstacle = Part_Result::Obstacle;
using Until = Device_Hold::Until;
namespace T = Texts::Confirmed;

constexpr int Alike_In_A_Row = 3;
constexpr double Seconds_Between_Slow_Messages = 5;

bool Is_About_What_Was_Sent(Cause_Class cause_class)
{
    return cause_class == Cause_Class::Unknown_Outcome || cause_class == Cause_Class::Ignore ||
           cause_class == Cause_Class::Counts_As_Sent;
}

Until Wait_For(const Device_Cause& cause)
{
    const Device_Cause numbered =
        cause.kind == Device_Cause::Kind::Words ? Numbered_Cause(cause.words).value_or(cause) : cause;
    switch (numbered.number) {
    case 11:
    case 311:
    case 312:
    case 317:
        return Until::Card_Is_Ready;
    case 30:
    case 32:
    case 331:
        return Until::Network_Is_There;
    default:
        return Until::Some_Time_Has_Passed;
    }
}

} // namespace

Confirmed_Manner::Row_Walk::Row_Walk(Confirmed_Manner& manner, int index, Job_Row row)
    : m_manner(manner), m_index(index), m_row(std::move(row))
{
    m_details.parts = m_row.parts;
}

Send_Manner::Submission Confirmed_Manner::Row_Walk::Run()
{
    m_submission.is_handled = false;
    const auto parts = Parts_Of(m_row, m_manner.m_options.job.service_centre, m_manner.Asks_For_Reports(),
                                m_manner.m_session.Is_Text_Mode());
    if (parts.size() != static_cast<std::size_t>(m_row.parts)) { // frozen in the other format
        Stop_Job(T::No_Messages);
        return m_submission;
    }
    auto end = Part_End::Sent;
    for (m_part = 1; m_part <= m_row.parts && end == Part_End::Sent; ++m_part) {
        if (m_manner.Is_Sent_Already(m_index, m_part)) {
            Count_Sent_Part();
            continue;
        }
        m_tries = m_manner.m_record ? m_manner.m_record->Part(m_index + 1, m_part).tries : 0;
        m_retries = 0;
        m_vain_holds = 0;
        m_first_hold.reset();
        do {
            end = Send_Part(parts[static_cast<std::size_t>(m_part - 1)]);
        } while (end == Part_End::Again);
    }
    if (end == Part_End::Sent) {
        m_details.outcome.state = Row_State::Sent;
        m_submission.is_handled = true;
        m_manner.m_has_sent = true;
        m_manner.m_alike_ends.Count({});
    }
    m_submission.outcome = Shown_Outcome(m_details);
    if (m_manner.m_sends_slowly && m_submission.next == Next::Go_On)
        m_manner.m_stop.Wait(Seconds_Between_Slow_Messages);
    return m_submission;
}

// One that an earlier walk has sent.
void Confirmed_Manner::Row_Walk::Count_Sent_Part()
{
    const Job_Part part = m_manner.m_record->Part(m_index + 1, m_part);
    ++m_details.parts_sent;
    m_details.tries = std::max(m_details.tries, part.tries);
    if (part.reference >= 0)
        m_details.references.append(part.reference);
}

Confirmed_Manner::Row_Walk::Part_End Confirmed_Manner::Row_Walk::Send_Part(const Part_To_Send& part)
{
    m_details.tries = std::max(m_details.tries, ++m_tries);
    m_was_handed_over = false;
    if (m_manner.m_session.Is_Text_Mode() && !Prepare_Text_Mode())
        return Take_No_Text_Mode();
    const Part_Result result = m_manner.m_session.Submit(part, *this);
    if (std::exchange(m_is_waiting, false))
        m_manner.m_progress.Show_Current(m_row.number);
    if (m_manner.m_open_case) // before there is another
        m_manner.Settle_Open_Case();
    switch (result.m_kind) {
    case Part_Result::Kind::Accepted:
        return Take_Accepted(result.m_reference, result.m_time);
    case Part_Result::Kind::Refused:
        return Take_Refusal(result.m_cause.value_or(Device_Cause{}));
    case Part_Result::Kind::Unknown:
        return Take_Doubt(result.m_doubt);
    case Part_Result::Kind::Not_Handed_Over:
        break;
    }
    return Take_Obstacle(result.m_obstacle);
}

// The device offers text mode alone, and not what a message in it needs.
Confirmed_Manner::Row_Walk::Part_End Confirmed_Manner::Row_Walk::Take_No_Text_Mode()
{
    if (!m_manner.m_session.Answers())
        return Take_Obstacle(Obstacle::Line_Lost);
    Note_Refusal({Device_Cause::Kind::Words, -1, T::No_Messages});
    return Be_Refused({}, T::No_Messages, 1);
}

bool Confirmed_Manner::Row_Walk::Prepare_Text_Mode()
{
    const int coding = Data_Coding_Of(m_row);
    if (m_manner.m_text_coding == coding)
        return true;
    if (!m_manner.m_session.Set_Text_Parameters(coding, m_manner.Asks_For_Reports(),
                                                m_manner.m_options.job.service_centre))
        return false;
    m_manner.m_text_coding = coding;
    return true;
}

Confirmed_Manner::Row_Walk::Part_End Confirmed_Manner::Row_Walk::Take_Accepted(int reference, const QByteArray& time)
{
    m_manner.Note_Accepted(This_Part(), reference, time);
    ++m_details.parts_sent;
    if (reference >= 0)
        m_details.references.append(reference);
    return Part_End::Sent;
}

Confirmed_Manner::Row_Walk::Part_End Confirmed_Manner::Row_Walk::Take_Refusal(const Device_Cause& cause)
{
    const Send_Cause& row = Cause_Row(cause);
    const QString reason = ::Reason_Of(cause);
    if (!m_was_handed_over && Is_About_What_Was_Sent(row.cause_class)) { // in place of the prompt: nothing was
        Note_Refusal(cause);
        return Be_Refused(cause, reason, Alike_In_A_Row);
    }
    if (row.cause_class == Cause_Class::Unknown_Outcome || row.cause_class == Cause_Class::Ignore) {
        const Part_End end = Be_Unknown(Cause_Field(cause), reason);
        m_details.outcome.cause = cause;
        return end;
    }
    if (row.cause_class == Cause_Class::Counts_As_Sent)
        return Take_Accepted(-1, {});
    const bool is_held =
        row.cause_class == Cause_Class::Hold && static_cast<std::size_t>(m_vain_holds) < Retry_Waits.size();
    const bool is_passing = row.cause_class == Cause_Class::Retry || row.cause_class == Cause_Class::Retry_Slowly;
    if (m_was_handed_over || !is_held) // what waits before that is as it was
        Note_Refusal(cause, is_held || (is_passing && May_Be_Tried_Again()));
    switch (row.cause_class) {
    case Cause_Class::Retry_Slowly:
        m_manner.m_sends_slowly = true;
        [[fallthrough]];
    case Cause_Class::Retry:
        if (const auto end = Try_Again_Later(reason))
            return *end;
        break;
    case Cause_Class::Hold:
        if (is_held)
            return Hold(Wait_For(cause), reason);
        break;
    default:
        break;
    }
    const bool is_about_number = row.this_number_if_others_passed && m_manner.m_has_sent;
    return Be_Refused(cause, reason, is_about_number ? Alike_In_A_Row : row.stops_at);
}

// Also of a part that got no prompt: the row has been refused all the same.
void Confirmed_Manner::Row_Walk::Note_Refusal(const Device_Cause& cause, bool goes_again)
{
    if (!m_manner.m_journal)
        return;
    if (goes_again)
        m_manner.m_journal->Refused_For_Now(m_index + 1, m_part, Cause_Field(cause));
    else
        m_manner.m_journal->Refused(m_index + 1, m_part, Cause_Field(cause));
}

Confirmed_Manner::Row_Walk::Part_End Confirmed_Manner::Row_Walk::Take_Doubt(Doubt doubt)
{
    if (doubt == Doubt::Broken_Off)
        m_submission.next = Next::Break_Off;
    const bool may_come_late = doubt == Doubt::No_Result || doubt == Doubt::Ok_Alone;
    const bool answers = doubt != Doubt::Broken_Off && doubt != Doubt::Line_Lost && m_manner.m_session.Answers();
    if (const auto end = may_come_late ? Take_Late_Result() : std::nullopt)
        return *end;
    Be_Unknown(Doubt_Field(doubt), Doubt_Sentence(doubt));
    if (may_come_late)
        m_manner.m_open_case = This_Part();
    if (answers || m_submission.next != Next::Go_On)
        return Part_End::Row_Is_Over;
    const bool is_back = Hold(Until::Device_Is_Back,
                              doubt == Doubt::Line_Lost ? T::Device_Is_Gone : T::Device_Is_Silent) == Part_End::Again;
    const auto end = is_back && may_come_late ? Take_Late_Result() : std::nullopt;
    return end.value_or(Part_End::Row_Is_Over);
}

// What comes before the next command settles it.
std::optional<Confirmed_Manner::Row_Walk::Part_End> Confirmed_Manner::Row_Walk::Take_Late_Result()
{
    const auto late = m_manner.m_session.Take_Late_Result();
    if (!late)
        return std::nullopt;
    m_manner.m_open_case.reset();
    m_details.outcome = {};
    m_details.reason.clear();
    return late->m_cause ? Take_Refusal(*late->m_cause) : Take_Accepted(late->m_reference, late->m_time);
}

// Nothing was sent.
Confirmed_Manner::Row_Walk::Part_End Confirmed_Manner::Row_Walk::Take_Obstacle(Obstacle obstacle)
{
    switch (obstacle) {
    case Obstacle::Stopped:
        m_submission.next = Next::Break_Off;
        return Part_End::Row_Is_Over;
    case Obstacle::Not_Recorded:
        m_manner.m_journal_trouble = m_manner.m_journal->Trouble();
        Stop_Job(Not_Recorded(m_manner.m_journal_trouble));
        return Part_End::Row_Is_Over;
    case Obstacle::Line_Lost:
        return Hold(Until::Device_Is_Back, T::Device_Is_Gone);
    case Obstacle::No_Prompt:
    case Obstacle::None:
        break;
    }
    if (!m_manner.m_session.Answers())
        return Hold(Until::Device_Is_Back, T::Device_Is_Silent);
    if (const auto end = Try_Again_Later(T::No_Prompt))
        return *end;
    if (m_manner.m_journal)
        m_manner.m_journal->Refused(m_index + 1, m_part, No_Prompt_Field);
    return Be_Refused({}, T::No_Prompt, Alike_In_A_Row);
}

// Nothing when it was the last try. A stop leaves the part for another time.
std::optional<Confirmed_Manner::Row_Walk::Part_End> Confirmed_Manner::Row_Walk::Try_Again_Later(const QString& reason)
{
    if (!May_Be_Tried_Again())
        return std::nullopt;
    m_manner.m_progress.Show_Waiting(reason);
    m_is_waiting = true;
    m_manner.m_stop.Wait(Retry_Waits[static_cast<std::size_t>(m_retries++)]);
    if (m_manner.m_stop == 0 && !Program_Is_Exiting())
        return Part_End::Again;
    m_submission.next = Next::Break_Off;
    m_details.reason = reason;
    return Part_End::Row_Is_Over;
}

// The same part goes on afterwards, if it has not been settled.
Confirmed_Manner::Row_Walk::Part_End Confirmed_Manner::Row_Walk::Hold(Until until, const QString& reason)
{
    if (m_manner.m_journal)
        m_manner.m_journal->Sync();
    const double now = Now_Seconds();
    Device_Hold::Patience patience;
    patience.held = (now - m_first_hold.value_or(now)) / Paced(1);
    if (until == Until::Card_Is_Ready || until == Until::Network_Is_There)
        patience.where_right = Retry_Waits[static_cast<std::size_t>(m_vain_holds)];
    if (!m_first_hold)
        m_first_hold = now;
    switch (m_manner.m_hold.Hold(until, reason, patience)) {
    case Device_Hold::End::Was_Right:
        ++m_vain_holds;
        [[fallthrough]];
    case Device_Hold::End::Right:
        m_manner.m_progress.Show_Current(m_row.number);
        m_manner.m_text_coding = -1; // it may be as new
        if (m_manner.Asks_For_Reports())
            m_manner.m_session.Ask_For_Reports();
        return Part_End::Again;
    case Device_Hold::End::Too_Long:
        Stop_Job(T::Waited_Too_Long);
        break;
    case Device_Hold::End::Stopped:
        break;
    }
    if (m_details.reason.isEmpty())
        m_details.reason = reason;
    return Part_End::Row_Is_Over;
}

Confirmed_Manner::Row_Walk::Part_End Confirmed_Manner::Row_Walk::Be_Refused(const Device_Cause& cause,
                                                                            const QString& reason, int stops_at)
{
    m_details.outcome = {Row_State::Refused, cause};
    m_details.reason = reason;
    Count_End(Cause_Field(cause) + reason, reason, stops_at);
    return Part_End::Row_Is_Over;
}

Confirmed_Manner::Row_Walk::Part_End Confirmed_Manner::Row_Walk::Be_Unknown(const QString& why, const QString& reason)
{
    if (m_manner.m_journal)
        m_manner.m_journal->Unknown(m_index + 1, m_part, why);
    m_details.outcome = {Row_State::May_Have_Been_Sent, {}};
    m_details.reason = reason;
    Count_End(why, reason, Alike_In_A_Row);
    return Part_End::Row_Is_Over;
}

void Confirmed_Manner::Row_Walk::Count_End(const QString& end, const QString& reason, int stops_at)
{
    const int alike = m_manner.m_alike_ends.Count(end);
    if (stops_at > 0 && alike >= stops_at)
        Stop_Job(stops_at == 1 ? reason : QString(T::Three_Alike) + QLatin1String(" (") + reason + QLatin1String(")."));
}

void Confirmed_Manner::Row_Walk::Stop_Job(const QString& notice)
{
    m_submission.next = Next::Fail;
    m_submission.notice = notice;
}

bool Confirmed_Manner::Row_Walk::May_Be_Handed_Over()
{
    m_imsi = m_manner.m_session.Imsi();
    if (m_manner.m_journal && !m_manner.m_journal->Hand_Over(m_index + 1, m_part, m_row.parts, m_imsi))
        return false;
    m_was_handed_over = true;
    m_has_handed_over = true;
    m_manner.m_has_handed_over = true;
    return true;
}

// A message that was begun is brought to its end.
bool Confirmed_Manner::Row_Walk::Is_Asked_To_Stop()
{
    return m_part == 1 && m_manner.m_stop == 1;
}

void Confirmed_Manner::Row_Walk::Still_Waiting(int seconds)
{
    m_manner.m_progress.Show_Waiting(T::Waiting_For_Network);
    m_is_waiting = true;
    m_manner.m_watcher.Still_Waiting(seconds);
}
