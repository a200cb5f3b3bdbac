#pragma once

#include "engine/Job_Receipt.h"

#include <QStringList>

// What the files made of a receipt have in common. Any thread.
namespace Receipt_Cells {

/// The headings of the columns.
QStringList Headings();
/// A row's cells in the order of the columns, its outcome with its sign or without.
QStringList Of(const Receipt_Row& row, bool has_sign);

/// A text in which nothing but line breaks and tabs controls a screen or a printer: other control characters become
/// the pictures that Unicode has for them.
QString Printable(QString text);

} // namespace Receipt_Cells
