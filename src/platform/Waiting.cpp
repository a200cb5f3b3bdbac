#include "platform/Waiting.h"

#include "platform/Interface_Thread.h"
#include "platform/Leaving_Wait.h"
#include "platform/Pace.h"

#include <QCoreApplication>
#include <QTimer>
#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <mutex>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

// Set once on the way out: the flag is for asking, the condition for sleeping, the descriptor for polling.
struct Exit_Signal
{
    std::mutex lock;
    std::condition_variable changed;
    std::atomic<bool> is_set{false};
    int descriptor = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
};

Exit_Signal& The_Exit_Signal()
{
    static Exit_Signal signal;
    return signal;
}

constexpr double Slice_Seconds = 0.05;
constexpr double Longest_Wait = 365 * 24 * 3600.0; // a pace near 0 asks for more than any clock can count

constexpr double Longest_At_Once = 3600; // longer waits come back every hour for more

// For timers, which have no finer unit.
int Whole_Milliseconds(double seconds)
{
    return static_cast<int>(std::ceil(std::min(seconds, Longest_At_Once) * 1000));
}

// To the nanosecond: rounding a time-out up would prolong every read of a job.
timespec Time_Out(double seconds)
{
    constexpr double nanoseconds = 1e9;
    const double limited = std::clamp(seconds, 0.0, Longest_At_Once);
    const auto whole = static_cast<time_t>(limited);
    return {whole, static_cast<long>((limited - static_cast<double>(whole)) * nanoseconds)};
}

// What ends both kinds of wait, besides their time: the exit, and a flag if there is one.
using Flag = const std::atomic<int>*;

bool Is_Over(Flag flag)
{
    return Program_Is_Exiting() || (flag && *flag != 0);
}

// By default the system ends a thread's waits some 50 us late, so as to end many at once: a job waits three times per
// message.
void Be_On_Time()
{
    static thread_local const int set = prctl(PR_SET_TIMERSLACK, 1UL);
    static_cast<void>(set);
}

void Sleep_On_Worker(double seconds, Flag flag)
{
    Be_On_Time();
    auto& exit_signal = The_Exit_Signal();
    std::unique_lock guard(exit_signal.lock);
    exit_signal.changed.wait_for(guard, std::chrono::duration<double>(seconds), [flag] { return Is_Over(flag); });
}

// Paints, timers and workers' calls are served meanwhile; user input waits, unless the flags say otherwise.
void Serve_On_Interface_Thread(double seconds, const std::function<bool()>& is_over,
                               QEventLoop::ProcessEventsFlags flags = QEventLoop::ExcludeUserInputEvents)
{
    const double end = Now_Seconds() + seconds;
    QTimer alarm;
    alarm.setTimerType(Qt::PreciseTimer);
    alarm.start(Whole_Milliseconds(seconds));
    Wake_Interface_Thread();
    while (Now_Seconds() < end && !is_over())
        QCoreApplication::processEvents(flags | QEventLoop::WaitForMoreEvents);
    Wake_Interface_Thread();
}

void Wait_Real_Seconds(double seconds, Flag flag = nullptr)
{
    if (seconds <= 0 || Is_Over(flag))
        return;
    if (Is_Interface_Thread())
        Serve_On_Interface_Thread(seconds, [flag] { return Is_Over(flag); });
    else
        Sleep_On_Worker(seconds, flag);
}

// Sleepers check what they wait for under the lock: what is also set under it is never set between check and sleep.
void Set_And_Wake(const std::function<void()>& set)
{
    auto& exit_signal = The_Exit_Signal();
    {
        const std::lock_guard guard(exit_signal.lock);
        set();
    }
    exit_signal.changed.notify_all();
    Wake_Interface_Thread();
}

} // namespace

double Now_Seconds()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

QDate Today()
{
    return QDate::currentDate();
}

QDateTime Local_Time()
{
    return QDateTime::currentDateTime();
}

double Paced(double seconds)
{
    return std::min(std::max(0.0, seconds) / Pace(), Longest_Wait);
}

double Paced_Read_Timeout(double seconds)
{
    constexpr double Shortest_Read = 0.020;
    return seconds <= 0 ? 0 : std::max(Paced(seconds), std::min(seconds, Shortest_Read));
}

void Wait_Seconds(double seconds)
{
    Wait_Real_Seconds(Paced(seconds));
}

void Wait_Seconds_Serving_Input(double seconds, const std::function<bool()>& is_over)
{
    const auto ends = [&] { return Program_Is_Exiting() || is_over(); };
    if (!ends())
        Serve_On_Interface_Thread(Paced(seconds), ends, QEventLoop::AllEvents);
}

void Wait_Seconds_Unless(double seconds, const std::function<bool()>& is_over)
{
    const double end = Now_Seconds() + Paced(seconds);
    while (!is_over() && !Program_Is_Exiting()) {
        const double left = end - Now_Seconds();
        if (left <= 0)
            return;
        Wait_Real_Seconds(std::min(left, Slice_Seconds));
    }
}

void Wait_Seconds_Also_In_Leaving(double seconds, const std::function<bool()>& is_over)
{
    constexpr int Slice_Milliseconds = 10;
    const double end = Now_Seconds() + Paced(seconds);
    while (!is_over() && Now_Seconds() < end) {
        if (!Program_Is_Exiting()) {
            Wait_Real_Seconds(std::min(end - Now_Seconds(), Slice_Seconds));
            continue;
        }
        if (Is_Interface_Thread())
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        poll(nullptr, 0, Slice_Milliseconds);
    }
}

Stop_Flag& Stop_Flag::operator=(int asked)
{
    if (asked == 0)
        m_asked = 0; // nothing sleeps until it is 0
    else
        Set_And_Wake([this, asked] { m_asked = asked; });
    return *this;
}

void Stop_Flag::Wait(double seconds) const
{
    Wait_Real_Seconds(Paced(seconds), &m_asked);
}

Line_Event Wait_For_Descriptor(int descriptor, short events, double seconds, int wake_descriptor)
{
    Be_On_Time();
    const double end = Now_Seconds() + seconds;
    for (;;) {
        if (Program_Is_Exiting())
            return Line_Event::Timed_Out;
        const double left = end - Now_Seconds();
        pollfd waited[3] = {{descriptor, events, 0},
                            {The_Exit_Signal().descriptor, POLLIN, 0},
                            {wake_descriptor, POLLIN, 0}}; // ppoll passes over a descriptor of -1
        const timespec time_out = Time_Out(left);
        const int ready = ppoll(waited, 3, seconds < 0 ? nullptr : &time_out, nullptr);
        if (ready < 0 && errno != EINTR)
            return Line_Event::Failed;
        if (ready > 0) {
            if (waited[0].revents & POLLNVAL) {
                errno = EBADF;
                return Line_Event::Failed;
            }
            if (waited[0].revents != 0)
                return Line_Event::Ready;
            if (waited[2].revents != 0)
                return Line_Event::Woken;
        }
        if (seconds >= 0 && Now_Seconds() >= end)
            return Line_Event::Timed_Out;
    }
}

bool Program_Is_Exiting()
{
    return The_Exit_Signal().is_set;
}

void Begin_Program_Exit()
{
    auto& exit_signal = The_Exit_Signal();
    Set_And_Wake([&exit_signal] {
        exit_signal.is_set = true;
        eventfd_write(exit_signal.descriptor, 1);
    });
}

void Forget_Program_Exit()
{
    auto& exit_signal = The_Exit_Signal();
    eventfd_t counted = 0;
    eventfd_read(exit_signal.descriptor, &counted);
    exit_signal.is_set = false;
}
