#pragma once

#include "list/Table_File.h"

#include <string>

/// A table as tests write it: rows in "/", fields in "|", the names of its columns first. Its trouble instead, where it
/// has one.
inline std::string Shown(const Table_In_A_File& file)
{
    if (!file.trouble.isEmpty())
        return file.trouble.toStdString();
    std::string shown = file.table.Columns().join(u'|').toStdString();
    for (int row = 0; row < file.table.Row_Count(); ++row) {
        shown += '/';
        for (int column = 0; column < file.table.Field_Count(row); ++column)
            shown += (column > 0 ? "|" : "") + file.table.Field(row, column).toStdString();
    }
    return shown;
}
