#pragma once

#include "app/shared/Exclusion_Set.h"
#include "app/shared/Recipient_List.h"

#include <stdexcept>
#include <vector>

class QTableView;
class Row_Table_Model;

// What a table of the main window asks of its list, and how such a table is set up.

/// A row that the list does not have was asked for.
class Invalid_Parameter : public std::logic_error
{
public:
    explicit Invalid_Parameter(const char* condition);
};

/// The value of a recipient under a column's identifier. Throws Invalid_Parameter for a row outside the list.
QString Recipient_Cell(const Recipient_List& nsListDataObject, const QString& identifier, int pRowIndex);
/// The same for the exclusion set.
QString Exclusion_Cell(const Exclusion_Set& nsExclusionListDataObject, const QString& identifier, int pRowIndex);

/// Striped, with headings, rows selected whole and many at a time, nothing edited in place, made for a million rows.
void Prepare_List_Table(QTableView& table, Row_Table_Model& rows);

/// The selected rows in ascending order.
std::vector<int> Rows_Selected_In(const QTableView& table);
