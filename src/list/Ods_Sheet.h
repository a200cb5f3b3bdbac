#pragma once

#include "list/Spreadsheet_File.h"
#include "list/Zip_Archive.h"

// OpenDocument 1.2 and later, part 1: spreadsheets. Any thread.

bool Is_Ods(const Zip_Archive& archive);
Read_Sheet Read_Ods(Zip_Archive& archive, const QString& sheet, Table_Builder& builder);
