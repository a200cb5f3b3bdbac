#pragma once

#include "records/Job_Row.h"

/// How planned messages are to be sent, as far as it shows in them or in their time. A value.
struct Plan_Manner
{
    bool fixed_waits = false;
    Job_Alphabet_Choice alphabet = Job_Alphabet_Choice::Auto; ///< never that with fixed waits
    bool is_flash = false;
    bool asks_for_reports = false;
    QString service_centre; ///< empty for the device's own
    int batch = 0;          ///< messages before each pause; 0 for no pauses
    double pause_seconds = 0;
};
