#include "victim/Failings.h"
#include "victim/Killings.h"

#include <gtest/gtest.h>

// The program killed, or its disk failing, at some of the calls by which it changes a file. The long tests see to all.

TEST(Killed, While_It_Starts)
{
    EXPECT_GE(Kill_First_Starts(3), 18);
    EXPECT_GE(Kill_Later_Starts(3), 10);
}

TEST(Killed, While_It_Sends)
{
    EXPECT_GE(Kill_Jobs(37), 8);
    EXPECT_GE(Kill_One_Job_Again_And_Again(5), 5);
}

TEST(Killed, While_It_Writes_Lists)
{
    EXPECT_GE(Kill_Sent_Items(3), 15);
    EXPECT_GE(Kill_Templates(3), 15);
    EXPECT_GE(Kill_Exclusion_Lists(4), 20);
}

TEST(Killed, While_It_Imports_And_Exports)
{
    EXPECT_GE(Kill_Imports(7), 10);
    EXPECT_GE(Kill_Exports(7), 10);
}

TEST(Disk_Fails, While_It_Starts_And_Sends)
{
    EXPECT_GE(Fail_First_Starts(5), 30);
    EXPECT_GE(Fail_Jobs(23), 5);
}

TEST(Disk_Fails, While_It_Writes_Lists_And_Exports)
{
    EXPECT_GE(Fail_Sent_Items(9), 20);
    EXPECT_GE(Fail_Templates(9), 20);
    EXPECT_GE(Fail_Exclusion_Lists(9), 30);
    EXPECT_GE(Fail_Exports(29), 8);
}

TEST(Disk_Fails, For_Want_Of_Room_And_Of_Permission)
{
    Work_On_A_Full_Disk();
    Work_In_A_Read_Only_Folder();
}
