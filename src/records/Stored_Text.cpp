#include "records/Stored_Text.h"

#include "platform/Replace_Each.h"

namespace {
const QString Line_Break_Token = QStringLiteral("|AP*|DX/");
}

QString With_Line_Break_Tokens(const QString& text)
{
    return Replace_Each(text, u"\n", Line_Break_Token);
}

QString With_Line_Breaks(QStringView line)
{
    return Replace_Each(line, Line_Break_Token, u"\n");
}

QString As_Stored(const QString& text)
{
    if (text.isValidUtf16())
        return text;
    QString stored = text;
    for (qsizetype i = 0; i < stored.size(); ++i) {
        if (!stored.at(i).isSurrogate())
            continue;
        const bool is_pair =
            stored.at(i).isHighSurrogate() && i + 1 < stored.size() && stored.at(i + 1).isLowSurrogate();
        if (is_pair)
            ++i;
        else
            stored[i] = QChar(QChar::ReplacementCharacter);
    }
    return stored;
}

QByteArray Stored_Line(const QString& text)
{
    return (As_Stored(With_Line_Break_Tokens(text)) + QChar(u'\n')).toUtf8();
}
