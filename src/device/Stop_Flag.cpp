#include "device/Stop_Flag.h"

Stop_Flag Stop_SMS_Sending_Now;
