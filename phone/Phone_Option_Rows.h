#pragma once

#include "phone/Phone_Options.h"

#include <optional>
#include <span>
#include <string>

namespace Handset {

/// One of corvane-phone's options.
struct Phone_Option
{
    using Values = std::span<const std::string>;

    const char* m_name;
    const char* m_values; ///< names of its values, a blank between them
    const char* m_help;
    bool (*m_apply)(Phone_Options&, Values); ///< false when a value is not one it takes
};

/// All of them, in the order of the help.
std::span<const Phone_Option> Option_Rows();

/// Digits, and a decimal point where there is a fraction; nothing for 0 and for anything else.
std::optional<double> Positive_Number_Of(const std::string& text);

} // namespace Handset
