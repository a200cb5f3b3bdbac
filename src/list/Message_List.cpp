#include "list/Message_List.h"

#include "list/Indexed_Numbers.h"
#include "platform/Large_Pages.h"

namespace {

bool Are_The_Same(const QString& one, const QString& other)
{
    return one.size() == other.size() && (one.constData() == other.constData() || one == other);
}

} // namespace

void Message_List::Expect(std::size_t more)
{
    Make_Room_In(m_rows, more);
}

void Message_List::Append(const QString& message, std::size_t count)
{
    Make_Room_In(m_rows, count);
    const std::uint32_t place = Place_Of(message);
    m_rows.insert(m_rows.end(), count, place);
    m_texts[place].rows += count;
}

void Message_List::Remove_Last(std::size_t count)
{
    for (; count > 0; --count) {
        Let_Go_Of(m_rows.back());
        m_rows.pop_back();
    }
}

// The message may be the very one that is replaced.
void Message_List::Replace(int index, const QString& message)
{
    std::uint32_t& row = m_rows.at(static_cast<std::size_t>(index));
    const std::uint32_t place = Place_Of(message);
    ++m_texts[place].rows;
    Let_Go_Of(row);
    row = place;
}

void Message_List::Remove_Rows(const std::vector<int>& rows)
{
    for (const int row : rows)
        if (static_cast<std::size_t>(row) < m_rows.size())
            Let_Go_Of(m_rows[static_cast<std::size_t>(row)]);
    Remove_Rows_From(m_rows, rows);
    if (m_rows.empty())
        *this = {};
}

// Only the text that was given last is looked at: others are as seldom the same as they are many. Whoever asks gives
// the text to a row.
std::uint32_t Message_List::Place_Of(const QString& message)
{
    if (m_last_given != None && m_texts[m_last_given].rows > 0 && Are_The_Same(m_texts[m_last_given].message, message))
        return m_last_given;
    if (m_first_free == None) {
        m_texts.push_back({message});
        m_last_given = static_cast<std::uint32_t>(m_texts.size() - 1);
    } else {
        m_last_given = m_first_free;
        m_first_free = m_texts[m_last_given].next_free;
        m_texts[m_last_given].message = message;
    }
    return m_last_given;
}

void Message_List::Let_Go_Of(std::uint32_t place)
{
    Text& text = m_texts[place];
    if (--text.rows > 0)
        return;
    text.message.clear();
    text.next_free = m_first_free;
    m_first_free = place;
}
