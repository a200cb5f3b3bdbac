#pragma once

#include "doctor/System_Roots.h"

#include <QList>

/// A modem that is plugged in and shows no port for commands, because it is in another mode.
struct Device_In_Another_Mode
{
    enum class Mode
    {
        Network_Card,
        Storage
    };
    Mode mode = Mode::Storage;
    QString label; ///< maker and product, with the numbers of both, "HUAWEI Mobile (12d1:1f01)"
};

/// Those among the USB devices that are plugged in. Any thread.
QList<Device_In_Another_Mode> Devices_In_Another_Mode(const System_Roots& roots = {});
