#pragma once

#include <QByteArray>
#include <QString>
#include <functional>

// Writes an export, whatever its pieces are: the stores' have a byte-order mark each, those of a contact list none.

/// What an export consists of: its header, then how many pieces and what each of them is.
struct Export_Content
{
    QByteArray header;
    qsizetype count = 0;
    std::function<QByteArray(qsizetype index)> piece;
};

/// Writes an export straight into its file. What stands at the path is deleted first, if it can be; a file that could
/// be written only in part stays as it is. Never writes through a link into a store. Returns whether all of it is
/// written. For a worker.
bool Write_Export(const QString& path, const Export_Content& content);
