#pragma once

#include <QObject>

class QTableView;

// Headings of columns that are too narrow for them: they end in an ellipsis, and a tool tip shows the whole. Belongs to
// the table; interface thread.
class Whole_Headings : public QObject
{
    Q_OBJECT

public:
    explicit Whole_Headings(QTableView& table);

    bool eventFilter(QObject* headings, QEvent* event) override;

private:
    QTableView& m_table;
};
