#pragma once

#include <QString>

// What the wizard takes as the number of a service centre other than the device's own.
namespace Custom_Smsc_Rules {

inline constexpr int Longest_Typed = 50; ///< characters the field holds

/// Whether a number as typed is one to send through. It is judged in the form that a recipient's number is stored in
/// (without "-", trimmed, a leading "+" as "00"), but handed on as typed.
bool Is_Valid(const QString& typed);

} // namespace Custom_Smsc_Rules
