#include "list/Ods_Sheet.h"

#include "list/Cell_Format.h"
#include "list/Sheet_Names.h"
#include "list/Sheet_Row.h"
#include "texts/Table_Texts.h"

#include <algorithm>
#include <charconv>

namespace {

constexpr int Most_Rows = 1'048'576; // of a sheet
constexpr int Most_Blanks = 1000;    // that one element may stand for
constexpr qint64 Largest_Manifest = qint64{1} << 20;
constexpr char Content[] = "content.xml";

using Token = Markup_Reader::Token;

QString Text_Of(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

class Ods_Reader
{
public:
    Ods_Reader(Zip_Archive& archive, Table_Builder& builder) : m_xml(Reader_Of_Archive(archive)), m_builder(builder) {}

    /// The sheets by name; reads everything but their cells.
    std::vector<Named_Sheet> Names()
    {
        std::vector<Named_Sheet> names;
        while (Go_To("table")) {
            const bool is_hidden = m_hidden_styles.contains(Text_Of(m_xml.Attribute("table:style-name")));
            names.push_back({Text_Of(m_xml.Attribute("table:name")), is_hidden});
            m_xml.Skip();
        }
        return names;
    }

    bool Read(int index)
    {
        for (int sheet = 0; Go_To("table"); ++sheet) {
            if (sheet == index)
                return Read_Table();
            m_xml.Skip();
        }
        return false;
    }

private:
    bool Go_To(std::string_view name)
    {
        for (;;) {
            const Token token = m_xml.Next();
            if (token == Token::Finished || token == Token::Failed)
                return false;
            if (token == Token::Begin && m_xml.Name() == name)
                return true;
            if (token == Token::Begin)
                Take_Style();
        }
    }

    // A sheet is hidden by its style.
    void Take_Style()
    {
        if (m_xml.Name() == "style")
            m_style = Text_Of(m_xml.Attribute("style:name"));
        else if (m_xml.Name() == "table-properties" && m_xml.Attribute("table:display") == "false")
            m_hidden_styles.append(m_style);
    }

    // Rows may be grouped; what else is in a table holds no rows.
    bool Read_Table()
    {
        for (int depth = 1; depth > 0 && !m_builder.Is_Full();) {
            const Token token = m_xml.Next();
            if (token == Token::Failed || token == Token::Finished)
                return false;
            depth += token == Token::Begin ? 1 : token == Token::End ? -1 : 0;
            if (token == Token::Begin && m_xml.Name() == "table-row") {
                if (!Read_Row())
                    return false;
                --depth;
            } else if (token == Token::Begin && !m_xml.Name().starts_with("table-")) {
                m_xml.Skip();
                --depth;
            }
        }
        return true;
    }

    bool Read_Row()
    {
        const int times = std::max(1, m_xml.Number("table:number-rows-repeated", 1));
        m_column = 0;
        for (;;) {
            const Token token = m_xml.Next();
            if (token == Token::Failed || token == Token::Finished)
                return false;
            if (token == Token::End)
                break;
            if (token == Token::Begin && !Read_Cell())
                return false;
        }
        if (!m_row.Is_Empty() && m_source_row + qint64{times} > Most_Rows)
            return false;
        m_row.Send_To(m_builder, m_source_row + 1, times);
        m_source_row = static_cast<int>(std::min<qint64>(m_source_row + qint64{times}, Most_Rows));
        return true;
    }

    bool Read_Cell()
    {
        const int times =
            std::min(std::max(1, m_xml.Number("table:number-columns-repeated", 1)), Table_Builder::Most_Columns + 1);
        const bool is_number = m_xml.Attribute("office:value-type") == "float";
        const bool is_error = m_xml.Attribute("calcext:value-type") == "error";
        const bool is_covered = m_xml.Name() == "covered-table-cell";
        m_value = m_xml.Attribute("office:value");
        if (!Read_Text())
            return false;
        if (is_number && (m_text.empty() || m_text.find_first_of("E#") != std::string::npos))
            m_text = With_All_Digits();
        for (int i = 0; i < times && !m_text.empty() && !is_error && !is_covered; ++i)
            if (!m_row.Put(m_column + i, m_text))
                return false;
        m_column = std::min(m_column + times, Table_Builder::Most_Columns);
        return true;
    }

    // Up to the end of the cell; a paragraph is a line.
    bool Read_Text()
    {
        m_text.clear();
        int paragraphs = 0;
        for (int depth = 1; depth > 0;) {
            const Token token = m_xml.Next();
            if (token == Token::Failed || token == Token::Finished)
                return false;
            if (token == Token::Text && paragraphs > 0 && depth > 1)
                m_text += m_xml.Text();
            depth += token == Token::Begin ? 1 : token == Token::End ? -1 : 0;
            if (token != Token::Begin)
                continue;
            const std::string_view name = m_xml.Name();
            if (name == "p") {
                m_text += paragraphs++ > 0 ? "\n" : "";
            } else if (name == "s") {
                m_text.append(static_cast<std::size_t>(std::min(m_xml.Number("text:c", 1), Most_Blanks)), ' ');
            } else if (name == "tab" || name == "line-break") {
                m_text += name == "tab" ? '\t' : '\n';
            } else if (name != "span" && name != "a") { // a comment or a picture
                m_xml.Skip();
                --depth;
            }
        }
        return true;
    }

    std::string With_All_Digits() const
    {
        double value = 0;
        std::from_chars(m_value.data(), m_value.data() + m_value.size(), value);
        return m_value.empty() ? m_text : Plain_Number(value).toStdString();
    }

    Markup_Reader m_xml;
    Table_Builder& m_builder;
    QString m_style;
    QStringList m_hidden_styles;
    Sheet_Row m_row;
    std::string m_text; // of a cell
    std::string m_value;
    int m_column = 0;
    int m_source_row = 0;
};

} // namespace

bool Is_Ods(const Zip_Archive& archive)
{
    return archive.Has(Content) || archive.Has("encrypted-package");
}

Read_Sheet Read_Ods(Zip_Archive& archive, const QString& sheet, Table_Builder& builder)
{
    Read_Sheet read;
    read.format = QStringLiteral("ODS");
    if (archive.Has("encrypted-package") ||
        archive.All_Of("META-INF/manifest.xml", Largest_Manifest).contains("encryption-data")) {
        read.trouble = Texts::Table::Encrypted;
        return read;
    }
    archive.Open(Content);
    const std::vector<Named_Sheet> sheets = Ods_Reader(archive, builder).Names();
    const Chosen_Sheet chosen = Choose_Sheet(sheets, sheet);
    read.sheets = Names_Of(sheets);
    read.trouble = chosen.trouble;
    if (chosen.index < 0)
        return read;
    read.sheet = sheets[static_cast<std::size_t>(chosen.index)].name;
    archive.Open(Content);
    const bool is_whole = Ods_Reader(archive, builder).Read(chosen.index);
    read.trouble = is_whole || builder.Is_Full() ? builder.Trouble() : QString(Texts::Table::Damaged);
    return read;
}
