#pragma once

#include "handset/Status_Report.h"

#include <string_view>

// Reads status reports as a device says them unasked (3GPP TS 27.005 3.4.1). Pure.

namespace Handset {

/// "+CDS: <length>", a line end and a frame, or text mode's "+CDS: <fo>,<mr>[,<ra>][,<tora>],<scts>,<dt>,<st>". Some
/// devices put a comma before the length. Text mode's values may stand in quotes or not, and be digits of UCS2 where
/// that is the character set. Line ends around it and lines behind it do not matter; what is malformed gives a reason.
Status_Report_Result Read_Report(std::string_view answer);

/// Whether a line announces a status report whose frame is the line that follows.
bool Announces_A_Report(std::string_view line);

} // namespace Handset
