#pragma once

#include "send/Printer.h"

/// A line of words each, and a progress line on a terminal.
class Word_Printer : public Printer
{
public:
    explicit Word_Printer(Output& output) : m_output(output) {}

    void Job(const Job_Facts& job) override;
    void Row(const Planned_Row& row, const Row_Preview& preview) override;
    void Plan(const Plan_Facts& plan) override;
    void Ended(const Row_End& end) override;
    void Held(const QString& reason) override;
    void Goes_On() override;
    void Report(const Report_Facts& report) override;
    void End(const End_Facts& end) override;
    void Unfinished(const Unfinished_Job& job) override;
    void Found(const Finding& finding) override;
    void Looked(const QStringList& ready) override;
    void Progress(const QString& text) override;

private:
    void Print(const QString& line);

    Output& m_output;
};
