#pragma once

#include <QString>

// Log lines of device work.

/// "strerror text(number)" for an errno.
QString Error_And_Number(int error);

/// Logs "<text> <path> - <error text>(<number>).\n".
void Log_Failed_Step(const QString& text, const QByteArray& path, int error);

/// Logs "<text> - <error text>(<number>).\n", where only a descriptor is known.
void Log_Failed_Step(const QString& text, int error);

/// Logs "<text> <number>" and a line end.
void Log_Number(const QString& text, long number);
