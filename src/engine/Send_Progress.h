#pragma once

#include <QString>
#include <functional>

// What a send job shows while it runs, as the job sees it: no widgets, only steps. The job calls every operation from
// its own thread, possibly in any order and more than once. The effects appear in that order; all but Show_Item are
// done when they return.
class Send_Progress
{
public:
    virtual ~Send_Progress() = default;

    /// Covers the main window from now on, which takes no input until End: preparing, nothing sent yet, no stopping.
    virtual void Begin_Preparing(int total) = 0;
    /// The device is ready: items follow, and the job can be stopped.
    virtual void Begin_Sending() = 0;
    /// The item at a position from 1 to total is being handled. The job need not wait until it is shown.
    virtual void Show_Item(int position, int total, const QString& number) = 0;
    /// Shows another text in place of the number.
    virtual void Show_Current(const QString& text) = 0;
    /// Shows what the job waits for in its place, until another text or the next item is shown.
    virtual void Show_Waiting(const QString& text) { Show_Current(text); }
    /// How words about the time that is left are made, until End. They are asked for on the interface thread, as often
    /// as they may have changed, and are empty where nothing can be said. A display without room for them leaves them.
    virtual void Tell_Time_Left(std::function<QString()> /*words*/) {}
    virtual void End() = 0;

    /// A pause between two batches: nothing is being sent, and the activity stands still.
    virtual void Begin_Pause() = 0;
    /// Shows how much of the pause is left.
    virtual void Show_Pause(const QString& text) = 0;
    virtual void End_Pause() = 0;

    /// Starts and stops the activity indicator that shows the job is alive.
    virtual void startTimerThread() = 0;
    virtual void Stop_Timers() = 0;
};
