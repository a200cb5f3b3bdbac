#pragma once

#include "list/Message_Filling.h"
#include "plan/Plan_Manner.h"

#include <vector>

// What a message costs each recipient, added up from its pieces and the bytes of the table: a text is made only where
// its parts cannot be told without it. Made once for all rows that have the message. One thread.
class Text_Measure
{
public:
    /// How large a piece of text is, and what keeps it out of an alphabet or makes its cuts uneven.
    struct Size
    {
        qint64 units = 0; ///< UTF-16
        qint64 septets = 0;
        bool has_extension = false; ///< characters of two septets
        bool has_pairs = false;     ///< surrogates
        bool fits = true;           ///< the default alphabet and its extension

        void Add(const Size& other);
    };
    /// What the text of a row costs.
    struct Cost
    {
        qint64 units = 0;
        int parts = -1; ///< -1 where only the text itself can tell
        bool is_unicode = false;
        Message_Filling::Becomes fault = Message_Filling::Becomes::Its_Text; ///< or Empty or Unknown
    };

    Text_Measure(Message_Filling filling, const Plan_Manner& manner);

    const Message_Filling& Filling() const { return m_filling; }
    /// Whether it costs every row the same.
    bool Is_One_For_All() const { return m_is_one_for_all; }
    /// For the row of the filling's table; -1 is a recipient without values.
    Cost Cost_For(const Contact_Table& table, int row) const;
    /// The characters of the row's text that the default alphabet lacks, each once, in no order.
    std::vector<char32_t> Outsiders(const Contact_Table& table, int row) const;

private:
    struct Piece_Sizes
    {
        Size text;
        Size fallback;
    };

    int Parts_Of(const Size& size, bool is_unicode) const;

    Message_Filling m_filling;
    Plan_Manner m_manner;
    std::vector<Piece_Sizes> m_sizes; // of the filling's pieces
    bool m_is_one_for_all = true;
    Cost m_for_all;
};
