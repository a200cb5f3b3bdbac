#pragma once

#include "platform/Waiting.h"

#include <cstdio>
#include <ctime>

/// The calling thread's own time, in seconds: the clock's, less the time in which it wanted to run and a busy computer
/// let others run. Only differences mean something, within one thread.
inline double Own_Seconds()
{
    const double now = Now_Seconds();
    unsigned long long ran = 0;
    unsigned long long waited = 0; // for a turn, in nanoseconds
    if (FILE* statistics = fopen("/proc/thread-self/schedstat", "re")) {
        if (fscanf(statistics, "%llu %llu", &ran, &waited) != 2)
            waited = 0; // this system does not tell: the clock counts
        fclose(statistics);
    }
    return now - static_cast<double>(waited) * 1e-9;
}

/// How long a processor has worked for the calling thread, in seconds.
inline double Worked_Seconds()
{
    timespec worked = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &worked);
    return static_cast<double>(worked.tv_sec) + static_cast<double>(worked.tv_nsec) * 1e-9;
}

/// How often a virtual machine's host has let others run in place of one of its processors, since its start; a machine
/// of its own says 0. A thread does not know such times from its own, so that no clock can leave them out.
inline unsigned long long Times_The_Host_Took()
{
    unsigned long long times = 0;
    if (FILE* statistics = fopen("/proc/stat", "re")) {
        if (fscanf(statistics, "cpu %*u %*u %*u %*u %*u %*u %*u %llu", &times) != 1)
            times = 0;
        fclose(statistics);
    }
    return times;
}

/// Measures on one thread from its making on: a wait is too short by the clock, and too long by the thread's own time.
class Stopwatch
{
public:
    double Lasted() const { return Now_Seconds() - m_begin; }
    double Lasted_For_The_Thread() const { return Own_Seconds() - m_own_begin; }

private:
    double m_begin = Now_Seconds();
    double m_own_begin = Own_Seconds();
};
