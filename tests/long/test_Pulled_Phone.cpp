// A phone whose cable is pulled around each write of a job, in either mode and alphabet, and that is plugged in again.
#include "windows/main/Pulled_Phone.h"

static bool Register_All_Pulls()
{
    for (const Line_Way& way : Line_Ways())
        if (way.is_long == (way.text_mode == way.unicode))
            Register_Pulls("Pulled_Phone", way);
    return true;
}

static const bool Pulls_Registered = Register_All_Pulls();
