#pragma once

#include "device/Port_Finder.h"
#include "doctor/Connection_Advice.h"

#include <optional>

// Finds out what Connection_Advice needs to know. No port is opened; any thread.
namespace Connection_Facts_Finder {

/// A mainboard's own port (ttyS) that was not named with --device does not count as found, since nothing need be
/// connected to it. That it is for root alone is no news either.
Connection_Facts Find(const Port_Finder& finder = System_Port_Finder());

/// The port with the group that may open it, if something exists at the path that this account may not read and write.
std::optional<Connection_Facts::Barred_Port> Barred_Port_At(const QString& path);

/// Whether a process of this name (only its first 15 characters count) is running, according to the folder /proc.
bool Process_Runs(const QString& name, const QString& process_folder = QStringLiteral("/proc"));

} // namespace Connection_Facts_Finder
