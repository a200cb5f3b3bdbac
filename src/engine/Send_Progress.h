#pragma once

#include <QString>

// What a send job shows while it runs, as the job sees it: no widget, only steps. The job calls every operation from
// its own thread and may call them in any order and more than once. What they show comes in that order; each but
// Show_Item is done when it returns.
class Send_Progress
{
public:
    virtual ~Send_Progress() = default;

    /// Stands over the main window from now on, which takes no input until End: preparing, nothing sent yet, no
    /// stopping.
    virtual void Begin_Preparing(int total) = 0;
    /// The device is ready: items follow, and the job can be stopped.
    virtual void Begin_Sending() = 0;
    /// The item at a position from 1 to total is being handled. The job need not wait until it is shown.
    virtual void Show_Item(int position, int total, const QString& number) = 0;
    /// Says something else where the number stands.
    virtual void Show_Current(const QString& text) = 0;
    virtual void End() = 0;

    /// A pause between two batches: nothing is being sent, and the activity stands still.
    virtual void Begin_Pause() = 0;
    /// Says how long the pause still lasts.
    virtual void Show_Pause(const QString& text) = 0;
    virtual void End_Pause() = 0;

    /// Starts and stops the activity that shows the job is alive.
    virtual void startTimerThread() = 0;
    virtual void Stop_Timers() = 0;
};
