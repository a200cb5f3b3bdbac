#pragma once

#include "doctor/Device_State.h"
#include "doctor/System_Roots.h"

#include <QList>
#include <QStringList>

/// A modem that the system's modem service looks after.
struct Service_Modem
{
    QStringList ports; ///< their names without a folder, "ttyUSB2"
    QString label;     ///< maker and model
    Device_State state;
};

/// What the service ModemManager says about its modems, over D-Bus: nothing is changed, and neither numbers nor names
/// of operators are read. Nothing where it does not run or does not answer within two seconds; it is never started for
/// this. Blocks, some seconds at most; for a worker.
QList<Service_Modem> Modems_Of_The_Service(const System_Roots& roots = {});
