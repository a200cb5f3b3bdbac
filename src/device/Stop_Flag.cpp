#include "device/Stop_Flag.h"

std::atomic<int> Stop_SMS_Sending_Now{0};
