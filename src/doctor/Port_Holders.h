#pragma once

#include "doctor/System_Roots.h"

#include <QList>

/// A program that has a port, or says that it has it.
struct Port_Holder
{
    qint64 process = 0; ///< 0 where nothing says which
    QString program;    ///< empty where nothing says which
};

/// Who has a port, as far as this account can see: by locks that the kernel keeps, by lock files of living programs,
/// and by files that are open in programs of this account. Nothing that this program has open itself counts, but for
/// its locks. Each process once; any thread.
QList<Port_Holder> Holders_Of_Port(const QString& path, const System_Roots& roots = {});
