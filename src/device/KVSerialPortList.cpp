// Kept by name; nothing in the program calls what stands here.

#include "device/KVSerialPortList.h"

#include "device/KVSerialPort.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QStringList>

namespace {

const QString Port_Type = QStringLiteral("IOSerialStream");

QStringList Paths_Present(const Port_Finder& finder)
{
    QStringList paths;
    Modem_Iterator iterator;
    if (finder.Find_Ports(iterator) != 0)
        return paths;
    while (const auto entry = iterator.Next())
        if (entry->m_callout_path)
            paths.append(QFile::decodeName(*entry->m_callout_path));
    return paths;
}

} // namespace

KVSerialPortList::KVSerialPortList(Port_Finder& finder, QObject* parent) : QObject(parent), m_finder(finder)
{
    connect(&m_device_directory, &QFileSystemWatcher::directoryChanged, this, [this] { Refresh(); });
    m_device_directory.addPath(QStringLiteral("/dev"));
    Refresh();
}

KVSerialPortList* KVSerialPortList::sharedPortList()
{
    static QPointer<KVSerialPortList> list;
    if (!list)
        list = new KVSerialPortList(System_Port_Finder(), QCoreApplication::instance());
    return list;
}

std::shared_ptr<KVSerialPort> KVSerialPortList::objectWithName(const QString& name) const
{
    for (const auto& port : m_ports)
        if (port->name() == name)
            return port;
    return nullptr;
}

std::shared_ptr<KVSerialPort> KVSerialPortList::portByPath(const QString& path) const
{
    for (const auto& port : m_ports)
        if (port->bsdPath() == path)
            return port;
    return nullptr;
}

KVSerialPortList::Ports KVSerialPortList::serialPortsOfType(const QString& type) const
{
    Ports ports;
    for (const auto& port : m_ports)
        if (port->type() == type)
            ports.append(port);
    return ports;
}

KVStandardEnumerator KVSerialPortList::portEnumeratorForSerialPortsOfType(const QString& type) const
{
    return KVStandardEnumerator(serialPortsOfType(type));
}

void KVSerialPortList::Refresh()
{
    const QStringList paths = Paths_Present(m_finder);
    Ports present;
    Ports added;
    for (const auto& path : paths) {
        auto port = portByPath(path);
        if (!port) {
            port = std::make_shared<KVSerialPort>(path, QFileInfo(path).fileName(), Port_Type);
            added.append(port);
        }
        present.append(port);
    }
    Ports removed;
    for (const auto& port : std::as_const(m_ports)) {
        if (!paths.contains(port->bsdPath())) {
            port->close();
            removed.append(port);
        }
    }
    m_ports = present;
    if (!added.isEmpty())
        Q_EMIT KVSerialPortListDidAddPortsNotification(added);
    if (!removed.isEmpty())
        Q_EMIT KVSerialPortListDidRemovePortsNotification(removed);
}
