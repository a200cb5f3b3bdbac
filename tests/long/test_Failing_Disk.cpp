#include "victim/Failings.h"

#include <gtest/gtest.h>

// What is shown and what is kept when the disk fails a kind of work, at any of its calls; never fewer failures than
// so many, so that a work that makes no calls does not pass for one that survives them.

TEST(Failing_Disk, A_First_Start_Says_When_There_Can_Be_No_Data_And_The_Next_One_Makes_It_Good)
{
    EXPECT_GE(Fail_First_Starts(1), 150);
}

TEST(Failing_Disk, A_Job_Drops_What_Can_Not_Be_Kept_In_Silence)
{
    EXPECT_GE(Fail_Jobs(1), 200);
}

TEST(Failing_Disk, Stores_That_Can_Not_Be_Written_Stay_As_They_Were_In_Silence)
{
    EXPECT_GE(Fail_Sent_Items(1), 150);
    EXPECT_GE(Fail_Templates(1), 150);
}

TEST(Failing_Disk, Every_Exclusion_List_And_Export_That_Can_Not_Be_Written_Is_Told_Of)
{
    EXPECT_GE(Fail_Exclusion_Lists(1), 300);
    EXPECT_GE(Fail_Exports(1), 300);
}
