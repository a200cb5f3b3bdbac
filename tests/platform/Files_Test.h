#pragma once

#include "platform/File_Calls.h"
#include "support/Files.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <optional>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <vector>

using Content = std::optional<QByteArray>; // nothing: there is no such file, or it can not be read

// A folder of a test's own, and a umask that does not outlive it.
class Files_Test : public testing::Test
{
protected:
    ~Files_Test() override { umask(m_old_mask); }

    QString Path(const QString& name) const { return m_folder.filePath(name); }

    static unsigned Permissions_Of(const QString& path)
    {
        struct stat found = {};
        return lstat(qPrintable(path), &found) == 0 ? found.st_mode & 07777U : ~0U;
    }

    /// What a step answers while the plan is carried out on its calls.
    static bool Under(const File_Call_Plan& plan, const std::function<bool()>& step)
    {
        const File_Calls calls(plan);
        return step();
    }

    /// What the folder holds.
    QStringList Names() const
    {
        return QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    QTemporaryDir m_folder;
    mode_t m_old_mask = umask(022);
};
