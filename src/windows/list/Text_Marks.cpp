#include "windows/list/Text_Marks.h"

#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>

namespace {

// A wave of the text's own colour is seen on any ground.
QTextCharFormat Mark_Of(const QPlainTextEdit& edit)
{
    QTextCharFormat format;
    format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    format.setUnderlineColor(edit.palette().color(QPalette::Text));
    return format;
}

// Places of a block that follow one upon the other share a mark: a text in another script has one for each line, not
// for each letter. The next place is the first that ends behind the block.
QList<QTextLayout::FormatRange> Marks_In(const QTextBlock& block, const QTextCharFormat& format,
                                         std::vector<Marked_Place>::const_iterator& next,
                                         std::vector<Marked_Place>::const_iterator end)
{
    QList<QTextLayout::FormatRange> marks;
    const int block_end = block.position() + block.length();
    for (; next != end && next->at < block_end; ++next) {
        const int start = std::max(next->at - block.position(), 0);
        const int length = std::min(next->at + next->length, block_end) - block.position() - start;
        if (!marks.isEmpty() && marks.last().start + marks.last().length == start)
            marks.last().length += length;
        else
            marks.append({start, length, format});
        if (next->at + next->length > block_end)
            break;
    }
    return marks;
}

} // namespace

// As a part of the layout, marks are painted with the text; as selections each would be painted over all of it.
void Mark_Places(QPlainTextEdit& edit, const std::vector<Marked_Place>& places)
{
    const QTextCharFormat format = Mark_Of(edit);
    QTextDocument& document = *edit.document();
    auto next = places.begin();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const auto marks = Marks_In(block, format, next, places.end());
        if (marks == block.layout()->formats())
            continue;
        // Each mark is shaped by itself, which costs much: the text is painted as it was laid out, and not shaped
        // again.
        block.layout()->setCacheEnabled(!marks.isEmpty());
        block.layout()->setFormats(marks);
        document.markContentsDirty(block.position(), block.length());
    }
}

QStringList Marked_Texts(const QPlainTextEdit& edit)
{
    QStringList marked;
    for (QTextBlock block = edit.document()->begin(); block.isValid(); block = block.next()) {
        for (const QTextLayout::FormatRange& mark : block.layout()->formats())
            marked.append(block.text().mid(mark.start, mark.length));
    }
    return marked;
}

void Change_Text(QPlainTextEdit& edit, const std::vector<Changed_Text>& changes)
{
    QTextCursor cursor(edit.document());
    cursor.beginEditBlock();
    for (auto change = changes.rbegin(); change != changes.rend(); ++change) {
        cursor.setPosition(change->at);
        cursor.setPosition(change->at + static_cast<int>(change->from.size()), QTextCursor::KeepAnchor);
        cursor.insertText(change->to);
    }
    cursor.endEditBlock();
}
