#include "records/Job_List.h"

#include "platform/File_Steps.h"
#include "platform/Folders_And_Files.h"
#include "records/Job_Lines.h"
#include "records/Job_List_Format.h"

#include <QCryptographicHash>
#include <cerrno>
#include <fcntl.h>

namespace {

constexpr qsizetype Bytes_At_Once = qsizetype{64} << 10;

// Writes the list in pieces, and sums it up on the way.
class List_Writer
{
public:
    explicit List_Writer(const Descriptor& file) : m_file(file) {}

    bool Put(const QByteArray& line)
    {
        m_bytes.append(line);
        return m_bytes.size() < Bytes_At_Once || Flush();
    }

    bool Flush()
    {
        m_sum.addData(QByteArrayView(m_bytes));
        const bool is_written = File_Steps::Write_All(m_file, m_bytes);
        m_bytes.clear();
        return is_written;
    }

    QByteArray Sum() const { return m_sum.result().toHex(); }

private:
    const Descriptor& m_file;
    QByteArray m_bytes;
    QCryptographicHash m_sum{QCryptographicHash::Sha256};
};

Job_Trouble Trouble_With_Writing()
{
    return File_Steps::Is_Disk_Full() ? Job_Trouble::No_Room : Job_Trouble::Not_Written;
}

} // namespace

Job_List::Written Job_List::Write(const Descriptor& file, const QString& id, const Job_Options& options,
                                  const Next_Job_Row& next_row)
{
    using namespace Job_List_Format;
    Written written;
    List_Writer writer(file);
    bool is_written = writer.Put(First_Line(id)) && writer.Put(Line(options));
    int parts_of_all = 0;
    while (const auto row = is_written ? next_row() : std::nullopt) {
        const QByteArray line = Line(*row);
        ++written.rows;
        parts_of_all += row->parts;
        if (row->skipped.isEmpty())
            written.parts += row->parts;
        if (!Can_Be_Written(*row) || line.size() > Longest_Job_Line || written.rows > Most_Rows ||
            parts_of_all > Most_Parts) {
            written.trouble = Job_Trouble::Too_Large;
            return written;
        }
        is_written = writer.Put(line);
    }
    is_written = is_written && writer.Put(Last_Line(written.rows, written.parts)) && writer.Flush();
    if (!is_written || !File_Steps::Sync(file))
        written.trouble = Trouble_With_Writing();
    written.sha256 = writer.Sum();
    return written;
}

// Takes the lines of a list in their order, and notes where its rows stand.
class Job_List::Scan
{
public:
    Scan(Job_List& list, const QString& id) : m_list(list), m_first_line(Job_List_Format::First_Line(id)) {}

    // Every line is summed up, also behind one that cannot be read: a sum that is wrong says more.
    bool Take(QByteArrayView line, qint64 begin)
    {
        m_sum.addData(line);
        m_sum.addData(QByteArrayView("\n"));
        if (m_trouble == Job_Trouble::None && !Take_In_Order(line, begin))
            m_trouble = m_lines == 0 && Is_Newer(line) ? Job_Trouble::Newer : Job_Trouble::Damaged;
        ++m_lines;
        return true;
    }

    Job_Trouble End(const Job_Lines& lines, QByteArrayView sha256)
    {
        m_sum.addData(QByteArrayView(lines.rest));
        if (!lines.is_readable)
            return Job_Trouble::Unreadable;
        if (!lines.is_taken || m_sum.result().toHex() != sha256)
            return Job_Trouble::List_Changed;
        const bool is_whole = m_is_at_end && lines.rest.isEmpty();
        return m_trouble == Job_Trouble::None && !is_whole ? Job_Trouble::Damaged : m_trouble;
    }

private:
    static bool Is_Newer(QByteArrayView line)
    {
        return line.size() > 2 && line[0] == 'L' && line[1] >= '1' && line[1] <= '9' && !line.startsWith("L1\t");
    }

    bool Take_In_Order(QByteArrayView line, qint64 begin)
    {
        if (m_lines == 0)
            return line == QByteArrayView(m_first_line).chopped(1);
        if (m_lines == 1) {
            const auto options = Job_List_Format::Options_Of(line);
            m_list.m_options = options.value_or(Job_Options());
            return options.has_value();
        }
        if (m_is_at_end || line.startsWith('R'))
            return !m_is_at_end && Take_Row(line, begin);
        m_is_at_end = line == QByteArrayView(Job_List_Format::Last_Line(m_list.Row_Count(), m_list.m_parts)).chopped(1);
        return m_is_at_end;
    }

    bool Take_Row(QByteArrayView line, qint64 begin)
    {
        const auto extent = Job_List_Format::Extent_Of(line);
        if (!extent || m_list.Row_Count() == Job_List_Format::Most_Rows ||
            extent->parts > Job_List_Format::Most_Parts - m_list.m_parts_of_all)
            return false;
        m_list.m_rows.push_back({begin, m_list.m_parts_of_all, extent->is_skipped});
        m_list.m_rows_end = begin + line.size() + 1;
        m_list.m_parts_of_all += extent->parts;
        m_list.m_parts += extent->is_skipped ? 0 : extent->parts;
        return true;
    }

    Job_List& m_list;
    QByteArray m_first_line;
    QCryptographicHash m_sum{QCryptographicHash::Sha256};
    qint64 m_lines = 0;
    bool m_is_at_end = false;
    Job_Trouble m_trouble = Job_Trouble::None;
};

Job_List::Opened Job_List::Open(const QString& path, const QString& id, QByteArrayView sha256)
{
    const auto list = std::make_shared<Job_List>();
    list->m_file = File_Steps::Open(File_Steps::Native_Name(path), O_RDONLY);
    if (!list->m_file.Is_Open() && Is_Missing(path))
        return {nullptr, Job_Trouble::List_Missing};
    if (!File_Steps::Regular_Size(list->m_file))
        return {nullptr, Job_Trouble::Unreadable};
    Scan scan(*list, id);
    const Job_Lines lines =
        Take_Job_Lines(list->m_file, [&](QByteArrayView line, qint64 begin) { return scan.Take(line, begin); });
    const Job_Trouble trouble = scan.End(lines, sha256);
    if (trouble != Job_Trouble::None)
        return {nullptr, trouble};
    return {list, trouble};
}

int Job_List::Parts_Of(int row) const
{
    return (row < Row_Count() ? Parts_Before(row + 1) : m_parts_of_all) - Parts_Before(row);
}

std::optional<Job_Row> Job_List::Row(int row) const
{
    const qint64 begin = Entry_Of(row).begin;
    const qint64 end = (row < Row_Count() ? Entry_Of(row + 1).begin : m_rows_end) - 1; // without its LF
    QByteArray line(static_cast<qsizetype>(end - begin), Qt::Uninitialized);
    const auto size = static_cast<size_t>(line.size());
    const auto read_line = [&] { return pread(m_file.Number(), line.data(), size, begin); };
    if (Uninterrupted(read_line) != static_cast<ssize_t>(size))
        return std::nullopt;
    return Job_List_Format::Row_Of(line);
}
