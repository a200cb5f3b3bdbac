#pragma once

#include "plan/Plan_Sums.h"
#include "plan/Planned_Row.h"
#include "send/Arguments.h"
#include "send/Table_Input.h"

#include <vector>

/// The recipients that the arguments name, each with its text and its verdict, in their order: those of --to, then
/// those of --numbers, then those of --table.
struct Inputs
{
    std::vector<Planned_Row> rows;
    std::vector<int> parts;          ///< of each row
    Plan_Sums sums;                  ///< of all of them, without causes
    std::optional<Table_Told> table; ///< how the table was read, if there is one
    Trouble trouble;                 ///< what cannot be read, or is missing
};

/// Reads the files that the arguments name. Blocks, until the end of standard input where that is one of them.
Inputs Read_Inputs(const Arguments& arguments);
