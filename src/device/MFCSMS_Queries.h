#pragma once

#include "device/Phone_Values.h"

class MFCSMS;

// Shared by the files that make up MFCSMS's queries; private to them.

enum class Asked
{
    Answered,
    Refused, ///< the read failed
    Lost     ///< the command could not be written
};

/// Asks for one value, which is as shown when the device answered and undefined otherwise.
Asked Ask_For(MFCSMS& session, int descriptor, Phone_Value wanted, QString& value);
