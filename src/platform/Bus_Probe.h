#pragma once

class QString;

/// Whether a bus answers at an address, "unix:path=..." or "unix:abstract=...", within two seconds; all other addresses
/// count as silent. The library that speaks to buses would wait for a silent one for a long time, and nothing could end
/// that. Blocks until the program exits; for a worker.
bool Bus_Answers(const QString& address);
