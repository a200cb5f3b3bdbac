#pragma once

#include "engine/Row_Details.h"
#include "send/Job_To_Send.h"
#include "send/Printer.h"

// Keeps what became of each row of a job and has it printed: each once, those that are skipped in their places among
// the others, and the job's own line before everything else. One thread at a time.
class Outcome_Book
{
public:
    /// Both outlive it.
    Outcome_Book(const Job_To_Send& job, Printer& printer);

    /// Prints the job's line, if it has not been.
    void Begin();
    /// What became of a row, by its position in the job from 0.
    void Settle(int position, const Row_Details& details);
    /// A row that was handed over by fixed waits, whole or not.
    void Settle_Written(int position, bool is_whole, const QString& reason);
    /// The others: what the journal knows of them, or not tried.
    void Settle_The_Rest();

    bool Is_Settled(int position) const { return m_is_settled[static_cast<std::size_t>(position)]; }
    /// Whether anything happened to a message that had not been settled before.
    bool Has_News() const { return m_has_news; }
    /// Whether every row was sent, or skipped as asked.
    bool Is_All_Well() const { return m_is_all_well; }
    const End_Facts& Counts() const { return m_counts; }

private:
    Row_End End_Of(int position) const;
    Row_End Details_In_Words(int position, const Row_Details& details) const;
    void Print(int position, const Row_End& end);
    void Pass_Over_Until(int position);
    void Count(const Row_End& end);

    const Job_To_Send& m_job;
    Printer& m_printer;
    std::vector<bool> m_is_settled;
    int m_passed = 0; // rows before this one that are skipped have been printed
    bool m_has_begun = false;
    bool m_has_news = false;
    bool m_is_all_well = true;
    End_Facts m_counts;
};
