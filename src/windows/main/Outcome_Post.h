#pragma once

#include "engine/Outcome_Codes.h"

#include <QByteArray>
#include <QObject>
#include <QTimer>
#include <mutex>
#include <vector>

class Main_Window;

// Carries what becomes of the recipients from a job's thread to the main window, collected, so that a job that skips a
// million of them keeps no window busy. Belongs to the interface thread.
class Outcome_Post : public QObject
{
public:
    explicit Outcome_Post(Main_Window& window);

    /// What became of the recipient at an index. From the job's thread, which waits for nothing here.
    void Add(int index, const Row_Outcome& outcome);
    /// Hands over everything that was added so far.
    void Deliver();
    /// The job has ended: hands over the rest, and knows nothing of the job any more.
    void End();

private:
    struct Run
    {
        int first_row;
        QByteArray marks;
    };

    void Deliver_In_Time();
    void Deliver(std::unique_lock<std::mutex> guard);

    Main_Window& m_window;
    QTimer m_timer{this};
    double m_last_delivery = 0; // in Now_Seconds

    std::mutex m_lock; // for what follows
    Outcome_Codes m_codes;
    std::vector<Run> m_runs; // not handed over yet
    bool m_is_on_its_way = false;
};
