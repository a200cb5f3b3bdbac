#pragma once

#include "platform/File_Lock.h"

#include <QByteArray>
#include <QString>
#include <functional>
#include <optional>

// Reading, appending to and replacing files of text, in a way that a crash, a full disk or a kill leaves no half of
// anything behind. May be called from any thread.

/// The whole of a regular file, up to where it ends while it is read. Nothing when it is missing, is no regular file (a
/// folder, a pipe, a device: those never end), is larger than 2 GiB or can not be read. Opening disturbs no pipe or
/// device.
std::optional<QByteArray> Read_File(const QString& path);

/// The text of UTF-8 bytes, taken strictly: nothing when any byte is not part of a valid sequence. NULs and a
/// byte-order mark stay in the text.
std::optional<QString> Decode_Utf8(const QByteArray& bytes);

/// Whether Decode_Utf8 takes the bytes; without the text, which may be large.
bool Is_Valid_Utf8(const QByteArray& bytes);

/// Both in one: the text of a UTF-8 file.
std::optional<QString> Read_Utf8_File(const QString& path);

/// Appends bytes to an existing regular file, or to a new one with the permissions 0777, with one write where the
/// system takes them in one. An append that fails part-way is cut back to where it began; one that a kill can leave
/// half done is noted beside the file first, under the name of Append_Note_Path, for Clear_Up_After_A_Kill. Takes the
/// file's lock itself. Returns whether all of it is in the file. No bytes: only makes sure that the file is there and
/// can be written to.
bool Append_To_File(const QString& path, const QByteArray& bytes);

/// Replaces a file by one with this content and the permissions 0777, whatever the umask: written beside it under the
/// one name Replacement_Path gives, flushed, synced and renamed over it. At every instant the path holds the old whole
/// or the new whole. Returns false, with the old file as it was, when anything fails; nothing is left beside it then.
/// Takes the file's lock itself. A link, pipe or device at the path is replaced like a file; a folder never is.
bool Replace_File(const QString& path, const QByteArray& bytes);

/// Where a replacement is written before it takes the file's place. Does not end in the data files' extension.
QString Replacement_Path(const QString& path);

/// Where an append is noted for as long as it lasts: the size of the file before it, and what is appended.
QString Append_Note_Path(const QString& path);

/// Puts in order what a kill left of the files with this extension in a folder: a replacement that never took its
/// file's place goes; an append of which only the beginning is in its file is cut back, and its note goes. For a start
/// that nobody else works in the folder with, before anything there is read.
void Clear_Up_After_A_Kill(const QString& folder, const QString& extension);

/// Keeps the bytes of a text file that are no UTF-8 beside it, at Kept_Path, before the file is replaced by what could
/// be read of it, which is nothing. Returns false when they should be kept and can not be.
bool Keep_What_Is_No_Utf8(const QString& path, const QByteArray& bytes);

/// One plain name beside the file.
QString Kept_Path(const QString& path);

/// Whether the path could be opened for writing in place: it is missing and its folder takes new files, or it is a
/// regular file that the user may write to. For what promises to report a file that can not be opened.
bool Can_Be_Written(const QString& path);

/// Removes a regular file or link. Returns whether nothing stands at the path afterwards.
bool Remove_File(const QString& path);

/// Writes a new file straight into its place, in pieces, emptying what stood there: pieces are taken from next_piece
/// until it returns nothing. What was written stays where it is when writing fails. Returns false when the file can not
/// be opened, is no regular file, or a write fails.
bool Write_File_In_Pieces(const QString& path, const std::function<std::optional<QByteArray>()>& next_piece);
