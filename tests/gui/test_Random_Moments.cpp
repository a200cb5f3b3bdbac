#include "gui/Random_Moments.h"

INSTANTIATE_TEST_SUITE_P(, Random_Moments, testing::Range(1U, 13U), testing::PrintToStringParamName());
