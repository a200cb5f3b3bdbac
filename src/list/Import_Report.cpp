#include "list/Import_Report.h"

#include <algorithm>
#include <numeric>

namespace {

bool Is_Blank(QStringView line)
{
    return std::all_of(line.begin(), line.end(), [](QChar character) { return character.isSpace(); });
}

} // namespace

int Import_Report::Unused() const
{
    return std::accumulate(m_unused.begin(), m_unused.end(), 0);
}

void Import_Report::Note_Unused(QStringView line, Number_Verdict reason)
{
    if (reason == Number_Verdict::Not_Valid && Is_Blank(line)) // a line with a number is not
        return;
    ++m_unused[static_cast<std::size_t>(reason)];
    if (m_noted.size() >= Most_Noted)
        return;
    const QStringView text = line.trimmed();
    QStringView kept = text.left(Longest_Noted);
    if (kept.size() < text.size() && kept.back().isHighSurrogate())
        kept.chop(1);
    m_noted.append({m_lines, reason, kept.toString(), kept.size() < text.size()});
}
