#pragma once

#include "platform/Descriptor.h"

#include <QByteArray>
#include <functional>

// The lines of an open file, read in pieces, so that a file of any size takes little memory.

constexpr qsizetype Longest_Job_Line = qsizetype{16} << 20;

struct Job_Lines
{
    bool is_readable = true; ///< whether the system let the file be read
    bool is_taken = true;    ///< whether every line was taken, and none was longer than Longest_Job_Line
    QByteArray rest;         ///< what follows the last LF
    qint64 rest_begin = 0;   ///< and where in the file it begins
};

/// Passes on each line without its LF, and where in the file it begins, until take says no.
Job_Lines Take_Job_Lines(const Descriptor& file, const std::function<bool(QByteArrayView line, qint64 begin)>& take);
