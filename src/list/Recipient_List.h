#pragma once

#include "list/Number_List.h"

#include <QString>
#include <deque>
#include <vector>

// One recipient: the normalised number, never empty, and the message kept exactly as given.
struct Recipient
{
    QString Number;
    QString Message;

    /// The value for a table column's identifier, "Number" or "Message"; an empty text for any other.
    QString Value(QStringView identifier) const;
};

// The ordered list of recipients: the order of insertion is the order of sending. Made for a million rows: a number is
// stored packed, and a message shared by many rows only once. A copy costs nothing until one of the two changes, which
// is how a worker takes its snapshot. The list itself is owned by the main window and belongs to the interface thread.
class Recipient_List
{
public:
    Recipient_List();

    int Count() const { return m_numbers.Count(); }
    /// The numbers alone, in the same order.
    const Number_List& Numbers() const { return m_numbers; }
    /// The recipient at an index from 0 to Count() - 1.
    Recipient At(int index) const { return {m_numbers.At(index), Message_At(index)}; }
    /// Only the message of the recipient at an index from 0 to Count() - 1.
    const QString& Message_At(int index) const { return m_messages->texts.at(static_cast<std::size_t>(index)); }
    void Append(const QString& number, const QString& message);
    /// The same for a number that consists of digits alone.
    void Append(const Packed_Number& number, const QString& message);
    /// Replaces the recipient at an index from 0 to Count() - 1.
    void Replace(int index, const QString& number, const QString& message);
    /// Gives the recipients at the indexes, each from 0 to Count() - 1, the same message; each keeps its number.
    void Set_Messages(const std::vector<int>& rows, const QString& message);
    /// Removes the rows of a sorted list of distinct indexes in one pass.
    void Remove_Rows(const std::vector<int>& rows);
    void Clear() { *this = {}; }

private:
    struct Messages : QSharedData
    {
        std::deque<QString> texts;
    };

    template <typename Number>
    void Append_Number(const Number& number, const QString& message);

    Number_List m_numbers;
    QSharedDataPointer<Messages> m_messages; // one for each number
};
