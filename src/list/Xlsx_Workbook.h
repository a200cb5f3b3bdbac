#pragma once

#include "list/Cell_Format.h"
#include "list/Sheet_Names.h"
#include "list/Zip_Archive.h"

#include <QHash>
#include <cstdint>

// What the sheets of a workbook share: their names and places, texts and formats. Filled by Read_Xlsx, for one file.
class Xlsx_Workbook
{
public:
    explicit Xlsx_Workbook(Zip_Archive& archive) : m_archive(archive) {}

    /// The sheets and where they are. Answers no for a file that is none.
    bool Read_Sheets();
    const std::vector<Named_Sheet>& Sheets() const { return m_sheets; }
    /// A sheet's place in the archive.
    QByteArray Path_Of(int sheet) const { return m_paths[static_cast<std::size_t>(sheet)]; }

    /// The shared texts and the formats, where there are any. Answers no when they are damaged or too large.
    bool Read_Shared();
    /// A shared text in UTF-8; empty for none.
    std::string_view Shared_Text(std::size_t index) const;
    const Cell_Format& Format(std::size_t index) const;
    bool Counts_From_1904() const { return m_counts_from_1904; }

private:
    struct Relation
    {
        QByteArray type; ///< the end of it
        QByteArray path;
    };
    using Relations = QHash<QByteArray, Relation>; // by id

    Relations Relations_Of(const QByteArray& path);
    bool Read_Texts(const QByteArray& path);
    bool Read_Formats(const QByteArray& path);

    Zip_Archive& m_archive;
    std::vector<Named_Sheet> m_sheets;
    std::vector<QByteArray> m_paths;
    QByteArray m_texts_path;
    QByteArray m_formats_path;
    std::string m_text;
    std::vector<std::size_t> m_text_ends;
    std::vector<Cell_Format> m_formats;
    Cell_Format m_plain;
    bool m_counts_from_1904 = false;
};
