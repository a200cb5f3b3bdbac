#include "toolkit/Plain_Text_Edit.h"

#include <QMimeData>
#include <QPaintEvent>
#include <QPainter>
#include <QPixmap>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>

namespace {
// A carriage return and a line feed together become one character.
constexpr int Longest_Piece = 2 * Longest_Message;

constexpr int Lines_Always_In_Sight = 4;
constexpr int Letters_Always_In_Sight = 30;
} // namespace

QString Exact_Text(const QPlainTextEdit& edit)
{
    // Not toPlainText, which would turn no-break spaces into blanks.
    QString text = edit.document()->toRawText();
    text.replace(QChar(QChar::ParagraphSeparator), QChar(u'\n'));
    text.replace(QChar(QChar::LineSeparator), QChar(u'\n'));
    return text;
}

int Text_Length(const QPlainTextEdit& edit)
{
    return edit.document()->characterCount() - 1; // the document also counts the end of its last paragraph
}

bool Cut_Text(QPlainTextEdit& edit, int most)
{
    if (Text_Length(edit) <= most)
        return false;
    QTextCursor beyond(edit.document());
    beyond.joinPreviousEditBlock();
    beyond.setPosition(most);
    beyond.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    beyond.removeSelectedText();
    beyond.endEditBlock();
    return true;
}

Plain_Text_Edit::Plain_Text_Edit(QWidget* parent) : QPlainTextEdit(parent)
{
    connect(document(), &QTextDocument::contentsChange, this,
            [this](int at, int removed, int added) { Text_Waves::Follow_Change(m_marks, at, removed, added); });
}

void Plain_Text_Edit::Mark(Text_Stretches stretches)
{
    Text_Stretches changed;
    std::set_symmetric_difference(m_marks.begin(), m_marks.end(), stretches.begin(), stretches.end(),
                                  std::back_inserter(changed));
    m_marks = std::move(stretches);
    if (changed.empty())
        return;
    int to = 0;
    for (const Text_Stretch& stretch : changed)
        to = std::max(to, stretch.at + stretch.length);
    Repaint_Lines(changed.front().at, std::min(to, Text_Length(*this)));
}

void Plain_Text_Edit::Repaint_Lines(int from, int to)
{
    QTextCursor place(document());
    place.setPosition(from);
    const int top = cursorRect(place).top();
    place.setPosition(to);
    viewport()->update(0, top, viewport()->width(), cursorRect(place).bottom() + 1 - top);
}

// A text is painted as it was laid out, and not shaped once more.
void Plain_Text_Edit::paintEvent(QPaintEvent* event)
{
    QPointF offset = contentOffset();
    const int end = event->rect().bottom();
    for (QTextBlock block = firstVisibleBlock(); block.isValid() && offset.y() <= end; block = block.next()) {
        block.layout()->setCacheEnabled(true);
        offset.ry() += blockBoundingRect(block).height();
    }
    QPlainTextEdit::paintEvent(event);
    if (!m_marks.empty())
        Paint_Waves(event->rect());
}

void Plain_Text_Edit::Paint_Waves(const QRect& in_sight)
{
    QPainter painter(viewport());
    const QPixmap strip = Text_Waves::Strip_Of(font(), palette().color(QPalette::Text), viewport()->width(),
                                               viewport()->devicePixelRatioF());
    m_waves.Begin(font());
    QPointF offset = contentOffset();
    for (QTextBlock block = firstVisibleBlock(); block.isValid() && offset.y() <= in_sight.bottom();
         block = block.next()) {
        m_waves.Paint(painter, strip, block, m_marks, offset, in_sight);
        offset.ry() += blockBoundingRect(block).height();
    }
}

QSize Plain_Text_Edit::minimumSizeHint() const
{
    const QFontMetrics letters = fontMetrics();
    const int around = 2 * (frameWidth() + qRound(document()->documentMargin()));
    return {letters.averageCharWidth() * Letters_Always_In_Sight + around,
            letters.lineSpacing() * Lines_Always_In_Sight + around};
}

void Plain_Text_Edit::insertFromMimeData(const QMimeData* source)
{
    const QString text = source->text();
    if (text.size() <= Longest_Piece) {
        QPlainTextEdit::insertFromMimeData(source);
        return;
    }
    QMimeData piece;
    piece.setText(text.left(Longest_Piece));
    QPlainTextEdit::insertFromMimeData(&piece);
}
