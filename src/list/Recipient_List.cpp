#include "list/Recipient_List.h"

QString Recipient::Value(QStringView identifier) const
{
    if (identifier == u"Number")
        return Number;
    return identifier == u"Message" ? Message : QString();
}

Recipient_List::Recipient_List() : m_messages(new Messages) {}

void Recipient_List::Append(const QString& number, const QString& message)
{
    Append_Number(number, message);
}

void Recipient_List::Append(const Packed_Number& number, const QString& message)
{
    Append_Number(number, message);
}

template <typename Number>
void Recipient_List::Append_Number(const Number& number, const QString& message)
{
    auto& texts = m_messages->texts;
    texts.push_back(message);
    try {
        m_numbers.Append(number);
    } catch (...) { // out of memory: neither may stay without the other
        texts.pop_back();
        throw;
    }
}

void Recipient_List::Replace(int index, const QString& number, const QString& message)
{
    m_numbers.Replace(index, number);
    m_messages->texts.at(static_cast<std::size_t>(index)) = message;
}

void Recipient_List::Set_Messages(const std::vector<int>& rows, const QString& message)
{
    if (rows.empty())
        return;
    auto& texts = m_messages->texts;
    for (const int row : rows)
        texts.at(static_cast<std::size_t>(row)) = message;
}

void Recipient_List::Remove_Rows(const std::vector<int>& rows)
{
    if (rows.empty())
        return;
    m_numbers.Remove_Rows(rows);
    Remove_Rows_From(m_messages->texts, rows);
}
