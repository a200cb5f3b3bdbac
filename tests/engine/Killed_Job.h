#pragma once

#include "engine/Forked_Job.h"
#include "records/Job_Reader.h"

#include <QTemporaryDir>
#include <map>
#include <optional>

// A confirmed job that dies, as often as it is told to, and is gone on with until its end; and what must be true of its
// phone and its journal each time.

/// A recipient, and what the phone makes of the message in the end: it sends it, refuses it or never says.
struct Killed_Row
{
    const char* number;
    QString text;
    int parts = 1;
    Row_State end = Row_State::Sent;
    std::vector<Message_Manner> meanwhile = {}; ///< what the phone does before that, of messages to this number
};

struct Killed_List
{
    std::vector<Killed_Row> rows;
    bool asks_for_reports = false; ///< which the phone keeps in its memory until they are deleted there
    int network_lost_at = 0;       ///< the message that it is lost at for a while; 0 never
};

/// What is on the disk after a death.
enum class Disk_After
{
    As_Written, ///< the process died alone
    As_Synced,  ///< the power failed: nothing that had not been synced
    Half_Way    ///< the power failed: half of what had not been synced
};

class Killed_Job
{
public:
    explicit Killed_Job(const Killed_List& list);

    /// Begins or goes on, dies, and looks at what is left; does nothing where the job is over. Where it does not come
    /// to this death, it has come to its end.
    Job_Life Live_Until(const Job_Death& death, Disk_After disk = Disk_After::As_Written, bool sends_unknown = false);
    /// Goes on with what is left, unhurt, and looks at the end of it all. Rows that may have been sent are sent again
    /// where a person has said so.
    void Live_To_The_End(bool sends_unknown);

private:
    using Parts = std::map<std::pair<std::string, int>, int>; // counts by number and part

    Job_Life Live_On(const Job_Death& death, bool sends_unknown);
    void Lose_Power(const Job_Life& life, Disk_After disk);
    void Look_At_The_Journal();
    void Check_Reports() const;
    void Check_Row(int row, const Parts& handed_over, const Parts& taken) const;
    void Check_Told(const Job_Life& life, const std::vector<Sending_State>& before, bool sends_unknown) const;
    void Check_Inbox(const Job_Life& life) const;
    QString Journal() const;
    bool Is_Over() const;
    std::vector<Sending_State> States() const;
    bool Is_Refused_For_Now(const std::string& number, int message) const;
    Parts Handed_Over() const;
    Parts Taken() const;

    std::vector<Killed_Row> m_rows;
    QTemporaryDir m_folder;
    Virtual_Phone m_phone;
    Send_Order m_order;
    Confirmed_Options m_options;
    std::optional<Job_Record> m_record; // none before the job, and after it
    Parts m_at_most;                    // how often each part may be handed over
    qint64 m_unsynced = 0;              // bytes at the journal's end
};
