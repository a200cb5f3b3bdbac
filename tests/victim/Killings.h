#pragma once

// Each of these lets the program do one kind of work, again and again from the same beginning, and kills it just before
// and just after each of the calls by which it changes a file or writes to the phone, and within those of its writes
// that may stay half done. After each death the program is started again, and everything that it keeps is looked at.
// They return how often it was killed. A stride of 3 leaves out two of three calls.

int Kill_First_Starts(int stride);
int Kill_Later_Starts(int stride); ///< after an earlier death left whatever one can leave
int Kill_Jobs(int stride);
int Kill_Sent_Items(int stride);
int Kill_Templates(int stride);
int Kill_Exclusion_Lists(int stride);
int Kill_Phone_Wizards(int stride);
int Kill_Imports(int stride); ///< at reads, too
int Kill_Exports(int stride);

/// One long job that is killed so many times, and each time taken up where the phone has got to.
int Kill_One_Job_Again_And_Again(int deaths);
