#pragma once

#include <QByteArray>
#include <QString>

// How a text of several lines is stored on one line of a data file. Functions on values; any thread.

/// The text with every "\n" written as the line-break token. Nothing escapes the token: one that was typed comes back
/// as a line break.
QString With_Line_Break_Tokens(const QString& text);

/// The text of a line of a data file, with its line breaks restored.
QString With_Line_Breaks(QStringView line);

/// The text as it comes back from a data file: half of a surrogate pair, for which UTF-8 has no bytes, becomes U+FFFD.
QString As_Stored(const QString& text);

/// The UTF-8 bytes of one entry of a data file: the text on one line, with its terminating "\n".
QByteArray Stored_Line(const QString& text);
