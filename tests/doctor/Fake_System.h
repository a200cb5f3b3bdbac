#pragma once

#include "doctor/System_Roots.h"
#include "support/Files.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

/// A port as a fake system has it. Empty texts stand for files that are not there.
struct Fake_Port
{
    QString name = QStringLiteral("ttyUSB0");
    QString vendor = {}; ///< four hexadecimal digits; empty for a port that is on no USB device
    QString product = {};
    QString interface = QStringLiteral("00");
    QString interface_class = QStringLiteral("ff/ff/ff");
    QString maker_name = {};
    QString product_name = {};
    QString driver = QStringLiteral("option");
    QByteArray udev = {};                        ///< lines of the device manager's record
    QString device = QStringLiteral("usb1/1-1"); ///< the place of the USB device
};

// The trees in which a system tells about its ports, in a folder of its own, as the real one lays them out.
class Fake_System
{
public:
    Fake_System()
    {
        for (const char* folder : {"dev/serial/by-id", "sys/class/tty", "sys/bus/usb/devices", "sys/bus/usb/drivers",
                                   "sys/devices/pci0", "udev", "lock", "proc"})
            EXPECT_TRUE(QDir().mkpath(Path(folder)));
        roots = {Path("dev"), Path("sys"), Path("udev"), Path("lock"), Path("proc"), {}};
    }

    QString Path(const QString& path) const { return m_folder.filePath(path); }
    QString Node(const QString& name) const { return Path("dev/" + name); }

    /// Plugs a port in; returns its path.
    QString Add(const Fake_Port& port)
    {
        Write_Bytes(Node(port.name), {});
        QString folder = Path("sys/devices/platform/" + port.name);
        if (!port.vendor.isEmpty())
            folder = Add_Usb(port);
        const QString tty = Path("sys/class/tty/" + port.name);
        EXPECT_TRUE(QDir().mkpath(folder) && QDir().mkpath(tty));
        EXPECT_TRUE(QFile::link(folder, tty + "/device"));
        const QByteArray number = "188:" + QByteArray::number(++m_ports);
        Write_Bytes(tty + "/dev", number + '\n');
        if (!port.udev.isEmpty())
            Write_Bytes(Path("udev/c" + number), port.udev);
        return Node(port.name);
    }

    /// A USB device that shows no port.
    void Add_Without_Port(const QString& vendor, const QString& product, const QString& maker_name)
    {
        const QString folder = Path("sys/bus/usb/devices/1-" + QString::number(++m_ports));
        EXPECT_TRUE(QDir().mkpath(folder));
        Write_Bytes(folder + "/idVendor", vendor.toLatin1() + '\n');
        Write_Bytes(folder + "/idProduct", product.toLatin1() + '\n');
        if (!maker_name.isEmpty())
            Write_Bytes(folder + "/manufacturer", maker_name.toUtf8() + '\n');
    }

    /// A port of a modem for mobile data, of which the kernel tells this type; the modem itself has none.
    void Add_Wwan(const QString& name, const QByteArray& type)
    {
        const QString folder = Path("sys/class/wwan/" + name);
        EXPECT_TRUE(QDir().mkpath(folder));
        if (type.isEmpty())
            return;
        Write_Bytes(Node(name), {});
        Write_Bytes(folder + "/type", type + '\n');
    }

    void Add_Process(int number, const QByteArray& name)
    {
        EXPECT_TRUE(QDir().mkpath(Path("proc/%1/fd").arg(number)));
        Write_Bytes(Path("proc/%1/comm").arg(number), name + '\n');
    }

    System_Roots roots;

private:
    QString Add_Usb(const Fake_Port& port)
    {
        const QString device = Path("sys/devices/pci0/" + port.device);
        const QString interface = device + "/1-1:1." + port.interface;
        const QString folder = interface + u'/' + port.name;
        EXPECT_TRUE(QDir().mkpath(folder));
        EXPECT_TRUE(QDir().mkpath(Path("sys/bus/usb/drivers/" + port.driver)));
        QFile::link(Path("sys/bus/usb/drivers/" + port.driver), interface + "/driver");
        const QStringList classes = port.interface_class.split('/');
        const std::pair<QString, QString> files[] = {{device + "/idVendor", port.vendor},
                                                     {device + "/idProduct", port.product},
                                                     {device + "/manufacturer", port.maker_name},
                                                     {device + "/product", port.product_name},
                                                     {interface + "/bInterfaceNumber", port.interface},
                                                     {interface + "/bInterfaceClass", classes.value(0)},
                                                     {interface + "/bInterfaceSubClass", classes.value(1)},
                                                     {interface + "/bInterfaceProtocol", classes.value(2)}};
        for (const auto& [path, text] : files)
            if (!text.isEmpty())
                Write_Bytes(path, text.toUtf8() + '\n');
        return folder;
    }

    QTemporaryDir m_folder;
    int m_ports = 0;
};
