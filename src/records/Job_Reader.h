#pragma once

#include "records/Job_Record.h"
#include "records/Job_Trouble.h"

#include <optional>

// Reads the journal of a job and the list beside it; changes nothing on the disk. For a worker: a large job takes a
// while. What a crash left of a last line is passed over, since it was never acted upon; any other damage makes the
// whole journal unusable, so that nothing is ever sent on the word of a damaged one.

struct Job_Reading
{
    std::optional<Job_Record> record; ///< none when there is trouble
    Job_Trouble trouble = Job_Trouble::None;
    qint64 whole_size = 0; ///< of the journal without the line that a crash cut off
    bool is_torn = false;  ///< whether there is such a line
};

/// What the beginnings of a job's two files tell, for looking through many jobs: the header, and how long reports were
/// awaited, -1 where none were asked for. Nothing where they tell no such thing; the rest of the files is not judged.
struct Job_Front
{
    Job_Header header;
    int report_seconds = -1;
};
std::optional<Job_Front> Read_Job_Front(const QString& path);

/// Reads the journal at a path.
Job_Reading Read_Job(const QString& path);

/// The same from the journal's open file.
Job_Reading Read_Open_Job(const Descriptor& file, const QString& path);
