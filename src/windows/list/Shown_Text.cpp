#include "windows/list/Shown_Text.h"

#include <algorithm>

namespace {

constexpr int Lines_In_Sight = 3;
constexpr int Letters_In_Sight = 20;

} // namespace

Shown_Text::Shown_Text(QWidget* parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    setFrameShape(QFrame::NoFrame);
    document()->setDocumentMargin(0); // in line with the caption above it
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void Shown_Text::Show_Text(const QString& text, int place)
{
    if (text != m_text) {
        m_text = text;
        setPlainText(text);
    }
    QTextCursor cursor = textCursor();
    cursor.setPosition(std::clamp(place, 0, document()->characterCount() - 1));
    setTextCursor(cursor);
    ensureCursorVisible();
}

QSize Shown_Text::minimumSizeHint() const
{
    const QFontMetrics letters = fontMetrics();
    const int around = 2 * (frameWidth() + qRound(document()->documentMargin()));
    return {letters.averageCharWidth() * Letters_In_Sight + around, letters.lineSpacing() * Lines_In_Sight + around};
}
