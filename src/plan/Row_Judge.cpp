#include "plan/Row_Judge.h"

#include "engine/Composer_Rules.h"
#include "list/Packed_Number.h"
#include "plan/Row_Preview.h"

#include <algorithm>
#include <limits>

using Becomes = Message_Filling::Becomes;

void Row_Judge::Take_Message(const QString& message, const Contact_Table* table)
{
    static const Contact_Table no_values;
    const bool is_the_same = m_measure && m_asked_table == table && message.size() == m_message.size() &&
                             (message.constData() == m_message.constData() || message == m_message);
    if (is_the_same)
        return;
    m_message = message;
    m_asked_table = table;
    m_table = table ? table : &no_values;
    m_measure = std::make_unique<Text_Measure>(
        table ? Message_Filling(message, *table) : Message_Filling::As_It_Is(message), m_manner);
    m_parts_by_digits.clear();
}

int Row_Judge::Parts_With_Frame(int row, const QString& number)
{
    const bool is_remembered = m_measure->Is_One_For_All() && Packed_Number::Of(number);
    const auto known = is_remembered ? m_parts_by_digits.constFind(number.size()) : m_parts_by_digits.cend();
    if (known != m_parts_by_digits.cend())
        return *known;
    const int parts = Parts_Of_Row({1, number, m_measure->Filling().For_Row(*m_table, row).text, {}}, m_manner);
    if (is_remembered)
        m_parts_by_digits.insert(number.size(), parts);
    return parts;
}

// A message that was empty before anything was filled in is one that somebody is still to write.
Judged_Text Row_Judge::Judged(const Text_Measure::Cost& cost) const
{
    Judged_Text judged;
    judged.parts = static_cast<quint16>(std::min<int>(cost.parts, std::numeric_limits<quint16>::max()));
    judged.is_unicode = cost.is_unicode;
    if (cost.fault == Becomes::Unknown)
        judged.verdict = Row_Verdict::Unknown_Field;
    else if (cost.fault == Becomes::Empty || (cost.units == 0 && !m_message.isEmpty()))
        judged.verdict = Row_Verdict::Empty_Field;
    else if (cost.units > Composer_Rules::Most_Characters)
        judged.verdict = Row_Verdict::Too_Long;
    return judged;
}
