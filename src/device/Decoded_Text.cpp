#include "device/Decoded_Text.h"

QString Decoded_Text(const QByteArray& bytes, KVText_Encoding encoding)
{
    if (bytes.isNull())
        return {};
    if (encoding == KVText_Encoding::Utf8)
        return QString::fromUtf8(bytes);
    QString text = QString::fromLatin1(bytes);
    for (QChar& character : text)
        if (character.unicode() > 0x7F)
            character = QChar::ReplacementCharacter;
    return text;
}

QByteArray Encoded_Text(const QString& text, KVText_Encoding encoding)
{
    if (encoding == KVText_Encoding::Utf8)
        return text.toUtf8();
    QByteArray bytes;
    bytes.reserve(text.size());
    for (const QChar character : text)
        bytes += character.unicode() < 0x80 ? static_cast<char>(character.unicode()) : '?';
    return bytes;
}
