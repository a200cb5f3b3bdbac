#pragma once

#include "engine/Fixed_Wait_Manner.h"
#include "engine/Row_Details.h"
#include "engine/Send_Listener.h"
#include "engine/Send_Progress.h"
#include "send/Outcome_Book.h"

class Stop_Signals;

// Sees a job as its windows would, and has it printed. Lives as long as one walk; its thread.
class Job_Watcher : public Send_Progress, public Send_Listener, public Confirmed_Watcher
{
public:
    /// All outlive it. positions are those of the job's rows that the walk goes over.
    Job_Watcher(const Job_To_Send& job, const std::vector<int>& positions, Outcome_Book& book, Printer& printer,
                Stop_Signals& signals);

    void Begin_Preparing(int) override;
    void Begin_Sending() override;
    void Show_Item(int position, int total, const QString& number) override;
    void Show_Current(const QString& text) override;
    void End() override { m_printer.Progress({}); }
    void Begin_Pause() override {}
    void Show_Pause(const QString& text) override { m_printer.Progress(text); }
    void End_Pause() override {}
    void startTimerThread() override {}
    void Stop_Timers() override {}

    void Tell(const QString& text) override { m_told = text; }
    void Exclusions_Were_Read(const Exclusion_Files::Applied_Numbers&) override {}
    void Row_Ended(int, const Row_Outcome&) override {}

    void Row_Done(int index, const Row_Details& details) override;
    void Held(const QString& reason) override;
    void Goes_On() override { m_printer.Goes_On(); }
    void Still_Waiting(int) override {}
    void Report_Came(int index, int part, int reference, int status) override;

    /// A message that fixed waits handed over, or part of one.
    void Written(int index, bool is_whole, const QString& reason);
    /// The same of one that a stop has cut.
    void Cut_Off(int index);
    bool Has_Cut_One_Off() const { return m_has_cut_one_off; }

    /// What the job said last.
    const QString& Told() const { return m_told; }
    /// Whether the device could be opened, and whether a row was reached.
    bool Does_Open() const { return m_does_open; }
    bool Has_Begun() const { return m_reached >= 0; }
    /// The position of the row that was reached last; -1 before the first.
    int Reached() const { return m_reached; }

private:
    int Position_Of(int index) const { return m_positions[static_cast<std::size_t>(index)]; }

    const Job_To_Send& m_job;
    const std::vector<int>& m_positions;
    Outcome_Book& m_book;
    Printer& m_printer;
    Stop_Signals& m_signals;
    QString m_told;
    QString m_place;
    int m_reached = -1;
    bool m_does_open = false;
    bool m_has_cut_one_off = false;
};

// Fixed waits that say whether a message was handed over whole.
class Told_Fixed_Waits : public Fixed_Wait_Manner
{
public:
    /// All outlive it.
    Told_Fixed_Waits(const Send_Order& order, MFCSMS& session, Job_Watcher& watcher);

    Submission Submit(int index, const Recipient& recipient) override;

private:
    const bool m_is_unicode;
    MFCSMS& m_session;
    Job_Watcher& m_watcher;
};
