#include "list/Table_Builder.h"

#include "platform/Large_Pages.h"
#include "texts/Table_Texts.h"

#include <algorithm>

namespace {

constexpr std::size_t Rows_Of_A_Sample = 4096;
constexpr double Spare = 1.02;
constexpr int Fewest_Digits = 7; // of a number that stands in place of a name

bool Is_Blank_Byte(char byte)
{
    return byte == ' ' || (byte >= '\t' && byte <= '\r');
}

// Digits with what stands between those of a number: no name of a column.
bool Is_A_Number(const QString& name)
{
    constexpr QStringView between = u" +-./()\u00A0";
    const auto digits = std::count_if(name.begin(), name.end(), [](QChar each) { return each.isDigit(); });
    return digits >= Fewest_Digits &&
           std::all_of(name.begin(), name.end(), [&](QChar each) { return each.isDigit() || between.contains(each); });
}

QString Name_By_Place(qsizetype column)
{
    return QStringLiteral("Column %1").arg(column + 1);
}

} // namespace

Table_Builder::Table_Builder(qsizetype expected_bytes, bool has_names, Blank_Rows blank_rows)
    : m_blank_rows(blank_rows), m_has_names(has_names)
{
    m_table.m_text.reserve(std::min(static_cast<std::size_t>(expected_bytes), Most_Bytes));
    Prefer_Large_Pages(m_table.m_text.data(), m_table.m_text.capacity());
}

void Table_Builder::Add_Piece(QByteArrayView utf8)
{
    if (utf8.size() > Room_For_Bytes())
        m_is_full = true;
    else
        m_table.m_text.append(utf8.data(), static_cast<std::size_t>(utf8.size()));
}

bool Table_Builder::End_Row(int source_row, bool has_stray_quote)
{
    if (Is_Full())
        return false;
    if (Fields_In_Row() > Most_Columns) {
        m_trouble = QString(Texts::Table::Too_Many_Columns).arg(source_row).arg(Most_Columns);
        return false;
    }
    if (m_blank_rows == Blank_Rows::Left_Out && Is_Blank()) {
        Forget_Row();
        return true;
    }
    if (!m_has_columns && m_has_names) {
        Name_Columns();
        return m_trouble.isEmpty();
    }
    if (!m_has_columns)
        Number_Columns();
    m_table.m_rows.push_back({static_cast<std::uint32_t>(m_first_field),
                              static_cast<std::uint32_t>(std::max(0, source_row)) & 0x7FFFFFFF, has_stray_quote});
    m_first_field = m_table.m_ends.size();
    m_first_byte = m_table.m_text.size();
    if (m_table.m_rows.size() == Rows_Of_A_Sample)
        Make_Room_By_Sample();
    return true;
}

QString Table_Builder::Trouble() const
{
    if (!m_trouble.isEmpty())
        return m_trouble;
    if (m_is_full)
        return Texts::Table::Too_Large;
    return m_has_columns ? QString() : QString(Texts::Table::Empty);
}

Contact_Table Table_Builder::Take()
{
    Forget_Row();
    return std::move(m_table);
}

// As if the rest were like the rows so far: growing step by step would touch three times the memory.
void Table_Builder::Make_Room_By_Sample()
{
    const double share = static_cast<double>(m_table.m_text.size()) / static_cast<double>(m_table.m_text.capacity());
    const auto room_for = [&](std::size_t count) {
        return std::min(Most_Fields,
                        static_cast<std::size_t>(static_cast<double>(count) * Spare / std::max(share, 1e-6)));
    };
    const auto make_room = [&](auto& list) {
        list.reserve(room_for(list.size()));
        Prefer_Large_Pages(list.data(), list.capacity() * sizeof(list[0]));
    };
    make_room(m_table.m_ends);
    make_room(m_table.m_rows);
}

bool Table_Builder::Is_Blank() const
{
    const auto begin = m_table.m_text.begin() + static_cast<std::ptrdiff_t>(m_first_byte);
    return std::all_of(begin, m_table.m_text.end(), [](char byte) { return Is_Blank_Byte(byte); });
}

void Table_Builder::Forget_Row()
{
    m_table.m_ends.resize(m_first_field);
    m_table.m_text.resize(m_first_byte);
}

void Table_Builder::Add_Column(const QString& name)
{
    m_table.m_columns.append(name);
    m_table.m_compared_columns.append(Compared_Column_Name(name));
}

// A column without a name gets one that can be written in a message.
void Table_Builder::Name_Columns()
{
    std::size_t begin = m_first_byte;
    for (std::size_t field = m_first_field; field < m_table.m_ends.size(); ++field) {
        const std::size_t end = m_table.m_ends[field];
        const QString name = QString::fromUtf8(m_table.m_text.data() + begin, static_cast<qsizetype>(end - begin));
        const QString trimmed = name.simplified();
        if (Is_A_Number(trimmed) && m_trouble.isEmpty())
            m_trouble = QString(Texts::Table::Header_Is_Number).arg(trimmed);
        Add_Column(trimmed.isEmpty() ? Name_By_Place(m_table.m_columns.size()) : trimmed);
        begin = end;
    }
    m_has_columns = true;
    Forget_Row();
}

// The row stays one.
void Table_Builder::Number_Columns()
{
    for (int column = 0; column < Fields_In_Row(); ++column)
        Add_Column(Name_By_Place(column));
    m_has_columns = true;
}
