#include "victim/Failings.h"

#include <gtest/gtest.h>
#include <iostream>

namespace {

class Failing_Disk : public testing::Test
{
protected:
    static void Expect_Failures(int failures, int least)
    {
        std::cout << failures << " failures" << std::endl;
        EXPECT_GE(failures, least);
    }
};

} // namespace

TEST_F(Failing_Disk, A_First_Start_Says_When_There_Can_Be_No_Data_And_The_Next_One_Makes_It_Good)
{
    Expect_Failures(Fail_First_Starts(1), 150);
}

TEST_F(Failing_Disk, A_Job_Drops_What_Can_Not_Be_Kept_In_Silence)
{
    Expect_Failures(Fail_Jobs(1), 200);
}

TEST_F(Failing_Disk, Sent_Items_That_Can_Not_Be_Written_Stay_As_They_Were_In_Silence)
{
    Expect_Failures(Fail_Sent_Items(1), 150);
}

TEST_F(Failing_Disk, Templates_That_Can_Not_Be_Written_Stay_As_They_Were_In_Silence)
{
    Expect_Failures(Fail_Templates(1), 150);
}

TEST_F(Failing_Disk, Every_Exclusion_List_That_Can_Not_Be_Written_Is_Told_Of)
{
    Expect_Failures(Fail_Exclusion_Lists(1), 300);
}

TEST_F(Failing_Disk, Every_Export_That_Can_Not_Be_Written_Is_Told_Of)
{
    Expect_Failures(Fail_Exports(1), 300);
}

TEST_F(Failing_Disk, A_Full_One_Takes_Nothing_And_Loses_Nothing)
{
    Work_On_A_Full_Disk();
}

TEST_F(Failing_Disk, A_Read_Only_Folder_Takes_Nothing_And_Loses_Nothing)
{
    Work_In_A_Read_Only_Folder();
}
