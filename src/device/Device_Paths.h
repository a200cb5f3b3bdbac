#pragma once

#include <QStringList>

/// Device paths that a search offers beside the ports it finds: those given with --device, and the demo's phone. Any
/// thread, any time.
void Set_Extra_Device_Paths(const QStringList& paths);
QStringList Extra_Device_Paths();

/// The name under which a device is found again after it was unplugged: its link in the folder of links by id, where
/// there is one; otherwise the path itself.
QString Lasting_Device_Path(const QString& path, const QString& folder = QStringLiteral("/dev/serial/by-id"));
