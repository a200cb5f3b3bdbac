#pragma once

#include <QByteArray>
#include <QString>

// The small files in which a system tells about itself, and what stands in them. Any thread.

/// What a file holds, up to a limit; empty where it cannot be read.
QByteArray Small_File(const QString& path, qint64 at_most = 65536);

/// What a device says of itself, fit to be shown: on one line, without control characters, and not endless.
QString Shown_Name(const QString& name);

/// A path is one word, which no window can break: of a long one only the beginning and the end.
QString Short_Path(const QString& path);

/// The name in a file of one line, fit to be shown.
QString Name_In_File(const QString& path);
