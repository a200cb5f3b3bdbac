#pragma once

#include <QString>

// Small conversions between characters, numbers and hexadecimal text that the codec and the modem session share.
// Plain functions on values, safe on any thread.

// The number as upper-case hexadecimal without leading zeros: "0", "5", "1F", "3A9". A negative number is taken as its
// 32-bit two's complement. Callers that need a fixed width pad the result themselves.
QString Hex(int n);

// The first UTF-16 code unit of the text, its low eight bits; 0 for an empty text.
quint8 Asc(const QString& s);

// The first UTF-16 code unit of the text; 0 for an empty text.
quint16 AscW(const QString& s);
