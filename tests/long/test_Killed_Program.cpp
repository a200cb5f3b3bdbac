#include "victim/Killings.h"

#include <gtest/gtest.h>
#include <iostream>

namespace {

class Killed_Program : public testing::Test
{
protected:
    // So many deaths at the least, so that a work that makes no calls does not pass for one that survives them.
    static void Expect_Kills(int kills, int least)
    {
        std::cout << kills << " kills" << std::endl;
        EXPECT_GE(kills, least);
    }
};

} // namespace

TEST_F(Killed_Program, A_First_Start_That_Was_Killed_Is_Made_Good_By_The_Next)
{
    Expect_Kills(Kill_First_Starts(1), 50);
}

TEST_F(Killed_Program, A_Start_That_Clears_Up_After_A_Death_May_Be_Killed_Too)
{
    Expect_Kills(Kill_Later_Starts(1), 25);
}

TEST_F(Killed_Program, A_Job_That_Is_Killed_Again_And_Again_Loses_And_Doubles_Nothing)
{
    Expect_Kills(Kill_One_Job_Again_And_Again(60), 60);
}

TEST_F(Killed_Program, Of_A_Killed_Job_Every_Record_That_Was_Kept_Is_There_Once)
{
    Expect_Kills(Kill_Jobs(1), 300);
}

TEST_F(Killed_Program, Sent_Items_Whose_Window_Was_Killed_Are_The_Old_Or_The_New)
{
    Expect_Kills(Kill_Sent_Items(1), 50);
}

TEST_F(Killed_Program, Templates_Whose_Window_Was_Killed_Are_The_Old_Or_The_New)
{
    Expect_Kills(Kill_Templates(1), 50);
}

TEST_F(Killed_Program, Exclusion_Lists_Whose_Wizard_Was_Killed_Are_The_Old_Or_The_New)
{
    Expect_Kills(Kill_Exclusion_Lists(1), 100);
}

TEST_F(Killed_Program, A_Killed_Phone_Wizard_Changes_No_File)
{
    Expect_Kills(Kill_Phone_Wizards(1), 20);
}

TEST_F(Killed_Program, A_Killed_Import_Changes_No_File)
{
    Expect_Kills(Kill_Imports(1), 20);
}

TEST_F(Killed_Program, A_Killed_Export_Leaves_The_Stores_Alone)
{
    Expect_Kills(Kill_Exports(1), 50);
}
