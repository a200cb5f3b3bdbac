#include "records/Store_File.h"

#include "platform/Folders_And_Files.h"
#include "platform/Text_Files.h"
#include "records/Data_Paths.h"

#include <QHash>
#include <utility>

namespace {

template <typename Visit>
void For_Each_Line(const QByteArray& bytes, const Visit& visit)
{
    for (qsizetype begin = 0; begin < bytes.size();) {
        const qsizetype line_end = bytes.indexOf('\n', begin);
        const qsizetype end = line_end < 0 ? bytes.size() : line_end + 1;
        visit(QByteArrayView(bytes).sliced(begin, end - begin));
        begin = end;
    }
}

// What is in a file now that was not there when it was loaded. A file only grows, unless it was meanwhile deleted or
// rewritten elsewhere: then the difference is found line by line.
QByteArray What_Was_Added(const QByteArray& loaded, const QByteArray& now)
{
    if (now.startsWith(loaded))
        return now.sliced(loaded.size());
    QHash<QByteArrayView, int> loaded_lines;
    For_Each_Line(loaded, [&](QByteArrayView line) { ++loaded_lines[line]; });
    QByteArray added;
    For_Each_Line(now, [&](QByteArrayView line) {
        int& left = loaded_lines[line];
        if (left > 0)
            --left;
        else
            added.append(line);
    });
    return added;
}

} // namespace

Store_File::Store_File(QString path) : m_path(std::move(path)) {}

QByteArray Store_File::Load_Bytes()
{
    const File_Lock lock(m_path);
    const auto bytes = Read_File(m_path);
    m_is_out_of_reach = !bytes && !Is_Missing(m_path);
    m_loaded = bytes.value_or(QByteArray());
    m_is_utf_8 = Is_Valid_Utf8(m_loaded);
    return m_is_utf_8 ? m_loaded : QByteArray();
}

QString Store_File::Load()
{
    return Decode_Utf8(Load_Bytes()).value_or(QString());
}

bool Store_File::Append(const QByteArray& lines) const
{
    const File_Lock lock(m_path);
    Check_Path_And_Create_Files();
    return Append_To_File(m_path, lines);
}

bool Store_File::Rewrite(const QByteArray& lines)
{
    const File_Lock lock(m_path);
    QByteArray added;
    if (!Is_Missing(m_path)) {
        const auto now = Read_File(m_path);
        if (!now)
            return false;
        if (!Keep_What_Is_No_Utf8(m_path, *now))
            return false;
        Check_Path_And_Create_Files();
        added = What_Was_Added(m_loaded, *now);
        if (!Is_Valid_Utf8(added))
            added.clear(); // it was kept beside the file, and would make all of it unreadable again
    }
    if (!Replace_File(m_path, added.isEmpty() ? lines : lines + added))
        return false;
    m_loaded = lines;
    return true;
}

bool Store_File::Put_Aside() const
{
    const File_Lock lock(m_path);
    return m_is_out_of_reach && !Read_File(m_path) && Move_Beside(m_path, Kept_Path(m_path));
}

bool Store_File::Clear()
{
    const File_Lock lock(m_path);
    return !Is_Missing(m_path) && Rewrite(QByteArray());
}

void Store_File::Forget()
{
    m_loaded.clear();
    m_is_out_of_reach = false;
    m_is_utf_8 = true;
}
