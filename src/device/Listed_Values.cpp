#include "device/Listed_Values.h"

#include <algorithm>

// A field is what stands in brackets; some devices leave them out around a value alone.
Listed_Values::Listed_Values(const QByteArray& line)
{
    QByteArray field;
    bool is_inside = false;
    const QByteArray values = line.mid(line.indexOf(':') + 1).trimmed();
    for (const char character : values) {
        is_inside = character == '(' || (is_inside && character != ')');
        if (character == ',' && !is_inside) {
            m_fields.append(Ranges_Of(field));
            field.clear();
        } else if (character != '(' && character != ')') {
            field.append(character);
        }
    }
    if (!values.isEmpty())
        m_fields.append(Ranges_Of(field));
}

bool Listed_Values::Has(qsizetype field, int value) const
{
    const QList<Range> ranges = m_fields.value(field);
    return std::any_of(ranges.begin(), ranges.end(),
                       [&](const Range& range) { return value >= range.m_first && value <= range.m_last; });
}

QList<Listed_Values::Range> Listed_Values::Ranges_Of(const QByteArray& list)
{
    QList<Range> ranges;
    for (const QByteArray& each : list.split(',')) {
        const QByteArrayList ends = each.split('-');
        bool has_first = false;
        bool has_last = false;
        const Range range{ends.first().trimmed().toInt(&has_first), ends.last().trimmed().toInt(&has_last)};
        if (has_first && has_last && ends.size() <= 2)
            ranges.append(range);
    }
    return ranges;
}
