#include "windows/list/Shown_Text.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int Lines_In_Sight = 3;
constexpr int Letters_In_Sight = 20;

} // namespace

Shown_Text::Shown_Text(QWidget* parent) : Plain_Text_Edit(parent)
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
    if (text != m_text)
        Replace_What_Differs(text);
    QTextCursor cursor = textCursor();
    cursor.setPosition(std::clamp(place, 0, document()->characterCount() - 1));
    setTextCursor(cursor);
    ensureCursorVisible();
}

// What the toolkit has made of a text is kept for the next one. A carriage return may be one character with what
// follows it, and then places in the text are not those in the area.
void Shown_Text::Replace_What_Differs(const QString& text)
{
    const QString old = std::exchange(m_text, text);
    if (old.contains(u'\r') || text.contains(u'\r')) {
        setPlainText(text);
        return;
    }
    const auto [old_begin, new_begin] = std::mismatch(old.begin(), old.end(), text.begin(), text.end());
    const auto [old_end, new_end] = std::mismatch(old.rbegin(), std::make_reverse_iterator(old_begin), text.rbegin(),
                                                  std::make_reverse_iterator(new_begin));
    QTextCursor change(document());
    change.setPosition(static_cast<int>(old_begin - old.begin()));
    change.setPosition(static_cast<int>(old_end.base() - old.begin()), QTextCursor::KeepAnchor);
    change.insertText(text.mid(new_begin - text.begin(), new_end.base() - new_begin));
}

QSize Shown_Text::minimumSizeHint() const
{
    const QFontMetrics letters = fontMetrics();
    const int around = 2 * (frameWidth() + qRound(document()->documentMargin()));
    return {letters.averageCharWidth() * Letters_In_Sight + around, letters.lineSpacing() * Lines_In_Sight + around};
}
