#pragma once

#include "list/Packed_Number.h"

#include <QByteArray>
#include <QString>
#include <optional>

/// The most bytes that a file of numbers may have: some thirty-five million of them. A file is read and taken apart as
/// a whole.
inline constexpr qint64 Largest_Number_File = qint64{512} << 20;

/// The bytes of a file of numbers. None of them when it is there and no such file: a folder, a pipe or a device, which
/// never end, or a file larger than the largest. Nothing when it can not be read. Any thread.
std::optional<QByteArray> Bytes_Of_Number_File(const QString& path, qint64 largest = Largest_Number_File);

/// The text of a file of numbers: rich text by its extension "rtf", in any case of letters, otherwise UTF-8, without a
/// byte-order mark at its front. An empty text when the file can not be read or is no UTF-8. Any thread.
QString Text_Of_Number_File(const QString& path);

/// The same, of bytes that were read from the path already.
QString Text_Of_Number_File(const QString& path, const QByteArray& bytes);

/// The number on a line of such a text, normalised, without "\", "{", "}" and "-"; an empty one when there is none. A
/// line may be of any length.
Packed_Number Number_In_Line(QStringView line);
