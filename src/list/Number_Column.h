#pragma once

#include "list/Contact_Table.h"

/// The columns of a table that hold numbers: those in most of whose fields one stands, apart from empty ones. Where no
/// column holds such of at least seven digits, those of shorter ones whose names say so. The only column is always one.
std::vector<int> Number_Columns(const Contact_Table& table);

/// Whether a field in UTF-8 looks like a number that somebody could be reached at, and not like a date or an amount.
bool Looks_Like_A_Number(QByteArrayView field, int fewest_digits);
