#pragma once

#include "device/At_Conversation.h"

/// What a device says of its SIM card.
enum class Sim_State
{
    Unknown, ///< the device does not say
    Ready,
    Pin_Needed,
    Puk_Needed,
    Locked, ///< the device wants a code of its own, or that of a network
    Missing,
    Failed,
    Busy ///< it is still being read
};

/// What the answer to AT+CPIN? means (3GPP TS 27.007, 8.3). Any thread.
Sim_State Sim_State_Of(const At_Answer& answer);
