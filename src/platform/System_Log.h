#pragma once

#include <QString>
#include <functional>

// The system log: syslog(3), and the terminal as well when the program was started from one. A thread of the log's own
// does the writing, so that a slow log or a stopped terminal never holds up the line or a window.

/// Writes one line. The text is never taken as a format; control characters in it are made visible. When the sink falls
/// behind by more than 65,536 lines, further ones are counted instead, and the count is logged when it has caught up.
void Write_System_Log(QStringView line);

/// Waits until what was written has reached the sink, one second at the most.
void Flush_System_Log();

/// Hears every line as it was written, on the thread that writes it, whatever the sink does. An empty function ends
/// that.
void Set_Log_Listener(std::function<void(const QString&)> listener);

/// The form in which a line reaches the sink: without line ends at its end, every other control character as \xNN.
QByteArray Printable_Log_Line(QStringView line);
