#pragma once

#include "list/Contact_Table.h"

/// Contacts with a row for each number that they have, in the column that held the first of them: a row for a contact
/// without a number, and in every row all of its contact's values. The table is one of Read_Contact_Cards; any thread.
Contact_Table One_Row_For_Each_Number(const Contact_Table& cards);
