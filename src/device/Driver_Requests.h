#pragma once

#include "device/Serial_Calls.h"

// Requests to a serial driver that the terminal interface has no call for. Each returns 0, or -1 and errno.

/// Asks for a speed in bits a second that need not be one of the usual ones.
int Request_Arbitrary_Speed(Serial_Calls& calls, int descriptor, long speed);

/// Asks the driver to hand on each byte as it arrives. A driver without such a mode, or one that lets only the
/// administrator change it, is no failure; a line that has gone is.
int Request_Low_Latency(Serial_Calls& calls, int descriptor);

/// Drops the claim to exclusive use, which on a pseudo-terminal would outlive the descriptor.
void Release_Exclusive_Use(Serial_Calls& calls, int descriptor);

/// Whether somebody claims the line for himself. Privileged users can open it even so.
bool Is_Claimed_Exclusively(Serial_Calls& calls, int descriptor);

/// How long a device may take for the last bytes: 2 seconds at pace 1.
double Seconds_To_Drain();

/// Waits until the driver has sent what was written, Seconds_To_Drain at the most, and throws away what is left then.
/// The program's exit does not cut it short: a message that was written counts as sent. Returns 0, or -1 and errno:
/// ETIMEDOUT for bytes thrown away.
int Drain_With_An_End(Serial_Calls& calls, int descriptor);
