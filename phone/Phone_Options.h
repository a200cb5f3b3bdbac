#pragma once

#include "phone/Phone_Moods.h"

#include <string>
#include <utility>
#include <vector>

namespace Handset {

/// What corvane-phone's command line asks for.
struct Phone_Options
{
    Phone_Moods m_moods;
    std::vector<std::pair<std::string, std::string>> m_answers; ///< command, bytes
    std::string m_link;
    bool m_until_stdin_closes = false;
    bool m_help = false;
    bool m_version = false;

    std::string m_error; ///< one line that says what is wrong; empty when nothing is
};

/// Arguments without the program's name; the pace that the environment gives, an empty text for none.
Phone_Options Read_Options(const std::vector<std::string>& arguments, const std::string& pace = {});

std::string Help_Text();

/// "\r", "\n", "\t", "\e", "\\" and "\xHH" to the bytes they stand for; any other text as it is.
std::string Unescaped(const std::string& text);

} // namespace Handset
