#pragma once

#include <QString>
#include <QtGlobal>

// What a confirmed job consists of, as it is frozen before its first message: values.

enum class Job_Alphabet
{
    Gsm,
    Ucs2
};

// One row of a job, ready to be sent.
struct Job_Row
{
    int source_row = 1; ///< the row in the input that it comes from, counted from 1
    QString number;     ///< as the list holds it
    QString text;       ///< with its placeholders filled in
    Job_Alphabet alphabet = Job_Alphabet::Gsm;
    int message_class = -1; ///< 0 shows at once and is not kept, up to 3; -1 for none
    int parts = 1;          ///< up to 255; 0 only for a row that is skipped
    int reference = -1;     ///< what joins its parts, up to 65,535; -1 where one part needs none
    QString skipped;        ///< why it is never sent, such as "duplicate"; empty for a row that is

    bool operator==(const Job_Row&) const = default;
};

enum class Job_Alphabet_Choice
{
    Auto,
    Gsm,
    Unicode
};

// What holds for all rows of a job.
struct Job_Options
{
    QString service_centre;  ///< empty for the device's own
    int report_seconds = -1; ///< how long delivery reports are awaited at the end; -1 when none are asked for
    int batch = 0;           ///< messages before each pause; 0 for no pauses
    double pause_seconds = 0;
    Job_Alphabet_Choice alphabet = Job_Alphabet_Choice::Auto;

    bool operator==(const Job_Options&) const = default;
};
