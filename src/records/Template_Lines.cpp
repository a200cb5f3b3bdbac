#include "records/Template_Lines.h"

#include "platform/Text_Files.h"
#include "records/Stored_Text.h"
#include "records/Template_Format.h"

#include <QFile>
#include <algorithm>
#include <sys/stat.h>
#include <utility>

namespace {
constexpr std::size_t Size_In_Stamp = 2; // the entries before it identify the file
}

Template_Lines::Template_Lines(QString path) : m_path(std::move(path)) {}

bool Template_Lines::Contains(const QString& text)
{
    Read_If_Changed();
    return m_lines.contains(As_Stored(text));
}

void Template_Lines::Was_Appended(const QString& text, qsizetype line_size)
{
    // If anything else has changed the file as well, it is read again from the start next time.
    const Stamp now = Stamp_Of_File();
    const bool is_same_file = std::equal(now.begin(), now.begin() + Size_In_Stamp, m_stamp.begin());
    if (!m_takes_lines || !is_same_file || now[Size_In_Stamp] != m_stamp[Size_In_Stamp] + line_size)
        return;
    m_lines.insert(With_Line_Breaks(As_Stored(With_Line_Break_Tokens(text))));
    m_stamp = now;
}

Template_Lines::Stamp Template_Lines::Stamp_Of_File() const
{
    struct stat found = {};
    if (stat(QFile::encodeName(m_path).constData(), &found) != 0)
        return {};
    return {static_cast<long long>(found.st_dev),
            static_cast<long long>(found.st_ino),
            found.st_size,
            found.st_mtim.tv_sec,
            found.st_mtim.tv_nsec,
            found.st_ctim.tv_sec,
            found.st_ctim.tv_nsec};
}

void Template_Lines::Read_If_Changed()
{
    const Stamp now = Stamp_Of_File(); // before it is read: a change meanwhile then shows the next time
    if (m_was_read && now == m_stamp)
        return;
    m_lines.clear();
    const auto text = Read_Utf8_File(m_path);
    if (text)
        Template_Format::Read_Lines(*text, [this](QString line) { m_lines.insert(std::move(line)); });
    m_takes_lines = text && (text->isEmpty() || text->endsWith(u'\n'));
    m_stamp = now;
    m_was_read = true;
}
