#pragma once

#include <QString>

// How a message is counted and cut for submission. Lengths count UTF-16 units.

/// The octets of a frame after its service-centre part, as AT+CMGS is told them (3GPP TS 27.005, 4.3). pdu and the
/// encoded centre are hexadecimal; has_smsc says whether a centre was given.
int Submit_Length(const QString& pdu, bool has_smsc, const QString& encoded_smsc);

/// A frame of this many octets or more does not go out as a single message.
inline constexpr int Too_Long_For_One = 154;

/// Whether the message has few enough characters for a single one: 160, or 70 in UCS2.
bool May_Be_Single(qsizetype length, bool unicode);

/// How many parts a message is cut into, in PDU mode (152 or 66 characters each) and in text mode (160 or 70).
int Pdu_Part_Count(qsizetype length, bool unicode);
int Text_Part_Count(qsizetype length, bool unicode);

/// Part number part, from 1, of a message in text mode.
QString Text_Part(const QString& message, int part, bool unicode);

/// The form of a text-mode body in which none of its characters ends or cancels it: the end-of-message, escape and zero
/// characters become blanks.
QString Harmless_Body(const QString& body);
