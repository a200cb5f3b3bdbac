#pragma once

#include "list/Row_Search.h"

#include <QAction>

class QTableView;

// Copies the selected rows of a table, in the order in which they are shown, for other programs; for menus, and with
// the keys for it in the table. Belongs to the table; interface thread.
class Copy_Action : public QAction
{
    Q_OBJECT

public:
    Copy_Action(QTableView& table, std::function<Row_Source()> take_source);

private:
    void Copy();

    QTableView& m_table;
    std::function<Row_Source()> m_take_source;
};
