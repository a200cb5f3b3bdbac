#include "records/Job_Journal.h"

#include "platform/File_Steps.h"
#include "platform/Waiting.h"
#include "records/Job_Files.h"

#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <utility>

namespace {

constexpr off_t Bytes_For_A_Part = 200;
constexpr qsizetype Longest_Text = 100;
constexpr int Most_Octet = 255;
constexpr int Most_Tries_For_A_Lock = 5;
constexpr double Seconds_Between_Tries = 0.02;

QByteArray Word(char word)
{
    return QByteArray(1, word);
}

QByteArray Field(const QString& text)
{
    return Job_Line::Field(text.left(Longest_Text));
}

QByteArray Time_Of(const Job_Clock& clock)
{
    return Job_Line::Time((clock ? clock() : Local_Time()).toSecsSinceEpoch());
}

// Somebody who looks at the list of jobs holds a lock for a moment, too.
bool Lock_Patiently(const Descriptor& file)
{
    for (int tries = 1; !File_Steps::Lock(file); ++tries) {
        if (tries == Most_Tries_For_A_Lock)
            return false;
        Wait_For_Descriptor(-1, POLLIN, Seconds_Between_Tries);
    }
    return true;
}

Job_Trouble Trouble_Of_Disk()
{
    return File_Steps::Is_Disk_Full() ? Job_Trouble::No_Room : Job_Trouble::Not_Written;
}

// Cuts off the line that a crash has torn, and sees to it that the disk has room for the rest of the job.
Job_Trouble Prepare_To_Append(const Descriptor& file, const Job_Reading& reading)
{
    if (reading.is_torn && (!File_Steps::Cut(file, reading.whole_size) || !File_Steps::Sync(file)))
        return Trouble_Of_Disk();
    const off_t bytes = Bytes_For_A_Part * reading.record->Parts_Waiting();
    return File_Steps::Reserve(file, reading.whole_size, bytes) ? Job_Trouble::None : Trouble_Of_Disk();
}

} // namespace

Job_Journal::Job_Journal(Descriptor file, const QString& path, int rows, const QString& imsi, Job_Clock clock)
    : m_file(std::move(file)), m_path(path), m_rows(rows), m_imsi(imsi), m_clock(std::move(clock))
{
}

Job_Journal::~Job_Journal()
{
    // Explicitly, because a child just being started may keep the file open for a moment longer.
    flock(m_file.Number(), LOCK_UN);
}

Job_Journal::Opened Job_Journal::Create(const QString& folder, const Job_Start& start, const Next_Job_Row& next_row,
                                        Job_Clock clock)
{
    const auto failed = [](Job_Trouble trouble) { return Opened{nullptr, std::nullopt, trouble}; };
    const QString path = Job_Journal_Path(folder, start.id);
    if (path.isEmpty())
        return failed(Job_Trouble::Not_Written);
    if (const Job_Trouble trouble = Make_Jobs_Folder(folder); trouble != Job_Trouble::None)
        return failed(trouble);
    Clear_Up_Jobs(folder);
    New_Job_Files files(path);
    if (const Job_Trouble trouble = files.Begin(); trouble != Job_Trouble::None)
        return failed(trouble);
    const Job_List::Written list = files.Freeze(start.id, start.options, next_row);
    if (list.trouble != Job_Trouble::None)
        return failed(list.trouble);
    QByteArrayList header{"J1",
                          Job_Line::Field(start.id),
                          Time_Of(clock),
                          Job_Line::Field(start.imsi),
                          Job_Line::Field(start.device),
                          QByteArray::number(list.rows),
                          QByteArray::number(list.parts),
                          list.sha256};
    if (start.keeps_receipt)
        header.append(Job_Words::Text_Of_Keeping(*start.keeps_receipt));
    if (const Job_Trouble trouble = files.Finish(Job_Line::Whole(header), Bytes_For_A_Part * list.parts);
        trouble != Job_Trouble::None)
        return failed(trouble);
    return {std::unique_ptr<Job_Journal>(
                new Job_Journal(files.Take_Journal(), path, list.rows, start.imsi, std::move(clock))),
            std::nullopt, Job_Trouble::None};
}

Job_Journal::Opened Job_Journal::Open_To_Go_On(const QString& path, Job_Clock clock)
{
    const auto failed = [](Job_Trouble trouble) { return Opened{nullptr, std::nullopt, trouble}; };
    const QByteArray name = File_Steps::Native_Name(path);
    if (!File_Steps::Is_Regular_Or_Missing(name))
        return failed(Job_Trouble::Not_A_Journal);
    Descriptor file = File_Steps::Open(name, O_RDWR | O_APPEND | O_NOFOLLOW);
    if (!file.Is_Open())
        return failed(errno == ENOENT ? Job_Trouble::Missing : Job_Trouble::Unreadable);
    if (!Lock_Patiently(file))
        return failed(Job_Trouble::In_Use);
    if (!File_Steps::Has_A_Name(file))
        return failed(Job_Trouble::Missing);
    Job_Reading reading = Read_Open_Job(file, path);
    if (reading.record)
        reading.trouble = Prepare_To_Append(file, reading);
    if (reading.trouble != Job_Trouble::None)
        return failed(reading.trouble);
    const Job_Header& header = reading.record->Header();
    std::unique_ptr<Job_Journal> journal(
        new Job_Journal(std::move(file), path, header.rows, header.imsi, std::move(clock)));
    journal->m_is_synced = false; // a program that was killed may not have brought its last lines to the disk
    return {std::move(journal), std::move(reading.record), Job_Trouble::None};
}

