#pragma once

#include <QString>

/// Where the system tells about its serial ports. A value; tests hand in trees of their own.
struct System_Roots
{
    QString devices = QStringLiteral("/dev");
    QString sys = QStringLiteral("/sys");
    QString udev = QStringLiteral("/run/udev/data"); ///< its records of devices
    QString locks = QStringLiteral("/run/lock");     ///< where programs put their lock files
    QString processes = QStringLiteral("/proc");
    QString bus; ///< the address of the system's D-Bus; empty for the usual one
};
