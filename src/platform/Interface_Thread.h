#pragma once

#include <functional>

class QObject;

// The one door between workers and the windows, which all belong to the interface thread, and the register of the
// workers themselves: a thread that was started here is joined in an orderly way, and whoever waits for it goes on
// serving it.

/// Whether the calling thread is the one that owns the windows; none is while there is no application object.
bool Is_Interface_Thread();

/// Runs a step on the interface thread and returns when it is done; runs it directly when called there. What the step
/// throws reaches the caller.
void Run_On_Interface_Thread(const std::function<void()>& step);

/// Leaves a step for the interface thread and returns at once. The step is dropped when context is gone by then.
void Post_To_Interface_Thread(QObject* context, std::function<void()> step);

/// Ends a wait for events on the interface thread. A loop that waits for events there must begin and end with it as
/// well: inside a step, the steps that lay behind it in the queue do not end a wait; and what the user did while input
/// was held back would lie there until the window system sends something else.
void Wake_Interface_Thread();

enum class User_Input
{
    Held_Back, ///< clicks and keys wait until the work is done
    Served     ///< they go where they belong; a modal sheet is what keeps them away from the window below it
};

/// Runs blocking work on a worker and returns when it is done. The interface thread goes on painting and serving
/// workers meanwhile; a worker that calls this simply does the work. What the work throws reaches the caller.
void Run_On_Worker(const std::function<void()>& work, User_Input input = User_Input::Held_Back);

/// Starts a worker of its own. An exception that leaves the work ends that worker only and is written to the system
/// log.
void Start_Worker(const char* name, std::function<void()> work);

/// How many workers have not ended yet.
int Workers_Running();

/// Waits, serving them, until every worker has ended, and joins them. Interface thread only.
void Finish_Workers();
