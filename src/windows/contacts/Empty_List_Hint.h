#pragma once

#include <QPushButton>

class QTableView;

// What a table of recipients says while it has no rows: where they can come from, as a button that lies on it. The key
// to it is the button that does the same beside the table. Part of the table; interface thread.
class Empty_List_Hint : public QPushButton
{
    Q_OBJECT

public:
    explicit Empty_List_Hint(QTableView& table);

    bool eventFilter(QObject* viewport, QEvent* event) override;

private:
    void Lie_In_The_Middle();
};
