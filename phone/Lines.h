#pragma once

#include <string>
#include <vector>

// A list of command lines, for comparing with what a phone heard: EXPECT_EQ(phone.Heard(), Lines("AT", "AT+CMGF=?")).

template <typename... Texts>
std::vector<std::string> Lines(const Texts&... texts)
{
    return {std::string(texts)...};
}
