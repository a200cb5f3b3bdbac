#pragma once

#include "send/Printer.h"

/// One JSON object a line.
class Json_Printer : public Printer
{
public:
    explicit Json_Printer(Output& output) : m_output(output) {}

    void Job(const Job_Facts& job) override;
    void Row(const Planned_Row& row, const Row_Preview& preview) override;
    void Plan(const Plan_Facts& plan) override;
    void Ended(const Row_End& end) override;
    void Held(const QString& reason) override;
    void Goes_On() override {}
    void Report(const Report_Facts& report) override;
    void End(const End_Facts& end) override;
    void Unfinished(const Unfinished_Job& job) override;
    void Found(const Finding& finding) override;
    void Looked(const QStringList& ready) override;
    void Progress(const QString&) override {}

private:
    void Print(const char* event, const class QJsonObject& object);

    Output& m_output;
};
