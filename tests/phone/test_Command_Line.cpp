#include "phone/Command_Line.h"

#include "phone/Lines.h"

#include <gtest/gtest.h>

using namespace Handset;

TEST(Command_Line, Each_Command_Of_A_Line_Stands_Alone)
{
    const std::vector<std::pair<std::string, std::vector<std::string>>> cases = {
        {"AT", {}},
        {"AT;;", {}},
        {"ATE0V1", Lines("ATE0", "ATV1")},
        {"ATE1Q0V1", Lines("ATE1", "ATQ0", "ATV1")},
        {"AT&FE0", Lines("AT&F0", "ATE0")},
        {"AT&C1&D2&W", Lines("AT&C1", "AT&D2", "AT&W0")},
        {"ATS0=0", Lines("ATS0=0")},
        {"ATS0?E", Lines("ATS0?", "ATE0")},
        {"ATE0+CMEE=1;+CREG=2", Lines("ATE0", "AT+CMEE=1", "AT+CREG=2")},
        {"AT+CMEE=1;E0", Lines("AT+CMEE=1", "ATE0")},
        {"AT+CSCA=\"1;2\",145;+CSQ", Lines("AT+CSCA=\"1;2\",145", "AT+CSQ")},
        {"AT+CSCA=\"1;2", Lines("AT+CSCA=\"1;2")},
        {"AT^CURC=0;+CSQ", Lines("AT^CURC=0", "AT+CSQ")},
        {"AT$GPS", Lines("AT$GPS")},
        {"ATD+4917;", Lines("ATD+4917")},
        {"AT&", Lines("AT&0")},
        {"ATS", Lines("ATS")},
        {"AT\xC3\xA9", Lines("AT\xC3\xA9")},
    };
    for (const auto& [line, commands] : cases)
        EXPECT_EQ(Commands_Of(line), commands) << line;
}
