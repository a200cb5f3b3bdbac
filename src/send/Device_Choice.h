#pragma once

#include "send/Trouble.h"

#include <QStringList>

// Which device messages go through. Both block; for a worker.

struct Device_Choice
{
    QString path;
    Trouble trouble; ///< why there is none
};

/// The one device that was given; of several, or where none was, the one modem that answers. One that is preferred is
/// taken if it is among those that do.
Device_Choice Choose_Device(const QStringList& given, const QString& preferred = {});

/// Why a device that cannot be opened cannot.
Trouble Why_It_Does_Not_Open(const QString& path);
