#pragma once

#include "records/Job_Record.h"
#include "records/Job_Trouble.h"

#include <QList>
#include <optional>

// What the folder of jobs holds. For a worker: every journal is read.

// A job that has not ended, as a list of such jobs shows it.
struct Unfinished_Job
{
    QString id;             ///< its file's name when it cannot be read
    QString path;           ///< of its journal
    bool is_in_use = false; ///< whether a program works on it at this moment
    Job_Trouble trouble = Job_Trouble::None;
    qint64 seconds = 0; ///< since 1970, when it began; this and the rest only where there is no trouble
    QString device;
    Job_Counts counts;
};

// A job whose files are in the folder, whether it has ended or not.
struct Kept_Job
{
    Unfinished_Job job;
    bool has_ended = false;
};

/// What can be told of the job whose journal is at a path; nothing where none is there. Changes nothing.
std::optional<Kept_Job> Look_At_Job(const QString& path);

/// All jobs of a folder; the newest first.
QList<Kept_Job> Kept_Jobs(const QString& folder);

/// The jobs of a folder that have not ended, and those of which that cannot be told; the oldest first. Changes nothing.
QList<Unfinished_Job> Unfinished_Jobs(const QString& folder);

/// Removes the files of a job that no program works on, whatever state they are in.
Job_Trouble Remove_Job(const QString& path);
