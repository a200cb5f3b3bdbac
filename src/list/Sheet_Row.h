#pragma once

#include "list/Table_Builder.h"

#include <string_view>

// One row of a spreadsheet while it is read: its cells by their columns. What is empty at its end is left out. Owned by
// a reader; its thread.
class Sheet_Row
{
public:
    /// Puts a text in a column, counted from 0 and after those before; an empty one may be anywhere. Answers no for a
    /// column that is no later, or that no spreadsheet has.
    bool Put(int column, std::string_view text);
    /// Adds it to a table as many times as it stands there, and empties it.
    void Send_To(Table_Builder& builder, int source_row, int times = 1);
    bool Is_Empty() const { return m_ends.empty(); }

private:
    std::string m_text;
    std::vector<std::size_t> m_ends;
};
