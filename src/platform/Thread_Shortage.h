#pragma once

#include <functional>

// What the users of workers need to live through a system that refuses a thread: a process may have only so many.
// Start_Worker and Run_On_Worker (Interface_Thread.h) do the work on the calling thread then: the windows stand still,
// and nothing is lost.

/// Starts a worker for work that the calling thread can not do instead, because it lasts or waits for that thread.
/// Returns false where the system refuses a thread: the work was not begun, and what it held is let go.
bool Start_Worker_If_Possible(const char* name, std::function<void()> work);

/// Waits on the interface thread until a worker has ended what is waited for, serving it; the user's input is held
/// back. Asked again after whatever happens there, the end of a worker among it. Takes no thread of its own.
void Await_Worker(const std::function<bool()>& has_ended);
