#pragma once

#include "engine/Job_Receipt.h"
#include "records/Export_Writer.h"

#include <memory>

/// A receipt as a table for other programs: RFC 4180 in UTF-8 behind a byte-order mark, by which spreadsheets know it;
/// every field in quotation marks, and the headings in the first line. A spreadsheet would take some cells for numbers
/// or formulas. So an apostrophe stands in front of every number of a recipient, and of every other cell that begins,
/// blanks aside, with one of = + - @ in either width, a tab, a carriage return or an apostrophe; one that reads the
/// file takes a first apostrophe away. A value that Write_Export takes; any thread.
Export_Content Receipt_Csv(std::shared_ptr<const Job_Receipt> receipt);
