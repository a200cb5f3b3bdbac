#include "victim/Spoilt_Disk.h"

#include "records/Data_Paths.h"
#include "support/Files.h"

#include <QDirIterator>
#include <QFileInfo>
#include <csignal>
#include <map>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr unsigned Nobody = 65534;

bool Has_Own_Disk = false;

QStringList Everything_In(const QString& folder)
{
    QStringList paths = {folder};
    QDirIterator walk(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext())
        paths.append(walk.next());
    return paths;
}

bool Write_To(const char* path, const QByteArray& line)
{
    QFile file(QString::fromLatin1(path));
    return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(line) == line.size();
}

// What only root may do at other times is allowed to anybody in a user namespace of their own, where there are any.
bool Begin_Own_Mounts()
{
    // Files can only be made by a user and a group that are known there.
    const QByteArray user = QByteArray::number(geteuid());
    const QByteArray group = QByteArray::number(getegid());
    if (unshare(CLONE_NEWNS) == 0)
        return true;
    return unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 && Write_To("/proc/self/setgroups", "deny") &&
           Write_To("/proc/self/uid_map", user + ' ' + user + " 1\n") &&
           Write_To("/proc/self/gid_map", group + ' ' + group + " 1\n");
}

// In a namespace of our own, where nobody else sees it and it goes with the process.
bool Mount_A_Small_Disk(const QByteArray& folder)
{
    return Begin_Own_Mounts() && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           mount("small", folder.constData(), "tmpfs", 0, "size=256k") == 0;
}

void Put_On_A_Small_Disk(const QString& folder)
{
    std::map<QString, QByteArray> files;
    for (const QString& path : Everything_In(folder)) {
        if (QFileInfo(path).isFile())
            files[path] = Bytes_Of(path);
    }
    Has_Own_Disk = Mount_A_Small_Disk(QFile::encodeName(folder));
    for (const auto& [path, bytes] : files) {
        QFile file(path);
        if (Has_Own_Disk && !(QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
                              file.write(bytes) == bytes.size()))
            qFatal("the small disk is too small");
    }
}

void Become_Nobody(const QString& world)
{
    if (geteuid() != 0)
        return;
    for (const QString& path : Everything_In(world)) {
        if (lchown(QFile::encodeName(path).constData(), Nobody, Nobody) != 0)
            qFatal("%s stays whose it is", qPrintable(path));
    }
    if (setgid(Nobody) != 0 || setuid(Nobody) != 0)
        qFatal("nobody can not be had");
}

void Limit_Files(rlim_t bytes)
{
    rlimit limit = {};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = bytes;
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &limit);
}

} // namespace

void Prepare_Disk(Disk disk, const QString& folder)
{
    if (disk == Disk::Full)
        Put_On_A_Small_Disk(folder);
    else if (disk == Disk::Read_Only)
        Become_Nobody(QFileInfo(folder).path());
}

Spoilt_Disk::Spoilt_Disk(Disk disk, const QString& folder) : m_disk(disk), m_folder(folder)
{
    if (disk == Disk::Full && Has_Own_Disk)
        Fill();
    else if (disk == Disk::Full)
        Limit_Files(1); // nothing can be written behind a file's first byte
    else if (disk == Disk::Read_Only)
        Set_Permissions_In_Data(0555, 0444);
}

Spoilt_Disk::~Spoilt_Disk()
{
    if (m_disk == Disk::Read_Only)
        Set_Permissions_In_Data(0755, 0644);
}

// To the last byte: what is left of the files' last pages is filled as well, by files that are as small.
void Spoilt_Disk::Fill() const
{
    const QByteArray page(4096, 'f');
    for (int number = 0;; ++number) {
        QFile file(m_folder + QStringLiteral("/fill") + QString::number(number));
        if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || file.write(page) != page.size())
            return;
    }
}

void Spoilt_Disk::Set_Permissions_In_Data(unsigned of_folders, unsigned of_files) const
{
    for (const QString& path : Everything_In(Corvane_Data_Folder_Path)) {
        const unsigned permissions = QFileInfo(path).isDir() ? of_folders : of_files;
        if (chmod(QFile::encodeName(path).constData(), permissions) != 0)
            qFatal("the permissions of %s can not be set", qPrintable(path));
    }
}
