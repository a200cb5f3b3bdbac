#include "engine/Report_Desk.h"

#include "handset/Delivery_Status.h"

#include <QDateTime>
#include <algorithm>
#include <cstdlib>

namespace {

constexpr qsizetype Digits_That_Count = 8;

quint64 Key_Of(const QString& number, int reference)
{
    quint64 key = static_cast<quint64>(reference);
    for (const QChar digit : number.right(Digits_That_Count))
        key = key * 16 + (digit.isDigit() ? static_cast<quint64>(digit.digitValue()) : 10);
    return key;
}

} // namespace

void Report_Desk::Expect(const QString& number, const Part& part)
{
    m_parts[Key_Of(number, part.reference)].push_back(part);
    ++m_open;
}

std::optional<Report_Desk::Part> Report_Desk::Match(const Handset::Status_Report& report)
{
    const auto found = m_parts.find(Key_Of(QString::fromStdString(report.m_number), report.m_reference));
    if (found == m_parts.end() || found->second.empty())
        return std::nullopt;
    std::vector<Part>& parts = found->second;
    const QDateTime submitted = QDateTime::fromString(QString::fromStdString(report.m_submitted), Qt::ISODate);
    const auto distance = [&](const Part& part) {
        return submitted.isValid() ? std::abs(submitted.toSecsSinceEpoch() - part.seconds) : 0;
    };
    const auto nearest = std::min_element(parts.begin(), parts.end(), [&](const Part& left, const Part& right) {
        return distance(left) < distance(right);
    });
    const Part part = *nearest;
    if (Handset::Delivery_Status_Of(report.m_status).m_delivery != Handset::Delivery::Still_Trying) {
        parts.erase(nearest);
        --m_open;
        if (parts.empty())
            m_parts.erase(found);
    }
    return part;
}
