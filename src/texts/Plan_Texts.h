#pragma once

#include "texts/Fixed_Text.h"

// Why a row of a plan gets nothing, besides what the readers of tables say.
namespace Texts::Plan {

inline constexpr Fixed_Text Duplicate{"an earlier row has its number"};
inline constexpr Fixed_Text Present{"the list has its number already"};
inline constexpr Fixed_Text Excluded{"its number is in an exclusion list"};

// Why a list is not handed over, with the path.
inline constexpr Fixed_Text Not_Written{"%1 cannot be written"};
inline constexpr Fixed_Text Not_Used{"%1 is not used"};
inline constexpr Fixed_Text Holds_Another{"it holds an earlier hand-over"};

} // namespace Texts::Plan
