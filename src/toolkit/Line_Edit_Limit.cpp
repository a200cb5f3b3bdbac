#include "toolkit/Line_Edit_Limit.h"

#include "platform/One_Line.h"

#include <QLineEdit>
#include <algorithm>

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

void Keep_Room_For(QLineEdit& field, const QString& text)
{
    constexpr int letters_in_hint = 17; // that the toolkit has room for
    constexpr int cursor = 2;
    field.ensurePolished();
    const QFontMetrics letters = field.fontMetrics();
    const int around = field.sizeHint().width() - letters_in_hint * letters.horizontalAdvance(u'x');
    field.setMinimumWidth(around + letters.horizontalAdvance(text) + cursor);
}
