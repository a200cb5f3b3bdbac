#pragma once

#include "device/Phone_Values.h"

class MFCSMS;

// What the files that make up MFCSMS's queries share; nobody else includes it.

enum class Asked
{
    Answered,
    Refused, ///< the read failed
    Lost     ///< the command could not be written
};

/// Asks for one value. Where the device answers, value is its text as it is shown; otherwise it is of no use.
Asked Ask_For(MFCSMS& session, int descriptor, Phone_Value wanted, QString& value);