bool Job_Journal::Hand_Over(int row, int part, int of, const std::optional<QString>& imsi)
{
    if (!Is_Part(row, part) || part > of)
        return Die(Job_Trouble::Not_Written);
    QByteArrayList fields{Word(Job_Words::Handing_Over), QByteArray::number(row), QByteArray::number(part),
                          QByteArray::number(of)};
    if (imsi && *imsi != m_imsi)
        fields.append(Field(*imsi));
    return Append(fields << Now()) && Sync();
}

bool Job_Journal::Accepted(int row, int part, int reference, const QString& stamp)
{
    if (!Is_Part(row, part) || reference < -1 || reference > Most_Octet)
        return Die(Job_Trouble::Not_Written);
    QByteArrayList fields{Word(Job_Words::Accepted), QByteArray::number(row), QByteArray::number(part),
                          reference < 0 ? QByteArrayLiteral("-") : QByteArray::number(reference)};
    if (!stamp.isEmpty())
        fields.append(Field(stamp));
    return Append(fields << Now());
}

bool Job_Journal::Refused(int row, int part, const QString& cause)
{
    return Is_Part(row, part) ? Append({Word(Job_Words::Refused), QByteArray::number(row), QByteArray::number(part),
                                        Field(cause), Now()})
                              : Die(Job_Trouble::Not_Written);
}

bool Job_Journal::Refused_For_Now(int row, int part, const QString& cause)
{
    return Refused(row, part, Job_Words::To_Be_Tried_Again + cause);
}

bool Job_Journal::Unknown(int row, int part, const QString& why)
{
    return Is_Part(row, part) ? Append({Word(Job_Words::Unknown), QByteArray::number(row), QByteArray::number(part),
                                        Field(why), Now()})
                              : Die(Job_Trouble::Not_Written);
}

bool Job_Journal::Skipped(int row, const QString& reason)
{
    return Is_Row(row) ? Append({Word(Job_Words::Skipped), QByteArray::number(row), Field(reason)})
                       : Die(Job_Trouble::Not_Written);
}

bool Job_Journal::Report(const QString& imsi, int reference, const QString& number, qint64 seconds, int status,
                         std::optional<qint64> submitted)
{
    if (reference < 0 || reference > Most_Octet || status < 0 || status > Most_Octet)
        return m_trouble == Job_Trouble::None; // it came from a device, and says nothing that could be kept
    QByteArrayList fields{Word(Job_Words::Report), Field(imsi), QByteArray::number(reference), Field(number),
                          QByteArray::number(status)};
    if (submitted)
        fields.append(Job_Line::Time(*submitted));
    return Append(fields << Job_Line::Time(seconds));
}

bool Job_Journal::Decide(int row, Job_Decision decision, const QString& who)
{
    return Is_Row(row) ? Append({Word(Job_Words::Decision), QByteArray::number(row),
                                 Field(Job_Words::Text_Of(decision, who)), Now()})
                       : Die(Job_Trouble::Not_Written);
}

bool Job_Journal::End()
{
    if (!Append({Word(Job_Words::End), Now()}) || !Sync())
        return false;
    // Gives back the room that the job has not needed; no harm when that fails.
    if (const auto size = File_Steps::Regular_Size(m_file))
        File_Steps::Cut(m_file, *size);
    return true;
}

bool Job_Journal::Sync()
{
    if (m_trouble != Job_Trouble::None)
        return false;
    // Never a second time after a failure: the system has forgotten what it could not write, and would answer yes.
    if (!m_is_synced && !File_Steps::Sync_Content(m_file))
        return Die(Trouble_Of_Disk());
    m_is_synced = true;
    return true;
}

QByteArray Job_Journal::Now() const
{
    return Time_Of(m_clock);
}

bool Job_Journal::Append(const QByteArrayList& fields)
{
    if (m_trouble != Job_Trouble::None)
        return false;
    m_is_synced = false;
    return File_Steps::Write_All(m_file, Job_Line::Whole(fields)) || Die(Trouble_Of_Disk());
}

bool Job_Journal::Die(Job_Trouble trouble)
{
    if (m_trouble == Job_Trouble::None)
        m_trouble = trouble;
    return false;
}
