#pragma once

#include "list/Table_File.h"

#include <memory>
#include <vector>

/// What contacts are read from: a file, or without a path these bytes, in UTF-8.
struct Contact_Source
{
    QString path;
    QByteArray bytes = {};

    /// What a person calls it.
    QString Name() const;
};

/// Contacts as they were read, with what was guessed.
struct Contact_Reading
{
    std::shared_ptr<const Contact_Table> table; ///< none with a trouble
    Table_Facts facts;
    bool is_file = false;      ///< rather than bytes
    bool has_no_names = false; ///< the first row was taken as one like the others
    int number_column = -1;    ///< the likeliest; -1 where no column holds numbers
    QString trouble;           ///< in words that follow a colon
};

/// Reads them. Where nobody has said what the first row is and it cannot name the columns, it is taken as a row.
/// Blocks; any thread.
Contact_Reading Read_Contacts(const Contact_Source& source, const Table_Choices& choices);
