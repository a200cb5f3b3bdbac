#include "records/Job_Shelf.h"

#include "platform/File_Steps.h"
#include "platform/Folders_And_Files.h"
#include "platform/Text_Files.h"
#include "records/Job_Paths.h"
#include "records/Job_Reader.h"

#include <QDir>
#include <QFileInfo>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>

namespace {

bool Is_In_Use(const Descriptor& file)
{
    // Shared, so that two who look do not mistake each other for a job.
    const bool is_free = flock(file.Number(), LOCK_SH | LOCK_NB) == 0 || errno != EWOULDBLOCK;
    flock(file.Number(), LOCK_UN);
    return !is_free;
}

} // namespace

std::optional<Kept_Job> Look_At_Job(const QString& path)
{
    Kept_Job kept;
    Unfinished_Job& job = kept.job;
    job.path = path;
    const Job_Reading reading = Read_Job(path);
    job.trouble = reading.trouble;
    if (job.trouble == Job_Trouble::Missing)
        return std::nullopt;
    job.id = Job_Id_Of(path);
    job.is_in_use = Is_In_Use(File_Steps::Open(File_Steps::Native_Name(path), O_RDONLY));
    if (reading.record) {
        kept.has_ended = reading.record->Has_Ended();
        job.seconds = reading.record->Header().seconds;
        job.device = reading.record->Header().device;
        job.counts = reading.record->Counts();
    }
    return kept;
}

QList<Kept_Job> Kept_Jobs(const QString& folder)
{
    QList<Kept_Job> jobs;
    const QStringList names =
        QDir(folder).entryList({QStringLiteral("*.journal")}, QDir::Files, QDir::Name | QDir::Reversed);
    for (const QString& name : names) {
        if (const auto kept = Look_At_Job(folder + u'/' + name))
            jobs.append(*kept);
    }
    return jobs;
}

QList<Unfinished_Job> Unfinished_Jobs(const QString& folder)
{
    QList<Unfinished_Job> jobs;
    for (const Kept_Job& kept : Kept_Jobs(folder)) {
        if (!kept.has_ended)
            jobs.prepend(kept.job);
    }
    return jobs;
}

Job_Trouble Remove_Job(const QString& path)
{
    const QByteArray name = File_Steps::Native_Name(path);
    if (!Is_Job_Id(Job_Id_Of(path)) || Is_Missing(path))
        return Job_Trouble::Missing;
    if (!File_Steps::Is_Regular_Or_Missing(name))
        return Job_Trouble::Not_A_Journal;
    // Another program's lock is seen also where the file cannot be written to.
    const Descriptor file = File_Steps::Open(name, O_RDONLY | O_NOFOLLOW);
    if (file.Is_Open() && !File_Steps::Lock(file))
        return Job_Trouble::In_Use;
    // From here on it is no job any more; what a kill leaves, the next job clears up.
    const QString folder = QFileInfo(path).path();
    const QString beside = New_Journal_Path(path);
    const bool is_removed = rename(name.constData(), File_Steps::Native_Name(beside).constData()) == 0 &&
                            Sync_Folder(folder) && Remove_File(Job_List_Path(path)) && Remove_File(beside) &&
                            Sync_Folder(folder);
    return is_removed ? Job_Trouble::None : Job_Trouble::Not_Written;
}
