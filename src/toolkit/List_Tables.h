#pragma once

#include <stdexcept>
#include <vector>

class QTableView;
class Row_Table_Model;

// How every table of the program is set up, and queries on its selection. Interface thread only.

// A row that the list does not have was requested; the text is "Invalid parameter not satisfying: " and the condition.
class Invalid_Parameter : public std::logic_error
{
public:
    explicit Invalid_Parameter(const char* condition);
};

/// Hairlines between its rows, with headings, selects several whole rows, edits nothing in place, made for a million
/// rows of texts of any length. See Whole_Text_Delegate for what is painted, and Double_Clicks for what a double click
/// is.
void Prepare_List_Table(QTableView& table, Row_Table_Model& rows);

/// The selected rows in ascending order, as the list counts them, which a Row_Table_Model may show otherwise.
std::vector<int> Rows_Selected_In(const QTableView& table);

/// The same in the order in which the table shows them.
std::vector<int> Rows_Selected_As_Shown(const QTableView& table);

/// Selects a row of the table and no other, whatever keys are held down.
void Select_Alone(QTableView& table, int row);

/// Removes rows from the table that were removed from the list, and leaves only its row 0 selected, if there is one.
/// Listeners to the selection are notified once, when all is done.
void Reload_And_Select_First(QTableView& table, Row_Table_Model& rows);
