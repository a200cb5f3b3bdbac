#pragma once

#include "device/Serial_Calls.h"
#include "doctor/Device_State.h"

#include <functional>

/// Opens a device for this program alone, asks it what keeps it from sending, and closes it. Only asks: no PIN is ever
/// tried, nothing is sent and no setting is changed but echo and the form of errors. A device without a card that is
/// ready is asked no further. Ends early, with what it has, as soon as is_over, asked time and again, answers yes.
/// Blocks; for a worker.
Device_State Ask_Device(const QString& path, const std::function<bool()>& is_over = {},
                        Serial_Calls& calls = Real_Serial_Calls());
