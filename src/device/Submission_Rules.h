#pragma once

#include <QString>

// How a message is counted and cut for submission. Lengths are in UTF-16 units.

/// The octets that follow the service-centre part of a frame, which AT+CMGS announces (3GPP TS 27.005, 4.3). pdu is the
/// whole frame in hexadecimal, smsc the centre it was made with, empty for the device's own.
int Submit_Length(const QString& pdu, const QString& smsc);

/// A frame of this many octets or more does not go out as a single message.
inline constexpr int Too_Long_For_One = 154;

/// Whether the message has few enough characters for a single one: 160, or 70 in UCS2.
bool May_Be_Single(qsizetype length, bool unicode);

/// How many parts a message is cut into, in PDU mode (152 or 66 characters each) and in text mode (160 or 70).
int Pdu_Part_Count(qsizetype length, bool unicode);
int Text_Part_Count(qsizetype length, bool unicode);

/// One part, counted from 1, of a message in text mode.
QString Text_Part(const QString& message, int part, bool unicode);

/// A text-mode body with blanks for the characters that would end or cancel it: end of message, escape and zero.
QString Harmless_Body(const QString& body);
