#pragma once

#include "platform/File_Lock.h"

#include <QByteArray>
#include <QString>
#include <functional>
#include <optional>

// Reading, appending to and replacing text files, so that a crash, a full disk or a kill leaves nothing half done. May
// be called from any thread.

/// The whole of a regular file, up to wherever it ends when that point is read. Nothing when it is missing, is not a
/// regular file (folders, pipes and devices have no end), is larger than 2 GiB or cannot be read. Opening disturbs no
/// pipe or device.
std::optional<QByteArray> Read_File(const QString& path);

/// The text of UTF-8 bytes, taken strictly: nothing when any byte is not part of a valid sequence. NULs and a
/// byte-order mark stay in the text.
std::optional<QString> Decode_Utf8(const QByteArray& bytes);

/// Whether Decode_Utf8 accepts the bytes, without building the text, which may be large.
bool Is_Valid_Utf8(const QByteArray& bytes);

/// Read_File and Decode_Utf8 in one.
std::optional<QString> Read_Utf8_File(const QString& path);

/// Appends bytes to a regular file, or to a new one with the permissions 0777, in one write where the system takes them
/// in one. An append that fails part-way is cut back to where it began; one that a kill can leave half done is first
/// noted beside the file, at Append_Note_Path, for Clear_Up_After_A_Kill. Takes the file's lock itself. Returns whether
/// all of it is in the file. Without bytes it only makes sure that the file exists and can be written to.
bool Append_To_File(const QString& path, const QByteArray& bytes);

/// Replaces a file by one with this content and the permissions 0777, whatever the umask: written beside it at
/// Replacement_Path, flushed, synced and renamed over it. At every instant the path holds the whole old file or the
/// whole new one. Returns false when anything fails, with the old file as it was and nothing left beside it. Takes the
/// file's lock itself. A link, pipe or device at the path is replaced like a file; a folder never is.
bool Replace_File(const QString& path, const QByteArray& bytes);

/// Where a replacement is written before it takes the file's place. Does not end in the data files' extension.
QString Replacement_Path(const QString& path);

/// Where an append is noted for as long as it lasts: the size of the file before it, and the bytes to append.
QString Append_Note_Path(const QString& path);

/// Clears up what a kill left of the files with this extension in a folder: a replacement that never took its file's
/// place is removed; an append that reached its file only in part is cut back, and its note removed. For a start that
/// has the folder to itself, before anything there is read.
void Clear_Up_After_A_Kill(const QString& folder, const QString& extension);

/// Keeps the bytes of a file, if they are not valid UTF-8, beside it at Kept_Path, before the file is replaced by what
/// could be read of it, which is nothing. Returns false when they should be kept and cannot be.
bool Keep_What_Is_No_Utf8(const QString& path, const QByteArray& bytes);

/// A single plain name beside the file.
QString Kept_Path(const QString& path);

/// Whether the path could be opened for writing in place: it is missing and its folder takes new files, or it is a
/// regular file that the user may write to. For callers that promise to report a file that cannot be opened.
bool Can_Be_Written(const QString& path);

/// Removes a regular file or link. Returns whether the path is free afterwards.
bool Remove_File(const QString& path);

/// Writes a new file directly in place, in pieces, emptying whatever was there: pieces are taken from next_piece until
/// it returns nothing. When writing fails, what was written stays. Returns false when the file cannot be opened, is not
/// a regular file, or a write fails.
bool Write_File_In_Pieces(const QString& path, const std::function<std::optional<QByteArray>()>& next_piece);
