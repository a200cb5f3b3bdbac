#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

// The times in a status report, as "YYYY-MM-DDThh:mm:ss+hh:mm" in the zone that they were given in. What is no time of
// a calendar gives an empty text rather than a failure, so that a centre's wrong clock loses no report (3GPP
// TS 23.040 9.2.3.11). Pure.

namespace Handset {

/// TP-SCTS or TP-DT: seven octets of swapped decimal digits, years of this century, the zone in quarters of an hour.
std::string Time_Of_Octets(std::span<const std::uint8_t> octets);

/// Text mode's "yy/MM/dd,hh:mm:ss+zz" (27.005 3.1), the zone in quarters of an hour.
std::string Time_Of_Text(std::string_view text);

} // namespace Handset
