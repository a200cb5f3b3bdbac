#pragma once

#include "platform/Waiting.h"

/// 1 asks the send job to stop. Set by the interface thread; the job reads it before each item and each part, and waits
/// on it in pauses.
extern Stop_Flag Stop_SMS_Sending_Now;
