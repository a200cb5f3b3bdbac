#include "records/Job_Record.h"

#include "records/Job_Words.h"

#include <QSet>
#include <algorithm>
#include <utility>

namespace {

constexpr int Most_Octet = 255;
constexpr int Most_Tries = 255;

} // namespace

Job_Record::Job_Record(Job_Header header, std::shared_ptr<const Job_List> list)
    : m_header(std::move(header)), m_list(std::move(list)), m_parts(static_cast<std::size_t>(m_list->Parts_Of_All()))
{
    const quint32 card = Text_Index(m_header.imsi);
    for (Stored_Part& part : m_parts)
        part.card = card;
}

bool Job_Record::Take(const Job_Line::Fields& fields)
{
    if (fields.isEmpty() || fields[0].size() != 1)
        return false;
    switch (fields[0].front()) {
    case Job_Words::Handing_Over:
        return Take_Hand_Over(fields);
    case Job_Words::Accepted:
        return Take_Accepted(fields);
    case Job_Words::Refused:
        return Take_Not_Accepted(fields, Sending_State::Refused);
    case Job_Words::Unknown:
        return Take_Not_Accepted(fields, Sending_State::Unknown);
    case Job_Words::Skipped:
        return Take_Skipped(fields);
    case Job_Words::Report:
        return Take_Report(fields);
    case Job_Words::Decision:
        return Take_Decision(fields);
    case Job_Words::End:
        return Take_End(fields);
    default:
        return false;
    }
}

// H <row> <part> <of> <imsi, where it is not the header's> <time>
bool Job_Record::Take_Hand_Over(const Job_Line::Fields& fields)
{
    Stored_Part* const part = Part_In(fields);
    const bool has_card = fields.size() == 6;
    if (!part || (fields.size() != 5 && !has_card))
        return false;
    const auto time = Job_Line::Seconds_Of(fields.last());
    const auto imsi = has_card ? Job_Line::Text_Of(fields[4]) : m_header.imsi;
    const int parts = Parts_Of(Row_In(fields[1]));
    if (!time || !imsi || Job_Line::Number_Of(fields[3], parts, parts) != parts)
        return false;
    const int tries = std::min(part->tries + 1, Most_Tries);
    *part = {*time, 0, 0, Text_Index(*imsi), -1, Sending_State::Handing_Over, static_cast<quint8>(tries)};
    m_has_ended = false;
    return true;
}

// S <row> <part> <reference> <centre's time, where there is one> <time>
bool Job_Record::Take_Accepted(const Job_Line::Fields& fields)
{
    Stored_Part* const part = Part_In(fields);
    if (!part || fields.size() < 5 || fields.size() > 6 || !Job_Line::Seconds_Of(fields.last()))
        return false;
    const bool has_none = fields[3] == QByteArrayView("-");
    const auto reference = has_none ? -1 : Job_Line::Number_Of(fields[3], 0, Most_Octet);
    const auto stamp = fields.size() == 6 ? Job_Line::Text_Of(fields[4]) : QString();
    if (!reference || !stamp)
        return false;
    part->state = Sending_State::Accepted;
    part->reference = static_cast<qint16>(*reference);
    part->words = 0;
    part->stamp = Text_Index(*stamp);
    return true;
}

// E <row> <part> <cause, with "again:" before it where the part is tried again> <time> and U <row> <part> <why> <time>
bool Job_Record::Take_Not_Accepted(const Job_Line::Fields& fields, Sending_State state)
{
    Stored_Part* const part = Part_In(fields);
    if (!part || fields.size() != 5 || !Job_Line::Seconds_Of(fields[4]))
        return false;
    const auto words = Job_Line::Text_Of(fields[3]);
    if (!words)
        return false;
    // One more try that came to nothing before it was handed over, not a late word about one that was.
    if (!May_Have_Been_Sent(part->state))
        part->tries = static_cast<quint8>(std::min(part->tries + 1, Most_Tries));
    const bool goes_again = state == Sending_State::Refused && words->startsWith(Job_Words::To_Be_Tried_Again);
    part->state = goes_again ? Sending_State::Waiting : state;
    part->reference = -1;
    part->words = Text_Index(goes_again ? words->sliced(Job_Words::To_Be_Tried_Again.size()) : *words);
    part->stamp = 0;
    return true;
}

// K <row> <reason>
bool Job_Record::Take_Skipped(const Job_Line::Fields& fields)
{
    if (fields.size() != 3)
        return false;
    const int row = Row_In(fields[1]);
    const auto reason = Job_Line::Text_Of(fields[2]);
    if (row == 0 || !reason)
        return false;
    m_skipped.insert(row, Text_Index(*reason));
    return true;
}

// D <imsi> <reference> <number> <status> <when the centre got the part, where that was told> <time>
bool Job_Record::Take_Report(const Job_Line::Fields& fields)
{
    const bool has_submitted = fields.size() == 7;
    if (fields.size() != 6 && !has_submitted)
        return false;
    const auto imsi = Job_Line::Text_Of(fields[1]);
    const auto reference = Job_Line::Number_Of(fields[2], 0, Most_Octet);
    const auto number = Job_Line::Text_Of(fields[3]);
    const auto status = Job_Line::Number_Of(fields[4], 0, Most_Octet);
    const auto submitted = has_submitted ? Job_Line::Seconds_Of(fields[5]) : std::nullopt;
    const auto time = Job_Line::Seconds_Of(fields.last());
    if (!imsi || !reference || !number || !status || !time || has_submitted != submitted.has_value())
        return false;
    m_reports.append({*imsi, static_cast<int>(*reference), *number, *time, static_cast<int>(*status), submitted});
    return true;
}

