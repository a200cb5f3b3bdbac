#pragma once

#include "list/Row_Search.h"

#include <QList>

class QPushButton;
class QTableView;

/// Gives a table a menu, under the right mouse button and under the key for it: to copy the selected rows, which the
/// keys for that do as well, and what these buttons of its window do, called as they are. Once, on the interface
/// thread.
void Give_Table_Menu(QTableView& table, std::function<Row_Source()> take_source, const QList<QPushButton*>& buttons);
