#pragma once

#include <QString>

// What the wizard accepts as the number of a service centre other than the device's own.
namespace Custom_Smsc_Rules {

inline constexpr int Longest_Typed = 50; ///< characters the field holds

/// Whether a number, as typed, can be sent through. It is judged in the form in which a recipient's number is stored
/// (without "-", trimmed, a leading "+" as "00"), but passed on as typed.
bool Is_Valid(const QString& typed);

} // namespace Custom_Smsc_Rules
