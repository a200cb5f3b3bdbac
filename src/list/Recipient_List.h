#pragma once

#include "list/Message_Filling.h"
#include "list/Message_List.h"
#include "list/Number_List.h"
#include "list/Recipient_Fields.h"

#include <QByteArray>
#include <QString>
#include <optional>
#include <span>
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
// A recipient from a table keeps the fields of its row, whatever becomes of its number and its message.
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
    const QString& Message_At(int index) const { return m_messages->list.At(index); }
    void Append(const QString& number, const QString& message);
    /// The same for a number that consists of digits alone.
    void Append(const Packed_Number& number, const QString& message);
    /// The same for a recipient from the row of a table, which stays as long as there is anybody from it. A Number is a
    /// text or a Packed_Number.
    template <typename Number>
    void Append_From_Table(const Number& number, const QString& message,
                           const std::shared_ptr<const Contact_Table>& table, int table_row);
    /// The same for many rows and as many numbers, which consist of digits alone. Quicker than one by one: some
    /// thousand at a time are best.
    void Append_From_Table(std::span<const Packed_Number> numbers, const QString& message,
                           const std::shared_ptr<const Contact_Table>& table, std::span<const int> table_rows);
    /// Makes room for so many more, where it is known how many will come; sooner for too many than step by step.
    void Expect(int more);
    /// Replaces the recipient at an index from 0 to Count() - 1.
    void Replace(int index, const QString& number, const QString& message);
    /// Gives the recipients at the indexes, each from 0 to Count() - 1, the same message; each keeps its number.
    void Set_Messages(const std::vector<int>& rows, const QString& message);
    /// Removes the rows of a sorted list of distinct indexes in one pass.
    void Remove_Rows(const std::vector<int>& rows);
    void Clear() { *this = {}; }

    // Fields: of recipients from tables, by the names of the tables' columns.

    /// Whether anybody has fields. Only then are there placeholders in messages.
    bool Has_Fields() const { return m_fields.constData() != nullptr; }
    /// The names of all fields, in the order in which they came.
    QStringList Field_Names() const { return Has_Fields() ? m_fields->Names() : QStringList(); }
    /// A field of the recipient at an index from 0 to Count() - 1, by the index of its name; empty for none.
    QString Field_At(int index, int name_index) const
    {
        return Has_Fields() ? m_fields->Field_At(index, name_index) : QString();
    }
    /// The table and the row in it that the recipient at an index is from; null for one without fields.
    std::shared_ptr<const Contact_Table> Table_At(int index) const
    {
        return Has_Fields() ? m_fields->Table_At(index) : nullptr;
    }
    int Table_Row_At(int index) const { return Has_Fields() ? m_fields->At(index).row : -1; }
    /// The message as it will be sent, its placeholders filled; in a list without fields exactly as it was given.
    Filled_Message Text_At(int index) const;

    // A mark is a byte that the list keeps for a recipient, whatever it means to others. It follows its recipient until
    // that is changed: then it is 0 again.

    /// Gives each recipient the mark 0; from now on there are marks, and a byte is taken for each. Without marks none
    /// is.
    void Begin_Marks() { m_marks = QByteArray(Count(), '\0'); }
    void Forget_Marks() { m_marks.reset(); }
    bool Has_Marks() const { return m_marks.has_value(); }
    /// The mark of the recipient at an index from 0 to Count() - 1; 0 without marks.
    quint8 Mark_At(int index) const
    {
        return m_marks && index < m_marks->size() ? static_cast<quint8>(m_marks->at(index)) : 0;
    }
    /// Sets the marks of as many recipients from an index on, all of them in the list, if there are marks.
    void Set_Marks(int first, const QByteArray& marks);

private:
    struct Messages : QSharedData
    {
        Message_List list;
    };

    template <typename Given>
    void Append_Numbers(const Given& numbers, std::size_t count, const QString& message);
    template <typename Given>
    void Append_Rows(const Given& numbers, const QString& message, const std::shared_ptr<const Contact_Table>& table,
                     std::span<const int> table_rows);
    void Forget_Mark(int index);

    Number_List m_numbers;
    QSharedDataPointer<Messages> m_messages;       // one for each number
    std::optional<QByteArray> m_marks;             // of the first recipients; all others have 0
    QSharedDataPointer<Recipient_Fields> m_fields; // null while nobody has any
};
