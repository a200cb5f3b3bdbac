#include "list/Table_Builder.h"

#include "platform/Large_Pages.h"
#include "texts/Table_Texts.h"

#include <algorithm>

namespace {

constexpr std::size_t Rows_Of_A_Sample = 4096;
constexpr double Spare = 1.02;
constexpr qsizetype Fewest_Bytes_More = 64;
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
    m_table.m_places.push_back(0);
    if (expected_bytes > 0)
        Make_Room(std::min(expected_bytes, static_cast<qsizetype>(Most_Bytes)));
}

void Table_Builder::Add_Field(QByteArrayView utf8)
{
    if (static_cast<std::size_t>(m_fill + utf8.size()) > Most_Bytes) {
        m_is_full = true;
        return;
    }
    if (m_fill + utf8.size() >= m_table.m_text.size())
        Make_Room(m_table.m_text.size() * 5 / 4 + utf8.size() + Fewest_Bytes_More);
    std::copy(utf8.begin(), utf8.end(), m_begin + m_fill);
    m_fill += utf8.size();
    End_Field();
}

void Table_Builder::Make_Room(qsizetype bytes)
{
    m_table.m_text.reserve(bytes); // and no more, which resizing alone would take
    m_table.m_text.resize(bytes);
    m_begin = m_table.m_text.data();
    Prefer_Large_Pages(m_begin, static_cast<std::size_t>(bytes));
}

QByteArrayView Table_Builder::Keep(QByteArray text)
{
    m_table.m_text = std::move(text);
    m_begin = m_table.m_text.data();
    return m_table.m_text;
}

bool Table_Builder::End_Row(int source_row, bool has_stray_quote)
{
    m_is_full = m_is_full || static_cast<std::size_t>(m_fill) > Most_Bytes ||
                static_cast<std::size_t>(m_table.m_places.size()) - m_table.m_rows.size() > Most_Fields + 1;
    if (Is_Full())
        return false;
    if (Fields_In_Row() > Most_Columns) {
        m_trouble = QString(Texts::Table::Too_Many_Columns).arg(source_row).arg(Most_Columns);
        return false;
    }
    if (m_blank_rows == Blank_Rows::Left_Out && !Begins_With_Text() && Is_Blank()) {
        Forget_Row();
        return true;
    }
    if (!m_has_columns && m_has_names) {
        Name_Columns();
        return m_trouble.isEmpty();
    }
    if (!m_has_columns)
        Number_Columns();
    m_table.m_rows.push_back({static_cast<std::uint32_t>(m_first_place),
                              static_cast<std::uint32_t>(std::max(0, source_row)) & 0x7FFFFFFF, has_stray_quote});
    m_first_place = m_table.m_places.size();
    m_table.m_places.push_back(static_cast<std::uint32_t>(m_fill));
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
    return std::exchange(m_table, {});
}

// As if the rest were like the rows so far: growing step by step would touch three times the memory.
void Table_Builder::Make_Room_By_Sample()
{
    const double share = static_cast<double>(m_fill) / static_cast<double>(m_table.m_text.size());
    const auto room_for = [&](std::size_t count) {
        return std::min(Most_Fields,
                        static_cast<std::size_t>(static_cast<double>(count) * Spare / std::max(share, 1e-6)));
    };
    const auto make_room = [&](auto& list) {
        const std::size_t room = room_for(static_cast<std::size_t>(list.size()));
        list.reserve(static_cast<decltype(list.size())>(room));
        Prefer_Large_Pages(list.data(), room * sizeof(list[0]));
    };
    make_room(m_table.m_places);
    make_room(m_table.m_rows);
}

// As nearly every row does, which is soon seen.
bool Table_Builder::Begins_With_Text() const
{
    if (Fields_In_Row() == 0)
        return false;
    const QByteArrayView first = Field_In_Row(0);
    return !first.isEmpty() && !Is_Blank_Byte(first.front());
}

bool Table_Builder::Is_Blank() const
{
    for (int column = 0; column < Fields_In_Row(); ++column)
        if (const auto field = Field_In_Row(column); !std::all_of(field.begin(), field.end(), Is_Blank_Byte))
            return false;
    return true;
}

QByteArrayView Table_Builder::Field_In_Row(int column) const
{
    const std::uint32_t* before = m_table.m_places.data() + m_first_place + column;
    const std::uint32_t begin = before[0] + (column > 0 ? 1 : 0);
    return {m_begin + begin, static_cast<qsizetype>(before[1] - begin)};
}

void Table_Builder::Forget_Row()
{
    m_table.m_places.resize(m_first_place + 1);
    m_fill = m_table.m_places.back();
}

void Table_Builder::Add_Column(const QString& name)
{
    m_table.m_columns.append(name);
    m_table.m_compared_columns.append(Compared_Column_Name(name));
}

// A column without a name gets one that can be written in a message.
void Table_Builder::Name_Columns()
{
    for (int column = 0; column < Fields_In_Row(); ++column) {
        const QString trimmed =
            QString::fromUtf8(Field_In_Row(column)).remove(QChar(QChar::ByteOrderMark)).simplified();
        if (Is_A_Number(trimmed) && m_trouble.isEmpty())
            m_trouble = QString(Texts::Table::Header_Is_Number).arg(trimmed);
        Add_Column(trimmed.isEmpty() ? Name_By_Place(m_table.m_columns.size()) : trimmed);
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
