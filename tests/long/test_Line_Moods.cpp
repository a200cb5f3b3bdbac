// Every mood of the virtual phone in every way to send, and every two of them together.
#include "windows/main/Line_Test.h"

static const bool Singles_Registered = Register_Combinations("Line_Moods", Single_Moods());
static const bool Pairs_Registered = Register_Combinations("Line_Moods", Pairs_Of_Moods());
