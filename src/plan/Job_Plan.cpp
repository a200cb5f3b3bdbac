#include "plan/Job_Plan.h"

#include "engine/Composer_Rules.h"
#include "plan/Row_Judge.h"
#include "texts/Plan_Texts.h"
#include "texts/Table_Texts.h"

#include <algorithm>

namespace {

constexpr std::size_t Rows_At_A_Time = 1024;

QString Sentence(QString clause)
{
    if (clause.isEmpty())
        return clause;
    clause[0] = clause[0].toUpper();
    return clause + u'.';
}

} // namespace

QString Job_Plan::Written_Number(int row) const
{
    if (const auto put_right = m_written.constFind(row); put_right != m_written.cend())
        return *put_right;
    return Is_Of_List() ? m_list.Numbers().At(row) : m_table->Field(row, m_number_column);
}

QString Job_Plan::Number_Of(int row) const
{
    return Is_Usable(row) ? Number_Read(row) : QString();
}

QString Job_Plan::Reason_Of(int row) const
{
    return Sentence(Clause_For(row));
}

Filled_Message Job_Plan::Fault_Of(int row) const
{
    Filled_Message filled = Filled_At(row);
    filled.fault.clear();
    if (const auto verdict = Verdict_Of(row); verdict == Row_Verdict::Empty_Field ||
                                              verdict == Row_Verdict::Unknown_Field || verdict == Row_Verdict::Too_Long)
        filled.fault = Skip_Word_For(verdict);
    return filled;
}

Planned_Row Job_Plan::At(int row) const
{
    return {row + 1, Shown_Number(row), Text_Of(row), Skip_Word_For(Verdict_Of(row)), Note_For(row)};
}

Plan_Sums Job_Plan::Sums() const
{
    Plan_Counter counter;
    for (int row = 0; row < Count(); ++row)
        counter.Add(row, Verdict_Of(row), Parts_Of(row), Is_Unicode(row));
    Plan_Sums sums = counter.Sums(m_terms.manner);
    for (auto cause = m_causes.cbegin(); cause != m_causes.cend(); ++cause)
        sums.causes.push_back({cause.key(), cause.value()});
    std::sort(sums.causes.begin(), sums.causes.end(), [](const Unicode_Cause& one, const Unicode_Cause& other) {
        return one.rows != other.rows ? one.rows > other.rows : one.character < other.character;
    });
    sums.causes.resize(std::min(sums.causes.size(), Plan_Sums::Most_Causes));
    return sums;
}

void Job_Plan::Add_To(Recipient_List& recipients, const QString& message) const
{
    const auto add = [&](int row, const auto& number) {
        if (Has_Fields())
            recipients.Append_From_Table(number, message, m_table, row);
        else if (const auto table = m_list.Has_Fields() ? m_list.Table_At(row) : nullptr)
            recipients.Append_From_Table(number, message, table, m_list.Table_Row_At(row));
        else
            recipients.Append(number, message);
    };
    std::vector<Packed_Number> numbers; // of the rows that are added together
    std::vector<int> rows;
    const auto add_gathered = [&] {
        recipients.Append_From_Table(numbers, message, m_table, rows);
        numbers.clear();
        rows.clear();
    };
    recipients.Expect(Count());
    for (int row = 0; row < Count(); ++row) {
        if (Verdict_Of(row) != Row_Verdict::Send)
            continue;
        const Packed_Number& packed = Entry_At(row).number;
        if (Has_Fields() && !packed.Is_Empty()) {
            numbers.push_back(packed);
            rows.push_back(row);
            if (rows.size() == Rows_At_A_Time)
                add_gathered();
            continue;
        }
        add_gathered();
        if (!packed.Is_Empty())
            add(row, packed);
        else
            add(row, Number_Read(row));
    }
    add_gathered();
}

// ---------------------------------------------------------------------------------------------------------- numbers

