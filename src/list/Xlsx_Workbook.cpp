#include "list/Xlsx_Workbook.h"

#include "list/Table_Builder.h"

#include <QDir>

namespace {

using Token = Markup_Reader::Token;

constexpr std::size_t Most_Formats = 100'000;

QByteArray Bytes(std::string_view text)
{
    return {text.data(), static_cast<qsizetype>(text.size())};
}

bool Is_True(std::string_view value)
{
    return value == "1" || value == "true";
}

// Calls back for each element that begins; no when the document is damaged.
template <typename Take>
bool For_Each_Element(Markup_Reader xml, Take take)
{
    for (;;) {
        const Token token = xml.Next();
        if (token == Token::Begin)
            take(xml);
        else if (token == Token::Finished || token == Token::Failed)
            return token == Token::Finished;
    }
}

} // namespace

// A part's relations stand beside it, in _rels.
Xlsx_Workbook::Relations Xlsx_Workbook::Relations_Of(const QByteArray& path)
{
    const qsizetype slash = path.lastIndexOf('/');
    const QByteArray folder = path.left(slash + 1);
    Relations relations;
    if (!m_archive.Open(folder + "_rels/" + path.mid(slash + 1) + ".rels"))
        return relations;
    For_Each_Element(Reader_Of_Archive(m_archive), [&](Markup_Reader& xml) {
        if (xml.Name() != "Relationship" || xml.Attribute("TargetMode") == "External")
            return;
        const QByteArray id = Bytes(xml.Attribute("Id"));
        const QByteArray target = Bytes(xml.Attribute("Target"));
        const QByteArray type = Bytes(xml.Attribute("Type"));
        const QString whole = QString::fromUtf8(target.startsWith('/') ? target.mid(1) : folder + target);
        relations.insert(id, {type.mid(type.lastIndexOf('/') + 1), QDir::cleanPath(whole).toUtf8()});
    });
    return relations;
}

bool Xlsx_Workbook::Read_Sheets()
{
    QByteArray path = "xl/workbook.xml";
    for (const Relation& relation : Relations_Of({}))
        if (relation.type == "officeDocument")
            path = relation.path;
    const Relations relations = Relations_Of(path);
    for (const Relation& relation : relations) {
        if (relation.type == "sharedStrings")
            m_texts_path = relation.path;
        else if (relation.type == "styles")
            m_formats_path = relation.path;
    }
    if (!m_archive.Open(path))
        return false;
    return For_Each_Element(Reader_Of_Archive(m_archive), [&](Markup_Reader& xml) {
        if (xml.Name() == "workbookPr")
            m_counts_from_1904 = Is_True(xml.Attribute("date1904"));
        if (xml.Name() != "sheet")
            return;
        const Relation relation = relations.value(Bytes(xml.Attribute("id")));
        if (relation.type != "worksheet")
            return;
        const bool is_hidden = !xml.Attribute("state").empty() && xml.Attribute("state") != "visible";
        m_sheets.push_back({QString::fromUtf8(Bytes(xml.Attribute("name"))), is_hidden});
        m_paths.push_back(relation.path);
    });
}

bool Xlsx_Workbook::Read_Shared()
{
    return (m_texts_path.isEmpty() || Read_Texts(m_texts_path)) &&
           (m_formats_path.isEmpty() || Read_Formats(m_formats_path));
}

std::string_view Xlsx_Workbook::Shared_Text(std::size_t index) const
{
    if (index >= m_text_ends.size())
        return {};
    const std::size_t begin = index == 0 ? 0 : m_text_ends[index - 1];
    return std::string_view(m_text).substr(begin, m_text_ends[index] - begin);
}

const Cell_Format& Xlsx_Workbook::Format(std::size_t index) const
{
    return index < m_formats.size() ? m_formats[index] : m_plain;
}

// Texts may come in runs; how a word is pronounced is no part of it.
bool Xlsx_Workbook::Read_Texts(const QByteArray& path)
{
    if (!m_archive.Open(path))
        return true;
    Markup_Reader xml = Reader_Of_Archive(m_archive);
    bool is_in_text = false;
    for (;;) {
        const Token token = xml.Next();
        if (token == Token::Failed || token == Token::Finished)
            return token == Token::Finished;
        if (token == Token::Text) {
            if (is_in_text)
                m_text += xml.Text();
            if (m_text.size() > Table_Builder::Most_Bytes)
                return false;
            continue;
        }
        is_in_text = token == Token::Begin && xml.Name() == "t";
        if (token == Token::Begin && xml.Name() == "rPh")
            xml.Skip();
        else if (token == Token::End && xml.Name() == "si") {
            m_text_ends.push_back(m_text.size());
            if (m_text_ends.size() > Table_Builder::Most_Fields)
                return false;
        }
    }
}

bool Xlsx_Workbook::Read_Formats(const QByteArray& path)
{
    if (!m_archive.Open(path))
        return true;
    QHash<int, QByteArray> codes;
    bool is_in_cells = false;
    return For_Each_Element(Reader_Of_Archive(m_archive), [&](Markup_Reader& xml) {
        if (xml.Name() == "numFmt" && codes.size() < static_cast<qsizetype>(Most_Formats))
            codes.insert(xml.Number("numFmtId", 0), Bytes(xml.Attribute("formatCode").substr(0, 1000)));
        if (xml.Name().ends_with("Xfs") || xml.Name() == "cellStyles")
            is_in_cells = xml.Name() == "cellXfs";
        if (xml.Name() != "xf" || !is_in_cells || m_formats.size() >= Most_Formats)
            return;
        const int number = xml.Number("numFmtId", 0);
        const QByteArray code = codes.value(number);
        m_formats.push_back(code.isEmpty() ? Cell_Format::Built_In(number) : Cell_Format(code.toStdString()));
    });
}
