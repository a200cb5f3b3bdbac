#include "victim/Sudden_Ends.h"

// At some of the calls. The long tests see to all.
INSTANTIATE_TEST_SUITE_P(Killed, Sudden_Ends,
                         testing::Values(Sudden_End{"In_A_First_Start", Kill_First_Starts, 3, 18},
                                         Sudden_End{"In_A_Later_Start", Kill_Later_Starts, 3, 10},
                                         Sudden_End{"In_A_Job", Kill_Jobs, 37, 8},
                                         Sudden_End{"In_One_Job", Kill_One_Job_Again_And_Again, 5, 5},
                                         Sudden_End{"With_Sent_Items", Kill_Sent_Items, 3, 15},
                                         Sudden_End{"With_Templates", Kill_Templates, 3, 15},
                                         Sudden_End{"With_Exclusion_Lists", Kill_Exclusion_Lists, 4, 20},
                                         Sudden_End{"In_An_Import", Kill_Imports, 7, 10},
                                         Sudden_End{"In_An_Export", Kill_Exports, 7, 10}),
                         Name_Of_End);

INSTANTIATE_TEST_SUITE_P(Disk_Fails, Sudden_Ends,
                         testing::Values(Sudden_End{"In_A_First_Start", Fail_First_Starts, 5, 30},
                                         Sudden_End{"In_A_Job", Fail_Jobs, 23, 5},
                                         Sudden_End{"With_Sent_Items", Fail_Sent_Items, 9, 20},
                                         Sudden_End{"With_Templates", Fail_Templates, 9, 20},
                                         Sudden_End{"With_Exclusion_Lists", Fail_Exclusion_Lists, 9, 30},
                                         Sudden_End{"In_Exports", Fail_Exports, 29, 8}),
                         Name_Of_End);

TEST(Disk_Fails, For_Want_Of_Room_And_Of_Permission)
{
    Work_On_A_Full_Disk();
    Work_In_A_Read_Only_Folder();
}
