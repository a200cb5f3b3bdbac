#pragma once

#include <string>
#include <string_view>

// How an error is said (3GPP TS 27.005 3.2.5, 27.007 9.1 and 9.2). Pure.

namespace Handset {

enum class Error_Style
{
    Untouched, ///< no +CMEE came yet: numbers for messages, ERROR for all else
    None,      ///< ERROR alone
    Numbers,
    Words
};

/// A result line such as "+CMS ERROR: 304" or "+CME ERROR: 50" in this style; any other line stays as it is, as does a
/// number for which there are no words.
std::string Error_Line(std::string_view line, Error_Style style);

} // namespace Handset
