#include "send/Send_Program.h"

#include "doctor/Doctor_Report.h"
#include "doctor/Port_Doctor.h"
#include "plan/Hand_Over.h"
#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"
#include "records/Data_Paths.h"
#include "records/Job_Shelf.h"
#include "send/Inputs.h"
#include "send/Printer.h"
#include "send/Sending.h"
#include "send/Stop_Signals.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace {

bool Is_In_Order(const Inputs& inputs)
{
    return std::all_of(inputs.rows.begin(), inputs.rows.end(),
                       [](const Planned_Row& row) { return row.Is_In_Order(); });
}

} // namespace

void Complain(const Trouble& trouble)
{
    fprintf(stderr, "%s\n", trouble.Line().toUtf8().constData());
}

Send_Program::Send_Program(const Arguments& arguments, Stop_Signals& signals)
    : m_arguments(arguments), m_signals(signals), m_printer(Make_Printer(arguments.json, m_output))
{
    Set_Data_Paths(Default_Resource_Path());
}

Send_Program::~Send_Program() = default;

int Send_Program::Run()
{
    const int status = Do();
    if (m_output.Error() != 0)
        Complain(
            {QStringLiteral("not every line was printed"), QString::fromLocal8Bit(std::strerror(m_output.Error()))});
    return status;
}

int Send_Program::Do()
{
    switch (m_arguments.task) {
    case Arguments::Task::List_Jobs:
        return List_Jobs();
    case Arguments::Task::Dry_Run:
    case Arguments::Task::Hand_Over:
        return Plan();
    case Arguments::Task::Doctor:
        return Look_At_Devices();
    default:
        return Send();
    }
}

int Send_Program::Fail(const Trouble& trouble) const
{
    if (!m_signals.Is_Asked()) {
        Complain(trouble);
        return trouble.status;
    }
    Complain({QStringLiteral("stopped"), QStringLiteral("by a signal; nothing was sent")});
    return Exit_Status::Stopped;
}

int Send_Program::Send()
{
    const bool resumes = m_arguments.task == Arguments::Task::Resume;
    const Job_Or_Trouble made = resumes ? Job_To_Go_On_With(m_arguments) : New_Job(m_arguments);
    if (made.trouble)
        return Fail(made.trouble);
    if (m_signals.Is_Asked())
        return Fail({});
    return Sending(m_arguments, made.job, *m_printer, m_signals).Run([this](const Trouble& trouble) {
        m_printer->Progress({});
        Complain(trouble);
    });
}

int Send_Program::Plan()
{
    const Inputs inputs = Read_Inputs(m_arguments);
    if (inputs.trouble)
        return Fail(inputs.trouble);
    const bool hands_over = m_arguments.task == Arguments::Task::Hand_Over;
    const Plan_Manner manner = m_arguments.Manner();
    Hand_Over hand_over(m_arguments.hand_over_folder, manner);
    Hand_Over_Trouble trouble = hands_over ? hand_over.Begin() : Hand_Over_Trouble();
    for (const Planned_Row& row : inputs.rows) {
        if (trouble || Program_Is_Exiting())
            break;
        const Row_Preview preview = Preview_Of(row, manner);
        if (hands_over && row.Is_To_Be_Sent())
            trouble = hand_over.Add(row, preview);
        if (!trouble)
            m_printer->Row(row, preview);
    }
    if (hands_over && !trouble && !Program_Is_Exiting())
        trouble = hand_over.End();
    if (trouble || Program_Is_Exiting())
        return Fail({trouble.what, trouble.why});
    const Plan_Sums& sums = inputs.sums;
    m_printer->Plan({sums.recipients, sums.send, sums.parts, sums.unicode, sums.seconds, inputs.table});
    return Is_In_Order(inputs) ? Exit_Status::Done : Exit_Status::Not_All_Sent;
}

int Send_Program::List_Jobs()
{
    const Journal_Folder folder = Journal_Folder_Of(m_arguments);
    if (folder.trouble)
        return Fail(folder.trouble);
    for (const Unfinished_Job& job : Unfinished_Jobs(folder.path))
        m_printer->Unfinished(job);
    return Exit_Status::Done;
}

int Send_Program::Look_At_Devices()
{
    Port_Doctor::Wishes wishes;
    wishes.paths = m_arguments.devices;
    wishes.is_over = [this] { return m_signals.Is_Asked(); };
    wishes.on_finding = [this](const Finding& finding) { m_printer->Found(Without_Numbers(finding)); };
    wishes.on_looking_at = [this](const QString& name) {
        m_printer->Progress(QStringLiteral("Asking ") + Without_Numbers(name) + QStringLiteral(" ..."));
    };
    QStringList ready;
    Run_On_Worker([&] { ready = Port_Doctor(wishes).Look(); });
    if (m_signals.Is_Asked())
        return Fail({});
    m_printer->Progress({});
    m_printer->Looked(ready);
    return ready.isEmpty() ? Exit_Status::No_Device : Exit_Status::Done;
}