// R <row> <decision and who> <time>
bool Job_Record::Take_Decision(const Job_Line::Fields& fields)
{
    if (fields.size() != 4 || !Job_Line::Seconds_Of(fields[3]))
        return false;
    const int row = Row_In(fields[1]);
    const auto decision = Job_Words::Decision_Of(Job_Line::Text_Of(fields[2]).value_or(QString()));
    if (row == 0 || !decision)
        return false;
    const bool goes_again = *decision == Job_Decision::Send_Again;
    if (!May_Have_Been_Sent(Worst_Of(row)))
        return true;
    Stored_Part* const first = m_parts.data() + m_list->Parts_Before(row);
    for (Stored_Part* part = first; part != first + Parts_Of(row); ++part) {
        const bool is_open =
            part->state == Sending_State::Waiting; // counted with those before it: alone it makes no sense
        if (!May_Have_Been_Sent(part->state) && (goes_again || !is_open))
            continue;
        part->state = goes_again ? Sending_State::Waiting : Sending_State::Accepted;
        part->words = goes_again ? 0 : Text_Index(QString::fromUtf16(Counted_By_A_Person));
        m_has_ended = m_has_ended && !goes_again;
    }
    return true;
}

// Z <time>
bool Job_Record::Take_End(const Job_Line::Fields& fields)
{
    m_has_ended = fields.size() == 2 && Job_Line::Seconds_Of(fields[1]);
    return m_has_ended;
}

// The row that a field names; 0 when the job has none of this number.
int Job_Record::Row_In(QByteArrayView field) const
{
    return static_cast<int>(Job_Line::Number_Of(field, 1, Row_Count()).value_or(0));
}

// The part that the second and third field name; none when the job has no such part.
Job_Record::Stored_Part* Job_Record::Part_In(const Job_Line::Fields& fields)
{
    const int row = fields.size() > 2 ? Row_In(fields[1]) : 0;
    if (row == 0)
        return nullptr;
    const auto part = Job_Line::Number_Of(fields[2], 1, Parts_Of(row));
    return part ? m_parts.data() + m_list->Parts_Before(row) + *part - 1 : nullptr;
}

quint32 Job_Record::Text_Index(const QString& text)
{
    const auto found = m_text_indexes.constFind(text);
    if (found != m_text_indexes.constEnd())
        return *found;
    const auto index = static_cast<quint32>(m_texts.size());
    m_text_indexes.insert(text, index);
    m_texts.append(text);
    return index;
}

QStringList Job_Record::Cards() const
{
    QStringList cards(m_header.imsi);
    QSet<quint32> known{m_text_indexes.value(m_header.imsi)};
    for (const Stored_Part& part : m_parts) {
        if (known.contains(part.card))
            continue;
        known.insert(part.card);
        cards.append(m_texts[part.card]);
    }
    cards.removeAll(QString());
    return cards;
}

Sending_State Job_Record::Worst_Of(int row) const
{
    const bool is_skipped = m_list->Is_Skipped(row) || m_skipped.contains(row);
    auto worst = Parts_Of(row) > 0 ? Sending_State::Accepted : Sending_State::Skipped;
    for (const Stored_Part* part = First_Part_Of(row); part != First_Part_Of(row) + Parts_Of(row); ++part) {
        const bool stays = is_skipped && part->state == Sending_State::Waiting;
        worst = std::max(worst, stays ? Sending_State::Skipped : part->state);
    }
    return worst;
}

Job_Row_State Job_Record::State_Of(int row) const
{
    Job_Row_State state;
    state.state = Worst_Of(row);
    state.parts = Parts_Of(row);
    for (int number = 1; number <= state.parts; ++number) {
        const Job_Part part = Part(row, number);
        const bool was_never_tried = part.tries == 0 && !part.words.isEmpty(); // counted with the others
        state.parts_sent += part.state == Sending_State::Accepted && !was_never_tried;
        state.tries = std::max(state.tries, part.tries);
        if (part.reference >= 0)
            state.references.append(part.reference);
        if (part.state == state.state && state.words.isEmpty())
            state.words = part.words;
    }
    if (state.state == Sending_State::Skipped) {
        const auto reason = m_skipped.constFind(row);
        const auto frozen = reason == m_skipped.constEnd() ? Row(row) : std::nullopt;
        state.words = reason != m_skipped.constEnd() ? m_texts[*reason] : frozen ? frozen->skipped : QString();
    }
    return state;
}

Job_Part Job_Record::Part(int row, int part) const
{
    const Stored_Part& stored = First_Part_Of(row)[part - 1];
    return {stored.state,          m_texts[stored.words], stored.reference,    m_texts[stored.stamp],
            stored.handed_over_at, stored.tries,          m_texts[stored.card]};
}

Job_Counts Job_Record::Counts() const
{
    Job_Counts counts;
    counts.rows = Row_Count();
    for (int row = 1; row <= counts.rows; ++row) {
        const Sending_State state = Worst_Of(row);
        counts.sent += state == Sending_State::Accepted;
        counts.refused += state == Sending_State::Refused;
        counts.unknown += May_Have_Been_Sent(state);
        counts.skipped += state == Sending_State::Skipped;
        counts.not_tried += state == Sending_State::Waiting;
    }
    return counts;
}

int Job_Record::Parts_Waiting() const
{
    int waiting = 0;
    for (int row = 1; row <= Row_Count(); ++row) {
        if (Worst_Of(row) == Sending_State::Waiting)
            waiting += static_cast<int>(
                std::count_if(First_Part_Of(row), First_Part_Of(row) + Parts_Of(row),
                              [](const Stored_Part& part) { return part.state == Sending_State::Waiting; }));
    }
    return waiting;
}
