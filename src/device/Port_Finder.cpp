#include "device/Port_Finder.h"

#include "device/Device_Paths.h"

#include <QDir>
#include <QFile>
#include <QSerialPortInfo>

namespace {

// The kernel's type of the hardware behind a ttyS<n>; 0 is "unknown".
std::optional<int> Kernel_Type(const QString& port_name)
{
    QFile file(QStringLiteral("/sys/class/tty/") + port_name + QStringLiteral("/type"));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    bool is_number = false;
    const int type = file.readAll().trimmed().toInt(&is_number);
    return is_number ? std::optional(type) : std::nullopt;
}

bool Is_Phantom(const QSerialPortInfo& port)
{
    const bool is_described =
        !port.description().isEmpty() || !port.manufacturer().isEmpty() || port.hasVendorIdentifier();
    return Is_Phantom_Port(port.portName(), is_described, Kernel_Type(port.portName()));
}

void Add_Once(QStringList& paths, const QString& path)
{
    if (!path.isEmpty() && !paths.contains(path))
        paths.append(path);
}

} // namespace

bool Is_Phantom_Port(const QString& port_name, bool is_described, const std::optional<int>& kernel_type)
{
    if (!port_name.startsWith(QLatin1String("ttyS")))
        return false;
    return kernel_type ? *kernel_type == 0 : !is_described;
}

bool Port_Finder::Can_Ask() const
{
    return QDir(QStringLiteral("/sys/class/tty")).exists();
}

int Port_Finder::Find_Ports(Modem_Iterator& iterator) const
{
    QStringList paths;
    const auto ports = QSerialPortInfo::availablePorts();
    for (const auto& port : ports)
        if (!Is_Phantom(port))
            Add_Once(paths, port.systemLocation());
    const QDir device_directory(QStringLiteral("/dev"));
    const auto bluetooth_ports = device_directory.entryList({QStringLiteral("rfcomm*")}, QDir::System);
    for (const auto& name : bluetooth_ports)
        Add_Once(paths, device_directory.filePath(name));
    const auto extra_paths = Extra_Device_Paths();
    for (const auto& path : extra_paths)
        Add_Once(paths, path);

    QList<Modem_Entry> entries;
    for (const auto& path : paths)
        entries.append({QFile::encodeName(path)});
    iterator = Modem_Iterator(entries);
    return 0;
}

Port_Finder& System_Port_Finder()
{
    static Port_Finder finder;
    return finder;
}