Read_Number Job_Plan::Reading_Of(int row) const
{
    if (Is_Of_List() && !m_written.contains(row))
        return {Written_Number(row), Number_Reading::As_Written};
    return Number_Of_Input(Written_Number(row), m_terms.numbers, m_terms.country);
}

// Mostly there is nothing to be made of it.
Packed_Number Job_Plan::Packed_At(int row) const
{
    if (!Is_Of_List() && m_terms.numbers == Plan_Numbers::In_A_Table && !m_terms.country && !m_written.contains(row))
        if (const auto plain = Plain_Number_In(m_table->Bytes_At(row, m_number_column)))
            return *plain;
    return Packed_Number::Of(Reading_Of(row).number).value_or(Packed_Number());
}

QString Job_Plan::Number_Read(int row) const
{
    const Packed_Number& packed = Entry_At(row).number;
    return packed.Is_Empty() ? Reading_Of(row).number : packed.Digits();
}

QString Job_Plan::Shown_Number(int row) const
{
    const QString number = Number_Read(row);
    return number.isEmpty() ? Shown_In_Place_Of_A_Number(Written_Number(row)) : number;
}

// With fixed waits a job hands over whatever its list holds.
bool Job_Plan::Is_Usable(int row) const
{
    if (Is_Of_List() && m_terms.manner.fixed_waits && !m_terms.judges_numbers && !m_written.contains(row))
        return true;
    const Packed_Number& packed = Entry_At(row).number;
    return packed.Is_Empty() ? Can_Be_Dialled(Number_Read(row)) : Can_Be_Dialled(packed);
}

// ------------------------------------------------------------------------------------------------------------ words

QString Job_Plan::Note_For(int row) const
{
    if (Verdict_Of(row) == Row_Verdict::Wrong_Columns)
        return m_table->Words_For_Trouble(row);
    return Words_For_Reading(Reading_Of(row).reading, m_terms.country);
}

QString Job_Plan::Clause_For(int row) const
{
    switch (Verdict_Of(row)) {
    case Row_Verdict::Duplicate:
        return m_terms.present.Contains(Number_Read(row)) ? Texts::Plan::Present : Texts::Plan::Duplicate;
    case Row_Verdict::Excluded:
        return Texts::Plan::Excluded;
    case Row_Verdict::Invalid_Number:
        if (const QString note = Note_For(row); !note.isEmpty())
            return note;
        return Texts::Table::Not_A_Number;
    case Row_Verdict::Empty_Field:
    case Row_Verdict::Unknown_Field:
    case Row_Verdict::Too_Long:
        return Words_For_Fault(Fault_Of(row));
    case Row_Verdict::Send:
    case Row_Verdict::Wrong_Columns:
        break;
    }
    return Note_For(row);
}

Filled_Message Job_Plan::Filled_At(int row) const
{
    if (Is_Of_List() && !m_list.Has_Fields())
        return {Composer_Rules::Cut_To_Limit(m_list.Message_At(row))};
    if (Is_Of_List())
        return m_list.Text_At(row);
    return Has_Fields() ? m_filling->For_Row(*m_table, row) : m_filling->Without_Values();
}

// --------------------------------------------------------------------------------------------------------- verdicts

void Job_Plan::Take_Message_Of(int row, Row_Judge& judge) const
{
    static const Contact_Table no_values;
    if (!Is_Of_List())
        judge.Take_Message(m_message, Has_Fields() ? m_table.get() : &no_values);
    else if (!m_list.Has_Fields())
        judge.Take_Message(m_list.Message_At(row).left(Composer_Rules::Most_Characters), nullptr);
    else if (const Contact_Table* const table = m_list.Table_At(row).get())
        judge.Take_Message(m_list.Message_At(row), table);
    else
        judge.Take_Message(m_list.Message_At(row), &no_values);
}

int Job_Plan::Row_For_Filling(int row) const
{
    if (Is_Of_List())
        return m_list.Table_Row_At(row);
    return Has_Fields() ? row : -1;
}

