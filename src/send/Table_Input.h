#pragma once

#include "list/Table_File.h"
#include "send/Arguments.h"

/// How a table was read, for those who want to know what was guessed.
struct Table_Told
{
    Table_Facts facts;
    QString number_column;
};

/// The table that the arguments name, and where its numbers are.
struct Table_Input
{
    Contact_Table table;
    int number_column = 0;
    Table_Told told;
    Trouble trouble; ///< why it cannot be used
};

/// Reads the table. Blocks.
Table_Input Read_Table_Input(const Arguments& arguments);
