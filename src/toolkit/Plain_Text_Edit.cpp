#include "toolkit/Plain_Text_Edit.h"

#include <QMimeData>
#include <QTextCursor>
#include <QTextDocument>

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
