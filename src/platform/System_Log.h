#pragma once

#include <QString>
#include <functional>

// The system log: syslog(3), and the terminal too when the program was started from one. The log has a thread of its
// own to write on, so that a slow log or a stopped terminal never holds up the line or a window.

/// Writes one line. The text is never used as a format; control characters in it are made visible. When the sink falls
/// more than 65,536 lines behind, further lines are only counted, and the count is logged once it has caught up.
void Write_System_Log(QStringView line);

/// For a program whose terminal shows lines of its own: the log leaves it alone. Before the first line is written.
void Keep_Log_Off_The_Terminal();

/// Waits until everything written has reached the sink, one second at most.
void Flush_System_Log();

/// Calls the listener with every line as it was written, on the thread that writes it, whatever the sink does. An empty
/// function ends that.
void Set_Log_Listener(std::function<void(const QString&)> listener);

/// A line as it reaches the sink: without line ends at its end, every other control character as \xNN.
QByteArray Printable_Log_Line(QStringView line);
