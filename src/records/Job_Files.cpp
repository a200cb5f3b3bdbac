#include "records/Job_Files.h"

#include "platform/File_Steps.h"
#include "platform/Folders_And_Files.h"
#include "platform/Text_Files.h"
#include "records/Job_Paths.h"

#include <QFileInfo>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <utility>

namespace {

constexpr mode_t Only_The_User = 0600;

// Never through a link, and never into what somebody else has made.
Descriptor Make(const QString& path, int flags)
{
    Descriptor file =
        File_Steps::Open(File_Steps::Native_Name(path), flags | O_CREAT | O_EXCL | O_NOFOLLOW, Only_The_User);
    if (file.Is_Open() && !File_Steps::Give_Permissions(file, Only_The_User)) {
        const int error = errno;
        file.Close();
        Remove_File(path);
        errno = error;
    }
    return file;
}

Job_Trouble Trouble_Of_Disk()
{
    return File_Steps::Is_Disk_Full() ? Job_Trouble::No_Room : Job_Trouble::Not_Written;
}

} // namespace

New_Job_Files::New_Job_Files(QString journal_path) : m_journal_path(std::move(journal_path)) {}

New_Job_Files::~New_Job_Files()
{
    if (!m_is_made)
        return;
    Remove_File(Job_List_Path(m_journal_path));
    Remove_File(m_is_named ? m_journal_path : New_Journal_Path(m_journal_path));
}

Job_Trouble New_Job_Files::Begin()
{
    if (!Is_Missing(m_journal_path) || !Is_Missing(Job_List_Path(m_journal_path)))
        return Job_Trouble::Exists;
    m_journal = Make(New_Journal_Path(m_journal_path), O_RDWR | O_APPEND);
    if (!m_journal.Is_Open())
        return errno == EEXIST ? Job_Trouble::Exists : Trouble_Of_Disk();
    m_is_made = true;
    const bool is_ours = File_Steps::Lock(m_journal) && File_Steps::Has_A_Name(m_journal);
    return is_ours ? Job_Trouble::None : Job_Trouble::Not_Written;
}

Job_List::Written New_Job_Files::Freeze(const QString& id, const Job_Options& options, const Next_Job_Row& next_row)
{
    Job_List::Written written;
    Descriptor list = Make(Job_List_Path(m_journal_path), O_WRONLY);
    if (list.Is_Open())
        written = Job_List::Write(list, id, options, next_row);
    // A file on a server may refuse its bytes as late as when it is closed.
    if (!list.Is_Open() || (!list.Close() && written.trouble == Job_Trouble::None))
        written.trouble = Trouble_Of_Disk();
    return written;
}

Job_Trouble New_Job_Files::Finish(const QByteArray& header, off_t more_bytes)
{
    using namespace File_Steps;
    const QByteArray name = Native_Name(m_journal_path);
    if (!Write_All(m_journal, header) || !Reserve(m_journal, header.size(), more_bytes) || !Sync(m_journal) ||
        rename(Native_Name(New_Journal_Path(m_journal_path)).constData(), name.constData()) != 0)
        return Trouble_Of_Disk();
    m_is_named = true;
    return Sync_Folder(QFileInfo(m_journal_path).path()) ? Job_Trouble::None : Trouble_Of_Disk();
}

Descriptor New_Job_Files::Take_Journal()
{
    m_is_made = false;
    return std::move(m_journal);
}
