#pragma once

#include <QDate>
#include <QEventLoop>
#include <atomic>
#include <functional>

// The one door to time. Nothing else in the program sleeps, waits for a descriptor or reads a clock.

/// Seconds of a clock that never goes back; only differences mean something.
double Now_Seconds();

/// Today's date where the user is.
QDate Today();

/// A described length of time in seconds, as it lasts at the present pace. Never below 0.
double Paced(double seconds);

/// The same for a device's read time-out, which is never cut below 20 ms, so that a fast pace loses no answer; 0 stays
/// 0.
double Paced_Read_Timeout(double seconds);

/// Waits for a described length of time, in seconds at pace 1, or until the program begins to exit. A worker sleeps;
/// the interface thread goes on painting and serving workers, while user input is held back.
void Wait_Seconds(double seconds);

/// The same on the interface thread, while what the user types and clicks is served, too; ends at once when is_over,
/// asked after everything that was served, answers yes.
void Wait_Seconds_Serving_Input(double seconds, const std::function<bool()>& is_over);

/// As Wait_Seconds, but ends at once when is_over, asked every time slice of at most 50 ms, answers yes. For short
/// waits for what nobody tells of: each slice wakes the thread. What is told of is a Stop_Flag.
void Wait_Seconds_Unless(double seconds, const std::function<bool()>& is_over);

// An integer that threads share, 1 to ask for an end and 0 otherwise, and a wait that hears of it at once: it wakes
// nobody before. Belongs to whoever is asked; may be set, read and waited for from any thread.
class Stop_Flag
{
public:
    constexpr Stop_Flag() = default;
    Stop_Flag(const Stop_Flag&) = delete;
    Stop_Flag& operator=(const Stop_Flag&) = delete;

    /// What is set to 1 ends every wait for it, those that begin later included.
    Stop_Flag& operator=(int asked);
    operator int() const { return m_asked; } // NOLINT(google-explicit-constructor): it is an integer with a wait

    /// As Wait_Seconds, unless it is asked, before or meanwhile.
    void Wait(double seconds) const;

private:
    std::atomic<int> m_asked{0};
};

enum class Line_Event
{
    Ready,     ///< what was waited for has come, or the line has hung up: the next read or write tells
    Timed_Out, ///< the time has gone by, or the program is exiting
    Woken,     ///< the second descriptor was signalled
    Failed     ///< ppoll failed or the descriptor is not open; errno says why
};

/// Waits until a descriptor has input (POLLIN) or room (POLLOUT). The seconds are real ones, already paced; below 0
/// means without an end. An interrupted wait goes on with what remains of its time. wake_descriptor, when not -1, ends
/// the wait as soon as it can be read. Descriptors of any number are fine.
Line_Event Wait_For_Descriptor(int descriptor, short events, double seconds, int wake_descriptor = -1);

/// Whether the program is on its way out. Every wait ends at once from then on.
bool Program_Is_Exiting();
void Begin_Program_Exit();
/// Takes Begin_Program_Exit back; for tests, which start the program's parts many times in one process.
void Forget_Program_Exit();
