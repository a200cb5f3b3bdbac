#pragma once

#include <QString>

// Small text helpers. Lengths and indexes count UTF-16 units.

/// The first n characters; none for n below 0, the whole text for n at or beyond its length.
QString Left_Str_substringToIndex(const QString& s, int n);

/// The last n characters; none for n below 0, the whole text for n at or beyond its length.
QString Right_Str_substringFromIndex(const QString& s, int n);

/// The characters from index i to the end; an empty text when i lies beyond the end or below 0.
QString Read_Str_FromIndex(const QString& s, int i);

/// The characters before index i; an empty text when i lies beyond the end or below 0.
QString Read_Str_Upto_Index(const QString& s, int i);

/// The text without white space and line breaks at both ends.
QString Trim_Str(const QString& s);

/// Whether t, which must not be empty, occurs in s; the case of letters counts.
bool Find_Str(const QString& s, const QString& t);
