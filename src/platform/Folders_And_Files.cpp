#include "platform/Folders_And_Files.h"

#include "platform/Descriptor.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

// Whether a call to set permissions succeeded or had none to set: memory sticks and many network folders have none of
// their own, and those of a folder that belongs to another account are not ours to set. All of them may still be
// writable.
bool Are_Set_Or_Not_To_Be_Had(int result)
{
    return result == 0 || errno == EPERM || errno == EOPNOTSUPP || errno == ENOSYS;
}

} // namespace

bool Make_Folder_If_Missing(const QString& path, unsigned permissions)
{
    if (QFileInfo(path).isDir())
        return true;
    const QString folder = QDir::cleanPath(path); // a trailing slash would count as one more name
    const QString above = QFileInfo(folder).path();
    if (!QFileInfo(above).isDir() && !QDir().mkpath(above))
        return false;
    if (mkdir(QFile::encodeName(folder).constData(), permissions) == 0)
        return Set_Permissions(folder, permissions);
    return errno == EEXIST && QFileInfo(folder).isDir(); // another start was quicker
}

bool Make_Empty_File_If_Missing(const QString& path, unsigned permissions)
{
    // O_EXCL: a file made by another start at the same moment is never emptied.
    Descriptor file(open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, permissions));
    if (!file.Is_Open())
        return QFileInfo(path).isFile();
    const bool is_done = Are_Set_Or_Not_To_Be_Had(fchmod(file.Number(), permissions));
    return file.Close() && is_done;
}

bool Move_Beside(const QString& path, const QString& name)
{
    constexpr int Most_Names = 1000;
    const auto is_taken = [](const QString& free_name) {
        struct stat found = {};
        return lstat(QFile::encodeName(free_name).constData(), &found) == 0;
    };
    QString free_name = name;
    for (int number = 2; is_taken(free_name) && number <= Most_Names; ++number)
        free_name = name + QStringLiteral(".%1").arg(number);
    return !is_taken(free_name) &&
           rename(QFile::encodeName(path).constData(), QFile::encodeName(free_name).constData()) == 0;
}

bool Set_Permissions(const QString& path, unsigned permissions)
{
    return Are_Set_Or_Not_To_Be_Had(chmod(QFile::encodeName(path).constData(), permissions));
}

bool Is_Missing(const QString& path)
{
    struct stat found = {};
    return lstat(QFile::encodeName(path).constData(), &found) != 0 && (errno == ENOENT || errno == ENOTDIR);
}
