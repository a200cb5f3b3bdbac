#pragma once

#include "records/Job_Row.h"

#include <QByteArray>
#include <optional>

// The lines of a job's frozen list, in UTF-8: "L1" and the job's id, "O" and its options, "R" and a row for each row,
// "Z" and how many rows and parts there are. Fields are divided by tabs. In a text, a backslash, a tab and a line break
// are
// "\\", "\t", "\n" and "\r"; other control characters and halves of pairs, for which UTF-8 has no bytes, are "\u" and
// four hexadecimal digits: every text comes back as it was. Functions on values; any thread. What is read is a line
// without its LF; nothing comes of a line that this program does not write.
namespace Job_List_Format {

constexpr int Most_Rows = 10'000'000;
constexpr int Most_Parts = 20'000'000; ///< of all rows together

// What a job's journal has to know of a row.
struct Extent
{
    int parts = 0;
    bool is_skipped = false;
};

/// Whether a row has only values that its line can hold.
bool Can_Be_Written(const Job_Row& row);

QByteArray First_Line(const QString& id);
QByteArray Line(const Job_Options& options);
QByteArray Line(const Job_Row& row);
/// The parts are those of the rows that are not skipped.
QByteArray Last_Line(int rows, int parts);

std::optional<Job_Options> Options_Of(QByteArrayView line);
std::optional<Job_Row> Row_Of(QByteArrayView line);
/// The same without reading the row's texts.
std::optional<Extent> Extent_Of(QByteArrayView line);

} // namespace Job_List_Format
