#pragma once

#include "list/Contact_Table.h"

#include <cstring>
#include <span>

// Takes a table's fields one by one from whatever reads its file. The first row with any text in it names the columns,
// unless names are missing: then they are numbered. Rows without any text are left out, if nobody wants them. Lives for
// one file, on its reader's thread.
class Table_Builder
{
public:
    static constexpr int Most_Columns = 16384; ///< as many as a spreadsheet has
    static constexpr std::size_t Most_Fields = 32'000'000;
    static constexpr std::size_t Most_Bytes = std::size_t{1} << 30; // far fewer than a place can tell apart

    enum class Blank_Rows : std::uint8_t
    {
        Left_Out,
        Kept ///< also that of the names
    };

    /// Makes room for so many bytes of text that is added.
    explicit Table_Builder(qsizetype expected_bytes = 0, bool has_names = true,
                           Blank_Rows blank_rows = Blank_Rows::Left_Out);

    // Fields either are added, or they are slices of one text that the table keeps.

    /// Adds a field in UTF-8 to the row.
    void Add_Field(QByteArrayView utf8);

    /// Keeps a text in UTF-8, to be called first, and shows it. What is passed over in it changes.
    QByteArrayView Keep(QByteArray text);
    /// The next row begins here in the text. Rows, fields and pieces are named from its begin to its end.
    void Begin_Row(const char* begin)
    {
        m_fill = begin - m_begin;
        m_table.m_places.back() = static_cast<std::uint32_t>(m_fill);
    }
    /// The row's next fields are these stretches of the text, from a place on, with a byte between two. A byte, or the
    /// end of the text, follows the last.
    void Keep_Fields(const char* begin, std::span<const char* const> ends)
    {
        if (ends.empty())
            return;
        const char* const base = begin - m_fill; // as long as nothing was passed over in the row, that of the text
        Keep_Piece(begin, ends.back());
        ++m_fill;
        const qsizetype first = m_table.m_places.size();
        m_table.m_places.resize(first + static_cast<qsizetype>(ends.size()));
        std::uint32_t* places = m_table.m_places.data() + first;
        for (const char* end : ends)
            *places++ = static_cast<std::uint32_t>(end - base);
    }
    /// The same in pieces: the row's next field is what was kept until End_Field.
    void Keep_Piece(const char* begin, const char* end)
    {
        if (begin != m_begin + m_fill)
            std::memmove(m_begin + m_fill, begin, static_cast<std::size_t>(end - begin));
        m_fill += end - begin;
    }
    void End_Field() { m_table.m_places.push_back(static_cast<std::uint32_t>(m_fill++)); }
    /// Ends the row, which began at this line or row of its file. Answers no when nothing more can be taken: the rest
    /// of the file need not be read.
    bool End_Row(int source_row, bool has_stray_quote = false);

    /// How many fields the row has so far.
    int Fields_In_Row() const { return static_cast<int>(m_table.m_places.size() - m_first_place - 1); }
    int Row_Count() const { return m_table.Row_Count(); }
    bool Has_Columns() const { return m_has_columns; }
    bool Is_Full() const { return m_is_full || !m_trouble.isEmpty(); }

    /// Why the table cannot be used; empty when it can.
    QString Trouble() const;
    Contact_Table Take();

private:
    QByteArrayView Field_In_Row(int column) const;
    bool Begins_With_Text() const;
    bool Is_Blank() const;
    void Make_Room(qsizetype bytes);
    void Make_Room_By_Sample();
    void Forget_Row();
    void Add_Column(const QString& name);
    void Name_Columns();
    void Number_Columns();

    Contact_Table m_table;
    char* m_begin = nullptr; // of the table's text, all of which is room
    qsizetype m_fill = 0;    // how far it is filled
    Blank_Rows m_blank_rows;
    qsizetype m_first_place = 0; // of the row that is being filled
    bool m_has_names;
    bool m_has_columns = false;
    bool m_is_full = false;
    QString m_trouble;
};
