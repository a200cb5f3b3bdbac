#pragma once

#include <QtGlobal>
#include <functional>

class Send_Progress;

// One pause between two batches: it counts down in the progress window, second by second, and ends early when the job
// is to stop. Belongs to the send job and runs on its thread; nothing else runs meanwhile.
class Pause_Countdown
{
public:
    /// is_asked_to_stop is asked often, from this thread.
    Pause_Countdown(Send_Progress& progress, std::function<bool()> is_asked_to_stop);

    /// Pauses for exactly this many seconds of the described time, or until asked to stop, which ends it within one
    /// second at any pace. The label counts them down to 1 and is empty afterwards.
    void Pause(qint64 seconds);

private:
    void Calculate_Pause_Time(qint64 milliseconds);
    void Pause_Timer_Func();
    void Wait_Until(double due);

    Send_Progress& m_progress;
    std::function<bool()> m_is_asked_to_stop;
    qint64 GSM_Pause_Delay_Time = 0; // milliseconds still to wait; 0 when no pause runs
};
