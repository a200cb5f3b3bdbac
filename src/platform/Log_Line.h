#pragma once

#include <QString>

/// Writes one line to the system log.
void Show_NSLog_Message(QStringView text);
