#pragma once

#include "doctor/Modem_Service.h"

class QDBusMessage;

/// The modems in the service's answer to GetManagedObjects. Whatever is not of the shape that the service documents is
/// as if it were not there. Pure.
QList<Service_Modem> Modems_In(const QDBusMessage& answer);
