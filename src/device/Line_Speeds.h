#pragma once

#include <termios.h>

// A line's speed in bits a second, and the code by which the system knows it.

/// 0 for a code that stands for no speed known here.
long Speed_Of_Code(speed_t code);

/// B0 for a speed that has no code; B0 is the code of 0, too.
speed_t Code_Of_Speed(long speed);
