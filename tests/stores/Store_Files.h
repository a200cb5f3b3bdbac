#pragma once

#include "app/shared/Data_Paths.h"
#include "app/shared/Globals.h"

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTemporaryDir>
#include <gtest/gtest.h>

inline QByteArray Bytes_Of(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

inline void Put(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
    ASSERT_EQ(file.write(bytes), bytes.size());
}

inline QByteArray Golden(const char* name)
{
    return Bytes_Of(QStringLiteral(CORVANE_TEST_DATA "/stores/") + QLatin1String(name));
}

// A data folder of a test's own, with the empty files that a first start makes.
class Data_Folder
{
public:
    Data_Folder()
    {
        Set_Data_Paths(m_folder.filePath(QStringLiteral("Resources")));
        Check_Path_And_Create_Files();
    }

    /// Puts a file where the data folder was: nothing can be read or written there any more, whoever tries.
    void Take_Away() const
    {
        const QString folder = Corvane_Data_Folder_Path;
        ASSERT_TRUE(QFile::rename(folder, folder + QStringLiteral(".away")));
        Put(folder, "in the way");
    }
    void Bring_Back() const
    {
        const QString folder = Corvane_Data_Folder_Path;
        ASSERT_TRUE(QFile::remove(folder));
        ASSERT_TRUE(QFile::rename(folder + QStringLiteral(".away"), folder));
    }

    QString Path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

private:
    QTemporaryDir m_folder;
};
