#pragma once

#include <QStringList>

/// Device paths that a search offers beside the ports it finds: those given with --device, and the demo's phone. Any
/// thread, any time.
void Set_Extra_Device_Paths(const QStringList& paths);
QStringList Extra_Device_Paths();
