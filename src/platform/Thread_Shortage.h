#pragma once

#include <functional>

// What users of workers need to cope when the system refuses a thread, as a process may have only so many. Start_Worker
// and Run_On_Worker (Interface_Thread.h) then do the work on the calling thread: the windows stand still, but nothing
// is lost.

/// Starts a worker for work that the calling thread cannot do instead, because it lasts or waits for that thread.
/// Returns false where the system refuses a thread: the work was not begun, and what it held has been released.
bool Start_Worker_If_Possible(const char* name, std::function<void()> work);

/// Waits on the interface thread, serving workers, until has_ended answers yes; user input is held back. It is asked
/// again after everything that happens there, including the end of a worker. Needs no thread of its own.
void Await_Worker(const std::function<bool()>& has_ended);
