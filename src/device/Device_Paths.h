#pragma once

#include <QStringList>

/// Device paths that a search offers besides the ports it finds itself: those given with --device, and the
/// demonstration's phone. Set by the start-up before any search, but may be changed at any time from any thread.
void Set_Extra_Device_Paths(const QStringList& paths);
QStringList Extra_Device_Paths();
