#include "records/Job_Paths.h"

#include "platform/File_Steps.h"
#include "platform/Folders_And_Files.h"
#include "platform/Text_Files.h"
#include "platform/Waiting.h"

#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>
#include <algorithm>
#include <fcntl.h>

namespace {

constexpr unsigned Only_The_User = 0700;
constexpr qsizetype Longest_Id = 64;
constexpr quint32 Random_Values = 0x10000;
constexpr int Random_Digits = 4;

QString Journal_Extension()
{
    return QStringLiteral(".journal");
}

} // namespace

QString New_Job_Id(const Job_Clock& clock)
{
    const QDateTime now = clock ? clock() : Local_Time();
    return now.toString(QStringLiteral("yyyyMMdd-HHmmss-")) +
           QStringLiteral("%1").arg(QRandomGenerator::system()->bounded(Random_Values), Random_Digits, 16,
                                    QLatin1Char('0'));
}

bool Is_Job_Id(const QString& text)
{
    return !text.isEmpty() && text.size() <= Longest_Id && std::all_of(text.begin(), text.end(), [](QChar letter) {
        return letter == u'-' || (letter.unicode() < 0x80 && letter.isLetterOrNumber());
    });
}

QString Job_Journal_Path(const QString& folder, const QString& id)
{
    return Is_Job_Id(id) ? folder + u'/' + id + Journal_Extension() : QString();
}

QString Job_Id_Of(const QString& journal_path)
{
    const QString name = QFileInfo(journal_path).fileName();
    return name.endsWith(Journal_Extension()) ? name.chopped(Journal_Extension().size()) : QString();
}

QString Job_List_Path(const QString& journal_path)
{
    return QFileInfo(journal_path).path() + u'/' + Job_Id_Of(journal_path) + QStringLiteral(".list");
}

QString New_Journal_Path(const QString& journal_path)
{
    return Replacement_Path(journal_path);
}

Job_Trouble Make_Jobs_Folder(const QString& folder)
{
    const QString path = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    QStringList unsynced;
    for (QString missing = path; Is_Missing(missing) && !QFileInfo(missing).isRoot();
         missing = QFileInfo(missing).path())
        unsynced.append(QFileInfo(missing).path());
    if (!Make_Folder_If_Missing(path, Only_The_User))
        return Job_Trouble::Not_Written;
    const bool is_synced = std::all_of(unsynced.crbegin(), unsynced.crend(), Sync_Folder);
    return is_synced ? Job_Trouble::None : Job_Trouble::Not_Written;
}

bool Sync_Folder(const QString& folder)
{
    const Descriptor open_folder = File_Steps::Open(File_Steps::Native_Name(folder), O_RDONLY | O_DIRECTORY);
    return open_folder.Is_Open() && File_Steps::Sync(open_folder);
}

void Clear_Up_Jobs(const QString& folder)
{
    const QStringList left = {New_Journal_Path(u'*' + Journal_Extension())};
    for (const QString& name : QDir(folder).entryList(left, QDir::Files | QDir::Hidden | QDir::CaseSensitive)) {
        const QString path = folder + u'/' + name;
        const Descriptor file = File_Steps::Open(File_Steps::Native_Name(path), O_RDWR | O_NOFOLLOW);
        if (!file.Is_Open() || !File_Steps::Lock(file))
            continue;
        const QString journal_path = path.chopped(New_Journal_Path({}).size());
        if (Is_Missing(journal_path))
            Remove_File(Job_List_Path(journal_path));
        Remove_File(path);
    }
}
