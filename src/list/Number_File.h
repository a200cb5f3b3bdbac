#pragma once

#include "list/Packed_Number.h"

#include <QByteArray>
#include <QString>
#include <optional>

/// The largest file of numbers that is read, in bytes: room for some thirty-five million numbers. A file is read and
/// parsed as a whole.
inline constexpr qint64 Largest_Number_File = qint64{512} << 20;

/// The bytes of a file of numbers. Empty when what is there is not such a file: a folder, a pipe or a device, which
/// have no end, or a file above the limit. Nothing when it cannot be read. Any thread.
std::optional<QByteArray> Bytes_Of_Number_File(const QString& path, qint64 largest = Largest_Number_File);

/// The text of a file of numbers: rich text if its extension is "rtf", in upper or lower case, otherwise UTF-8, without
/// a leading byte-order mark. An empty text when the file cannot be read or is not UTF-8. Any thread.
QString Text_Of_Number_File(const QString& path);

/// The same for bytes already read from the path.
QString Text_Of_Number_File(const QString& path, const QByteArray& bytes);

/// The number on a line of such a text, normalised, without "\", "{", "}" and "-"; empty when there is none. A line may
/// be of any length.
Packed_Number Number_In_Line(QStringView line);
