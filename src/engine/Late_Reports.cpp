#include "engine/Late_Reports.h"

#include "device/Device_Paths.h"
#include "platform/Waiting.h"
#include "records/Job_Journal.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

namespace {

constexpr double Seconds_Between_Looks = 0.2; // so that whoever wants the device has it soon
constexpr double Seconds_To_Finish = 2;
constexpr qint64 Days_To_Await = 30;

QDateTime Oldest_To_Await()
{
    return Local_Time().addDays(-Days_To_Await);
}

// The journals of the jobs that asked for reports, and their headers.
std::vector<std::pair<QString, Job_Header>> Jobs_With_Reports(const QString& folder)
{
    std::vector<std::pair<QString, Job_Header>> jobs;
    if (folder.isEmpty())
        return jobs;
    const QStringList names = QDir(folder).entryList({QStringLiteral("*.journal")}, QDir::Files, QDir::Name);
    for (const QString& name : names) {
        const QString path = folder + u'/' + name;
        if (const auto front = Read_Job_Front(path); front && front->report_seconds >= 0)
            jobs.emplace_back(path, front->header);
    }
    return jobs;
}

// Whether a job has had a SIM card that it did not begin with.
bool Went_Through(const QString& path, const QString& imsi)
{
    if (imsi.isEmpty() || QFileInfo(path).lastModified() < Oldest_To_Await())
        return false;
    const Job_Reading reading = Read_Job(path);
    return reading.record && reading.record->Cards().contains(imsi);
}

// A device that answers is left as it was found; one that does not must not keep the others waiting.
std::function<bool()> Some_Time_After(const Stop_Flag& stop)
{
    return [&stop, end = std::optional<double>()]() mutable {
        if (stop != 1)
            return false;
        if (!end)
            end = Now_Seconds() + Paced(Seconds_To_Finish);
        return Now_Seconds() >= *end;
    };
}

} // namespace

std::optional<Job_Header> Job_That_Awaits_Reports(const QString& folder)
{
    const auto jobs = Jobs_With_Reports(folder);
    const QDateTime oldest = Oldest_To_Await();
    for (auto job = jobs.rbegin(); job != jobs.rend(); ++job) {
        if (QFileInfo(job->first).lastModified() < oldest)
            continue;
        const Job_Reading reading = Read_Job(job->first);
        if (reading.record && !Report_Desk::Of(*reading.record).Is_Empty())
            return job->second;
    }
    return std::nullopt;
}

Late_Reports::Late_Reports(Confirmed_Session& session, Report_Desk& desk) : m_session(session), m_desk(desk) {}

Late_Reports::~Late_Reports() = default;

void Late_Reports::Set_Own_Job(Job_Journal* journal, Own_Report on_report)
{
    m_own = journal;
    m_on_own = std::move(on_report);
}

bool Late_Reports::Look_Into(const QString& folder, const QString& own_path)
{
    m_jobs.clear();
    for (const auto& [path, header] : Jobs_With_Reports(folder))
        if (Job_Id_Of(path) != Job_Id_Of(own_path) &&
            (header.imsi == m_session.Imsi() || Went_Through(path, m_session.Imsi())))
            m_jobs.push_back({path, header.seconds, QFileInfo(path).lastModified().toSecsSinceEpoch(), false, nullptr});
    return Are_Awaited();
}

// Most kept jobs are too old for a report that comes today.
void Late_Reports::Read_Jobs_Of(const QList<Told_Report>& reports)
{
    for (std::size_t at = 0; at < m_jobs.size(); ++at) {
        Earlier_Job& job = m_jobs[at];
        const bool may_be_meant = std::any_of(reports.begin(), reports.end(), [&](const Told_Report& told) {
            const auto time = Submission_Time(told.m_report);
            return !time || (*time >= job.begin - Report_Desk::Farthest && *time <= job.end + Report_Desk::Farthest);
        });
        if (job.is_read || !may_be_meant)
            continue;
        job.is_read = true;
        if (const Job_Reading reading = Read_Job(job.path); reading.record)
            m_desk.Take_Over(Report_Desk::Of(*reading.record, static_cast<int>(at) + 1));
    }
}

void Late_Reports::Read_Memory()
{
    Take(m_session.Read_Report_Memory());
}

// A journal's lock is held no longer than it takes.
void Late_Reports::Take(const QList<Told_Report>& reports)
{
    if (reports.isEmpty())
        return;
    Read_Jobs_Of(reports);
    QList<std::pair<int, Report_Place>> counted;
    for (const Told_Report& told : reports)
        if (const auto job = Count(told.m_report); job && told.m_place)
            counted.append({*job, *told.m_place});
    QList<Report_Place> done;
    for (const auto& [job, place] : std::as_const(counted))
        if (Is_On_Disk(job))
            done.append(place);
    for (Earlier_Job& job : m_jobs) {
        if (job.journal)
            job.is_closed_to_us = !job.journal->Sync();
        job.journal.reset();
    }
    m_session.Delete_Reports(done);
}

// The job that it has been counted for, now or before.
std::optional<int> Late_Reports::Count(const Handset::Status_Report& report)
{
    const auto part = m_desk.Match(report, m_session.Imsi());
    if (!part)
        return m_desk.Counted_For(report, m_session.Imsi());
    if (Job_Journal* const journal = Journal_Of(part->job)) {
        const bool is_noted =
            journal->Report(m_session.Imsi(), report.m_reference, QString::fromStdString(report.m_number),
                            Local_Time().toSecsSinceEpoch(), report.m_status, Submission_Time(report));
        m_counted += part->job != 0 && is_noted ? 1 : 0;
    }
    if (part->job == 0 && m_on_own)
        m_on_own(*part, report);
    return part->job;
}

// None for the job at hand where it keeps none, and for one that cannot be written to.
Job_Journal* Late_Reports::Journal_Of(int job)
{
    if (job == 0)
        return m_own;
    Earlier_Job& earlier = m_jobs[static_cast<std::size_t>(job) - 1];
    if (!earlier.journal && !earlier.is_closed_to_us) {
        earlier.journal = Job_Journal::Open_To_Go_On(earlier.path).journal;
        earlier.is_closed_to_us = !earlier.journal;
    }
    return earlier.journal.get();
}

// A job that keeps no journal has told its report, and that is all it wants.
bool Late_Reports::Is_On_Disk(int job)
{
    if (job == 0 && !m_own)
        return true;
    Job_Journal* const journal = Journal_Of(job);
    return journal && journal->Sync();
}

int Collect_Late_Reports(const QString& device_path, const QString& folder, double seconds, const Stop_Flag& stop,
                         Serial_Calls& calls)
{
    if (Jobs_With_Reports(folder).empty())
        return 0;
    Confirmed_Session session(Lasting_Device_Path(device_path), calls);
    session.Set_End(Some_Time_After(stop));
    if (session.Open() != Confirmed_Session::Opening::Ready)
        return 0;
    Report_Desk desk;
    Late_Reports late(session, desk);
    if (stop == 0 && late.Look_Into(folder)) {
        session.Ask_For_Reports();
        if (stop == 0)
            late.Read_Memory();
        const double end = Now_Seconds() + Paced(seconds);
        while (stop == 0 && !Program_Is_Exiting() && Now_Seconds() < end && session.Listen(Seconds_Between_Looks))
            late.Take(session.Take_Reports());
    }
    session.Close();
    return late.Counted();
}
