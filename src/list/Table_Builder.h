#pragma once

#include "list/Contact_Table.h"

// Takes a table's fields one by one from whatever reads its file. The first row with any text in it names the columns,
// unless names are missing: then they are numbered. Rows without any text are left out, if nobody wants them. Lives for
// one file, on its reader's thread.
class Table_Builder
{
public:
    static constexpr int Most_Columns = 16384; ///< as many as a spreadsheet has
    static constexpr std::size_t Most_Fields = 32'000'000;
    static constexpr std::size_t Most_Bytes = std::size_t{1} << 30;

    enum class Blank_Rows : std::uint8_t
    {
        Left_Out,
        Kept ///< also that of the names
    };

    /// Makes room for so many bytes of text.
    explicit Table_Builder(qsizetype expected_bytes = 0, bool has_names = true,
                           Blank_Rows blank_rows = Blank_Rows::Left_Out);

    /// Adds a field in UTF-8 to the row.
    void Add_Field(QByteArrayView utf8)
    {
        if (utf8.size() > Room_For_Bytes() || m_table.m_ends.size() >= Most_Fields) {
            m_is_full = true;
            return;
        }
        m_table.m_text.append(utf8.data(), static_cast<std::size_t>(utf8.size()));
        End_Field();
    }
    /// The same in pieces: the row's next field is what was added until End_Field.
    void Add_Piece(QByteArrayView utf8);
    void End_Field() { m_table.m_ends.push_back(static_cast<std::uint32_t>(m_table.m_text.size())); }
    /// Ends the row, which began at this line or row of its file. Answers no when nothing more can be taken: the rest
    /// of the file need not be read.
    bool End_Row(int source_row, bool has_stray_quote = false);

    /// How many fields the row has so far.
    int Fields_In_Row() const { return static_cast<int>(m_table.m_ends.size() - m_first_field); }
    int Row_Count() const { return m_table.Row_Count(); }
    bool Has_Columns() const { return m_has_columns; }
    bool Is_Full() const { return m_is_full || !m_trouble.isEmpty(); }

    /// Why the table cannot be used; empty when it can.
    QString Trouble() const;
    Contact_Table Take();

private:
    qsizetype Room_For_Bytes() const { return static_cast<qsizetype>(Most_Bytes - m_table.m_text.size()); }
    bool Is_Blank() const;
    void Make_Room_By_Sample();
    void Forget_Row();
    void Add_Column(const QString& name);
    void Name_Columns();
    void Number_Columns();

    Contact_Table m_table;
    Blank_Rows m_blank_rows;
    std::size_t m_first_field = 0; // of the row that is being filled
    std::size_t m_first_byte = 0;
    bool m_has_names;
    bool m_has_columns = false;
    bool m_is_full = false;
    QString m_trouble;
};
