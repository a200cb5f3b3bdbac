#pragma once

#include <QStringList>

/// Device paths that a search offers beside the ports it finds: those given with --device, and the demo's phone. Any
/// thread, any time.
void Set_Extra_Device_Paths(const QStringList& paths);
QStringList Extra_Device_Paths();

/// Where the system keeps a link to each serial device under a name that does not change.
inline constexpr QLatin1String Device_Links_By_Id("/dev/serial/by-id");

/// The name under which a device is found again after it was unplugged: its link in the folder of links by id, where
/// there is one; otherwise the path itself.
QString Lasting_Device_Path(const QString& path, const QString& folder = Device_Links_By_Id);
