#pragma once

#include "list/Table_Builder.h"

/// Whether the bytes are a ZIP archive, as the spreadsheets of today are.
bool Is_Archive(QByteArrayView bytes);

/// Why a spreadsheet of another kind cannot be read: one in an old format, or one with a password; empty for other
/// files.
QString Trouble_Of_Old_Spreadsheet(QByteArrayView bytes);

struct Read_Sheet
{
    QString format; ///< "XLSX" or "ODS"
    QString sheet;  ///< the one that was read
    QStringList sheets;
    QString trouble;
};

/// Reads a sheet of a spreadsheet (ECMA-376 or OpenDocument); the first that is not hidden where no name is given.
/// Cells are taken as they are shown, numbers with all their digits. Any thread.
Read_Sheet Read_Spreadsheet(const QByteArray& bytes, const QString& sheet, Table_Builder& builder);
