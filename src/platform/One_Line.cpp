#include "platform/One_Line.h"

#include "platform/Replace_Each.h"

#include <algorithm>

namespace {

bool Is_Line_Break(QChar character)
{
    switch (character.unicode()) {
    case '\n':
    case '\v':
    case '\f':
    case '\r':
    case 0x85:
    case QChar::LineSeparator:
    case QChar::ParagraphSeparator:
        return true;
    default:
        return false;
    }
}

} // namespace

QString On_One_Line(const QString& text)
{
    QString line = Replace_Each(text, u"\r\n", u" ");
    std::replace_if(line.begin(), line.end(), Is_Line_Break, QChar(u' '));
    return line;
}
