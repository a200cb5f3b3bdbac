#include "gui/Random_Moments.h"

namespace {

[[maybe_unused]] const bool Are_Registered = Register_Random_Moments(1, 12);

} // namespace
