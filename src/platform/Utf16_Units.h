#pragma once

#include <QByteArrayView>
#include <QString>
#include <string_view>

// Between Qt's texts and others, unit for unit. QString's own ways from UTF-16 and from UTF-8 take a byte order mark in
// front for none of the text; in UTF-16 they turn the bytes of all that follows when it is the wrong way round.

/// The units of the text; valid as long as it is.
inline std::u16string_view Units_Of(const QString& text)
{
    return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())};
}

inline QString Text_Of_Units(std::u16string_view units)
{
    return QStringView(units.data(), static_cast<qsizetype>(units.size())).toString();
}

inline QString Text_Of_Utf8(QByteArrayView utf8)
{
    const QString text = QString::fromUtf8(utf8);
    return utf8.startsWith("\xEF\xBB\xBF") ? QChar(QChar::ByteOrderMark) + text : text;
}
