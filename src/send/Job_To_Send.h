#pragma once

#include "plan/Planned_Row.h"
#include "records/Job_Record.h"
#include "send/Arguments.h"

#include <optional>
#include <vector>

/// A job before it is sent, and all that is known about it. A value.
struct Job_To_Send
{
    QString id;
    bool fixed_waits = false;
    bool flash = false;
    Job_Options options;
    std::vector<Planned_Row> rows;
    std::vector<int> parts; ///< of each row

    QString journal_folder;           ///< empty for a job without a journal
    std::optional<Job_Record> record; ///< of a job that is gone on with

    int Parts_To_Send() const;
    /// How long it takes at pace 1, at a guess.
    qint64 Seconds() const;
};

struct Job_Or_Trouble
{
    Job_To_Send job;
    Trouble trouble;
};

/// A new job from what the arguments name. Reads files.
Job_Or_Trouble New_Job(const Arguments& arguments);

/// The job that the arguments want to go on with, which no other program works on at this moment.
Job_Or_Trouble Job_To_Go_On_With(const Arguments& arguments);

/// Where journals are kept; the default needs a home.
struct Journal_Folder
{
    QString path;
    Trouble trouble;
};
Journal_Folder Journal_Folder_Of(const Arguments& arguments);
