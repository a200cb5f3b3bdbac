#include "victim/Killings.h"

#include <gtest/gtest.h>

// The program killed at any of its calls; never fewer deaths than so many.

TEST(Killed_Program, A_Start_That_Was_Killed_Is_Made_Good_By_The_Next)
{
    EXPECT_GE(Kill_First_Starts(1), 50);
    EXPECT_GE(Kill_Later_Starts(1), 25);
}

TEST(Killed_Program, A_Killed_Job_Loses_And_Doubles_Nothing)
{
    EXPECT_GE(Kill_One_Job_Again_And_Again(60), 60);
    EXPECT_GE(Kill_Jobs(1), 300);
}

TEST(Killed_Program, Lists_Whose_Window_Was_Killed_Are_The_Old_Or_The_New)
{
    EXPECT_GE(Kill_Sent_Items(1), 50);
    EXPECT_GE(Kill_Templates(1), 50);
    EXPECT_GE(Kill_Exclusion_Lists(1), 100);
}

TEST(Killed_Program, A_Killed_Phone_Wizard_Import_Or_Export_Leaves_The_Stores_Alone)
{
    EXPECT_GE(Kill_Phone_Wizards(1), 20);
    EXPECT_GE(Kill_Imports(1), 20);
    EXPECT_GE(Kill_Exports(1), 50);
}
