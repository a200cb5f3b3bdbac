#pragma once

// Kept by name; nothing in the program calls what stands here.

#include "device/KVStandardEnumerator.h"
#include "device/Port_Finder.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>

/// The serial devices present, one port each, with a signal when some come or go. Belongs to the interface thread.
class KVSerialPortList : public QObject
{
    Q_OBJECT

public:
    using Ports = QList<std::shared_ptr<KVSerialPort>>;

    explicit KVSerialPortList(Port_Finder& finder = System_Port_Finder(), QObject* parent = nullptr);

    /// The process's list, made on first use and destroyed with the application.
    static KVSerialPortList* sharedPortList();

    qsizetype count() const { return m_ports.size(); }
    std::shared_ptr<KVSerialPort> objectAtIndex(qsizetype index) const { return m_ports.value(index); }
    /// None when no port has the name or the path.
    std::shared_ptr<KVSerialPort> objectWithName(const QString& name) const;
    std::shared_ptr<KVSerialPort> portByPath(const QString& path) const;
    Ports serialPorts() const { return m_ports; }
    Ports serialPortsOfType(const QString& type) const;
    KVStandardEnumerator portEnumerator() const { return KVStandardEnumerator(m_ports); }
    KVStandardEnumerator portEnumeratorForSerialPortsOfType(const QString& type) const;

    /// Updates the list. Runs by itself whenever the device directory changes.
    void Refresh();

Q_SIGNALS:
    void
    KVSerialPortListDidAddPortsNotification(const QList<std::shared_ptr<KVSerialPort>>& KVSerialPortListAddedPorts);
    /// The ports are closed by then.
    void KVSerialPortListDidRemovePortsNotification(
        const QList<std::shared_ptr<KVSerialPort>>& KVSerialPortListRemovedPorts);

private:
    Port_Finder& m_finder;
    Ports m_ports;
    QFileSystemWatcher m_device_directory;
};
