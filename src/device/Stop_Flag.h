#pragma once

#include "platform/Waiting.h"

/// 1 asks the send job to stop. Set by the interface thread, read by the job before each item and each part of a long
/// message, and waited for in its pauses.
extern Stop_Flag Stop_SMS_Sending_Now;
