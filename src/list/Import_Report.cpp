#include "list/Import_Report.h"

#include <numeric>

int Import_Report::Unused() const
{
    return std::accumulate(m_unused.begin(), m_unused.end(), 0);
}

void Import_Report::Note_Unused(QStringView line, Number_Verdict reason)
{
    const QStringView text = line.trimmed();
    if (text.isEmpty())
        return;
    ++m_unused[static_cast<std::size_t>(reason)];
    if (m_noted.size() >= Most_Noted)
        return;
    QStringView kept = text.left(Longest_Noted);
    if (kept.size() < text.size() && kept.back().isHighSurrogate())
        kept.chop(1);
    m_noted.append({m_lines, reason, kept.toString(), kept.size() < text.size()});
}
