#include "engine/Confirmed_Test.h"

#include <QFileInfo>
#include <array>
#include <cerrno>
#include <csignal>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

// A job takes no more memory at its last recipient than at a tenth of its way.

namespace {

constexpr int Recipients = 10'000;
constexpr long Most_Growth = 256; // KiB

// Without the pages of programs and libraries, which come and go.
long Resident_Memory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    EXPECT_TRUE(status.open(QIODevice::ReadOnly));
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("RssAnon:"))
            return line.simplified().split(' ').value(1).toLong();
    return 0;
}

// A phone in a process of its own, since it remembers all that it has heard.
class Phone_Elsewhere
{
public:
    explicit Phone_Elsewhere(const Phone_Moods& moods)
    {
        EXPECT_EQ(socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, m_sockets.data()), 0);
        m_child = fork();
        if (m_child == 0)
            Be_The_Phone(m_sockets[1], moods);
        close(m_sockets[1]);
        std::array<char, 256> path{};
        EXPECT_GT(read(m_sockets[0], path.data(), path.size() - 1), 0);
        m_path = path.data();
    }
    ~Phone_Elsewhere()
    {
        kill(m_child, SIGKILL);
        while (waitpid(m_child, nullptr, 0) == -1 && errno == EINTR) {
        }
        close(m_sockets[0]);
    }
    Phone_Elsewhere(const Phone_Elsewhere&) = delete;
    Phone_Elsewhere& operator=(const Phone_Elsewhere&) = delete;

    const std::string& Path() const { return m_path; }

    std::size_t Parts() const
    {
        std::size_t parts = 0;
        const char question = '?';
        EXPECT_EQ(write(m_sockets[0], &question, 1), 1);
        EXPECT_EQ(read(m_sockets[0], &parts, sizeof parts), static_cast<ssize_t>(sizeof parts));
        return parts;
    }

private:
    [[noreturn]] static void Be_The_Phone(int socket, const Phone_Moods& moods)
    {
        const Virtual_Phone phone(moods);
        const std::string path = phone.Path();
        bool is_asked = write(socket, path.data(), path.size()) > 0;
        for (char question = 0; is_asked && read(socket, &question, 1) == 1;) {
            const std::size_t parts = phone.Parts().size();
            is_asked = write(socket, &parts, sizeof parts) > 0;
        }
        _exit(0);
    }

    std::array<int, 2> m_sockets{-1, -1};
    pid_t m_child = -1;
    std::string m_path;
};

// Keeps nothing but what is measured.
class Forgetful_Witness : public Job_Witness
{
public:
    void Show_Current(const QString&) override {}
    void Row_Ended(int, const Row_Outcome&) override {}
    void Report_Came(int, int, int, int) override { ++m_reports; }
    void Row_Done(int index, const Row_Details& details) override
    {
        m_sent += details.outcome.state == Row_State::Sent ? 1 : 0;
        if (index + 1 == Recipients / 10)
            m_early = Resident_Memory();
        if (index + 1 == Recipients)
            m_late = Resident_Memory();
    }

    long m_early = 0; // KiB
    long m_late = 0;
    int m_sent = 0;
    int m_reports = 0;
};

class Large_Job : public Confirmed_Test
{
protected:
    Large_Job()
    {
        m_options.folder = m_quick_folder.filePath(QStringLiteral("Jobs"));
        for (int row = 0; row < Recipients; ++row)
            Add(QStringLiteral("07009%1").arg(row, 5, 10, QLatin1Char('0')), QStringLiteral("To number %1").arg(row));
    }

    void Expect_No_Growth(const Phone_Moods& moods)
    {
        const Phone_Elsewhere phone(moods);
        m_order.device_path = QString::fromStdString(phone.Path());
        {
            Confirmed_Manner manner(m_order, m_options, m_forgetful, m_forgetful, m_stop);
            Send_Job(m_order, manner, m_forgetful, m_forgetful, m_stop).Send_SMS_Func();
        }
        EXPECT_EQ(m_forgetful.m_sent, Recipients);
        EXPECT_EQ(phone.Parts(), static_cast<std::size_t>(Recipients));
        EXPECT_GT(m_forgetful.m_early, 0);
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) // which keep what was given back
        EXPECT_LT(m_forgetful.m_late - m_forgetful.m_early, Most_Growth) << "from " << m_forgetful.m_early << " KiB";
#endif
    }

    // In memory where there is such a place: the disk's time is not what is measured.
    QTemporaryDir m_quick_folder{(QFileInfo("/dev/shm").isWritable() ? QStringLiteral("/dev/shm") : QDir::tempPath()) +
                                 QStringLiteral("/large-job-XXXXXX")};
    Forgetful_Witness m_forgetful;
};

} // namespace

TEST_F(Large_Job, Takes_No_More_Memory_In_The_End)
{
    Expect_No_Growth({});
}

TEST_F(Large_Job, Takes_No_More_Memory_With_Reports)
{
    Phone_Moods moods;
    moods.m_report_after_seconds = 0.01;
    m_options.job.report_seconds = 20;
    Expect_No_Growth(moods);
    EXPECT_EQ(m_forgetful.m_reports, Recipients);
}
