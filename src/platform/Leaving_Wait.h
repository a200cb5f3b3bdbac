#pragma once

#include <functional>

/// Waits as Wait_Seconds_Unless does, but is not ended by the program's exit: for the little that leaving itself has to
/// wait for.
void Wait_Seconds_Also_In_Leaving(double seconds, const std::function<bool()>& is_over);
