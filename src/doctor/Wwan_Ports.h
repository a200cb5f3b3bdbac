#pragma once

#include "doctor/At_Interfaces.h"
#include "doctor/System_Roots.h"

#include <QStringList>

// The ports that the kernel gives to modems for mobile data, mostly built-in ones: "/dev/wwan0at0", "/dev/wwan0mbim0".
// They are no serial ports. None is opened; any thread.

QStringList Wwan_Ports(const System_Roots& roots = {});

/// What the port of this name, without a folder, is for; unknown where it is none of them.
Port_Use Use_Of_Wwan_Port(const QString& name, const System_Roots& roots = {});
