#pragma once

#include <QColor>
#include <QRectF>
#include <QString>

class QPainter;

// The program's own icons: lines of one width in a square of 20 units, in any colour and any size. Interface thread.

/// "phone", "send", "add", "import", "contacts", "paste", "export", "clear", "template", "exclusion", "clock",
/// "warning", "ok", "help", "notice", "look", "receipt", "words".
bool Is_Line_Icon(const QString& name);

/// Nothing for a name that there is no icon for.
void Paint_Line_Icon(QPainter& painter, const QRectF& place, const QString& name, const QColor& colour);
