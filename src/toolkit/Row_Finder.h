#pragma once

#include "list/Row_Search.h"

#include <QObject>
#include <memory>

class Find_Strip;
class QAction;
class QMenu;
class QTableView;
class Row_Table_Model;

// Lets a person find and sort the rows of a table: by words in a strip, and by a click on a heading. That is a view of
// the list, which itself stays as it is; whenever the list changes it is made anew. Few rows are looked through at
// once, many on a worker. A child of the table, so that what holds back its window's input holds back its keys, too;
// owned by that window; interface thread.
class Row_Finder : public QObject
{
    Q_OBJECT

public:
    /// What is to be looked through, as it is now.
    using Take_Source = std::function<Row_Source()>;

    /// All outlive it.
    Row_Finder(QTableView& table, Row_Table_Model& rows, Find_Strip& strip, Take_Source take_source);
    ~Row_Finder() override;

    /// For menus: opens the strip; its keys work in the whole window.
    QAction& Find_Action() { return *m_find; }
    /// For menus: the orders that there are.
    QMenu& Orders() { return *m_orders; }

    /// All rows are shown again as they stand in the list.
    void End();
    /// The list is about to change in its place: the worker lets go of it, lest it has to be copied.
    void List_Will_Change();

private:
    struct Search;

    void Leave();
    void Go_To_Table();
    void Sort_By(int column, Qt::SortOrder order);
    void Offer_Orders();
    void Columns_Went();
    void Look_Again(bool list_has_changed);
    void Begin_Search(Row_Source source);
    void Take(std::vector<int> rows, int of_rows);
    void Show(std::optional<std::vector<int>> rows);
    void Remember_Selection();
    void Select_Remembered();

    QTableView& m_table;
    Row_Table_Model& m_rows;
    Find_Strip& m_strip;
    Take_Source m_take_source;
    QAction* m_find;
    QMenu* m_orders;
    Row_Wish m_wish;
    std::shared_ptr<Search> m_search; // under way
    std::vector<int> m_selected;      // rows of the list that are to be selected once they are shown; ascending
    bool m_is_due = false;
};
