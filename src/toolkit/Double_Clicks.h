#pragma once

#include <QItemSelection>
#include <QObject>

class QTableView;

// Limits a table's double click to the left button, and applies it to the rows that were selected at its first click.
// That click alone leaves a single row selected: if there were several, the second click restores them before anything
// receives the double click. Belongs to its table; interface thread.
class Double_Clicks : public QObject
{
    Q_OBJECT

public:
    explicit Double_Clicks(QTableView& table);

    bool eventFilter(QObject* viewport, QEvent* event) override;

private:
    void Remember_Selection();
    bool Bring_Back_Selection();

    QTableView& m_table;
    QItemSelection m_several; // the selection at the last press; empty if that was at most one row
    bool m_keeps_several = false;
};
