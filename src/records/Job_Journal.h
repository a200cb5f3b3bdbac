#pragma once

#include "platform/Descriptor.h"
#include "records/Job_Paths.h"
#include "records/Job_Reader.h"
#include "records/Job_Words.h"

#include <QByteArrayList>
#include <memory>

// What a new job begins with.
struct Job_Start
{
    QString id;     ///< from New_Job_Id
    QString imsi;   ///< of the SIM card; may be empty
    QString device; ///< its path
    Job_Options options;
    std::optional<bool> keeps_receipt = std::nullopt; ///< see Job_Header
};

// The journal of a job that is being sent: what was begun and what came of it, so that after a crash no message is sent
// twice unasked, and every one that may have been sent is named. Holds the journal's lock as long as it lives, which no
// other program then opens to go on with. Belongs to the job; one thread at a time.
//
// The order that makes it safe: the prompt is seen, Hand_Over answers yes, the message is written to the device, the
// result is noted. What a result says may be lost in a power failure until the next Hand_Over or Sync; the part is then
// one that may have been sent. Once anything could not be written or brought to the disk, the journal is dead and every
// further call answers no: the job must stop. Rows and parts count from 1; texts that a device has said are cut to what
// a line has room for.
class Job_Journal
{
public:
    struct Opened
    {
        std::unique_ptr<Job_Journal> journal; ///< none when there is trouble
        std::optional<Job_Record> record;     ///< what had been done, for a job that is gone on with
        Job_Trouble trouble = Job_Trouble::None;
    };

    /// Freezes the rows and begins the job's journal, in a folder that is made if it is missing. When it answers with a
    /// journal, both files are on the disk, which has room for the rest; otherwise neither is there.
    static Opened Create(const QString& folder, const Job_Start& start, const Next_Job_Row& next_row,
                         Job_Clock clock = {});

    /// Opens a journal to go on with the job. Cuts off what a crash left of its last line. When there is trouble with
    /// its content or its lock, nothing has been changed.
    static Opened Open_To_Go_On(const QString& path, Job_Clock clock = {});

    ~Job_Journal();
    Job_Journal(const Job_Journal&) = delete;
    Job_Journal& operator=(const Job_Journal&) = delete;

    /// A part is about to be handed over to the device, with the SIM card of an IMSI in it: empty for one that nobody
    /// knows, nothing for the one that the job began with. It is on the disk when the answer is yes; when it is no, the
    /// part must not be handed over.
    bool Hand_Over(int row, int part, int of, const std::optional<QString>& imsi = std::nullopt);
    /// The network has accepted it, with a reference from 0 to 255 or -1 for none, and the centre's time if that was
    /// told.
    bool Accepted(int row, int part, int reference, const QString& stamp = {});
    /// It was not sent, because of cms:500, cme:11, error, words:... or no-prompt
    bool Refused(int row, int part, const QString& cause);
    /// The same, but it is to be tried again: after a while, or once the device's state is right.
    bool Refused_For_Now(int row, int part, const QString& cause);
    /// There is no telling whether it was sent.
    bool Unknown(int row, int part, const QString& why);
    /// The row will not be sent.
    bool Skipped(int row, const QString& reason);
    /// A status report has come: for the number as it says, at a time in seconds since 1970, with its TP-ST and, where
    /// it told that, when the centre got the part, also since 1970.
    bool Report(const QString& imsi, int reference, const QString& number, qint64 seconds, int status,
                std::optional<qint64> submitted = {});
    /// A person, or what that person used, has decided about a row that may have been sent.
    bool Decide(int row, Job_Decision decision, const QString& who);
    /// The job has ended. Only reports may follow, unless it is gone on with.
    bool End();
    /// Brings everything to the disk: at pauses, and when the job is stopped.
    bool Sync();

    const QString& Path() const { return m_path; }
    /// What has killed it; None as long as it lives.
    Job_Trouble Trouble() const { return m_trouble; }

private:
    Job_Journal(Descriptor file, const QString& path, int rows, const QString& imsi, Job_Clock clock);

    bool Is_Row(int row) const { return row >= 1 && row <= m_rows; }
    bool Is_Part(int row, int part) const { return Is_Row(row) && part >= 1; }
    QByteArray Now() const;
    bool Append(const QByteArrayList& fields);
    bool Die(Job_Trouble trouble);

    Descriptor m_file;
    QString m_path;
    int m_rows;
    QString m_imsi; // of the header
    Job_Clock m_clock;
    bool m_is_synced = true;
    Job_Trouble m_trouble = Job_Trouble::None;
};
