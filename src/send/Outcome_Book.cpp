#include "send/Outcome_Book.h"

#include "engine/Job_Details.h"

namespace {

const char* Word_For(Row_State state)
{
    switch (state) {
    case Row_State::Sent:
        return "sent";
    case Row_State::Refused:
    case Row_State::Partly_Taken:
        return "refused";
    case Row_State::May_Have_Been_Sent:
        return "unknown";
    case Row_State::Excluded:
    case Row_State::Repeated:
    case Row_State::Skipped:
    case Row_State::Invalid_Number:
    case Row_State::Not_Filled:
        return "skipped";
    case Row_State::Written:
    case Row_State::Taken:
    case Row_State::No_Answer:
        return "written";
    case Row_State::Not_Tried:
        break;
    }
    return "not-tried";
}

bool Tells_A_Cause(const Row_Outcome& outcome)
{
    return outcome.state == Row_State::Refused ||
           (outcome.state == Row_State::May_Have_Been_Sent && outcome.cause.kind != Device_Cause::Kind::Error);
}

} // namespace

Outcome_Book::Outcome_Book(const Job_To_Send& job, Printer& printer)
    : m_job(job), m_printer(printer), m_is_settled(job.rows.size(), false)
{
    m_counts.fixed_waits = job.fixed_waits;
}

void Outcome_Book::Begin()
{
    if (m_has_begun)
        return;
    m_has_begun = true;
    m_printer.Job(
        {m_job.id, m_job.fixed_waits, static_cast<int>(m_job.rows.size()), m_job.Parts_To_Send(), m_job.Seconds()});
}

Row_End Outcome_Book::End_Of(int position) const
{
    const auto place = static_cast<std::size_t>(position);
    Row_End end;
    end.row = m_job.rows[place].row;
    end.number = m_job.rows[place].number;
    end.parts = m_job.parts[place];
    return end;
}

Row_End Outcome_Book::Details_In_Words(int position, const Row_Details& details) const
{
    Row_End end = End_Of(position);
    end.outcome = QLatin1String(Word_For(details.outcome.state));
    end.parts = details.parts;
    end.parts_sent = details.parts_sent;
    end.references = details.references;
    end.reason = details.reason;
    end.tries = details.tries;
    end.is_earlier = details.is_earlier;
    if (Tells_A_Cause(details.outcome))
        end.cause = details.outcome.cause;
    return end;
}

// Those that are skipped are printed by themselves.
void Outcome_Book::Settle(int position, const Row_Details& details)
{
    if (!m_job.rows[static_cast<std::size_t>(position)].Is_To_Be_Sent())
        return;
    const bool is_untouched = details.outcome.state == Row_State::Not_Tried && details.parts_sent == 0;
    m_has_news = m_has_news || !(details.is_earlier || is_untouched);
    Print(position, Details_In_Words(position, details));
}

void Outcome_Book::Settle_Written(int position, bool is_whole, const QString& reason)
{
    Row_End end = End_Of(position);
    end.outcome = QLatin1String(is_whole ? "written" : "unknown");
    end.reason = reason;
    end.tries = 1;
    m_has_news = true;
    Print(position, end);
}

void Outcome_Book::Settle_The_Rest()
{
    Begin();
    for (int position = 0; position < static_cast<int>(m_job.rows.size()); ++position) {
        if (Is_Settled(position) || !m_job.rows[static_cast<std::size_t>(position)].Is_To_Be_Sent())
            continue;
        Row_Details details;
        details.parts = m_job.parts[static_cast<std::size_t>(position)];
        Settle(position, m_job.record ? Details_Of_Record(*m_job.record, position + 1) : details);
    }
    Pass_Over_Until(static_cast<int>(m_job.rows.size()));
}

void Outcome_Book::Print(int position, const Row_End& end)
{
    Begin();
    Pass_Over_Until(position);
    if (Is_Settled(position))
        return;
    m_is_settled[static_cast<std::size_t>(position)] = true;
    Count(end);
    m_printer.Ended(end);
}

void Outcome_Book::Pass_Over_Until(int position)
{
    for (; m_passed < position; ++m_passed) {
        const Planned_Row& row = m_job.rows[static_cast<std::size_t>(m_passed)];
        if (row.Is_To_Be_Sent() || Is_Settled(m_passed))
            continue;
        Row_End end = End_Of(m_passed);
        end.outcome = QStringLiteral("skipped");
        end.reason = row.skipped;
        end.is_earlier = m_job.record.has_value();
        m_is_settled[static_cast<std::size_t>(m_passed)] = true;
        m_is_all_well = m_is_all_well && row.Is_In_Order();
        ++m_counts.skipped;
        m_printer.Ended(end);
    }
}

void Outcome_Book::Count(const Row_End& end)
{
    struct Row
    {
        const char* outcome;
        int End_Facts::*count;
        bool is_well;
    };
    for (const Row& row : {Row{"sent", &End_Facts::sent, true}, Row{"written", &End_Facts::written, true},
                           Row{"refused", &End_Facts::refused, false}, Row{"unknown", &End_Facts::unknown, false},
                           Row{"not-tried", &End_Facts::not_tried, false}}) {
        if (end.outcome != QLatin1String(row.outcome))
            continue;
        ++(m_counts.*row.count);
        m_is_all_well = m_is_all_well && row.is_well;
    }
}
