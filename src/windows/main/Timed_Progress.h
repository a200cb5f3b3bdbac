#pragma once

#include "engine/Confirmed_Manner.h"
#include "engine/Send_Order.h"
#include "engine/Send_Progress.h"
#include "plan/Time_Left.h"

#include <memory>

class Desktop_Help;

// Passes a job's steps on to the progress window and to the desktop, takes the time of each, and tells the window how
// long the rest will take. Belongs to one job, on its thread.
class Timed_Progress : public Send_Progress, public Confirmed_Watcher
{
public:
    /// All outlive it. What parts have needed is told to the pace as well.
    Timed_Progress(Send_Progress& shown, const Send_Order& order, Plan_Pace& pace, Desktop_Help& desktop);
    ~Timed_Progress() override;

    /// What became of the recipient that was shown last.
    void Row_Ended(const Row_Outcome& outcome);
    /// The user is going to be told this, because the job is over.
    void Job_Says(const QString& text);

    void Begin_Preparing(int total) override { m_shown.Begin_Preparing(total); }
    void Begin_Sending() override;
    void Show_Item(int position, int total, const QString& number) override;
    void Show_Current(const QString& text) override { m_shown.Show_Current(text); }
    void Show_Waiting(const QString& text) override { m_shown.Show_Waiting(text); }
    void End() override;
    void Begin_Pause() override;
    void Show_Pause(const QString& text) override { m_shown.Show_Pause(text); }
    void End_Pause() override;
    void startTimerThread() override { m_shown.startTimerThread(); }
    void Stop_Timers() override { m_shown.Stop_Timers(); }

    void Row_Done(int index, const Row_Details& details) override;
    void Held(const QString& reason) override;
    void Goes_On() override;
    void Report_Came(int, int, int, int) override {}
    void Still_Waiting(int) override {}

private:
    void Count_What_Is_Ahead();

    Send_Progress& m_shown;
    const Send_Order& m_order;
    Plan_Pace& m_pace;
    Desktop_Help& m_desktop;
    const Plan_Manner m_manner;
    std::shared_ptr<Time_Left> m_time_left; // the window asks it, and so may a worker that still counts
    std::shared_ptr<std::atomic<bool>> m_is_over;
    int m_row_parts = 0;
    bool m_was_settled = false; // the present row, before this job
};
