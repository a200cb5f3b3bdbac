#pragma once

#include "handset/Handset_Message.h"

#include <string>
#include <string_view>

// One JSON object on one line (RFC 8259), for what the phone prints. Pure.

namespace Handset {

/// The text between double quotes, escaped: quote, backslash and everything below U+0020; U+007F, U+2028 and U+2029
/// too, so that a line stays one line wherever it is shown. Bytes that are no UTF-8 become U+FFFD.
std::string Json_Text(std::string_view utf8);

/// {"event":"part",...} and {"event":"message",...}, without a line end; "class" is null when there is none,
/// "reference" likewise.
std::string Json_Line(const Handset_Part& part);
std::string Json_Line(const Handset_Message& message);

} // namespace Handset
