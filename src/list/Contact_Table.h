#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>
#include <cstdint>
#include <vector>

// A list as people have it: columns with names, and rows of fields. Made for a million rows: the fields lie in one text
// in UTF-8, which may be that of their file, with four bytes for each and twelve for each row. Filled by Table_Builder;
// a value after that, any thread.
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
    int Field_Count(int row) const { return static_cast<int>(Last_Place_Of(row) - At(row).first_place); }
    /// A field in UTF-8; empty where the row has none. Valid as long as the table.
    QByteArrayView Bytes_At(int row, int column) const
    {
        if (column < 0 || column >= Field_Count(row))
            return {};
        const std::uint32_t* before = m_places.data() + At(row).first_place + column;
        const std::uint32_t begin = before[0] + (column > 0 ? 1 : 0);
        return {m_text.constData() + begin, static_cast<qsizetype>(before[1] - begin)};
    }
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
        std::uint32_t first_place;
        std::uint32_t source_row : 31;
        std::uint32_t has_stray_quote : 1;
    };

    const Row& At(int row) const { return m_rows[static_cast<std::size_t>(row)]; }
    // The place that follows a row's last one is where the next row begins.
    std::size_t Last_Place_Of(int row) const
    {
        return (row + 1 < Row_Count() ? At(row + 1).first_place : static_cast<std::size_t>(m_places.size()) - 1) - 1;
    }

    QStringList m_columns;
    QStringList m_compared_columns; // the same as they are compared
    QByteArray m_text;
    // Places in the text: where a row begins, and then where each of its fields ends. A byte lies between two fields.
    // The last is where one more row would begin. A list of this kind grows where it lies, without a second one beside
    // it.
    QList<std::uint32_t> m_places;
    std::vector<Row> m_rows;
};

/// A column's name as it is compared.
QString Compared_Column_Name(QStringView name);
