#include "list/Recipient_List.h"

QString Recipient::Value(QStringView identifier) const
{
    if (identifier == u"Number")
        return Number;
    return identifier == u"Message" ? Message : QString();
}

Recipient_List::Recipient_List() : m_body(new Body) {}

int Recipient_List::Count() const
{
    return m_body->numbers.Count();
}

Recipient Recipient_List::At(int index) const
{
    return {m_body->numbers.At(index), Message_At(index)};
}

const QString& Recipient_List::Message_At(int index) const
{
    return m_body->messages.at(static_cast<std::size_t>(index));
}

void Recipient_List::Append(const QString& number, const QString& message)
{
    m_body->Append(number, message);
}

void Recipient_List::Append(const Packed_Number& number, const QString& message)
{
    m_body->Append(number, message);
}

template <typename Number>
void Recipient_List::Body::Append(const Number& number, const QString& message)
{
    messages.push_back(message);
    try {
        numbers.Append(number);
    } catch (...) { // memory has run out: not one without the other
        messages.pop_back();
        throw;
    }
}

void Recipient_List::Replace(int index, const QString& number, const QString& message)
{
    auto& body = *m_body;
    body.numbers.Replace(index, number);
    body.messages.at(static_cast<std::size_t>(index)) = message;
}

void Recipient_List::Set_Messages(const std::vector<int>& rows, const QString& message)
{
    if (rows.empty())
        return;
    auto& body = *m_body;
    for (const int row : rows)
        body.messages.at(static_cast<std::size_t>(row)) = message;
}

void Recipient_List::Remove_Rows(const std::vector<int>& rows)
{
    if (rows.empty())
        return;
    auto& body = *m_body;
    body.numbers.Remove_Rows(rows);
    Remove_Rows_From(body.messages, rows);
}

void Recipient_List::Clear()
{
    m_body = new Body;
}

int Recipient_List::First_Index_Of(const QString& number) const
{
    return m_body->numbers.Look_Up(number).first_row;
}

int Recipient_List::Count_Of(const QString& number) const
{
    return m_body->numbers.Look_Up(number).count;
}

int Recipient_List::Count_Of(const Packed_Number& number) const
{
    return m_body->numbers.Look_Up(number).count;
}
