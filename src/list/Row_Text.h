#pragma once

#include "list/Row_Search.h"

// Rows of a list as one text that other programs take for a table.

/// A line for each of the rows, its cells between tabs. A cell that has tabs, line breaks or quotation marks in it is
/// put into quotation marks, and those in it are doubled, as spreadsheets do it.
QString Rows_As_Text(const Row_Source& source, const std::vector<int>& rows);
