#include "victim/Sudden_Ends.h"

// At all of the calls.
INSTANTIATE_TEST_SUITE_P(Killed_Program, Sudden_Ends,
                         testing::Values(Sudden_End{"In_A_First_Start", Kill_First_Starts, 1, 50},
                                         Sudden_End{"In_A_Later_Start", Kill_Later_Starts, 1, 25},
                                         Sudden_End{"In_A_Job", Kill_Jobs, 1, 300},
                                         Sudden_End{"In_One_Job", Kill_One_Job_Again_And_Again, 60, 60},
                                         Sudden_End{"With_Sent_Items", Kill_Sent_Items, 1, 50},
                                         Sudden_End{"With_Templates", Kill_Templates, 1, 50},
                                         Sudden_End{"With_Exclusion_Lists", Kill_Exclusion_Lists, 1, 100},
                                         Sudden_End{"In_The_Phone_Wizard", Kill_Phone_Wizards, 1, 20},
                                         Sudden_End{"In_An_Import", Kill_Imports, 1, 20},
                                         Sudden_End{"In_An_Export", Kill_Exports, 1, 50}),
                         Name_Of_End);

INSTANTIATE_TEST_SUITE_P(Failing_Disk, Sudden_Ends,
                         testing::Values(Sudden_End{"In_A_First_Start", Fail_First_Starts, 1, 150},
                                         Sudden_End{"In_A_Job", Fail_Jobs, 1, 200},
                                         Sudden_End{"With_Sent_Items", Fail_Sent_Items, 1, 150},
                                         Sudden_End{"With_Templates", Fail_Templates, 1, 150},
                                         Sudden_End{"With_Exclusion_Lists", Fail_Exclusion_Lists, 1, 300},
                                         Sudden_End{"In_Exports", Fail_Exports, 1, 300}),
                         Name_Of_End);
