#pragma once

#include <QByteArrayList>
#include <QString>
#include <QVarLengthArray>
#include <optional>

// One line of a job's journal: fields divided by single blanks, then a blank and the checksum of what precedes it as
// eight hexadecimal digits. Functions on values; any thread.
namespace Job_Line {

using Fields = QVarLengthArray<QByteArrayView, 10>;

/// The checksum that Ethernet, zip and PNG use (IEEE 802.3, clause 3.2.9).
quint32 Crc_32(QByteArrayView bytes);

/// A text as one field: UTF-8 with blanks, control characters and "%" percent-encoded. An empty text is "-", and a text
/// that is just that "%2D".
QByteArray Field(const QString& text);
/// The text of a field; nothing when Field makes no such field.
std::optional<QString> Text_Of(QByteArrayView field);

/// Seconds since the beginning of 1970 as a time of day in UTC, such as 2026-11-21T10:15:00Z. Years beyond four digits
/// become the nearest that has four.
QByteArray Time(qint64 seconds);
std::optional<qint64> Seconds_Of(QByteArrayView field);

/// A decimal number without sign and leading zeros, within these limits.
std::optional<qint64> Number_Of(QByteArrayView field, qint64 least, qint64 most);

/// The line with its checksum and its LF.
QByteArray Whole(const QByteArrayList& fields);

/// The fields of a line that is given without its LF; none when its checksum is not right.
Fields Fields_Of(QByteArrayView line);

/// Whether the bytes begin with a whole line that something other than an LF follows. The end of an append that was cut
/// off never does.
bool Begins_With_A_Whole_Line(QByteArrayView bytes);

} // namespace Job_Line
