#pragma once

#include "records/Sent_Item.h"

#include <QByteArray>
#include <QList>
#include <functional>
#include <optional>

// The format of the sent-items file: one record per line, "\a" number "\v" message "\a" date "\v" status, in UTF-8
// without a byte-order mark. Nothing escapes the two separators. Functions on values; any thread.
namespace Sent_Item_Format {

/// The bytes of one record, including its "\n". The status is always written empty: the window's rewrite and the send
/// job's records match byte for byte.
QByteArray Line(const Sent_Item& item);

/// The bytes of a whole file.
QByteArray Lines(const QList<Sent_Item>& items);

/// The record made of these values, with its number trimmed; nothing when the number is blank.
std::optional<Sent_Item> Record(const QString& number, const QString& message, const QString& date,
                                const QString& status);

/// Passes on the records of a file's text in file order. Accepts any text, in time linear in its length; from a line
/// broken up by separators inside its fields it recovers what it can, possibly several records.
void Read(const QString& text, const std::function<void(Sent_Item)>& take);

} // namespace Sent_Item_Format
