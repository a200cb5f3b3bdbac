#include "toolkit/Table_Menu.h"

#include "toolkit/Button_Action.h"
#include "toolkit/Copy_Action.h"

#include <QTableView>
#include <utility>

void Give_Table_Menu(QTableView& table, std::function<Row_Source()> take_source, const QList<QPushButton*>& buttons)
{
    table.setContextMenuPolicy(Qt::ActionsContextMenu);
    table.addAction(new Copy_Action(table, std::move(take_source))); // the table owns it, and a button its action
    for (QPushButton* button : buttons)
        table.addAction(new Button_Action(*button));
}
