#pragma once

#include <QByteArray>
#include <QString>

/// The text of a file of numbers: rich text by its extension "rtf", in any case of letters, otherwise UTF-8, without a
/// byte-order mark at its front. An empty text when the file can not be read or is no UTF-8. Any thread.
QString Text_Of_Number_File(const QString& path);

/// The same, of bytes that were read from the path already.
QString Text_Of_Number_File(const QString& path, const QByteArray& bytes);
