#pragma once

#include "handset/Status_Report.h"

#include <QString>
#include <deque>
#include <map>
#include <optional>
#include <tuple>
#include <unordered_map>
#include <vector>

class Job_Record;
struct Job_Report;

// Finds the part that a delivery report is about: of those that are still open the one with its SIM card, its reference
// and its number, by their last digits, since centres write numbers in other forms; of several the one whose time is
// nearest.
// The same report counts once. A value; one thread at a time.
class Report_Desk
{
public:
    struct Part
    {
        int index = 0; ///< of the recipient
        int part = 1;
        int reference = 0;
        qint64 seconds = 0; ///< since 1970, when it was accepted
        int job = 0;        ///< 0 is the job at hand; others are earlier ones
        QString imsi = {};  ///< of the SIM card that it went through; empty where nobody knows
    };

    /// How many seconds the centre's time may be away from an earlier job's: a report on a message that another program
    /// sent last week would otherwise be taken for one on this week's. More than any time zone that was set wrongly.
    static constexpr qint64 Farthest = qint64{2} * 24 * 3600;

    /// The parts of a job that its journal still awaits reports for, and the reports that it has counted.
    static Report_Desk Of(const Job_Record& record, int job = 0);

    void Expect(const QString& number, const Part& part);
    /// Joins what another desk awaits and has counted.
    void Take_Over(const Report_Desk& other);
    /// The part that a report through the SIM card of an IMSI is about; empty for a card that nobody knows, which may
    /// be any. Nothing where none fits, and for a report that has been counted. A report that is final for a part
    /// closes it.
    std::optional<Part> Match(const Handset::Status_Report& report, const QString& imsi = {});
    /// The job that this very report has been counted for; nothing for any other.
    std::optional<int> Counted_For(const Handset::Status_Report& report, const QString& imsi = {}) const;
    /// Whether no part of the job at hand is open.
    bool Is_Empty() const { return m_open == 0; }

private:
    // Reference and last digits, status, when it was submitted, and the card.
    using Report_Key = std::tuple<quint64, int, qint64, QString>;

    void Give_To(int job);
    void Note_As_Counted(const Report_Key& key, int job);

    std::unordered_map<quint64, std::vector<Part>> m_parts; // by reference and last digits
    std::map<Report_Key, int> m_counted;                    // the newest of a job: a report comes twice soon or never
    std::deque<Report_Key> m_newest;
    std::size_t m_open = 0; // of the job at hand
};

/// When the centre got the part, in seconds since 1970; nothing where the report does not tell a time.
std::optional<qint64> Submission_Time(const Handset::Status_Report& report);

/// A report as a job's journal has kept it.
Handset::Status_Report Report_Of(const Job_Report& kept);
