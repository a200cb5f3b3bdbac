#pragma once

#include <QByteArrayView>
#include <QStringList>
#include <cstdint>
#include <string>
#include <vector>

// A list as people have it: columns with names, and rows of fields. Made for a million rows: all fields lie behind one
// another in UTF-8, with four bytes for each and eight for each row. Filled by Table_Builder; a value after that, any
// thread.
class Contact_Table
{
public:
    /// Why a row should not be used: its fields may stand under the wrong names.
    enum class Row_Trouble : std::uint8_t
    {
        None,
        Too_Many_Fields, ///< more than there are columns
        Stray_Quote      ///< text between a closing quote and the end of its field
    };

    const QStringList& Columns() const { return m_columns; }
    int Column_Count() const { return static_cast<int>(m_columns.size()); }
    int Row_Count() const { return static_cast<int>(m_rows.size()); }

    // Rows count from 0 to Row_Count() - 1; rows without any text are none.

    /// How many fields the row has, which may be fewer or more than there are columns.
    int Field_Count(int row) const;
    /// A field in UTF-8; empty where the row has none. Valid as long as the table.
    QByteArrayView Bytes_At(int row, int column) const;
    QString Field(int row, int column) const { return QString::fromUtf8(Bytes_At(row, column)); }
    /// Where the row began in its file, counted from 1: a line, or a row of a sheet.
    int Source_Row(int row) const { return static_cast<int>(At(row).source_row); }
    Row_Trouble Trouble_Of(int row) const;
    /// The trouble in words; empty for none.
    QString Words_For_Trouble(int row) const;

    /// The columns of this name, case, blanks and what is invisible ignored.
    std::vector<int> Columns_Named(QStringView name) const;

private:
    friend class Table_Builder;

    struct Row
    {
        std::uint32_t first_field;
        std::uint32_t source_row : 31;
        std::uint32_t has_stray_quote : 1;
    };

    const Row& At(int row) const { return m_rows[static_cast<std::size_t>(row)]; }

    QStringList m_columns;
    QStringList m_compared_columns; // the same as they are compared
    std::string m_text;
    std::vector<std::uint32_t> m_ends; // of the fields, in the text
    std::vector<Row> m_rows;
};

/// A column's name as it is compared.
QString Compared_Column_Name(QStringView name);
