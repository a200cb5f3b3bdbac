#pragma once

#include "support/In_Windows.h"

#include <QContextMenuEvent>
#include <QMenu>

// What a person finds in the menu of a table, and chooses there.

enum class Opened_By
{
    Mouse, ///< the right button over the first row
    Key
};

/// The words in the menu of a table, in their order; those that cannot be chosen are in brackets. Chooses one by a
/// click, if its words are given, and otherwise leaves the menu again.
inline QStringList Menu_Of(QTableView& table, Opened_By opened_by, const QString& chosen = {})
{
    QStringList shown;
    QTimer::singleShot(0, &table, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu) << "no menu opens";
        QAction* choice = nullptr;
        for (QAction* action : menu->actions()) {
            const QString words = action->text().remove(u'&').section(u'\t', 0, 0);
            if (action->isVisible())
                shown.append(action->isEnabled() ? words : u'[' + words + u']');
            choice = words == chosen ? action : choice;
        }
        EXPECT_TRUE(chosen.isEmpty() || choice) << chosen.toStdString();
        if (choice)
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(choice).center());
        else
            menu->close();
    });
    if (opened_by == Opened_By::Mouse) {
        QTest::mouseClick(table.window()->windowHandle(), Qt::RightButton, {},
                          table.viewport()->mapTo(table.window(), Middle_Of(table, 0)));
    } else { // as the desktop's key reaches what has the focus
        const QPoint middle = table.rect().center();
        QContextMenuEvent by_key(QContextMenuEvent::Keyboard, middle, table.mapToGlobal(middle));
        QApplication::sendEvent(&table, &by_key);
    }
    EXPECT_FALSE(shown.isEmpty()) << "the menu has not been looked at";
    return shown;
}

/// What was copied last.
inline QString Copied()
{
    return QApplication::clipboard()->text();
}
