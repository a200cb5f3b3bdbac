#include "plan/Plan_Sums.h"

#include "plan/Plan_Time.h"

void Plan_Counter::Add(int row, Row_Verdict verdict, int parts, bool is_unicode)
{
    ++m_sums.recipients;
    ++m_sums.by_verdict[static_cast<std::size_t>(verdict)];
    if (verdict != Row_Verdict::Send)
        return;
    ++m_sums.send;
    m_sums.parts += parts;
    m_sums.unicode += is_unicode ? 1 : 0;
    const auto place = static_cast<std::size_t>(parts);
    if (place >= m_rows_by_parts.size())
        m_rows_by_parts.resize(place + 1);
    ++m_rows_by_parts[place];
    if (m_sums.longest_row < 0 || parts > m_sums.longest_parts) {
        m_sums.longest_parts = parts;
        m_sums.longest_row = row;
    }
}

Plan_Sums Plan_Counter::Sums(const Plan_Manner& manner) const
{
    Plan_Sums sums = m_sums;
    int rows = 0;
    int of_several_parts = 0;
    for (int parts = 0; parts < static_cast<int>(m_rows_by_parts.size()); ++parts) {
        const int of_these = m_rows_by_parts[static_cast<std::size_t>(parts)];
        if (rows == 0 && of_these > 0)
            sums.shortest_parts = parts;
        if (rows < (sums.send + 1) / 2 && rows + of_these >= (sums.send + 1) / 2)
            sums.median_parts = parts;
        rows += of_these;
        of_several_parts += parts > 1 ? of_these : 0;
    }
    sums.seconds = Seconds_For(Planned_Messages{sums.send, sums.parts, of_several_parts}, manner);
    return sums;
}
