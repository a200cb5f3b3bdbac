#pragma once

#include <atomic>

/// 1 asks the send job to stop. Set by the interface thread, read by the job before each item and each part of a long
/// message.
extern std::atomic<int> Stop_SMS_Sending_Now;
