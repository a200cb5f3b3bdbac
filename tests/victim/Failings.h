#pragma once

// Each of these lets the program do one kind of work, again and again from the same beginning, while one of the calls
// by which it changes a file fails, or all from one on, for each of the reasons that a disk has. What is shown is what
// is described, and every file is the old or the new. They return how often something failed.

int Fail_First_Starts(int stride);
int Fail_Jobs(int stride);
int Fail_Sent_Items(int stride);
int Fail_Templates(int stride);
int Fail_Exclusion_Lists(int stride);
int Fail_Exports(int stride);

// The same work on a disk that is really full, and in a data folder that really can not be written to.

void Work_On_A_Full_Disk();
void Work_In_A_Read_Only_Folder();
