#pragma once

#include "platform/Descriptor.h"
#include "records/Job_List.h"
#include "records/Job_Trouble.h"

// The two files of a job that is being made: they get their names, their content and the disk's promise step by step,
// and are removed again unless the last step is done. A kill leaves them for Clear_Up_Jobs to recognise. One thread.
class New_Job_Files
{
public:
    explicit New_Job_Files(QString journal_path);
    ~New_Job_Files();
    New_Job_Files(const New_Job_Files&) = delete;
    New_Job_Files& operator=(const New_Job_Files&) = delete;

    /// Takes the job's name, and the lock of its journal.
    Job_Trouble Begin();
    /// Writes the list and brings it to the disk.
    Job_List::Written Freeze(const QString& id, const Job_Options& options, const Next_Job_Row& next_row);
    /// Writes the journal's header, sets room aside for so many bytes behind it, and brings all to the disk under the
    /// journal's own name. From then on there is a job.
    Job_Trouble Finish(const QByteArray& header, off_t more_bytes);
    /// The journal, open and locked, once it is finished.
    Descriptor Take_Journal();

private:
    QString m_journal_path;
    Descriptor m_journal;
    bool m_is_made = false; // whether there is anything of ours to be removed
    bool m_is_named = false;
};
