#pragma once

#include <QString>

// Small text helpers. Lengths and indexes count UTF-16 units.

/// The first n characters; none when n is below 0, the whole text when n is its length or more.
QString Left_Str_substringToIndex(const QString& s, int n);

/// The last n characters; none when n is below 0, the whole text when n is its length or more.
QString Right_Str_substringFromIndex(const QString& s, int n);

/// The characters from index i to the end; an empty text when i is beyond the end or below 0.
QString Read_Str_FromIndex(const QString& s, int i);

/// The characters before index i; an empty text when i is beyond the end or below 0.
QString Read_Str_Upto_Index(const QString& s, int i);

/// The text without white space and line breaks at either end.
QString Trim_Str(const QString& s);

/// Whether t, which must not be empty, occurs in s; case-sensitive.
bool Find_Str(const QString& s, const QString& t);
