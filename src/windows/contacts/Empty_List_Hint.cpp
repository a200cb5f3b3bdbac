#include "windows/contacts/Empty_List_Hint.h"

#include <QEvent>
#include <QTableView>
#include <algorithm>

Empty_List_Hint::Empty_List_Hint(QTableView& table) : QPushButton(table.viewport())
{
    setObjectName(QStringLiteral("Import_Contacts_Here"));
    setText(tr("Add contacts from a spreadsheet, CSV or vCard file ..."));
    setFlat(true);
    setAutoDefault(false);
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::PointingHandCursor);
    QFont link = font();
    link.setUnderline(true);
    setFont(link);
    table.viewport()->installEventFilter(this);
    Lie_In_The_Middle();
}

bool Empty_List_Hint::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show)
        Lie_In_The_Middle();
    return false;
}

// Where there is no room for all of it there is none of it.
void Empty_List_Hint::Lie_In_The_Middle()
{
    const QSize room = parentWidget()->size();
    const QSize needed = sizeHint();
    resize(needed);
    move((room.width() - needed.width()) / 2, std::max(0, (room.height() - needed.height()) / 2));
    setMaximumHeight(needed.width() <= room.width() ? QWIDGETSIZE_MAX : 0);
}
