#pragma once

#include "list/Recipient_List.h"

// A list with the fields of its recipients as CSV (RFC 4180): the number as it is dialled, the message as it is
// written, and the fields. A recipient without fields has the first two alone. Any thread.
namespace Contact_List_File {

/// The byte-order mark and the first line, "Number", "Message" and the names of the fields.
QByteArray Heading(const Recipient_List& list);
/// The line of the recipient at an index from 0 to Count() - 1.
QByteArray Line(const Recipient_List& list, int index);

/// Whether a table that was read is such a list: its first columns say so.
bool Is_One(const Contact_Table& table);

struct Read_List
{
    Recipient_List recipients;
    std::vector<int> left_out; ///< rows of the table whose number is none, or whose fields stand under wrong names
    QString trouble;           ///< why there is no list; empty for none
};

/// The recipients of such a table, in its order.
Read_List List_In(const Contact_Table& table);

} // namespace Contact_List_File
