#pragma once

#include "doctor/System_Roots.h"

#include <QHash>
#include <QStringList>

/// What a list of ports says beside each: two short texts.
struct Port_Note
{
    QString device; ///< maker and product; empty where they are not known
    QString state;  ///< what is the matter, behind its sign
};

/// The notes to these ports, by their paths. None is opened. Asks the system's modem service; for a worker.
QHash<QString, Port_Note> Notes_To_Ports(const QStringList& paths, const System_Roots& roots = {});
