#include "list/Recipient_List.h"

#include <algorithm>

QString Recipient::Value(QStringView identifier) const
{
    if (identifier == u"Number")
        return Number;
    return identifier == u"Message" ? Message : QString();
}

Recipient_List::Recipient_List() : m_messages(new Messages) {}

void Recipient_List::Expect(int more)
{
    m_messages->list.Expect(static_cast<std::size_t>(more));
    m_numbers.Expect(static_cast<std::size_t>(more));
}

void Recipient_List::Append(const QString& number, const QString& message)
{
    Append_Numbers(number, 1, message);
}

void Recipient_List::Append(const Packed_Number& number, const QString& message)
{
    Append_Numbers(number, 1, message);
}

template <typename Given>
void Recipient_List::Append_Numbers(const Given& numbers, std::size_t count, const QString& message)
{
    m_messages->list.Append(message, count);
    try {
        m_numbers.Append(numbers);
    } catch (...) { // out of memory: neither may stay without the other
        m_messages->list.Remove_Last(count);
        throw;
    }
}

template <typename Number>
void Recipient_List::Append_From_Table(const Number& number, const QString& message,
                                       const std::shared_ptr<const Contact_Table>& table, int table_row)
{
    Append_Rows(number, message, table, {&table_row, 1});
}

void Recipient_List::Append_From_Table(std::span<const Packed_Number> numbers, const QString& message,
                                       const std::shared_ptr<const Contact_Table>& table,
                                       std::span<const int> table_rows)
{
    if (!numbers.empty())
        Append_Rows(numbers, message, table, table_rows);
}

template <typename Given>
void Recipient_List::Append_Rows(const Given& numbers, const QString& message,
                                 const std::shared_ptr<const Contact_Table>& table, std::span<const int> table_rows)
{
    const bool has_fields = Has_Fields();
    try {
        if (!has_fields) {
            m_fields = new Recipient_Fields;
            m_fields->Expect(std::as_const(*m_messages).list.Room()); // as many as of the rest
        }
        m_fields->Set(Count(), table, table_rows);
        Append_Numbers(numbers, table_rows.size(), message);
    } catch (...) { // out of memory: nobody's fields may wait for the next recipient
        if (has_fields)
            m_fields->Forget_From(Count());
        else
            m_fields.reset();
        throw;
    }
}

template void Recipient_List::Append_From_Table(const QString&, const QString&,
                                                const std::shared_ptr<const Contact_Table>&, int);
template void Recipient_List::Append_From_Table(const Packed_Number&, const QString&,
                                                const std::shared_ptr<const Contact_Table>&, int);

void Recipient_List::Replace(int index, const QString& number, const QString& message)
{
    if (m_marks && (Message_At(index) != message || m_numbers.At(index) != number))
        Forget_Mark(index);
    m_numbers.Replace(index, number);
    m_messages->list.Replace(index, message);
}

void Recipient_List::Set_Messages(const std::vector<int>& rows, const QString& message)
{
    if (rows.empty())
        return;
    Message_List& messages = m_messages->list;
    for (const int row : rows) {
        if (m_marks && messages.At(row) != message)
            Forget_Mark(row);
        messages.Replace(row, message);
    }
}

void Recipient_List::Remove_Rows(const std::vector<int>& rows)
{
    if (rows.empty())
        return;
    m_numbers.Remove_Rows(rows);
    m_messages->list.Remove_Rows(rows);
    if (m_marks)
        Remove_Rows_From(*m_marks, rows);
    if (m_fields && !m_fields->Remove_Rows(rows))
        m_fields.reset();
    if (Count() == 0)
        m_marks.reset();
}

Filled_Message Recipient_List::Text_At(int index) const
{
    if (!Has_Fields())
        return {Message_At(index)};
    const Recipient_Fields::Place place = m_fields->At(index);
    const Contact_Table no_values;
    const Contact_Table& table = place.table ? *place.table : no_values;
    return Message_Filling(Message_At(index), table).For_Row(table, place.row);
}

void Recipient_List::Set_Marks(int first, const QByteArray& marks)
{
    if (!m_marks)
        return;
    const auto missing = first + marks.size() - m_marks->size();
    if (missing > 0)
        m_marks->append(missing, '\0');
    std::copy(marks.begin(), marks.end(), m_marks->begin() + first);
}

void Recipient_List::Forget_Mark(int index)
{
    if (index < m_marks->size())
        (*m_marks)[index] = '\0';
}
