#pragma once

#include "device/Confirmed_Session.h"
#include "engine/Report_Desk.h"

#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class Job_Journal;
struct Job_Header;

// Counts delivery reports, which come days later and for many jobs: finds the part among those of the job at hand and
// of the jobs that are unfinished or kept, notes the report in that job's journal, and only when it is on the disk
// deletes it from the device's memory. What belongs to no part, to another SIM card or to a job that another program
// works on stays where it is. Belongs to one who talks to a device; its thread.
class Late_Reports
{
public:
    using Own_Report = std::function<void(const Report_Desk::Part& part, const Handset::Status_Report& report)>;

    /// Both outlive it. The desk may hold parts of the job at hand.
    Late_Reports(Confirmed_Session& session, Report_Desk& desk);
    ~Late_Reports();
    Late_Reports(const Late_Reports&) = delete;
    Late_Reports& operator=(const Late_Reports&) = delete;

    /// The journal of the job at hand, none where it keeps none, and who is told of its reports. The journal outlives
    /// the last Take.
    void Set_Own_Job(Job_Journal* journal, Own_Report on_report);
    /// Looks once for jobs in a folder that asked for reports through the device's SIM card, but for the one whose
    /// journal is at own_path. Whether there are any. The journal of a job that began with this card is read no sooner
    /// than a report comes that may be about it.
    bool Look_Into(const QString& folder, const QString& own_path = {});
    /// Whether Look_Into has found any.
    bool Are_Awaited() const { return !m_jobs.empty(); }

    /// Counts those that lie in the device's memory for reports.
    void Read_Memory();
    void Take(const QList<Told_Report>& reports);

    /// How many reports have been noted for other jobs than the one at hand.
    int Counted() const { return m_counted; }

private:
    struct Earlier_Job
    {
        QString path;
        qint64 begin = 0; // since 1970, when it was made and when its journal was written last
        qint64 end = 0;
        bool is_read = false;
        std::unique_ptr<Job_Journal> journal; // while reports are being noted
        bool is_closed_to_us = false;         // another program works on it, or it cannot be written
    };

    void Read_Jobs_Of(const QList<Told_Report>& reports);
    std::optional<int> Count(const Handset::Status_Report& report);
    Job_Journal* Journal_Of(int job);
    bool Is_On_Disk(int job);

    Confirmed_Session& m_session;
    Report_Desk& m_desk;
    Job_Journal* m_own = nullptr;
    Own_Report m_on_own;
    std::vector<Earlier_Job> m_jobs; // job n is at n - 1
    int m_counted = 0;
};

/// The newest job of a folder that still awaits reports: it asked for them, parts of it have no final one, and its
/// journal was written to within the last thirty days. Nothing where there is none. Reads whole journals; for a worker.
std::optional<Job_Header> Job_That_Awaits_Reports(const QString& folder);

/// Collects the reports that have come since the last job: those in the memory of the device at a path, and those that
/// it says on the line within some seconds at pace 1. Does not touch the device where no job in the folder asked for
/// reports. Returns how many were noted. Blocks, and has the device for itself meanwhile; once it is
/// asked to stop it leaves the device as soon as that has answered, or after two seconds. For a worker.
int Collect_Late_Reports(const QString& device_path, const QString& folder, double seconds, const Stop_Flag& stop,
                         Serial_Calls& calls = Real_Serial_Calls());
