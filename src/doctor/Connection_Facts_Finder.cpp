#include "doctor/Connection_Facts_Finder.h"

#include "device/Device_Paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <array>
#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

QString Group_Name(gid_t group)
{
    std::array<char, 4096> buffer{};
    struct group entry
    {
    };
    struct group* found = nullptr;
    if (getgrgid_r(group, &entry, buffer.data(), buffer.size(), &found) == 0 && found)
        return QString::fromLocal8Bit(found->gr_name);
    return QString::number(group);
}

// Joining root's group would give away the whole computer, so it is not advised.
bool Membership_Helps(const struct stat& port)
{
    constexpr mode_t Read_And_Write = S_IRGRP | S_IWGRP;
    return port.st_gid != 0 && (port.st_mode & Read_And_Write) == Read_And_Write;
}

// A serial socket of the computer itself, which exists with or without a modem in it. One that the user named is
// intended, and does not count as such here.
bool Is_Mainboard_Port(const QString& path)
{
    return QFileInfo(path).fileName().startsWith(QLatin1String("ttyS")) && !Extra_Device_Paths().contains(path);
}

} // namespace

Connection_Facts Connection_Facts_Finder::Find(const Port_Finder& finder)
{
    Connection_Facts facts;
    Modem_Iterator ports;
    finder.Find_Ports(ports);
    while (const auto entry = ports.Next()) {
        const QString path = QFile::decodeName(entry->m_callout_path.value_or(QByteArray()));
        if (!QFile::exists(path))
            continue;
        const bool may_be_empty = Is_Mainboard_Port(path);
        if (!may_be_empty)
            ++facts.ports_found;
        const auto barred = Barred_Port_At(path);
        if (barred && !(may_be_empty && barred->group.isEmpty())) // the owner of a modem there knows whom to ask
            facts.barred_ports.append(*barred);
    }
    facts.modem_manager_runs = Process_Runs(QStringLiteral("ModemManager"));
    return facts;
}

std::optional<Connection_Facts::Barred_Port> Connection_Facts_Finder::Barred_Port_At(const QString& path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat port
    {
    };
    if (stat(name.constData(), &port) != 0 || access(name.constData(), R_OK | W_OK) == 0)
        return std::nullopt;
    return Connection_Facts::Barred_Port{path, Membership_Helps(port) ? Group_Name(port.st_gid) : QString()};
}

bool Connection_Facts_Finder::Process_Runs(const QString& name, const QString& process_folder)
{
    constexpr int Longest_Known = 15; // what the kernel keeps of a process's name
    const QByteArray sought = name.left(Longest_Known).toUtf8();
    const QDir processes(process_folder);
    const auto entries = processes.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::NoSort);
    return std::any_of(entries.begin(), entries.end(), [&](const QString& entry) {
        if (!entry.at(0).isDigit())
            return false;
        QFile file(processes.filePath(entry) + QStringLiteral("/comm"));
        return file.open(QIODevice::ReadOnly) && file.readAll().trimmed() == sought;
    });
}
