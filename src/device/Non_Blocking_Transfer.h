#pragma once

#include "device/Serial_Calls.h"

// One non-blocking transfer on a blocking descriptor, whose mode is restored. The caller keeps others off the
// descriptor meanwhile. EAGAIN: no byte could be moved.

/// Takes the bytes that wait, which may be none even after the line was reported ready.
ssize_t Read_Without_Blocking(Serial_Calls& calls, int descriptor, char* bytes, size_t size);

/// Writes what there is room for.
ssize_t Write_Without_Blocking(Serial_Calls& calls, int descriptor, const char* bytes, size_t size);
