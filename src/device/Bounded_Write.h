#pragma once

#include "device/Serial_Calls.h"

#include <QtGlobal>
#include <functional>

/// The outcome of a write. m_error is an errno; 0 on success and on time-out.
struct Write_Outcome
{
    qsizetype m_bytes_written = 0;
    int m_error = 0;
};

/// Writes all bytes through put, waiting for room. At pace 1 it gives up on a device that takes none after 10 seconds,
/// and on one that is too slow after 10 seconds plus 10 ms a byte; neither limit falls below a real second. Input on
/// wake_descriptor ends the wait at once.
Write_Outcome Write_With_An_End(Serial_Calls& calls, int descriptor, const char* bytes, qsizetype length,
                                int wake_descriptor, const std::function<ssize_t(const char*, size_t)>& put);
