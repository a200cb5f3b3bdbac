#pragma once

#include "list/Number_List.h"

#include <QString>
#include <QStringList>
#include <optional>

// The files of the exclusion lists: the index with the names of all lists, the names of the applied lists, and one file
// of numbers for each list. All are UTF-8 without byte-order mark, one entry per line, each followed by "\n"; a mark
// put there by another program is ignored. What cannot be read reads as empty. Nothing here shows anything; may be
// called from any thread, and belongs on a worker.
namespace Exclusion_Files {

/// Where a list is kept. A name is used unchanged as a file name; one with a "/" or a NUL in it would lead out of the
/// folder or to another list, and has no path. The only way to a list's file, whatever is done with it.
std::optional<QString> List_Path(const QString& list_name);

// What the applied lists hold together.
struct Applied_Numbers
{
    Number_List numbers;        ///< one list after the other, repeats included
    QStringList unusable_lists; ///< lists that exist but contribute none of the numbers; each once
    bool is_readable = true;    ///< whether the names of the applied lists could be read
};

/// The entries of a file, trimmed, without empty ones.
QStringList Read_Index();
QStringList Read_Applied();
Number_List Read_List(const QString& list_name);

/// The numbers of every applied list, for the main window. Only here are the applied names used untrimmed. An applied
/// list without a file is not worth a mention.
Applied_Numbers Read_Applied_Numbers();

/// Whether anything exists where the index belongs.
bool Index_Exists();

/// Each returns whether all of it was written; otherwise the file is unchanged. Bytes that are not UTF-8 are kept
/// beside their file before it is replaced; a file that cannot even be read is not replaced.
bool Append_To_Index(const QString& list_name);
bool Write_Index(const QStringList& list_names);
bool Write_Applied(const QStringList& list_names);
bool Write_List(const QString& list_name, const Number_List& numbers);
/// Ensures that a list has a file that can be written to; a missing one is created empty.
bool Create_List_If_Missing(const QString& list_name);

/// Deletes a list's file, if possible.
void Delete_List(const QString& list_name);

} // namespace Exclusion_Files
