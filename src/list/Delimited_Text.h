#pragma once

#include "list/Table_Builder.h"

// Tables as text: fields with a delimiter between them, rows in lines; RFC 4180, and what else is about. A field in
// quotes may hold delimiters, line ends and doubled quotes. Lines end in CR, LF or both, also in the same file. Any
// thread.

/// What stands between the fields of a text in UTF-8: the one of , ; tab and | that gives most rows the same number of
/// fields, or what a first line such as "sep=;" says. A comma where there is no telling, and a tab where that is
/// preferred.
char Guessed_Delimiter(QByteArrayView text, bool prefers_tab);

/// Whether a character may stand between fields: it is ASCII, and no letter, digit, quote or line end.
bool Can_Be_Delimiter(QChar character);

/// Reads a text in UTF-8, which the table keeps; best one that nobody else has. Returns why it cannot be used; empty
/// when it can.
QString Read_Delimited(QByteArray text, char delimiter, Table_Builder& builder);
