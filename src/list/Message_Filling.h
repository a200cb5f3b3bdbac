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
    QString fault; ///< one of Skip_Words: a placeholder that stands for nothing stays in the text as it is
};

/// A message, taken apart once for all rows of a table. A value.
class Message_Filling
{
public:
    /// For recipients with the values of a table, or, without columns, with none.
    explicit Message_Filling(const QString& message, const Contact_Table& table = {});

    /// A placeholder that two columns could be meant by; empty for none.
    QString Ambiguous() const { return m_ambiguous; }
    /// For the row of the same table, or for a recipient without values.
    Filled_Message For_Row(const Contact_Table& table, int row) const;
    Filled_Message Without_Values() const { return For_Row({}, -1); }

private:
    struct Piece
    {
        QString text; ///< a literal; or the placeholder as it is written
        bool is_placeholder = false;
        int column = -1; ///< -1 for none of this name
        bool has_fallback = false;
        QString fallback;
    };

    void Add_Literal(QStringView text);
    void Add_Placeholder(QStringView written, const Contact_Table& table);

    std::vector<Piece> m_pieces;
    QString m_ambiguous;
};
