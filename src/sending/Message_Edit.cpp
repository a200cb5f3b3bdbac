#include "sending/Message_Edit.h"

#include "sending/Composer_Rules.h"

#include <QMimeData>

namespace {
// A carriage return and a line feed together become one character.
constexpr int Longest_Piece = 2 * Composer_Rules::Most_Characters;
} // namespace

void Message_Edit::insertFromMimeData(const QMimeData* source)
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
