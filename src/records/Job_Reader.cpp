#include "records/Job_Reader.h"

#include "platform/File_Steps.h"
#include "platform/Folders_And_Files.h"
#include "records/Job_Lines.h"
#include "records/Job_List_Format.h"
#include "records/Job_Paths.h"
#include "records/Job_Words.h"

#include <fcntl.h>
#include <limits>
#include <new>
#include <utility>

namespace {

constexpr QByteArrayView First_Word("J1");
constexpr qsizetype Checksum_Field = 7;
constexpr qsizetype Header_Fields = 8; // and one more where the header says whether the receipt is kept

bool Is_Newer(QByteArrayView line)
{
    const QByteArrayView word = line.first(qMax(qsizetype{0}, line.indexOf(' ')));
    return word.startsWith('J') && word != First_Word && Job_Line::Number_Of(word.sliced(1), 1, 1'000'000);
}

// J1 <id> <time> <imsi> <device> <rows> <parts> <checksum of the list> <whether the receipt is kept, if told>
std::optional<Job_Header> Header_Of(const Job_Line::Fields& fields)
{
    const bool tells_keeping = fields.size() == Header_Fields + 1;
    if ((fields.size() != Header_Fields && !tells_keeping) || fields[0] != First_Word)
        return std::nullopt;
    const auto id = Job_Line::Text_Of(fields[1]);
    const auto time = Job_Line::Seconds_Of(fields[2]);
    const auto imsi = Job_Line::Text_Of(fields[3]);
    const auto device = Job_Line::Text_Of(fields[4]);
    const auto rows = Job_Line::Number_Of(fields[5], 0, std::numeric_limits<int>::max());
    const auto parts = Job_Line::Number_Of(fields[6], 0, std::numeric_limits<int>::max());
    const auto keeping = tells_keeping ? Job_Words::Keeping_Of(fields.last()) : std::nullopt;
    if (!id || !time || !imsi || !device || !rows || !parts || tells_keeping != keeping.has_value())
        return std::nullopt;
    return Job_Header{*id, *time, *imsi, *device, static_cast<int>(*rows), static_cast<int>(*parts), keeping};
}

// Takes the lines of a journal in their order, and notes where the last good one ends.
class Journal_Scan
{
public:
    explicit Journal_Scan(const QString& path) : m_path(path) {}

    bool Take(QByteArrayView line, qint64 begin)
    {
        // Only the last line may be a bad one.
        m_trouble = m_is_torn ? Job_Trouble::Damaged : begin == 0 ? Take_Header(line) : Take_Line(line);
        if (!m_is_torn)
            m_whole_size = begin + line.size() + 1;
        return m_trouble == Job_Trouble::None;
    }

    Job_Reading End(const Job_Lines& lines)
    {
        if (!lines.is_readable)
            return {std::nullopt, Job_Trouble::Unreadable};
        if (m_trouble == Job_Trouble::None && !m_record)
            m_trouble = lines.rest.isEmpty() || lines.rest.startsWith(First_Word) ? Job_Trouble::Damaged
                                                                                  : Job_Trouble::Not_A_Journal;
        const bool has_rest = !lines.rest.isEmpty();
        if (m_trouble == Job_Trouble::None &&
            (!lines.is_taken || (has_rest && (m_is_torn || !Can_Be_Torn(lines.rest)))))
            m_trouble = Job_Trouble::Damaged;
        if (m_trouble != Job_Trouble::None)
            return {std::nullopt, m_trouble};
        return {std::move(m_record), Job_Trouble::None, m_whole_size, m_is_torn || has_rest};
    }

private:
    Job_Trouble Take_Header(QByteArrayView line)
    {
        if (Is_Newer(line))
            return Job_Trouble::Newer;
        if (!line.startsWith(First_Word))
            return Job_Trouble::Not_A_Journal;
        const Job_Line::Fields fields = Job_Line::Fields_Of(line);
        const auto header = Header_Of(fields);
        // Of two files with the same journal, one would not know what was sent by means of the other.
        if (!header || header->id != Job_Id_Of(m_path))
            return Job_Trouble::Damaged;
        const Job_List::Opened opened = Job_List::Open(Job_List_Path(m_path), header->id, fields[Checksum_Field]);
        if (!opened.list)
            return opened.trouble;
        if (opened.list->Row_Count() != header->rows || opened.list->Part_Count() != header->parts)
            return Job_Trouble::Damaged;
        m_record.emplace(*header, opened.list);
        return Job_Trouble::None;
    }

    Job_Trouble Take_Line(QByteArrayView line)
    {
        const Job_Line::Fields fields = Job_Line::Fields_Of(line);
        m_is_torn = fields.isEmpty();
        const bool is_fine = m_is_torn ? Can_Be_Torn(line) : m_record->Take(fields);
        return is_fine ? Job_Trouble::None : Job_Trouble::Damaged;
    }

    // Whether the bytes may be what a crash left of a single line. Two lines whose LF has changed are something else.
    static bool Can_Be_Torn(QByteArrayView bytes) { return !Job_Line::Begins_With_A_Whole_Line(bytes); }

    QString m_path;
    std::optional<Job_Record> m_record;
    Job_Trouble m_trouble = Job_Trouble::None;
    qint64 m_whole_size = 0;
    bool m_is_torn = false;
};

} // namespace

std::optional<Job_Front> Read_Job_Front(const QString& path)
{
    // The line of a file, counted from 0.
    const auto line_of = [](const QString& file, int wanted) {
        QByteArray found;
        const QByteArray name = File_Steps::Native_Name(file);
        const Descriptor open_file =
            File_Steps::Is_Regular_Or_Missing(name) ? File_Steps::Open(name, O_RDONLY) : Descriptor();
        if (File_Steps::Regular_Size(open_file))
            Take_Job_Lines(open_file, [&, number = 0](QByteArrayView line, qint64) mutable {
                found = number == wanted ? line.toByteArray() : QByteArray();
                return ++number <= wanted;
            });
        return found;
    };
    const QByteArray first = line_of(path, 0);
    const auto header = Header_Of(Job_Line::Fields_Of(first));
    if (!header || header->id != Job_Id_Of(path))
        return std::nullopt;
    const auto options = Job_List_Format::Options_Of(line_of(Job_List_Path(path), 1));
    return options ? std::optional(Job_Front{*header, options->report_seconds}) : std::nullopt;
}

Job_Reading Read_Job(const QString& path)
{
    const QByteArray name = File_Steps::Native_Name(path);
    if (name.isEmpty() || Is_Missing(path))
        return {std::nullopt, Job_Trouble::Missing};
    if (!File_Steps::Is_Regular_Or_Missing(name))
        return {std::nullopt, Job_Trouble::Not_A_Journal};
    return Read_Open_Job(File_Steps::Open(name, O_RDONLY), path);
}

Job_Reading Read_Open_Job(const Descriptor& file, const QString& path)
{
    if (!File_Steps::Regular_Size(file))
        return {std::nullopt, Job_Trouble::Unreadable};
    try {
        Journal_Scan scan(path);
        const Job_Lines lines =
            Take_Job_Lines(file, [&](QByteArrayView line, qint64 begin) { return scan.Take(line, begin); });
        return scan.End(lines);
    } catch (const std::bad_alloc&) {
        return {std::nullopt, Job_Trouble::Unreadable};
    }
}
