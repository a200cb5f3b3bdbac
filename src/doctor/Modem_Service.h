#pragma once

#include "doctor/System_Roots.h"

#include <QList>
#include <QStringList>

/// A modem that the system's modem service looks after.
struct Service_Modem
{
    QStringList ports; ///< their names without a folder, "ttyUSB2"
};

/// What the service ModemManager says about its modems, over D-Bus. Nothing where it does not run or does not answer
/// within two seconds; it is never started for this. Blocks; for a worker.
QList<Service_Modem> Modems_Of_The_Service(const System_Roots& roots = {});
