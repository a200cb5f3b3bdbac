#pragma once

#include "app/shared/Data_Paths.h"
#include "app/shared/Globals.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QTemporaryDir>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

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

/// Runs a step in a process of its own, without any power over files that are not open to everybody; whether it
/// answered yes.
inline bool As_Nobody(const std::function<bool()>& step)
{
    const pid_t child = fork();
    if (child == 0) {
        if (getuid() == 0 && setuid(65534) != 0)
            std::_Exit(90);
        std::_Exit(step() ? 1 : 0);
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) <= 1) << status;
    return WEXITSTATUS(status) == 1;
}

// A disk that has no room for a file of more than so many bytes, for as long as this lives.
class Full_Disk
{
public:
    explicit Full_Disk(rlim_t bytes) : m_signal_before(std::signal(SIGXFSZ, SIG_IGN))
    {
        EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &m_limit_before), 0);
        const rlimit limit{bytes, m_limit_before.rlim_max};
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    }
    ~Full_Disk()
    {
        setrlimit(RLIMIT_FSIZE, &m_limit_before);
        std::signal(SIGXFSZ, m_signal_before);
    }
    Full_Disk(const Full_Disk&) = delete;
    Full_Disk& operator=(const Full_Disk&) = delete;

private:
    rlimit m_limit_before = {};
    void (*m_signal_before)(int);
};

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

    /// For everybody without power over files, with all the folders in it that lead to the data.
    void Turn_Read_Only() const { Set_Folder_Permissions(0555); }
    void Turn_Writable() const { Set_Folder_Permissions(0755); }

    QString Path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

private:
    void Set_Folder_Permissions(mode_t permissions) const
    {
        for (QString folder = Corvane_Data_Folder_Path; folder.startsWith(m_folder.path());
             folder = QFileInfo(folder).path())
            EXPECT_EQ(chmod(QFile::encodeName(folder).constData(), permissions), 0);
    }

    QTemporaryDir m_folder;
};
