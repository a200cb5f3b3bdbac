#pragma once

#include "device/Device_Cause.h"

#include <QtGlobal>

/// What became of one recipient's message, as far as anybody knows.
enum class Row_State : quint8
{
    Not_Tried,
    Written,            ///< every octet went out, and no answer was read
    Taken,              ///< by the phone, in the fixed-wait manner: it answered with a reference and OK
    Sent,               ///< by the network: each part was acknowledged with its reference
    Refused,            ///< the device said why
    Partly_Taken,       ///< of its parts the first were taken or sent, and then one was not
    No_Answer,          ///< every octet went out, and the device said nothing in the time of a read
    May_Have_Been_Sent, ///< and may not
    Excluded,           ///< skipped: its number is in an exclusion list
    Repeated,           ///< skipped: an earlier recipient has the same number
    Skipped,            ///< for a reason that only its job's list knows
    Invalid_Number,     ///< skipped: no frame can carry its number
    Not_Filled          ///< skipped: its placeholders leave no text that can be sent; the cause says so in words
};

struct Row_Outcome
{
    Row_State state = Row_State::Not_Tried;
    Device_Cause
        cause; ///< of Refused and Not_Filled, and of Partly_Taken and May_Have_Been_Sent where the device gave one

    bool operator==(const Row_Outcome&) const = default;
};
