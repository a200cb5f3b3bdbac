#pragma once

#include "list/Number_List.h"

#include <QString>
#include <QStringList>
#include <optional>

// The files of the exclusion lists: the index with the names of all lists, the names of the applied lists, and one file
// of numbers for each list. All are UTF-8 without byte-order mark, one entry a line, each followed by "\n"; a mark that
// another program has put there is passed over. What can not be read reads as empty. Nothing here shows anything; may
// be called from any thread, and belongs on a worker.
namespace Exclusion_Files {

/// Where a list is kept. A name is used as a file name as it stands; one with a "/" or a NUL in it would lead out of
/// the folder or to another list, and has no path. The one way to a list's file, for whatever is done with it.
std::optional<QString> List_Path(const QString& list_name);

/// What the applied lists hold together.
struct Applied_Numbers
{
    Number_List numbers;        ///< one list after the other, repeats included
    QStringList unusable_lists; ///< those that are there, and of which nothing is in the numbers; each once
    bool is_readable = true;    ///< whether it could be read which lists are applied
};

/// The entries of a file, each trimmed, without the empty ones.
QStringList Read_Index();
QStringList Read_Applied();
Number_List Read_List(const QString& list_name);

/// The numbers of every applied list, for the main window. Other than everywhere else the applied names are used
/// untrimmed. An applied list without a file is nothing to speak of.
Applied_Numbers Read_Applied_Numbers();

/// Whether anything stands where the index belongs.
bool Index_Exists();

// Each returns whether all of it was written; otherwise the file is as it was. Bytes that are no UTF-8 are kept beside
// their file before it is replaced; a file that can not even be read is not replaced.
bool Append_To_Index(const QString& list_name);
bool Write_Index(const QStringList& list_names);
bool Write_Applied(const QStringList& list_names);
bool Write_List(const QString& list_name, const Number_List& numbers);
/// Sees to it that a list has a file that can be written to; a missing one is made empty.
bool Create_List_If_Missing(const QString& list_name);

/// Deletes a list's file, if that can be done.
void Delete_List(const QString& list_name);

} // namespace Exclusion_Files