// All but what hangs on other rows. The number has been read.
void Job_Plan::Judge(int row, Row_Judge& judge)
{
    Take_Message_Of(row, judge);
    const Judged_Text text = judge.Judge(Row_For_Filling(row), [&] { return Shown_Number(row); });
    Entry& entry = Entry_At(row);
    entry.is_unicode = text.is_unicode;
    entry.parts = text.parts;
    const bool is_usable = Is_Usable(row);
    if (!is_usable && !m_terms.manner.fixed_waits && !Can_Be_Dialled(Shown_Number(row)))
        entry.parts = 0; // there is no frame to speak of
    const auto is_excluded = [&] {
        return m_terms.excluded.Count() > 0 && (entry.number.Is_Empty() ? m_terms.excluded.Contains(Number_Read(row))
                                                                        : m_terms.excluded.Contains(entry.number));
    };
    if (!Is_Of_List() && m_table->Trouble_Of(row) != Contact_Table::Row_Trouble::None)
        entry.verdict = Row_Verdict::Wrong_Columns;
    else if (!is_usable)
        entry.verdict = Row_Verdict::Invalid_Number;
    else
        entry.verdict = is_excluded() ? Row_Verdict::Excluded : text.verdict;
}

// Of the row whose message the judge has, when it joins those that are to be sent, or leaves them.
void Job_Plan::Count_Causes(int row, const Row_Judge& judge, int by)
{
    const Plan_Manner& manner = m_terms.manner;
    if (!Is_Unicode(row) || manner.fixed_waits || manner.alphabet != Job_Alphabet_Choice::Auto)
        return;
    for (const char32_t character : judge.Causes(Row_For_Filling(row))) {
        int& rows = m_causes[character];
        rows += by;
        if (rows == 0)
            m_causes.remove(character);
    }
}

bool Job_Plan::Set_Number(int row, const QString& written)
{
    if (Is_Of_List() && !Can_Be_Dialled(Number_Of_Input(written, m_terms.numbers, m_terms.country).number))
        return false;
    Row_Judge judge(m_terms.manner);
    const QString before = Number_Read(row);
    const bool was_to_be_sent = Verdict_Of(row) == Row_Verdict::Send;
    Take_Message_Of(row, judge);
    if (was_to_be_sent)
        Count_Causes(row, judge, -1);
    m_written.insert(row, written);
    Entry_At(row).number = Packed_At(row);
    Judge(row, judge);
    const bool is_to_be_sent = Verdict_Of(row) == Row_Verdict::Send;
    if (is_to_be_sent && m_terms.skip_duplicates)
        Entry_At(row).verdict = Row_Verdict::Duplicate; // as long as nobody has looked at the others
    else if (is_to_be_sent)
        Count_Causes(row, judge, 1);
    if (m_terms.skip_duplicates) {
        Settle_Equals(before, judge);
        Settle_Equals(Number_Read(row), judge);
    }
    return true;
}

// Of the rows with a number that could be sent, the first is.
void Job_Plan::Settle_Equals(const QString& number, Row_Judge& judge)
{
    if (number.isEmpty())
        return;
    const auto packed = Packed_Number::Of(number);
    bool is_taken = m_terms.present.Contains(number);
    for (int row = 0; row < Count(); ++row) {
        Entry& entry = Entry_At(row);
        const bool could_be_sent = entry.verdict == Row_Verdict::Send || entry.verdict == Row_Verdict::Duplicate;
        if (!could_be_sent || (packed ? entry.number != *packed : Number_Read(row) != number))
            continue;
        const auto verdict = is_taken ? Row_Verdict::Duplicate : Row_Verdict::Send;
        is_taken = true;
        if (verdict == entry.verdict)
            continue;
        entry.verdict = verdict;
        Take_Message_Of(row, judge);
        Count_Causes(row, judge, verdict == Row_Verdict::Send ? 1 : -1);
    }
}
