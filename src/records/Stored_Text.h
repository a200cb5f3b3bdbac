#pragma once

#include <QByteArray>
#include <QString>

// How a text of several lines stands on one line of a data file. Functions on values; any thread.

/// The text with every "\n" written as the line-break token, which nothing escapes: a token that was typed comes back
/// as a line break.
QString With_Line_Break_Tokens(const QString& text);

/// The text of a line of a data file, its line breaks back in place.
QString With_Line_Breaks(QStringView line);

/// The text as it comes back from a data file: half of a surrogate pair, which UTF-8 has no bytes for, becomes U+FFFD.
QString As_Stored(const QString& text);

/// The UTF-8 bytes of one entry of a data file: the text on one line, and the "\n" that ends it.
QByteArray Stored_Line(const QString& text);
