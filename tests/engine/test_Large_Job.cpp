#include "engine/Confirmed_Test.h"

#include <QFileInfo>
#include <cerrno>
#include <cstdio>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

// A job takes no more memory at its last recipient than at a tenth of its way: by default of two thousand, and of as
// many as CORVANE_RECIPIENTS says. It runs in a process of its own, since the phone remembers all that it has heard.

namespace {

constexpr int Usual_Recipients = 2'000;
constexpr long Most_Growth = 256; // KiB

int Recipients()
{
    const int wanted = qEnvironmentVariableIntValue("CORVANE_RECIPIENTS");
    return wanted > 0 ? wanted : Usual_Recipients;
}

struct Measured
{
    long early = 0; // KiB
    long late = 0;
    int sent = 0;
    int reports = 0;
};

long Resident_Memory()
{
    long pages = 0;
    if (FILE* sizes = fopen("/proc/self/statm", "re")) {
        if (fscanf(sizes, "%*d %ld", &pages) != 1)
            pages = 0;
        fclose(sizes);
    }
    return pages * (sysconf(_SC_PAGESIZE) / 1024);
}

// Keeps nothing but what is measured.
class Forgetful_Witness : public Job_Witness
{
public:
    explicit Forgetful_Witness(Measured& measured) : m_measured(measured) {}

    void Show_Current(const QString&) override {}
    void Row_Ended(int, const Row_Outcome&) override {}
    void Report_Came(int, int, int, int) override { ++m_measured.reports; }
    void Row_Done(int index, const Row_Details& details) override
    {
        m_measured.sent += details.outcome.state == Row_State::Sent ? 1 : 0;
        if (index + 1 == Recipients() / 10)
            m_measured.early = Resident_Memory();
        if (index + 1 == Recipients())
            m_measured.late = Resident_Memory();
    }

private:
    Measured& m_measured;
};

class Large_Job : public Confirmed_Test
{
protected:
    Measured Run_In_A_Process()
    {
        void* const place = mmap(nullptr, sizeof(Measured), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        if (place == MAP_FAILED)
            return {};
        auto& measured = *new (place) Measured;
        const pid_t child = fork();
        if (child == 0) {
            Forgetful_Witness witness(measured);
            {
                Confirmed_Manner manner(m_order, m_options, witness, witness, m_stop);
                Send_Job(m_order, manner, witness, witness, m_stop).Send_SMS_Func();
            }
            _exit(0);
        }
        int status = -1;
        while (waitpid(child, &status, 0) == -1 && errno == EINTR) {
        }
        EXPECT_EQ(status, 0);
        const Measured result = measured;
        munmap(place, sizeof(Measured));
        return result;
    }

    void Expect_No_Growth()
    {
        for (int row = 0; row < Recipients(); ++row)
            Add(QStringLiteral("07009%1").arg(row, 5, 10, QLatin1Char('0')), QStringLiteral("To number %1").arg(row));
        m_options.folder = m_quick_folder.filePath(QStringLiteral("Jobs"));
        const Measured measured = Run_In_A_Process();
        EXPECT_EQ(measured.sent, Recipients());
        EXPECT_EQ(m_phone.Parts().size(), static_cast<std::size_t>(Recipients()));
        EXPECT_GT(measured.early, 0);
        EXPECT_LT(measured.late - measured.early, Most_Growth) << "from " << measured.early << " KiB";
        m_reports = measured.reports;
    }

    // In memory where there is such a place: the disk's time is not what is measured.
    QTemporaryDir m_quick_folder{(QFileInfo("/dev/shm").isWritable() ? QStringLiteral("/dev/shm") : QDir::tempPath()) +
                                 QStringLiteral("/large-job-XXXXXX")};
    int m_reports = 0;
};

} // namespace

TEST_F(Large_Job, Takes_No_More_Memory_In_The_End)
{
    Expect_No_Growth();
}

TEST_F(Large_Job, Takes_No_More_Memory_With_Reports)
{
    Phone_Moods moods;
    moods.m_report_after_seconds = 0.01;
    m_phone.Set_Moods(moods);
    m_options.job.report_seconds = 20;
    Expect_No_Growth();
    EXPECT_EQ(m_reports, Recipients());
}
