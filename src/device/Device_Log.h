#pragma once

#include <QString>

// The log lines of device work, joined from their pieces.

/// "strerror text(number)" for an errno.
QString Error_And_Number(int error);

/// Logs "<text> <path> - <error text>(<number>).\n", as every failed step at a device's path is told.
void Log_Failed_Step(const QString& text, const QByteArray& path, int error);

/// Logs "<text> - <error text>(<number>).\n", where there is a descriptor only.
void Log_Failed_Step(const QString& text, int error);

/// Logs "<text> <number>" and a line end.
void Log_Number(const QString& text, long number);
