#pragma once

/// Why a recipient gets nothing, in words for files and scripts.
namespace Skip_Words {
inline constexpr char Duplicate[] = "duplicate";
inline constexpr char Excluded[] = "excluded";
inline constexpr char Invalid_Number[] = "invalid-number";
inline constexpr char Empty_Field[] = "empty-field";
inline constexpr char Unknown_Field[] = "unknown-field";
inline constexpr char Too_Long[] = "too-long";
inline constexpr char Wrong_Columns[] = "wrong-columns";
} // namespace Skip_Words
