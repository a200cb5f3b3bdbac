#pragma once

#include "records/Job_Trouble.h"

#include <QDateTime>
#include <QString>
#include <functional>

// Where the files of jobs are: in one folder, the journal <id>.journal and beside it the frozen list <id>.list. Any
// thread.

/// Tells the time; a job asks it for every line.
using Job_Clock = std::function<QDateTime()>;

/// An id that no other job has: the local time and four random hexadecimal digits, such as 20261121-101500-3f9a.
QString New_Job_Id(const Job_Clock& clock = {});

/// Whether a text could be the id of a job, and names nothing but a file in the jobs' folder: up to 64 letters, digits
/// and "-".
bool Is_Job_Id(const QString& text);

/// The journal of a job; an empty path when the id is none.
QString Job_Journal_Path(const QString& folder, const QString& id);
/// The id that a journal's file is named after.
QString Job_Id_Of(const QString& journal_path);
/// The list that belongs to a journal, wherever it is.
QString Job_List_Path(const QString& journal_path);
/// Where a journal is made before it takes its name.
QString New_Journal_Path(const QString& journal_path);

/// Makes the jobs' folder, for the user alone, and whatever is missing above it, and brings their names to the disk.
Job_Trouble Make_Jobs_Folder(const QString& folder);

/// Brings the names in a folder to the disk.
bool Sync_Folder(const QString& folder);

/// Removes the files of jobs that were killed before their first message, while they were being made. Those that are
/// being made at this moment stay.
void Clear_Up_Jobs(const QString& folder);
