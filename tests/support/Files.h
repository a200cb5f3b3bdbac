#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <gtest/gtest.h>

// Files as tests write and read them, past everything of the program.

inline void Write_Bytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
    ASSERT_EQ(file.write(bytes), bytes.size());
}

/// What stands in a file; "(no file)" when none does.
inline QByteArray Bytes_Of(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

/// Puts a folder where a file belongs, so that it can not be opened for writing, whoever the user is.
inline void Put_A_Folder_At(const QString& path)
{
    QFile::remove(path);
    ASSERT_TRUE(QDir().mkpath(path));
}
