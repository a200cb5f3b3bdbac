#pragma once

#include "device/Serial_Calls.h"

// One transfer that never blocks, on a descriptor that otherwise does: its own mode is as it was afterwards. Whoever
// calls sees to it that nobody else transfers on the descriptor meanwhile. EAGAIN: no byte could be moved now.

/// Takes the bytes that wait, also where somebody else had them since the line was found ready.
ssize_t Read_Without_Blocking(Serial_Calls& calls, int descriptor, char* bytes, size_t size);

/// Writes what there is room for.
ssize_t Write_Without_Blocking(Serial_Calls& calls, int descriptor, const char* bytes, size_t size);
