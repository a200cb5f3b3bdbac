#pragma once

#include <string>
#include <string_view>
#include <vector>

// What stands in one command line (V.250 5.2 to 5.4). Pure.

namespace Handset {

/// The commands of a line in its normal form, each with an "AT" of its own: "AT&FE0+CMEE=1;+CREG?" gives "AT&F0",
/// "ATE0", "AT+CMEE=1" and "AT+CREG?". A basic command without its number means 0. "AT" alone gives none.
std::vector<std::string> Commands_Of(std::string_view line);

} // namespace Handset
