#pragma once

#include "engine/Row_Details.h"
#include "records/Job_Record.h"

/// What a job's journal knows of a row, counted from 1. One that was skipped is told as not tried. Any thread.
Row_Details Details_Of_Record(const Job_Record& record, int row);

/// The same of its state, where that is known already.
Row_Details Details_Of_State(const Job_Row_State& state);
