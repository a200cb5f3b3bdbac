#pragma once

#include "texts/Fixed_Text.h"

// Why a row of a plan gets nothing, besides what the readers of tables say.
namespace Texts::Plan {

inline constexpr Fixed_Text Duplicate{"an earlier row has its number"};
inline constexpr Fixed_Text Present{"the list has its number already"};
inline constexpr Fixed_Text Excluded{"its number is in an exclusion list"};

} // namespace Texts::Plan
