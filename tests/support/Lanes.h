#pragma once

#include <functional>

/// Does so many pieces of work, from 0 on, in several processes at a time, which are copies of this one and mostly
/// wait. A piece may use the test framework's expectations, and start threads and processes. Returns whether each was
/// done without a failure; a process ends at its first. The caller has one thread.
bool Do_In_Lanes(int pieces, const std::function<void(int piece)>& work);
