#pragma once

#include "send/Job_Watcher.h"

#include <functional>

struct Send_Order;
class Send_Manner;

// Sends a job: chooses the device, walks over the list, and says how it ended. Made for one job; the interface thread,
// which serves the line while a worker walks.
class Sending
{
public:
    /// All outlive it.
    Sending(const Arguments& arguments, const Job_To_Send& job, Printer& printer, Stop_Signals& signals);

    /// Returns the exit status; complain takes what goes to standard error.
    int Run(const std::function<void(const Trouble&)>& complain);

private:
    bool Has_Something_To_Send() const;
    void Choose();
    void Walk();
    void Walk_Confirmed(Send_Order& order);
    void Walk_With_Fixed_Waits(Send_Order& order);
    Send_Order Make_Order() const;
    void Run_Job(Send_Order& order, Send_Manner& manner, Job_Watcher& watcher);
    Trouble Trouble_Of(const Job_Watcher& watcher) const;
    void End_Journal() const;
    bool Keeps_Journal() const;
    QString Journal_Path() const;

    const Arguments& m_arguments;
    const Job_To_Send& m_job;
    Printer& m_printer;
    Stop_Signals& m_signals;
    Outcome_Book m_book;
    std::vector<int> m_positions; // of the rows that the walk goes over
    QString m_device;
    Trouble m_trouble;              // why the job did not reach its end
    bool m_has_handed_over = false; // a part, at any time
    bool m_has_cut_one_off = false; // a message, by a stop
    bool m_has_lost_its_journal = false;
};
