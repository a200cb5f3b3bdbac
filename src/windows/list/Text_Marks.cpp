#include "windows/list/Text_Marks.h"

#include "toolkit/Plain_Text_Edit.h"

#include <QTextCursor>

// Places that follow one upon the other share a mark: a text in another script has one for each line, not for each
// letter.
void Mark_Places(Plain_Text_Edit& edit, const std::vector<Marked_Place>& places)
{
    Text_Stretches marks;
    for (const Marked_Place& place : places) {
        if (!marks.empty() && marks.back().at + marks.back().length == place.at)
            marks.back().length += place.length;
        else
            marks.push_back({place.at, place.length});
    }
    edit.Mark(std::move(marks));
}

QStringList Marked_Texts(const Plain_Text_Edit& edit)
{
    const QString text = Exact_Text(edit);
    QStringList marked;
    for (const Text_Stretch& mark : edit.Marks())
        marked.append(text.mid(mark.at, mark.length));
    return marked;
}

void Change_Text(Plain_Text_Edit& edit, const std::vector<Changed_Text>& changes)
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
