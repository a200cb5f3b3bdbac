#include "engine/Pause_Countdown.h"

#include "engine/Delayed_Delivery.h"
#include "engine/Job_State.h"
#include "engine/Send_Progress.h"
#include "platform/Pace.h"

namespace {
constexpr qint64 Milliseconds = 1000; // in a second
}

Pause_Countdown::Pause_Countdown(Send_Progress& progress, const Stop_Flag& stop) : m_progress(progress), m_stop(stop) {}

void Pause_Countdown::Pause(qint64 seconds)
{
    if (seconds <= 0)
        return;
    const double begin = Now_Seconds();
    GSM_Pause_Delay_Time = seconds * Milliseconds;
    m_progress.Begin_Pause();
    Pause_Timer_Running = true;
    Calculate_Pause_Time(GSM_Pause_Delay_Time);
    // Each step waits for its own moment on the clock, so that the time steps take does not add up over an hour.
    for (qint64 gone = 1; gone <= seconds && !Is_Asked_To_Stop(); ++gone) {
        Wait_Until(begin + Paced(static_cast<double>(gone)));
        GSM_Pause_Delay_Time = (seconds - gone) * Milliseconds;
        if (GSM_Pause_Delay_Time > 0)
            Pause_Timer_Func();
    }
    GSM_Pause_Delay_Time = 0;
    Pause_Timer_Running = false;
    m_progress.End_Pause();
}

void Pause_Countdown::Calculate_Pause_Time(qint64 milliseconds)
{
    m_progress.Show_Pause(Delayed_Delivery::Whole_Pause_Text(milliseconds / Milliseconds));
}

void Pause_Countdown::Pause_Timer_Func()
{
    m_progress.Show_Pause(Delayed_Delivery::Countdown_Text(GSM_Pause_Delay_Time / Milliseconds));
}

void Pause_Countdown::Wait_Until(double due)
{
    m_stop.Wait((due - Now_Seconds()) * Pace());
}
