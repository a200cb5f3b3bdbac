#include "platform/File_Steps.h"

#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// O_NONBLOCK: a pipe that appears at a path after it was checked never holds up an open.
constexpr int Open_Flags = O_CLOEXEC | O_NOCTTY | O_NONBLOCK;

// Whether a file system has answered that it does not know what it was asked for. EROFS is none of these answers: it is
// how a file system says that it has given up on what it was given.
bool Is_Not_To_Be_Had()
{
    return errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP;
}

} // namespace

QByteArray File_Steps::Native_Name(const QString& path)
{
    return path.contains(QChar::Null) ? QByteArray() : QFile::encodeName(path);
}

Descriptor File_Steps::Open(const QByteArray& name, int flags, mode_t permissions)
{
    return Descriptor(Uninterrupted([&] { return open(name.constData(), flags | Open_Flags, permissions); }));
}

std::optional<off_t> File_Steps::Regular_Size(const Descriptor& file)
{
    struct stat found = {};
    if (!file.Is_Open() || fstat(file.Number(), &found) != 0 || !S_ISREG(found.st_mode))
        return std::nullopt;
    return found.st_size;
}

bool File_Steps::Is_Regular_Or_Missing(const QByteArray& name)
{
    struct stat found = {};
    return stat(name.constData(), &found) == 0 ? S_ISREG(found.st_mode) : errno == ENOENT;
}

bool File_Steps::Give_Permissions(const Descriptor& file, mode_t permissions)
{
    return fchmod(file.Number(), permissions) == 0 || errno == EPERM || errno == EOPNOTSUPP;
}

bool File_Steps::Write_All(const Descriptor& file, const QByteArray& bytes)
{
    for (qsizetype done = 0; done < bytes.size();) {
        const auto left = static_cast<size_t>(bytes.size() - done);
        const ssize_t count = Uninterrupted([&] { return write(file.Number(), bytes.constData() + done, left); });
        if (count <= 0)
            return false;
        done += count;
    }
    return true;
}

bool File_Steps::Sync(const Descriptor& file)
{
    return Uninterrupted([&] { return fsync(file.Number()); }) == 0 || Is_Not_To_Be_Had();
}

bool File_Steps::Sync_Content(const Descriptor& file)
{
    return Uninterrupted([&] { return fdatasync(file.Number()); }) == 0 || Is_Not_To_Be_Had();
}

bool File_Steps::Cut(const Descriptor& file, off_t size)
{
    return Uninterrupted([&] { return ftruncate(file.Number(), size); }) == 0;
}

bool File_Steps::Reserve(const Descriptor& file, off_t from, off_t bytes)
{
    const auto reserve = [&] { return fallocate(file.Number(), FALLOC_FL_KEEP_SIZE, from, bytes); };
    return bytes <= 0 || Uninterrupted(reserve) == 0 || Is_Not_To_Be_Had();
}

bool File_Steps::Lock(const Descriptor& file)
{
    return Uninterrupted([&] { return flock(file.Number(), LOCK_EX | LOCK_NB); }) == 0 || errno != EWOULDBLOCK;
}

bool File_Steps::Has_A_Name(const Descriptor& file)
{
    struct stat found = {};
    return fstat(file.Number(), &found) == 0 && found.st_nlink > 0;
}

bool File_Steps::Is_Disk_Full()
{
    return errno == ENOSPC || errno == EDQUOT || errno == EFBIG;
}
