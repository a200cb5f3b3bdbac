#include "list/Xlsx_Sheet.h"

#include "list/Sheet_Row.h"
#include "list/Xlsx_Workbook.h"
#include "texts/Table_Texts.h"

#include <algorithm>
#include <charconv>

namespace {

using Token = Markup_Reader::Token;

constexpr std::size_t Digits_At_Sight = 15; // a whole number of so many is shown as it is written

bool Is_Digit(char byte)
{
    return byte >= '0' && byte <= '9';
}

// The column of a cell such as AB12, from 0; nothing for what is no cell's name.
int Column_Of(std::string_view cell, int otherwise)
{
    int column = 0;
    std::size_t letters = 0;
    while (letters < cell.size() && cell[letters] >= 'A' && cell[letters] <= 'Z' &&
           column < Table_Builder::Most_Columns)
        column = column * 26 + (cell[letters++] - 'A' + 1);
    return letters == 0 ? otherwise : column - 1;
}

bool Is_Plain_Whole(std::string_view value)
{
    return value.size() <= Digits_At_Sight && !value.empty() && (value.front() != '0' || value.size() == 1) &&
           std::all_of(value.begin(), value.end(), Is_Digit);
}

class Xlsx_Reader
{
public:
    Xlsx_Reader(Zip_Archive& archive, const Xlsx_Workbook& workbook, Table_Builder& builder)
        : m_xml(Reader_Of_Archive(archive)), m_workbook(workbook), m_builder(builder)
    {
    }

    // Answers no when the sheet is damaged.
    bool Read()
    {
        int source_row = 0;
        bool is_in_row = false;
        while (!m_builder.Is_Full()) {
            const Token token = m_xml.Next();
            if (token == Token::Finished || token == Token::Failed)
                return token == Token::Finished;
            if (token == Token::Text)
                continue;
            const std::string_view name = m_xml.Name();
            if (name == "row") {
                is_in_row = token == Token::Begin;
                if (is_in_row)
                    source_row = m_xml.Number("r", source_row + 1);
                else
                    m_row.Send_To(m_builder, source_row);
                m_column = 0;
            } else if (name == "c" && token == Token::Begin && is_in_row && !Read_Cell()) {
                return false;
            }
        }
        return true;
    }

private:
    bool Read_Cell()
    {
        const int column = Column_Of(m_xml.Attribute("r"), m_column);
        m_type = m_xml.Attribute("t");
        const int style = m_xml.Number("s", 0);
        if (!Read_Value())
            return false;
        m_column = column + 1;
        return m_row.Put(column, Shown(static_cast<std::size_t>(style)));
    }

    // Up to the end of the cell. A text in it may come in runs.
    bool Read_Value()
    {
        m_value.clear();
        bool is_value = false;
        for (;;) {
            const Token token = m_xml.Next();
            const std::string_view name = m_xml.Name();
            if (token == Token::Failed || token == Token::Finished)
                return false;
            if (token == Token::Text) {
                if (is_value)
                    m_value += m_xml.Text();
            } else if (token == Token::End && name == "c") {
                return true;
            } else if (token == Token::Begin && (name == "rPh" || name == "f")) {
                m_xml.Skip();
            } else {
                is_value = token == Token::Begin && (name == "v" || name == "t");
            }
        }
    }

    std::string_view Shown(std::size_t style)
    {
        if (m_type == "s") {
            std::size_t index = 0;
            const auto read = std::from_chars(m_value.data(), m_value.data() + m_value.size(), index);
            return read.ec == std::errc() ? m_workbook.Shared_Text(index) : std::string_view();
        }
        if (m_type == "e") // #N/A is for nobody
            return {};
        if (m_type == "b")
            return m_value == "1" ? "TRUE" : "FALSE";
        if (m_type == "d") {
            const std::size_t midnight = m_value.find("T00:00:00");
            return std::string_view(m_value).substr(0, midnight);
        }
        const Cell_Format& format = m_workbook.Format(style);
        if ((!m_type.empty() && m_type != "n") || (format.Is_Plain() && Is_Plain_Whole(m_value)))
            return m_value;
        double value = 0;
        const auto read = std::from_chars(m_value.data(), m_value.data() + m_value.size(), value);
        if (read.ec != std::errc() || m_value.empty())
            return m_value;
        m_shown = format.Shown(value, m_workbook.Counts_From_1904());
        return {m_shown.constData(), static_cast<std::size_t>(m_shown.size())};
    }

    Markup_Reader m_xml;
    const Xlsx_Workbook& m_workbook;
    Table_Builder& m_builder;
    Sheet_Row m_row;
    int m_column = 0; // the next, where a cell does not name its own
    std::string m_type;
    std::string m_value;
    QByteArray m_shown;
};

} // namespace

bool Is_Xlsx(const Zip_Archive& archive)
{
    return archive.Has("[Content_Types].xml") &&
           (archive.Has("xl/workbook.xml") || archive.Has("xl/_rels/workbook.xml.rels"));
}

Read_Sheet Read_Xlsx(Zip_Archive& archive, const QString& sheet, Table_Builder& builder)
{
    Read_Sheet read;
    read.format = QStringLiteral("XLSX");
    Xlsx_Workbook workbook(archive);
    if (!workbook.Read_Sheets()) {
        read.trouble = Texts::Table::Damaged;
        return read;
    }
    const Chosen_Sheet chosen = Choose_Sheet(workbook.Sheets(), sheet);
    read.sheets = Names_Of(workbook.Sheets());
    read.trouble = chosen.trouble;
    if (chosen.index < 0)
        return read;
    read.sheet = workbook.Sheets()[static_cast<std::size_t>(chosen.index)].name;
    const bool is_whole = workbook.Read_Shared() && archive.Open(workbook.Path_Of(chosen.index)) &&
                          Xlsx_Reader(archive, workbook, builder).Read();
    read.trouble = is_whole || builder.Is_Full() ? builder.Trouble() : QString(Texts::Table::Damaged);
    return read;
}
