#include "send/Job_To_Send.h"

#include "plan/Plan_Time.h"
#include "records/Data_Paths.h"
#include "records/Job_Journal.h"
#include "records/Job_Paths.h"
#include "send/Inputs.h"

#include <QDir>
#include <QFileInfo>

namespace {

Trouble Not_Gone_On_With(const QString& job, Job_Trouble trouble)
{
    return {QStringLiteral("job %1 cannot be gone on with").arg(job), Job_Trouble_Sentence(trouble)};
}

// Makes sure of a new job's folder before a device is opened.
Trouble Prepare_Journal(const Arguments& arguments, Job_To_Send& job)
{
    if (arguments.keeps_no_journal || arguments.fixed_waits)
        return {};
    const Journal_Folder folder = Journal_Folder_Of(arguments);
    if (folder.trouble)
        return folder.trouble;
    if (const Job_Trouble trouble = Make_Jobs_Folder(folder.path); trouble != Job_Trouble::None)
        return {QStringLiteral("no journal can be kept in ") + folder.path, Job_Trouble_Sentence(trouble)};
    if (!QFileInfo(folder.path).isWritable())
        return {QStringLiteral("no journal can be kept in ") + folder.path, QStringLiteral("this account may not")};
    Clear_Up_Jobs(folder.path);
    job.journal_folder = folder.path;
    return {};
}

} // namespace

int Job_To_Send::Parts_To_Send() const
{
    int sum = 0;
    for (std::size_t i = 0; i < rows.size(); ++i)
        sum += rows[i].Is_To_Be_Sent() ? parts[i] : 0;
    return sum;
}

qint64 Job_To_Send::Seconds() const
{
    std::vector<int> of_messages;
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (rows[i].Is_To_Be_Sent())
            of_messages.push_back(parts[i]);
    Plan_Manner manner;
    manner.fixed_waits = fixed_waits;
    manner.batch = options.batch;
    manner.pause_seconds = options.pause_seconds;
    return Seconds_For(of_messages, manner);
}

Journal_Folder Journal_Folder_Of(const Arguments& arguments)
{
    if (!arguments.journal_folder.isEmpty())
        return {QDir(arguments.journal_folder).absolutePath(), {}};
    if (qEnvironmentVariableIsEmpty("HOME") && qEnvironmentVariableIsEmpty("XDG_DATA_HOME"))
        return {
            {},
            {QStringLiteral("there is no folder for the job's journal"),
             QStringLiteral("neither HOME nor XDG_DATA_HOME is set; --journal names one, --no-journal keeps none")}};
    return {Jobs_Folder_Path, {}};
}

Job_Or_Trouble New_Job(const Arguments& arguments)
{
    Inputs inputs = Read_Inputs(arguments);
    if (inputs.trouble)
        return {{}, inputs.trouble};
    Job_To_Send job;
    job.id = New_Job_Id();
    job.fixed_waits = arguments.fixed_waits;
    job.flash = arguments.flash;
    job.options = {arguments.service_centre, arguments.report_seconds, arguments.batch,
                   static_cast<double>(arguments.pause_seconds), arguments.alphabet};
    job.rows = std::move(inputs.rows);
    job.parts = std::move(inputs.parts);
    const Trouble trouble = Prepare_Journal(arguments, job);
    return {std::move(job), trouble};
}

Job_Or_Trouble Job_To_Go_On_With(const Arguments& arguments)
{
    const Journal_Folder folder = Journal_Folder_Of(arguments);
    if (folder.trouble)
        return {{}, folder.trouble};
    const QString path = Job_Journal_Path(folder.path, arguments.job);
    if (path.isEmpty())
        return {{}, Not_Gone_On_With(arguments.job, Job_Trouble::Missing)};
    Job_Journal::Opened opened = Job_Journal::Open_To_Go_On(path); // and lets go of it again
    if (!opened.record)
        return {{}, Not_Gone_On_With(arguments.job, opened.trouble)};
    Job_To_Send job;
    job.id = arguments.job;
    job.options = opened.record->Options();
    job.journal_folder = folder.path;
    for (int number = 1; number <= opened.record->Row_Count(); ++number) {
        const auto row = opened.record->Row(number);
        if (!row)
            return {{}, Not_Gone_On_With(arguments.job, Job_Trouble::Unreadable)};
        job.rows.push_back({row->source_row, row->number, row->text, row->skipped});
        job.parts.push_back(row->parts);
    }
    job.record = std::move(opened.record);
    return {std::move(job), {}};
}
