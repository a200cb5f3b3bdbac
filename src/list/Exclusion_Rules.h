#pragma once

#include "list/Import_Report.h"
#include "list/Number_List.h"

#include <QString>
#include <QStringList>
#include <QStringView>
#include <functional>
#include <vector>

// What an exclusion list may be called, which numbers it accepts, and how applying and deleting lists changes the
// names. Functions on values; any thread.
namespace Exclusion_Rules {

inline constexpr int Longest_Name = 50; ///< characters of a list's name

enum class Name_Verdict
{
    Accepted,
    Empty,
    Forbidden_Sequence, ///< contains \/:*?"<>| as one sequence; any of these characters alone is fine
    Name_Of_Index,      ///< would take the index's file
    Exists
};

/// A typed name as it will be read back from its file: trimmed, and without half of a character that was cut in two.
QString List_Name(const QString& typed);

/// What a line of a list's file, of the index or of the applied names holds: the entry, trimmed and without the
/// byte-order mark that some editors put at the front of a file and that joining files can move to any line.
QStringView Entry_In_Line(QStringView line);

/// A line without the mark at its front, and otherwise unchanged.
QStringView Without_Byte_Order_Mark(QStringView line);

/// Judges a name as returned by List_Name, in the order of the verdicts.
Name_Verdict Judge_List_Name(const QString& name, const QStringList& existing_names);

/// Adds the number of each line that holds one not yet present; returns what became of the lines. progress receives,
/// now and then, how many numbers there are so far.
Import_Report Add_Numbers_Of_Text(const QString& text, Number_List& numbers, const std::function<void(int)>& progress);

/// The chosen names that are not applied yet, in their order and without repeats.
QStringList Not_Yet_Applied(const QStringList& chosen, const QStringList& applied);

/// The names at the rows.
QStringList Names_At(const QStringList& names, const std::vector<int>& rows);

/// Removes the rows, sorted and distinct, from a list of names.
void Remove_Rows(QStringList& names, const std::vector<int>& rows);

/// Removes one entry, the last, from the applied names for each name deleted.
void Remove_Deleted(QStringList& applied, const QStringList& deleted);

} // namespace Exclusion_Rules
