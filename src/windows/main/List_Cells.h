#pragma once

#include "list/Number_List.h"
#include "list/Recipient_List.h"

#include <QString>

// What the tables of the main window read from their lists.

/// The value of a recipient for a column's identifier. Throws Invalid_Parameter for a row outside the list.
QString Recipient_Cell(const Recipient_List& nsListDataObject, const QString& identifier, int pRowIndex);
/// The same for the exclusion set.
QString Exclusion_Cell(const Number_List& nsExclusionListDataObject, const QString& identifier, int pRowIndex);
