#pragma once

#include "list/Contact_Table.h"

#include <QString>
#include <vector>

// The placeholders in a message: {{Column}} and {{Column|fallback}}, which stand for a recipient's own values, and
// {{{{, which is a literal {{. What is not closed is no placeholder. A fallback is taken where the recipient has no
// such value, or a blank one; an empty fallback allows that. Any thread.

/// A message as one recipient gets it.
struct Filled_Message
{
    QString text;
    QString fault = {};       ///< one of Skip_Words: a placeholder that stands for nothing stays in the text as it is
    QString placeholder = {}; ///< of the fault, as it is written
};

/// The fault in words, "{{Name}} is empty"; empty for none.
QString Words_For_Fault(const Filled_Message& filled);

/// A message, taken apart once for all rows of a table. A value.
class Message_Filling
{
public:
    /// A stretch of the message.
    struct Piece
    {
        QString text; ///< a literal; or the placeholder as it is written
        bool is_placeholder = false;
        int column = -1; ///< -1 for none of this name, or several
        bool has_fallback = false;
        QString fallback;
    };
    /// What a piece becomes for a recipient.
    enum class Becomes
    {
        Its_Text,
        Value,
        Fallback,
        Empty,  ///< a fault
        Unknown ///< a fault, too
    };
    struct Given
    {
        Becomes what = Becomes::Its_Text;
        QByteArrayView value = {}; ///< in UTF-8; as long as the table
    };

    /// For recipients with the values of a table, or, without columns, with none.
    explicit Message_Filling(const QString& message, const Contact_Table& table = {});

    /// A message in which braces mean nothing.
    static Message_Filling As_It_Is(const QString& message);

    /// A placeholder that two columns could be meant by, which therefore stands for nothing; empty for none.
    QString Ambiguous() const { return m_ambiguous; }
    const std::vector<Piece>& Pieces() const { return m_pieces; }
    /// What one of the pieces becomes for the row of the same table; -1 is a recipient without values.
    static Given Given_By(const Piece& piece, const Contact_Table& table, int row);
    /// For the row of the same table, or for a recipient without values.
    Filled_Message For_Row(const Contact_Table& table, int row) const;
    /// The same into a message that was filled before, whose memory is used again.
    void Fill(Filled_Message& filled, const Contact_Table& table, int row) const;
    Filled_Message Without_Values() const { return For_Row({}, -1); }

private:
    void Add_Literal(QStringView text);
    void Add_Placeholder(QStringView written, const Contact_Table& table);

    std::vector<Piece> m_pieces;
    QString m_ambiguous;
};
