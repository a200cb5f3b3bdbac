#pragma once

#include "device/Serial_Calls.h"

#include <QtGlobal>
#include <functional>

/// What became of a write: m_error is an errno, 0 when the time went by or all is well.
struct Write_Outcome
{
    qsizetype m_bytes_written = 0;
    int m_error = 0;
};

/// Writes all the bytes with put, waiting for room each time. At pace 1 a device that takes none is given up after 10
/// seconds, and one that takes them too slowly after 10 seconds and 10 ms a byte; neither limit is ever below a real
/// second. wake_descriptor ends the wait at once.
Write_Outcome Write_With_An_End(Serial_Calls& calls, int descriptor, const char* bytes, qsizetype length,
                                int wake_descriptor, const std::function<ssize_t(const char*, size_t)>& put);
