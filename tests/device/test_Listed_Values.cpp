#include "device/Listed_Values.h"

#include <gmock/gmock.h>

namespace {

// The values from 0 to 9 that each of five fields lists.
std::string Listed(const char* line)
{
    const Listed_Values values{QByteArray(line)};
    std::string listed;
    for (int field = 0; field < 5; ++field) {
        for (int value = 0; value < 10; ++value)
            listed += values.Has(field, value) ? std::to_string(value) : "";
        listed += field < 4 ? "|" : "";
    }
    return listed;
}

} // namespace

TEST(Listed_Values, Are_Read_As_Devices_List_Them)
{
    const std::pair<const char*, const char*> Table[] = {
        {"+CNMI: (0-2),(0-3),(0-3),(0,2),(0,1)", "012|0123|0123|02|01"},
        {"+CNMI:(0,1-2,5), (1) ,(0),( 0 - 1 ),()", "0125|1|0|01|"},
        {"+CNMI: 2,(0,1),0,1", "2|01|0|1|"},
        {"+CNMI: (2-0),(a,1),(1-2-3),(-1),", "|1|||"},
        {"+CNMI: ((0,1),(2", "01|2|||"},
        {"+CNMI: ", "||||"},
        {"", "||||"},
    };
    for (const auto& [line, listed] : Table)
        EXPECT_EQ(Listed(line), listed) << line;
    EXPECT_TRUE(Listed_Values("+CNMI: ").Is_Empty());
    EXPECT_FALSE(Listed_Values("0").Is_Empty());
}
