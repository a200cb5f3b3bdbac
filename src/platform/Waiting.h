#pragma once

#include <QDateTime>
#include <QEventLoop>
#include <atomic>
#include <functional>

// The one door to time. Nothing else in the program sleeps, waits for a descriptor or reads a clock.

/// Seconds of a clock that never goes back; only differences have a meaning.
double Now_Seconds();

/// Today's date in the user's time zone.
QDate Today();

/// The date and time of day in the user's time zone.
QDateTime Local_Time();

/// The length of a wait, given in seconds at pace 1, at the present pace. Never below 0.
double Paced(double seconds);

/// The same for a device's read time-out, which is never cut below 20 ms, so that a fast pace loses no answer; 0 stays
/// 0.
double Paced_Read_Timeout(double seconds);

/// Waits for a time given in seconds at pace 1, or until the program begins to exit. A worker sleeps; the interface
/// thread keeps painting and serving workers, while user input is held back.
void Wait_Seconds(double seconds);

/// The same on the interface thread, with user input served as well; ends at once when is_over, asked after everything
/// that was served, answers yes.
void Wait_Seconds_Serving_Input(double seconds, const std::function<bool()>& is_over);

/// As Wait_Seconds, but ends at once when is_over, asked at least every 50 ms, answers yes. For short waits for what
/// sends no signal: each slice wakes the thread. What can be signalled uses a Stop_Flag.
void Wait_Seconds_Unless(double seconds, const std::function<bool()>& is_over);

// An integer shared by threads, 1 to ask for an end and 0 otherwise, and a wait that notices it at once and wakes
// nobody earlier. Belongs to the one that is asked to end; any thread may set it, read it and wait for it.
class Stop_Flag
{
public:
    constexpr Stop_Flag() = default;
    Stop_Flag(const Stop_Flag&) = delete;
    Stop_Flag& operator=(const Stop_Flag&) = delete;

    /// Setting it to 1 ends every wait for it, including those that begin later.
    Stop_Flag& operator=(int asked);
    operator int() const { return m_asked; } // NOLINT(google-explicit-constructor): it is an integer with a wait

    /// As Wait_Seconds, but ends as soon as it is set, or at once if it already is.
    void Wait(double seconds) const;

private:
    std::atomic<int> m_asked{0};
};

enum class Line_Event
{
    Ready,     ///< what was waited for has come, or the line has hung up: the next read or write tells
    Timed_Out, ///< the time is up, or the program is exiting
    Woken,     ///< the second descriptor was signalled
    Failed     ///< ppoll failed or the descriptor is not open; errno says why
};

/// Waits until a descriptor has input (POLLIN) or room (POLLOUT). The seconds are real ones, already paced; below 0
/// means without end. An interrupted wait continues for the time that remains. wake_descriptor, when not -1, ends the
/// wait as soon as it can be read. Descriptors of any number are fine.
Line_Event Wait_For_Descriptor(int descriptor, short events, double seconds, int wake_descriptor = -1);

/// Whether the program is on its way out. From then on every wait ends at once.
bool Program_Is_Exiting();
void Begin_Program_Exit();
/// Undoes Begin_Program_Exit; for tests, which start the program's parts many times in one process.
void Forget_Program_Exit();
