#pragma once

#include <termios.h>

// A line's speed in bits a second, and the system's code for it.

/// 0 for an unknown code.
long Speed_Of_Code(speed_t code);

/// B0 for a speed that has no code, and for 0.
speed_t Code_Of_Speed(long speed);
