#pragma once

#include "texts/Fixed_Text.h"

// What receipts say, in their window and in the files made of them.
namespace Texts::Receipts {

inline constexpr Fixed_Text Title{"Receipt"};
inline constexpr Fixed_Text Sum{"%1: %2."}; // what, and how many

// About the job.
inline constexpr Fixed_Text Job{"Job"};
inline constexpr Fixed_Text Began{"Began"};
inline constexpr Fixed_Text Device{"Device"};
inline constexpr Fixed_Text Card{"SIM card"};
inline constexpr Fixed_Text State{"State"};
inline constexpr Fixed_Text Moment{"d MMMM yyyy, HH:mm"}; // how a date and a time are written
inline constexpr Fixed_Text Card_Ends_With{"ends with "};
inline constexpr Fixed_Text Has_Ended{"ended"};
inline constexpr Fixed_Text Has_Not_Ended{"not ended"};

// The sums, which also are the kinds that can be shown alone.
inline constexpr Fixed_Text All{"Recipients"};
inline constexpr Fixed_Text Sent{"Sent"};
inline constexpr Fixed_Text Refused{"Refused"};
inline constexpr Fixed_Text May_Have_Been_Sent{"May have been sent"};
inline constexpr Fixed_Text Not_Tried{"Not tried"};
inline constexpr Fixed_Text Skipped{"Skipped"};
inline constexpr Fixed_Text Delivered{"Delivered"};
inline constexpr Fixed_Text Still_Trying{"Still trying"};
inline constexpr Fixed_Text Not_Delivered{"Not delivered"};
inline constexpr Fixed_Text No_Report{"No report"};

// The columns.
inline constexpr Fixed_Text Row{"Row"};
inline constexpr Fixed_Text Number{"Number"};
inline constexpr Fixed_Text Message{"Message"};
inline constexpr Fixed_Text Outcome{"Outcome"};
inline constexpr Fixed_Text Reason{"Reason"};
inline constexpr Fixed_Text Parts_Sent{"Parts sent"};
inline constexpr Fixed_Text Parts{"Parts"};
inline constexpr Fixed_Text Delivery{"Delivery"};
inline constexpr Fixed_Text Time{"Time"};

// What a row says.
inline constexpr Fixed_Text No_Report_Came{"no report"};
inline constexpr Fixed_Text Skipped_Because{"skipped: "};
inline constexpr Fixed_Text Some_Parts_Were_Sent{"Some of its parts were sent."};
inline constexpr Fixed_Text Cannot_Be_Read{"The list of the job can no longer be read."};

// Why a row was skipped, behind Skipped_Because.
inline constexpr Fixed_Text Empty_Field{"a placeholder is empty"};
inline constexpr Fixed_Text Unknown_Field{"a placeholder is unknown"};
inline constexpr Fixed_Text Wrong_Columns{"wrong number of columns"};
inline constexpr Fixed_Text Too_Long{"too long"};

} // namespace Texts::Receipts
