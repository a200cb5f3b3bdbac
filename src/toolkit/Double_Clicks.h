#pragma once

#include <QItemSelection>
#include <QObject>

class QTableView;

// Makes a table's double click one with the left button, and one of the rows that were selected when its first click
// came. That click by itself leaves a single row selected: where there were several, the second one brings them back
// before anybody hears of the double click. Belongs to its table; interface thread.
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
    QItemSelection m_several; // what the last press came upon; empty when that was no more than one row
    bool m_keeps_several = false;
};
