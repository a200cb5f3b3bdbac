#pragma once

#include <QString>

// What a phone number may look like, for everything that accepts one.
namespace Number_Rules {

inline constexpr int Longest_Number = 20; ///< characters, including the pair "00" that replaces a leading "+"

/// Answers yes for an INVALID number: longer than 20 characters, or with a character other than the digits 0 to 9, "+"
/// and "-" (also "," when test_flag is set). An empty text counts as valid here.
bool Check_Ph_Number(const QString& number, bool test_flag);

/// The number as it is stored: without "-", trimmed, a leading "+" as "00". Empty when it is no number.
QString Normalised_Number(const QString& raw_number);

} // namespace Number_Rules
