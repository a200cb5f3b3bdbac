#pragma once

#include <QString>
#include <memory>

class Confirmed_Session;
class Confirmed_Watcher;
class Send_Progress;
class Stop_Flag;

// Holds a job until the device's state is right: says why, looks every few seconds, and goes on by itself. Nothing is
// ever tried that could lock a SIM card. Belongs to the job's manner; its thread.
class Device_Hold
{
public:
    enum class Until
    {
        Device_Is_Back,
        Card_Is_Ready,
        Network_Is_There,
        Some_Time_Has_Passed ///< for what cannot be asked about, such as a memory that is full
    };
    enum class End
    {
        Right,
        Was_Right, ///< at the first look, whatever was said: it has waited all the same
        Stopped,
        Too_Long
    };

    /// What a hold of a message that was held before goes by, in seconds at pace 1.
    struct Patience
    {
        double held = 0;        ///< for so long already, which counts against the limit
        double where_right = 0; ///< how long it waits where the device says at once that nothing is wrong
    };

    /// All outlive it. limit is in seconds at pace 1; 0 for none.
    Device_Hold(Confirmed_Session& session, Send_Progress& progress, Confirmed_Watcher& watcher, const Stop_Flag& stop,
                double limit);

    End Hold(Until until, const QString& reason, const Patience& patience);
    End Hold(Until until, const QString& reason) { return Hold(until, reason, Patience()); }

private:
    End Wait_Where_Right(const Patience& patience);
    bool Is_Right(Until until, double waited);

    Confirmed_Session& m_session;
    Send_Progress& m_progress;
    Confirmed_Watcher& m_watcher;
    const Stop_Flag& m_stop;
    const double m_limit;
};
