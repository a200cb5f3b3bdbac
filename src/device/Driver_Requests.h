#pragma once

#include "device/Serial_Calls.h"

// Requests to a serial driver for which termios has no call. Each returns 0, or -1 and errno.

/// Asks for any speed, in bits a second.
int Request_Arbitrary_Speed(Serial_Calls& calls, int descriptor, long speed);

/// Asks the driver to pass on each byte as it arrives. It is no failure when the driver has no such mode or keeps it to
/// the administrator; a line that has gone is one.
int Request_Low_Latency(Serial_Calls& calls, int descriptor);

/// Drops the claim to exclusive use, which on a pseudo-terminal would outlive the descriptor.
void Release_Exclusive_Use(Serial_Calls& calls, int descriptor);

/// Whether the line is claimed for exclusive use, which does not keep privileged users out. What a program that was
/// killed has left on a pseudo-terminal is no claim.
bool Is_Claimed_Exclusively(Serial_Calls& calls, int descriptor);

/// How long a device may take for the last bytes: 2 seconds at pace 1.
double Seconds_To_Drain();

/// Waits at most Seconds_To_Drain until the driver has sent what was written, then discards the rest. The program's
/// exit does not cut it short: a message that was written counts as sent. Returns 0, or -1 and errno: ETIMEDOUT when
/// bytes were discarded.
int Drain_With_An_End(Serial_Calls& calls, int descriptor);
