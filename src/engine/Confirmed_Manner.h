#pragma once

#include "device/Confirmed_Session.h"
#include "device/Device_Paths.h"
#include "engine/Alike_Ends.h"
#include "engine/Device_Hold.h"
#include "engine/Late_Reports.h"
#include "engine/Row_Details.h"
#include "engine/Send_Cause.h"
#include "engine/Send_Manner.h"
#include "records/Job_Journal.h"

#include <QHash>

class Send_Progress;
class Stop_Flag;

/// What a confirmed job works by besides its order.
struct Confirmed_Options
{
    QString id;     ///< of a new job, from New_Job_Id; one is made where it is empty
    QString folder; ///< of the journals; empty for a job that keeps none
    Job_Options job;
    double hold_seconds = 0;       ///< how long a job that is held waits; 0 for as long as nobody stops it
    bool keeps_journal = false;    ///< of a job that has ended; the journal of a new one says so
    bool hands_out_record = false; ///< when the job is over
    QHash<int, QString> skipped;   ///< of a new job: the indexes of recipients that get nothing, and why

    QString device_links = Device_Links_By_Id; ///< the folder where a device is found again that was unplugged

    QString resumed_path;       ///< the journal of the job that is gone on with; empty for a new job
    bool sends_unknown = false; ///< rows that may have been sent are sent again, as a person decided
};

// Hands messages over one by one and judges each part by the device's own answers: sent is what the network
// acknowledged, and what may have been sent is never sent again unasked. Every part stands in the job's journal before
// the device gets its end. Used by one walk, on its thread.
class Confirmed_Manner : public Send_Manner
{
public:
    /// All outlive it.
    Confirmed_Manner(const Send_Order& order, const Confirmed_Options& options, Send_Progress& progress,
                     Confirmed_Watcher& watcher, Stop_Flag& stop, Serial_Calls& calls = Real_Serial_Calls());
    ~Confirmed_Manner() override;

    bool Opens() override;
    bool Connect() override;
    void Prepare() override;
    bool Takes_Messages() const override { return m_trouble.isEmpty(); }
    QString Trouble() const override { return m_trouble; }
    QString Completed() const override;
    void Begin_Sending() override;
    Submission Submit(int index, const Recipient& recipient) override;
    bool Is_Settled(int index) override;
    void Skipped(int index, Skip_Reason reason) override;
    void Pause_Begins() override;
    void End_Sending() override;
    void Close() override;

    /// The job's id; empty before Begin_Sending and without a journal.
    QString Job_Id() const;
    Job_Trouble Journal_Trouble() const { return m_journal_trouble; }
    /// What the journal says after Close; nothing unless that is wanted, and for a job without a journal. It stays
    /// readable when the job's files are gone.
    const std::optional<Job_Record>& Record() const { return m_last_record; }
    /// Whether a part has been handed over, or was before the job was gone on with.
    bool Has_Handed_Over() const { return m_has_handed_over; }

private:
    class Row_Walk;

    // A part that may have been sent, of a row that was told so, and whose result may still come.
    struct Open_Case
    {
        int index = 0;
        int part = 0;
        int parts = 1;
        QString number;
        QString imsi; // of the SIM card that it went through
    };

    void Hold_Until_Ready();
    void Begin_Journal();
    void Make_Journal();
    void Open_Journal();
    Job_Row Row_At(int index);
    std::optional<Row_Details> Settled_Before(int index) const;
    void Begin_Reports();
    void Settle_Open_Case();
    void Await_Reports();
    void End_Journal();
    void Note_Accepted(const Open_Case& part, int reference, const QByteArray& time);
    Submission Pass_Over(int index, const QString& why);
    void Take_Reports();
    bool Asks_For_Reports() const { return m_options.job.report_seconds >= 0; }
    bool Is_Sent_Already(int index, int part) const;

    const Send_Order& m_order;
    const Confirmed_Options& m_options;
    Send_Progress& m_progress;
    Confirmed_Watcher& m_watcher;
    Stop_Flag& m_stop;
    const QString m_device_path; // by which it is found again
    Confirmed_Session m_session;
    Device_Hold m_hold;
    Alike_Ends m_alike_ends;
    Report_Desk m_report_desk;
    Late_Reports m_late_reports;
    QString m_trouble;
    std::unique_ptr<Job_Journal> m_journal;
    std::optional<Job_Record> m_record;      // of a job that is gone on with, as it was before
    std::optional<Job_Record> m_last_record; // at the end
    Job_Trouble m_journal_trouble = Job_Trouble::None;
    QString m_job_id;
    std::optional<Open_Case> m_open_case; // the last
    int m_first_reference = 0;
    int m_text_coding = -1; // as last set in text mode
    bool m_has_handed_over = false;
    bool m_has_sent = false;
    bool m_sends_slowly = false;
    bool m_has_ended = false;  // the journal says so
    bool m_has_failed = false; // at least one row was reached and not sent
    int m_open_rows = 0;       // not tried, or may have been sent
};
