#pragma once

#include <QByteArray>
#include <QString>

enum class KVText_Encoding
{
    Ascii, ///< bytes above 127 become U+FFFD when read, characters above 127 become "?" when written
    Utf8   ///< invalid sequences become U+FFFD
};

/// The text of bytes from a line; null for null bytes. Keeps zero bytes.
QString Decoded_Text(const QByteArray& bytes, KVText_Encoding encoding);

/// The bytes that go to the line for a text.
QByteArray Encoded_Text(const QString& text, KVText_Encoding encoding);
