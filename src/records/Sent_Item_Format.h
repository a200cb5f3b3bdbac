#pragma once

#include "records/Sent_Item.h"

#include <QByteArray>
#include <QList>
#include <functional>
#include <optional>

// The format of the file of sent items: one record a line, "\a" number "\v" message "\a" date "\v" status, in UTF-8
// without a byte-order mark. Nothing escapes the two separators. Functions on values; any thread.
namespace Sent_Item_Format {

/// The bytes of one record, its "\n" included. The status is always written empty: the window's rewrite and the send
/// job's records are byte for byte the same.
QByteArray Line(const Sent_Item& item);

/// The bytes of a whole file.
QByteArray Lines(const QList<Sent_Item>& items);

/// The record of these values, its number trimmed; nothing when the number is blank.
std::optional<Sent_Item> Record(const QString& number, const QString& message, const QString& date,
                                const QString& status);

/// Hands on the records of a file's text in the order of the file. Takes any text, in time that grows with its length;
/// a line that separators of its own cut up gives what can be made of it, several records included.
void Read(const QString& text, const std::function<void(Sent_Item)>& take);

} // namespace Sent_Item_Format
