#pragma once

#include "records/Data_Paths.h"
#include "support/Files.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <sys/stat.h>

inline QString Path_Of_List(const QString& name)
{
    return Exclusion_Folder_Path + "/" + name + ".ZOVA";
}

/// Adds an exclusion list to the index.
inline void Make_List(const QString& name, const QByteArray& numbers)
{
    Write_Bytes(Exclusion_Index_Path, Bytes_Of(Exclusion_Index_Path) + name.toUtf8() + "\n");
    Write_Bytes(Path_Of_List(name), numbers);
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

    ~Data_Folder() { Set_Data_Paths({}); }

    /// Puts a file where the data folder was: nothing can be read or written there any more, whoever tries.
    void Take_Away() const
    {
        const QString folder = Corvane_Data_Folder_Path;
        ASSERT_TRUE(QFile::rename(folder, folder + QStringLiteral(".away")));
        Write_Bytes(folder, "in the way");
    }
    void Bring_Back() const
    {
        const QString folder = Corvane_Data_Folder_Path;
        ASSERT_TRUE(QFile::remove(folder));
        ASSERT_TRUE(QFile::rename(folder + QStringLiteral(".away"), folder));
    }

    /// For everybody without power over files, with all the folders in it that lead to the data.
    void Turn_Read_Only() const { Set_Folder_Permissions(0555); }
    void Turn_Writable() const { Set_Folder_Permissions(0755); }

    /// The path of something beside the data folder.
    QString Beside(const QString& name) const { return m_folder.filePath(name); }

private:
    void Set_Folder_Permissions(mode_t permissions) const
    {
        for (QString folder = Corvane_Data_Folder_Path; folder.startsWith(m_folder.path());
             folder = QFileInfo(folder).path())
            EXPECT_EQ(chmod(QFile::encodeName(folder).constData(), permissions), 0);
    }

    QTemporaryDir m_folder;
};
