#pragma once

#include "platform/Descriptor.h"

#include <atomic>
#include <thread>

class Stop_Flag;

// SIGINT and SIGTERM, taken by a thread of their own, so that whatever the others are doing is interrupted nowhere.
// While nothing is being sent the first one ends the program's waits. While a job runs the first one asks it to stop
// and the second ends its waits. One more ends the program there and then. Made by main(), for as long as the program
// runs.
class Stop_Signals
{
public:
    /// Before any thread is started: none of them is to take the signals.
    static void Keep_From_Threads();

    /// The flag outlives it.
    explicit Stop_Signals(Stop_Flag& stop);
    ~Stop_Signals();
    Stop_Signals(const Stop_Signals&) = delete;
    Stop_Signals& operator=(const Stop_Signals&) = delete;

    /// Messages follow. A signal that came before is not lost. Any thread.
    void Sending_Begins();
    /// Whether one has come. Any thread.
    bool Is_Asked() const { return m_count > 0; }

private:
    void Serve();
    void Take_One();

    Stop_Flag& m_stop;
    Descriptor m_signals;
    std::atomic<int> m_count{0};
    std::atomic<bool> m_is_sending{false};
    std::atomic<bool> m_is_ending{false};
    std::thread m_thread;
};
