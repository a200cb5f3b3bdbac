#pragma once

#include "platform/Waiting.h"

#include <QtGlobal>

class Send_Progress;

// One pause between two batches: it counts down in the progress window, second by second, and ends early when the job
// is told to stop. Belongs to the send job and runs on its thread; nothing else runs meanwhile.
class Pause_Countdown
{
public:
    Pause_Countdown(Send_Progress& progress, const Stop_Flag& stop);

    /// Pauses for exactly this many seconds, at pace 1, or until asked to stop, which ends it at once. The label counts
    /// down to 1 and is empty afterwards. Wakes once a second, for the label.
    void Pause(qint64 seconds);

private:
    void Calculate_Pause_Time(qint64 milliseconds);
    void Pause_Timer_Func();
    void Wait_Until(double due);
    bool Is_Asked_To_Stop() const { return m_stop == 1 || Program_Is_Exiting(); }

    Send_Progress& m_progress;
    const Stop_Flag& m_stop;
    qint64 GSM_Pause_Delay_Time = 0; // milliseconds left to wait; 0 when no pause is running
};
