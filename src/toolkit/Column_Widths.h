#pragma once

#include <QObject>
#include <map>
#include <optional>

class QTableView;

// The widths that a person has given to a table's columns by dragging a heading's end: they are there again at the next
// start of the program, as soon as the table has room for all of its columns with them. Columns that take what is left
// have no width of their own. Belongs to the table; interface thread.
class Column_Widths : public QObject
{
    Q_OBJECT

public:
    /// Once the columns have their usual widths.
    explicit Column_Widths(QTableView& table);

    /// A column has come, with its usual width, or has gone.
    void Columns_Changed() { Take_Known(); }

    bool eventFilter(QObject* headings, QEvent* event) override;

private:
    using Widths = std::map<int, int>; // by the columns' places in the list, whatever their order on the screen

    QString Key() const;
    void Read_Known();
    void Take_Known();
    void Keep_Dragged();
    bool Has_Width_Of_Its_Own(int column) const;
    int Needed_With(const Widths& widths) const;

    QTableView& m_table;
    std::optional<Widths> m_known; // none before the table is shown for the first time
    Widths m_usual;                // of columns that have a known width
    Widths m_dragged;              // since the button was pressed
    bool m_is_pressed = false;
};
