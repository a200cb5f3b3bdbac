#pragma once

#include "support/Data_Folder.h"

#include <csignal>
#include <cstdlib>
#include <functional>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

inline QByteArray Golden(const char* name)
{
    return Bytes_Of(QStringLiteral(CORVANE_TEST_DATA "/stores/") + QLatin1String(name));
}

inline unsigned Permissions_Of(const QString& path)
{
    struct stat found = {};
    return stat(qPrintable(path), &found) == 0 ? found.st_mode & 07777U : ~0U;
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
