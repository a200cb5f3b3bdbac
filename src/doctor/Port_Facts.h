#pragma once

#include "doctor/At_Interfaces.h"
#include "doctor/System_Roots.h"

#include <QList>
#include <QString>
#include <QStringList>

/// What is known about a port without opening it. A value.
struct Port_Facts
{
    enum class Place
    {
        Usb,
        Elsewhere, ///< named by somebody; a pseudo-terminal, for one
        Bluetooth,
        Mainboard ///< a serial socket of the computer itself, which exists with or without a modem in it
    };

    QString path;         ///< as it was found
    QString node;         ///< where that leads to
    QString lasting_path; ///< the name under which it is found again after it was unplugged; the path where none is
    Place place = Place::Elsewhere;
    Port_Use use = Port_Use::Unknown;
    QString maker;
    QString product;
    QString driver;
    QString device;     ///< the same for all ports of one USB device; empty for others
    int interface = -1; ///< its number in the USB device

    /// Maker and product, as far as they are known.
    QString Label() const;
    /// The label with the path, as a window can show it; the path alone where there is no label.
    QString Name() const;
};

/// Reads what the system tells. No port is opened; any thread.
Port_Facts Facts_Of_Port(const QString& path, const System_Roots& roots = {});

/// The same for several, in the order in which they are worth a try: ports of USB devices for commands first, sockets
/// of the mainboard behind all others, and those that cannot take commands last.
QList<Port_Facts> Facts_In_Order(const QStringList& paths, const System_Roots& roots = {});
