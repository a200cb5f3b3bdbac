#include "gui/Random_Moments.h"

INSTANTIATE_TEST_SUITE_P(, Random_Moments, testing::Range(101U, 301U), testing::PrintToStringParamName());
