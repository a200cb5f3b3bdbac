#pragma once

#include "list/Spreadsheet_File.h"
#include "list/Zip_Archive.h"

// Office Open XML (ECMA-376 part 1): spreadsheets. Any thread.

bool Is_Xlsx(const Zip_Archive& archive);
Read_Sheet Read_Xlsx(Zip_Archive& archive, const QString& sheet, Table_Builder& builder);
