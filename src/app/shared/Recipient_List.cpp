#include "app/shared/Recipient_List.h"

#include <algorithm>

namespace {

auto Number_Of(const std::deque<Recipient>& recipients)
{
    return [&recipients](int row) -> const QString& { return recipients[static_cast<std::size_t>(row)].Number; };
}

} // namespace

QString Recipient::Value(QStringView identifier) const
{
    if (identifier == u"Number")
        return Number;
    return identifier == u"Message" ? Message : QString();
}

Recipient_List::Recipient_List() : m_body(new Body) {}

int Recipient_List::Count() const
{
    return static_cast<int>(m_body->recipients.size());
}

const Recipient& Recipient_List::At(int index) const
{
    return m_body->recipients.at(static_cast<std::size_t>(index));
}

void Recipient_List::Append(const QString& number, const QString& message)
{
    auto& body = *m_body;
    // A copy of its own, without the spare room that the number's normalisation left behind.
    body.recipients.push_back({QString(number.constData(), number.size()), message});
    body.index.Add(static_cast<int>(body.recipients.size()) - 1, Number_Of(body.recipients));
}

void Recipient_List::Replace(int index, const QString& number, const QString& message)
{
    auto& body = *m_body;
    Recipient& recipient = body.recipients.at(static_cast<std::size_t>(index));
    const bool is_same_number = recipient.Number == number;
    recipient = {number, message};
    if (!is_same_number)
        body.Rebuild_Index();
}

void Recipient_List::Set_Messages(const std::vector<int>& rows, const QString& message)
{
    if (rows.empty())
        return;
    auto& body = *m_body;
    for (const int row : rows)
        body.recipients.at(static_cast<std::size_t>(row)).Message = message;
}

void Recipient_List::Remove_Rows(const std::vector<int>& rows)
{
    if (rows.empty())
        return;
    auto& body = *m_body;
    auto next_removed = rows.begin();
    auto kept = std::min(static_cast<std::size_t>(rows.front()), body.recipients.size());
    for (std::size_t row = kept; row < body.recipients.size(); ++row) {
        if (next_removed != rows.end() && static_cast<std::size_t>(*next_removed) == row)
            ++next_removed;
        else
            body.recipients[kept++] = std::move(body.recipients[row]);
    }
    body.recipients.resize(kept);
    body.Rebuild_Index();
}

void Recipient_List::Clear()
{
    m_body = new Body;
}

int Recipient_List::First_Index_Of(const QString& number) const
{
    return Look_Up(number).first_row;
}

int Recipient_List::Count_Of(const QString& number) const
{
    return Look_Up(number).count;
}

Number_Index::Entry Recipient_List::Look_Up(const QString& number) const
{
    return m_body->index.Look_Up(number, Number_Of(m_body->recipients));
}

void Recipient_List::Body::Rebuild_Index()
{
    index.Clear();
    for (std::size_t row = 0; row < recipients.size(); ++row)
        index.Add(static_cast<int>(row), Number_Of(recipients));
}
