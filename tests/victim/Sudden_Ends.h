#pragma once

#include "victim/Failings.h"
#include "victim/Killings.h"

#include <gtest/gtest.h>

// The program killed, or its disk failing it, at the calls by which it changes a file: one kind of work.
struct Sudden_End
{
    const char* name;
    int (*come)(int stride);
    int stride; ///< 1 for all calls
    int least;  ///< ends, so that a work that makes no calls does not pass for one that survives them
};

class Sudden_Ends : public testing::TestWithParam<Sudden_End>
{
};

TEST_P(Sudden_Ends, Leave_Everything_Old_Or_New)
{
    EXPECT_GE(GetParam().come(GetParam().stride), GetParam().least);
}

inline std::string Name_Of_End(const testing::TestParamInfo<Sudden_End>& row)
{
    return row.param.name;
}
