#pragma once

#include <QByteArray>
#include <QString>
#include <functional>

// Writes an export, whatever its pieces are: those of the stores have a byte-order mark each, those of a contact list
// none.

// What an export consists of: its header, then the number of its pieces and each of them by index.
struct Export_Content
{
    QByteArray header;
    qsizetype count = 0;
    std::function<QByteArray(qsizetype index)> piece;
};

/// Writes an export straight into its file. Whatever is at the path is deleted first, if possible; a file that could be
/// written only in part stays as it is. Never writes through a link into a store. Returns whether all of it was
/// written. For a worker.
bool Write_Export(const QString& path, const Export_Content& content);
