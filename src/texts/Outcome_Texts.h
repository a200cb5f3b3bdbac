#pragma once

#include "texts/Fixed_Text.h"

// What became of a recipient's message, in the words of the recipient table. Each follows a sign there and stands for
// itself where there is none.
namespace Texts::Outcomes {

inline constexpr Fixed_Text Heading{"Outcome"};

inline constexpr Fixed_Text Not_Tried{"not tried"};
inline constexpr Fixed_Text Written{"written"};
inline constexpr Fixed_Text Taken{"taken by the phone"};
inline constexpr Fixed_Text Sent{"sent"};
inline constexpr Fixed_Text Refused{"refused"};
inline constexpr Fixed_Text Partly_Taken{"partly taken"};
inline constexpr Fixed_Text No_Answer{"no answer"};
inline constexpr Fixed_Text May_Have_Been_Sent{"may have been sent"};
inline constexpr Fixed_Text Excluded{"skipped: excluded"};
inline constexpr Fixed_Text Repeated{"skipped: repeated"};
inline constexpr Fixed_Text Skipped{"skipped"};
inline constexpr Fixed_Text Invalid_Number{"skipped: invalid number"};
inline constexpr Fixed_Text Not_Filled{"skipped: not filled"};
inline constexpr Fixed_Text Skipped_Because{"skipped: "};

// Before the number of a cause that counts among a device's own errors and not among those of messages.
inline constexpr Fixed_Text Own_Error{"CME "};

} // namespace Texts::Outcomes
