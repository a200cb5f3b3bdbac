#pragma once

#include "list/Table_Builder.h"

// Contacts as phones and address books export them: vCard 2.1, 3.0 (RFC 2426) and 4.0 (RFC 6350). Any thread.

/// The column of the number that somebody is most likely to read messages at: a mobile one before others, a preferred
/// one before others of its kind, and a fax last.
inline constexpr char Card_Number_Column[] = "TEL";

/// Whether the bytes begin as a vCard does, in an encoding that ASCII is part of.
bool Is_Contact_Cards(QByteArrayView bytes);

/// Reads cards, whose values may each be in an encoding of their own, as rows with the columns FN, N, First name, Last
/// name, TEL, TEL 2, TEL 3, ORG and EMAIL. Returns why they cannot be used; empty when they can.
QString Read_Contact_Cards(QByteArrayView bytes, Table_Builder& builder);
