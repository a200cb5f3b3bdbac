#include "windows/list/Text_Marks.h"

#include <QPlainTextEdit>
#include <QTextCursor>

namespace {

// A wave of the text's own colour is seen on any ground.
QTextCharFormat Mark_Of(const QPlainTextEdit& edit)
{
    QTextCharFormat format;
    format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    format.setUnderlineColor(edit.palette().color(QPalette::Text));
    return format;
}

// Places that follow one upon the other share a mark: a text in another script has one for each line, not for each
// letter.
std::vector<std::pair<int, int>> Stretches_Of(const std::vector<Marked_Place>& places)
{
    std::vector<std::pair<int, int>> stretches;
    for (const Marked_Place& place : places) {
        if (!stretches.empty() && stretches.back().second == place.at)
            stretches.back().second += place.length;
        else
            stretches.emplace_back(place.at, place.at + place.length);
    }
    return stretches;
}

} // namespace

void Mark_Places(QPlainTextEdit& edit, const std::vector<Marked_Place>& places)
{
    if (places.empty() && edit.extraSelections().isEmpty())
        return;
    QList<QTextEdit::ExtraSelection> marks;
    const QTextCharFormat format = Mark_Of(edit);
    const int end = edit.document()->characterCount() - 1;
    for (const auto& [first, last] : Stretches_Of(places)) {
        QTextCursor stretch(edit.document());
        stretch.setPosition(std::min(first, end));
        stretch.setPosition(std::min(last, end), QTextCursor::KeepAnchor);
        marks.append({stretch, format});
    }
    edit.setExtraSelections(marks);
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
