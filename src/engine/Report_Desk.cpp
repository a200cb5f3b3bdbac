#include "engine/Report_Desk.h"

#include "handset/Delivery_Status.h"
#include "records/Job_Record.h"

#include <QDateTime>
#include <algorithm>
#include <cstdlib>
#include <limits>

namespace {

constexpr qsizetype Digits_That_Count = 8;

constexpr std::size_t Most_Counted = 1024; // of one job

constexpr qint64 No_Time = std::numeric_limits<qint64>::min();

quint64 Key_Of(const QString& number, int reference)
{
    quint64 key = static_cast<quint64>(reference);
    for (const QChar digit : number.right(Digits_That_Count))
        key = key * 16 + (digit.isDigit() ? static_cast<quint64>(digit.digitValue()) : 10);
    return key;
}

quint64 Key_Of(const Handset::Status_Report& report)
{
    return Key_Of(QString::fromStdString(report.m_number), report.m_reference);
}

bool May_Be_The_Same(const QString& imsi, const QString& other)
{
    return imsi.isEmpty() || other.isEmpty() || imsi == other;
}

} // namespace

std::optional<qint64> Submission_Time(const Handset::Status_Report& report)
{
    const QDateTime time = QDateTime::fromString(QString::fromStdString(report.m_submitted), Qt::ISODate);
    return time.isValid() ? std::optional(time.toSecsSinceEpoch()) : std::nullopt;
}

// When it came is a poor word for when the part was submitted, and the best there is where the report did not tell.
Handset::Status_Report Report_Of(const Job_Report& kept)
{
    Handset::Status_Report report;
    report.m_reference = kept.reference;
    report.m_number = kept.number.toStdString();
    report.m_submitted = QDateTime::fromSecsSinceEpoch(kept.submitted.value_or(kept.seconds), Qt::UTC)
                             .toString(Qt::ISODate)
                             .toStdString();
    report.m_status = static_cast<std::uint8_t>(kept.status);
    return report;
}

Report_Desk Report_Desk::Of(const Job_Record& record, int job)
{
    Report_Desk desk;
    for (int row = 1; row <= record.Row_Count(); ++row) {
        std::optional<Job_Row> frozen;
        for (int number = 1; number <= record.Parts_Of(row); ++number) {
            const Job_Part part = record.Part(row, number);
            if (part.state != Sending_State::Accepted || part.reference < 0)
                continue;
            if (!frozen)
                frozen = record.Row(row).value_or(Job_Row{});
            desk.Expect(frozen->number, {row - 1, number, part.reference, part.handed_over_at, 0, part.imsi});
        }
    }
    for (const Job_Report& report : record.Reports())
        desk.Match(Report_Of(report), report.imsi);
    if (job != 0)
        desk.Give_To(job);
    return desk;
}

void Report_Desk::Give_To(int job)
{
    for (auto& [key, parts] : m_parts)
        for (Part& part : parts)
            part.job = job;
    for (auto& [key, counted_for] : m_counted)
        counted_for = job;
    m_open = 0;
}

void Report_Desk::Expect(const QString& number, const Part& part)
{
    m_parts[Key_Of(number, part.reference)].push_back(part);
    m_open += part.job == 0 ? 1 : 0;
}

void Report_Desk::Take_Over(const Report_Desk& other)
{
    for (const auto& [key, parts] : other.m_parts) {
        std::vector<Part>& mine = m_parts[key];
        mine.insert(mine.end(), parts.begin(), parts.end());
    }
    m_counted.insert(other.m_counted.begin(), other.m_counted.end());
    m_open += other.m_open;
}

std::optional<Report_Desk::Part> Report_Desk::Match(const Handset::Status_Report& report, const QString& imsi)
{
    const quint64 key = Key_Of(report);
    const auto found = m_parts.find(key);
    const auto submitted = Submission_Time(report);
    // Without a time, two reports that say the same may still be about two parts.
    if (found == m_parts.end() || (submitted && Counted_For(report, imsi)))
        return std::nullopt;
    std::vector<Part>& parts = found->second;
    const auto distance = [&](const Part& part) { return submitted ? std::abs(*submitted - part.seconds) : 0; };
    auto nearest = parts.end();
    for (auto part = parts.begin(); part != parts.end(); ++part) {
        const bool is_too_far = part->job != 0 && distance(*part) > Farthest;
        if (!is_too_far && May_Be_The_Same(part->imsi, imsi) &&
            (nearest == parts.end() || distance(*part) < distance(*nearest)))
            nearest = part;
    }
    if (nearest == parts.end())
        return std::nullopt;
    const Part part = *nearest;
    Note_As_Counted({key, report.m_status, submitted.value_or(No_Time), imsi}, part.job);
    if (Handset::Delivery_Status_Of(report.m_status).m_delivery != Handset::Delivery::Still_Trying) {
        parts.erase(nearest);
        m_open -= part.job == 0 ? 1 : 0;
        if (parts.empty())
            m_parts.erase(found);
    }
    return part;
}

void Report_Desk::Note_As_Counted(const Report_Key& key, int job)
{
    if (!m_counted.emplace(key, job).second)
        return;
    m_newest.push_back(key);
    if (m_newest.size() > Most_Counted) {
        m_counted.erase(m_newest.front());
        m_newest.pop_front();
    }
}

std::optional<int> Report_Desk::Counted_For(const Handset::Status_Report& report, const QString& imsi) const
{
    const auto found =
        m_counted.find({Key_Of(report), report.m_status, Submission_Time(report).value_or(No_Time), imsi});
    return found == m_counted.end() ? std::nullopt : std::optional(found->second);
}
