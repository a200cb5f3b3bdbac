#include "doctor/Port_Holders.h"

#include "doctor/Small_Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <optional>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace {

constexpr qint64 Longest_Table = 4 * 1024 * 1024; // of the kernel's locks

QString Folder_Of(qint64 process, const System_Roots& roots)
{
    return roots.processes + u'/' + QString::number(process);
}

void Add(QList<Port_Holder>& holders, qint64 process, const System_Roots& roots)
{
    const bool is_known = std::any_of(holders.begin(), holders.end(),
                                      [&](const Port_Holder& holder) { return holder.process == process; });
    if (!is_known)
        holders.append(
            {process, process > 0 ? Name_In_File(Folder_Of(process, roots) + QStringLiteral("/comm")) : QString()});
}

// "fe:00:1234": the kernel's name for a file in its table of locks.
QByteArray Name_In_Lock_Table(const struct stat& file)
{
    const auto hexadecimal = [](unsigned number) { return QByteArray::number(number, 16).rightJustified(2, '0'); };
    return hexadecimal(major(file.st_dev)) + ':' + hexadecimal(minor(file.st_dev)) + ':' +
           QByteArray::number(static_cast<qulonglong>(file.st_ino));
}

// "1: FLOCK  ADVISORY  WRITE 1234 fe:00:5678 0 EOF". One that waits for a lock has "->" before its kind.
void Add_Those_With_A_Lock(QList<Port_Holder>& holders, const QString& path, const System_Roots& roots)
{
    struct stat file
    {
    };
    if (stat(QFile::encodeName(path).constData(), &file) != 0)
        return;
    constexpr qsizetype Process_Field = 4;
    constexpr qsizetype File_Field = 5;
    const QByteArray name = Name_In_Lock_Table(file);
    const auto lines = Small_File(roots.processes + QStringLiteral("/locks"), Longest_Table).split('\n');
    for (const QByteArray& line : lines) {
        const QByteArrayList fields = line.simplified().split(' ');
        if (fields.value(1) != "->" && fields.value(File_Field) == name)
            Add(holders, std::max(fields.value(Process_Field).toLongLong(), 0LL), roots);
    }
}

// A lock file holds the number of a process, in digits or, in old programs, as an int.
std::optional<qint64> Process_In(const QByteArray& content)
{
    bool is_number = false;
    const qint64 in_digits = content.trimmed().toLongLong(&is_number);
    if (is_number && in_digits > 0)
        return in_digits;
    qint32 as_int = 0;
    if (content.size() != sizeof as_int)
        return std::nullopt;
    std::copy_n(content.constData(), sizeof as_int, reinterpret_cast<char*>(&as_int));
    return as_int > 0 ? std::optional<qint64>(as_int) : std::nullopt;
}

// One whose program has ended means nothing.
void Add_Those_With_A_Lock_File(QList<Port_Holder>& holders, const QStringList& names, const System_Roots& roots)
{
    constexpr qint64 Longest = 64;
    for (const QString& name : names) {
        const auto process = Process_In(Small_File(roots.locks + QStringLiteral("/LCK..") + name, Longest));
        if (process && QFileInfo::exists(Folder_Of(*process, roots)))
            Add(holders, *process, roots);
    }
}

bool Has_It_Open(const QString& process_folder, const QByteArray& node)
{
    const QDir descriptors(process_folder + QStringLiteral("/fd"));
    const auto names = descriptors.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot, QDir::NoSort);
    return std::any_of(names.begin(), names.end(), [&](const QString& name) {
        char target[256];
        const ssize_t length =
            readlink(QFile::encodeName(descriptors.filePath(name)).constData(), target, sizeof target);
        return length > 0 && node == QByteArrayView(target, length);
    });
}

void Add_Those_That_Have_It_Open(QList<Port_Holder>& holders, const QString& node, const System_Roots& roots)
{
    const QDir processes(roots.processes);
    const auto entries = processes.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::NoSort);
    for (const QString& entry : entries) {
        bool is_number = false;
        const qint64 process = entry.toLongLong(&is_number);
        if (is_number && process != getpid() && Has_It_Open(processes.filePath(entry), QFile::encodeName(node)))
            Add(holders, process, roots);
    }
}

} // namespace

QList<Port_Holder> Holders_Of_Port(const QString& path, const System_Roots& roots)
{
    QList<Port_Holder> holders;
    QString node = QFileInfo(path).canonicalFilePath();
    if (node.isEmpty())
        node = path;
    QStringList names{QFileInfo(node).fileName(), QFileInfo(path).fileName()};
    names.removeDuplicates();
    Add_Those_With_A_Lock(holders, node, roots);
    Add_Those_With_A_Lock_File(holders, names, roots);
    Add_Those_That_Have_It_Open(holders, node, roots);
    return holders;
}
