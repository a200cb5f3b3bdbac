#include "platform/Folders_And_Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

bool Make_Folder_If_Missing(const QString& path, unsigned permissions)
{
    if (QFileInfo(path).isDir())
        return true;
    const QString folder = QDir::cleanPath(path); // a slash at its end would count as one more name
    const QString above = QFileInfo(folder).path();
    if (!QFileInfo(above).isDir() && !QDir().mkpath(above))
        return false;
    if (mkdir(QFile::encodeName(folder).constData(), permissions) == 0)
        return Set_Permissions(folder, permissions);
    return errno == EEXIST && QFileInfo(folder).isDir(); // another start was quicker
}

bool Make_Empty_File_If_Missing(const QString& path, unsigned permissions)
{
    // O_EXCL: a file that another start makes at the same moment is never emptied.
    const int descriptor =
        open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, permissions);
    if (descriptor < 0)
        return QFileInfo(path).isFile();
    const bool is_done = fchmod(descriptor, permissions) == 0;
    return close(descriptor) == 0 && is_done;
}

bool Set_Permissions(const QString& path, unsigned permissions)
{
    return chmod(QFile::encodeName(path).constData(), permissions) == 0;
}
