#pragma once

class Measured_Program;

// The measurements that take real time, in Job_Bench.cpp.

/// job <phone program> <distinct numbers> <pace> <messages>: sends to the virtual phone until it has got so many.
int Measure_Job(Measured_Program& program, char** arguments);

/// pause <phone program> <distinct numbers> <seconds>: a job that pauses for an hour, watched for so many seconds.
int Measure_Pause(Measured_Program& program, char** arguments);

/// Watches the program for so many seconds: what it takes of a core, and how often its threads wake up.
void Measure_Rest(Measured_Program& program, double seconds);
