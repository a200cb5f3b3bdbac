#pragma once

#include <functional>

class QObject;

// The one door between workers and the windows, which all belong to the interface thread, and the register of the
// workers themselves: every thread started here is joined in an orderly way, and a wait for one keeps serving it.

/// Whether the calling thread is the one that owns the windows; no thread is while there is no application object.
bool Is_Interface_Thread();

/// Runs a step on the interface thread and returns when it is done; runs it directly when called there. An exception
/// from the step reaches the caller.
void Run_On_Interface_Thread(const std::function<void()>& step);

/// Queues a step for the interface thread and returns at once. The step is dropped if context is gone when its turn
/// comes.
void Post_To_Interface_Thread(QObject* context, std::function<void()> step);

/// Ends a wait for events on the interface thread. A loop that waits for events there must also begin and end with it:
/// inside a step, the steps queued behind it do not end a wait; and input held back meanwhile would stay queued until
/// the window system sends something else.
void Wake_Interface_Thread();

enum class User_Input
{
    Held_Back, ///< clicks and keys wait until the work is done
    Served     ///< they are delivered; a modal sheet is what keeps them from the window below it
};

/// Runs blocking work on a worker and returns when it is done. The interface thread keeps painting and serving workers
/// meanwhile; a worker that calls this simply does the work. An exception from the work reaches the caller.
void Run_On_Worker(const std::function<void()>& work, User_Input input = User_Input::Held_Back);

/// Starts a worker of its own. An uncaught exception ends only that worker and is written to the system log.
void Start_Worker(const char* name, std::function<void()> work);

/// The number of workers that have not ended yet.
int Workers_Running();

/// Waits, while serving them, until every worker has ended, and joins them. Interface thread only.
void Finish_Workers();
