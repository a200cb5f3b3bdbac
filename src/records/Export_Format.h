#pragma once

#include "records/Sent_Item.h"
#include "records/Template_Item.h"

#include <QByteArray>
#include <QString>

// What the exports of sent items and templates consist of. Each function returns one piece of the file, in UTF-16,
// least significant byte first, with a byte-order mark of its own in front; the pieces are written one after the other.
// Functions on values; any thread.
namespace Export_Format {

/// The values of SENT_EXPORT_MODE.
inline constexpr int Text_Mode = 0;
inline constexpr int Html_Mode = 1;

/// The extension of a mode's files, without its dot.
QString Extension(int mode);

QByteArray Sent_Items_Header(int mode);
QByteArray Sent_Item_Piece(int mode, const Sent_Item& item);

QByteArray Templates_Header(int mode);
QByteArray Template_Piece(int mode, const Template_Item& item);

} // namespace Export_Format
