#include "list/Card_Line.h"

#include "platform/Text_Files.h"

#include <QStringDecoder>

namespace {

// Where a character stands outside of quotes; the end where it does not.
qsizetype Index_Outside_Quotes(QByteArrayView text, char sought, qsizetype from)
{
    bool is_quoted = false;
    for (qsizetype at = from; at < text.size(); ++at) {
        if (text[at] == '"')
            is_quoted = !is_quoted;
        else if (text[at] == sought && !is_quoted)
            return at;
    }
    return text.size();
}

int Hex_Value(char digit)
{
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    const char upper = static_cast<char>(digit & ~0x20);
    return upper >= 'A' && upper <= 'F' ? upper - 'A' + 10 : -1;
}

void Take_Parameter(QByteArrayView parameter, Card_Line& line)
{
    const QString text = QString::fromLatin1(parameter).toUpper().remove(u'"').trimmed();
    const QString key = text.section(u'=', 0, 0);
    const QString value = text.contains(u'=') ? text.section(u'=', 1) : QString();
    const bool is_type = key == QLatin1String("TYPE") || !text.contains(u'=');
    if (key == QLatin1String("CHARSET"))
        line.charset = value;
    else if (key == QLatin1String("PREF"))
        line.is_preferred = true;
    else if (text.endsWith(QLatin1String("QUOTED-PRINTABLE")))
        line.is_quoted_printable = true;
    else if (is_type)
        line.types += (text.contains(u'=') ? value : text).split(u',', Qt::SkipEmptyParts);
    line.is_preferred = line.is_preferred || line.Has_Type("PREF");
}

QString Decoded(const QByteArray& bytes, const QString& charset)
{
    const auto utf8 = Decode_Utf8(bytes);
    const bool names_utf8 = charset.isEmpty() || charset == QLatin1String("UTF-8");
    if (utf8 && (names_utf8 || bytes.isEmpty()))
        return *utf8;
    QStringDecoder decoder(names_utf8 ? "windows-1252" : charset.toUtf8().constData());
    return decoder.isValid() ? QString(decoder.decode(bytes)) : QString::fromLatin1(bytes);
}

// Without the escapes; where divider is not 0, divided there.
QStringList Unescaped(const QString& text, QChar divider)
{
    QStringList parts{QString()};
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text[at] == u'\\' && at + 1 < text.size()) {
            ++at;
            parts.back() += text[at] == u'n' || text[at] == u'N' ? QChar(u'\n') : text[at];
        } else if (text[at] == divider && !divider.isNull()) {
            parts.append(QString());
        } else {
            parts.back() += text[at];
        }
    }
    return parts;
}

} // namespace

std::optional<Card_Line> Card_Line::Of(QByteArrayView line)
{
    const qsizetype colon = Index_Outside_Quotes(line, ':', 0);
    if (colon == line.size())
        return std::nullopt;
    Card_Line taken;
    const QByteArrayView head = line.first(colon);
    qsizetype end = Index_Outside_Quotes(head, ';', 0);
    taken.name = QString::fromLatin1(head.first(end)).section(u'.', -1).trimmed().toUpper();
    while (end < head.size()) {
        const qsizetype begin = end + 1;
        end = Index_Outside_Quotes(head, ';', begin);
        Take_Parameter(head.sliced(begin, end - begin), taken);
    }
    taken.value = line.sliced(colon + 1).toByteArray();
    return taken;
}

QString Card_Line::Text() const
{
    QString text = Decoded(is_quoted_printable ? From_Quoted_Printable(value) : value, charset);
    return text.remove(QChar(u'\0'));
}

QStringList Card_Line::Components() const
{
    QStringList components = Unescaped(Text(), u';');
    for (QString& component : components)
        component = component.trimmed();
    return components;
}

QByteArray From_Quoted_Printable(QByteArrayView text)
{
    QByteArray bytes;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const int high = at + 2 < text.size() ? Hex_Value(text[at + 1]) : -1;
        const int low = at + 2 < text.size() ? Hex_Value(text[at + 2]) : -1;
        if (text[at] == '=' && high >= 0 && low >= 0) {
            bytes += static_cast<char>(high * 16 + low);
            at += 2;
        } else {
            bytes += text[at];
        }
    }
    return bytes;
}
