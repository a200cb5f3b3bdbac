#include "list/Sheet_Row.h"

bool Sheet_Row::Put(int column, std::string_view text)
{
    if (text.empty())
        return true;
    if (column < static_cast<int>(m_ends.size()) || column >= Table_Builder::Most_Columns)
        return false;
    m_ends.resize(static_cast<std::size_t>(column), m_text.size());
    m_text += text;
    m_ends.push_back(m_text.size());
    return true;
}

void Sheet_Row::Send_To(Table_Builder& builder, int source_row, int times)
{
    for (int i = 0; i < times && !m_ends.empty(); ++i) {
        std::size_t begin = 0;
        for (const std::size_t end : m_ends) {
            builder.Add_Field({m_text.data() + begin, static_cast<qsizetype>(end - begin)});
            begin = end;
        }
        if (!builder.End_Row(source_row + i))
            break;
    }
    m_text.clear();
    m_ends.clear();
}
