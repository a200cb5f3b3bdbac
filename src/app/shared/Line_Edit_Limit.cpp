#include "app/shared/Line_Edit_Limit.h"

#include <QLineEdit>
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

QString On_One_Line(const QString& text)
{
    QString line = text;
    line.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    std::replace_if(line.begin(), line.end(), Is_Line_Break, QChar(u' '));
    return line;
}

} // namespace

void Cut_Line(QLineEdit& field, int most_characters)
{
    const QString text = field.text();
    const QString line = On_One_Line(text).left(most_characters);
    if (line == text)
        return;
    const auto cursor = On_One_Line(text.left(field.cursorPosition())).size();
    field.setText(line);
    field.setCursorPosition(static_cast<int>(std::min(cursor, line.size())));
}
