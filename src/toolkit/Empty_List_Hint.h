#pragma once

#include <QWidget>

class QLabel;
class QPushButton;
class QTableView;

// What a table says in its middle while it has no rows: what would be there and, where that can be offered, the first
// step towards it, as a button. The key to that step is the button that does the same beside the table, and assistive
// tools are told the words with the table. Part of the table; interface thread.
class Empty_List_Hint : public QWidget
{
    Q_OBJECT

public:
    /// For a table that has its model. The button's name is the step's.
    Empty_List_Hint(QTableView& table, const QString& step_name);

    /// Without an offer there is no button.
    void Say(const QString& words, const QString& offer = {});
    /// Whether the words are true as long as there are no rows; false at first, and while a list is being loaded.
    void Hold_True(bool are_true);

    bool eventFilter(QObject* viewport, QEvent* event) override;

Q_SIGNALS:
    void Step_Wanted();

private:
    void Show_Or_Hide();
    void Lie_In_The_Middle();

    QTableView& m_table;
    QLabel* m_words;
    QPushButton* m_step;
    bool m_are_true = false;
};
