#pragma once

#include "list/Contact_Table.h"

#include <QByteArray>

// The door to lists as people have them: tables as text, spreadsheets and contacts. What a file is shows in its bytes,
// not in its name. Any thread; a file is read as a whole.

/// Where a guess would be wrong; what is empty is guessed.
struct Table_Choices
{
    QString encoding;
    QString sheet;
    char delimiter = 0;
    bool has_no_names = false;   ///< the first row is one like the others, and the columns are numbered
    QString usual_encoding = {}; ///< of a text whose bytes tell none; empty for windows-1252
};

/// How a file was read.
struct Table_Facts
{
    QString format;               ///< "CSV", "vCard", "XLSX" or "ODS"
    QString encoding;             ///< of a text
    bool encoding_is_told = true; ///< by the bytes or by the choices, and not merely usual
    QString delimiter;            ///< of a text; "tab" for one
    QString sheet;                ///< of a spreadsheet
    QStringList sheets;           ///< all of its sheets, also where the one that was asked for is none of them
    QString number_column;        ///< where the format itself says where the numbers are
};

struct Table_In_A_File
{
    Contact_Table table;
    Table_Facts facts;
    QString trouble; ///< why there is no table, in words that follow a colon; empty for none
};

/// What a file is that begins with these bytes, in words that follow a colon: no text, but a spreadsheet, contacts or
/// something that is no list. Empty for a text. Some hundred bytes are enough.
QString Why_No_Plain_Text(QByteArrayView beginning);

/// Reads a file of at most Largest_Number_File bytes.
Table_In_A_File Read_Table(const QString& path, const Table_Choices& choices);

/// The same for bytes that were read; of the file's name only its extension matters, and only for a guess.
Table_In_A_File Table_Of_Bytes(QByteArray bytes, const QString& name, const Table_Choices& choices);
