#include "platform/Single_Start.h"

#include "platform/Waiting.h"
#include "support/Log_Lines.h"
#include "support/Opened_Files.h"
#include "support/Serve_Until.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <optional>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using Outcome = Single_Start::Outcome;

namespace {

// What flock fails with, as on a file system without locks; 0 leaves it alone.
std::atomic<int> Flock_Error{0};

} // namespace

extern "C" int flock(int descriptor, int operation) noexcept
{
    if (Flock_Error != 0) {
        errno = Flock_Error;
        return -1;
    }
    return static_cast<int>(syscall(SYS_flock, descriptor, operation));
}

namespace {

class Single_Start_Test : public testing::Test
{
protected:
    ~Single_Start_Test() override { Flock_Error = 0; }

    QString Folder() const { return m_home.filePath(QStringLiteral("corvane")); }
    QString In_Folder(const char* name) const { return Folder() + QLatin1Char('/') + QLatin1String(name); }

    static unsigned Mode_Of(const QString& path)
    {
        struct stat found = {};
        return lstat(QFile::encodeName(path).constData(), &found) == 0 ? found.st_mode & 07777U : ~0U;
    }

    // A further start, as another program would make it, while this one serves its events.
    Outcome Start_Again(double patience = 20)
    {
        std::optional<Outcome> outcome;
        std::atomic<bool> is_done{false};
        std::thread other([&] {
            outcome = Single_Start(Folder()).Begin(patience);
            is_done = true;
        });
        EXPECT_TRUE(Serve_Until([&] { return is_done.load(); }, 40));
        other.join();
        return *outcome;
    }

    // Runs the steps in a process of its own, which is killed as soon as they are done.
    template <typename Steps>
    static void Do_And_Be_Killed(const Steps& steps)
    {
        const pid_t child = fork();
        ASSERT_NE(child, -1);
        if (child == 0) {
            steps();
            kill(getpid(), SIGKILL);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status));
    }

    QTemporaryDir m_home;
};

} // namespace

TEST_F(Single_Start_Test, The_First_Start_Makes_The_Folder_And_Keeps_It_Private)
{
    Single_Start start(Folder());
    EXPECT_EQ(start.Begin(), Outcome::First);
    EXPECT_EQ(Mode_Of(Folder()), 0700U);
    EXPECT_EQ(Mode_Of(In_Folder("Running.lock")), 0600U);
    EXPECT_EQ(Mode_Of(In_Folder("Running.socket")), 0600U);
}

TEST_F(Single_Start_Test, Only_Who_Has_Both_Locks_Is_Alone)
{
    Single_Start start(Folder());
    EXPECT_FALSE(start.Is_Alone());
    EXPECT_EQ(start.Begin(), Outcome::First);
    EXPECT_TRUE(start.Is_Alone());
    EXPECT_TRUE(start.Is_Alone()) << "asking changes nothing";
    EXPECT_EQ(Start_Again(0.1), Outcome::No_Answer);
    Single_Start second(Folder());
    EXPECT_EQ(second.Begin(0), Outcome::No_Answer);
    EXPECT_FALSE(second.Is_Alone());
}

TEST_F(Single_Start_Test, On_A_File_System_Without_Locks_Nobody_Is_Certain_To_Be_Alone)
{
    Flock_Error = ENOLCK;
    Single_Start start(Folder());
    EXPECT_EQ(start.Begin(), Outcome::First);
    EXPECT_FALSE(start.Is_Alone());
}

TEST_F(Single_Start_Test, A_Folder_Left_Open_Is_Closed_To_Others)
{
    ASSERT_TRUE(QDir().mkpath(Folder()));
    ASSERT_EQ(chmod(QFile::encodeName(Folder()).constData(), 0777), 0);
    Single_Start start(Folder());
    EXPECT_EQ(start.Begin(), Outcome::First);
    EXPECT_EQ(Mode_Of(Folder()), 0700U);
}

TEST_F(Single_Start_Test, Every_Further_Start_Asks_The_First_To_The_Front)
{
    Single_Start first(Folder());
    ASSERT_EQ(first.Begin(), Outcome::First);
    int asked = 0;
    first.When_Asked([&asked] { ++asked; });
    for (int start = 1; start <= 3; ++start) {
        EXPECT_EQ(Start_Again(), Outcome::Shown);
        EXPECT_TRUE(Serve_Until([&] { return asked == start; })) << asked;
    }
}

TEST_F(Single_Start_Test, A_Question_Asked_Before_The_First_Is_Ready_Is_Answered_When_It_Is)
{
    Single_Start first(Folder());
    ASSERT_EQ(first.Begin(), Outcome::First);
    std::optional<Outcome> outcome;
    std::thread other([&] { outcome = Single_Start(Folder()).Begin(20); });
    std::this_thread::sleep_for(std::chrono::milliseconds(50)); // most often it has asked by then; either way is right
    int asked = 0;
    first.When_Asked([&asked] { ++asked; });
    EXPECT_TRUE(Serve_Until([&] { return asked == 1; }));
    other.join();
    EXPECT_EQ(*outcome, Outcome::Shown);
}

TEST_F(Single_Start_Test, A_First_That_Hangs_Does_Not_Hang_The_Second)
{
    Single_Start first(Folder());
    ASSERT_EQ(first.Begin(), Outcome::First);
    const double begin = Now_Seconds();
    EXPECT_EQ(Single_Start(Folder()).Begin(0.2), Outcome::No_Answer);
    EXPECT_GE(Now_Seconds() - begin, 0.2);
    EXPECT_EQ(Single_Start(Folder()).Begin(0), Outcome::No_Answer);
    int asked = 0;
    first.When_Asked([&asked] { ++asked; }); // it comes to itself: those who asked have gone, and do it no harm
    EXPECT_TRUE(Serve_Until([&] { return asked == 2; }));
    EXPECT_EQ(Start_Again(), Outcome::Shown);
}

TEST_F(Single_Start_Test, A_Full_Queue_Of_Questions_Hangs_Nobody)
{
    Single_Start first(Folder());
    ASSERT_EQ(first.Begin(), Outcome::First);
    const int folder = open(QFile::encodeName(Folder()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    snprintf(address.sun_path, sizeof address.sun_path, "/proc/self/fd/%d/Running.socket", folder);
    std::vector<int> questions;
    bool is_full = false;
    while (!is_full) {
        const int question = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
        ASSERT_NE(question, -1);
        questions.push_back(question);
        if (connect(question, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
            ASSERT_EQ(errno, EAGAIN);
            is_full = true;
        }
    }
    EXPECT_EQ(Single_Start(Folder()).Begin(0.1), Outcome::No_Answer);
    for (const int question : questions)
        close(question);
    close(folder);
}

TEST_F(Single_Start_Test, Given_Back_The_Folder_Is_Free_And_Holds_No_Socket)
{
    {
        Single_Start first(Folder());
        ASSERT_EQ(first.Begin(), Outcome::First);
    }
    EXPECT_FALSE(QFile::exists(In_Folder("Running.socket")));
    Single_Start next(Folder());
    EXPECT_EQ(next.Begin(0), Outcome::First);
}

TEST_F(Single_Start_Test, A_Start_While_The_First_Is_On_Its_Way_Out_Waits_And_Becomes_The_First)
{
    auto first = std::make_unique<Single_Start>(Folder());
    ASSERT_EQ(first->Begin(), Outcome::First);
    int asked = 0;
    first->When_Asked([&asked] { ++asked; });
    first->Stop_Listening();
    std::optional<Outcome> outcome;
    std::thread other([&] { outcome = Single_Start(Folder()).Begin(30); });
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    first.reset();
    other.join();
    EXPECT_EQ(*outcome, Outcome::First);
    EXPECT_EQ(asked, 0);
}

TEST_F(Single_Start_Test, What_A_Killed_Program_Left_Is_Taken_Over)
{
    Do_And_Be_Killed([this] {
        Single_Start killed(Folder());
        if (killed.Begin() != Outcome::First)
            _exit(1);
        kill(getpid(), SIGKILL);
    });
    ASSERT_TRUE(QFile::exists(In_Folder("Running.lock")));
    ASSERT_NE(Mode_Of(In_Folder("Running.socket")), ~0U);
    Single_Start first(Folder());
    ASSERT_EQ(first.Begin(0), Outcome::First);
    first.When_Asked([] {});
    EXPECT_EQ(Start_Again(), Outcome::Shown);
}

TEST_F(Single_Start_Test, Of_Many_At_The_Same_Moment_Exactly_One_Is_The_First)
{
    for (int round = 0; round < 20; ++round) {
        const QTemporaryDir home;
        const QString folder = home.filePath(QStringLiteral("corvane"));
        std::vector<std::unique_ptr<Single_Start>> starts(4);
        std::vector<Outcome> outcomes(starts.size(), Outcome::Shown);
        std::atomic<int> ready{0};
        {
            std::vector<std::jthread> threads;
            for (std::size_t i = 0; i < starts.size(); ++i)
                threads.emplace_back([&, i] {
                    starts[i] = std::make_unique<Single_Start>(folder);
                    for (++ready; ready < static_cast<int>(starts.size());)
                        std::this_thread::yield();
                    outcomes[i] = starts[i]->Begin(0.05);
                });
        }
        EXPECT_EQ(std::count(outcomes.begin(), outcomes.end(), Outcome::First), 1);
        EXPECT_EQ(std::count(outcomes.begin(), outcomes.end(), Outcome::No_Answer), 3);
    }
}

TEST_F(Single_Start_Test, Different_Folders_Are_Worked_In_Side_By_Side)
{
    Single_Start here(m_home.filePath(QStringLiteral("here/corvane")));
    Single_Start there(m_home.filePath(QStringLiteral("there/corvane")));
    EXPECT_EQ(here.Begin(0), Outcome::First);
    EXPECT_EQ(there.Begin(0), Outcome::First);
}

TEST_F(Single_Start_Test, Another_Way_To_The_Same_Folder_Is_The_Same_Folder)
{
    ASSERT_TRUE(QDir().mkpath(Folder()));
    ASSERT_TRUE(QFile::link(Folder(), m_home.filePath(QStringLiteral("link"))));
    Single_Start first(Folder());
    ASSERT_EQ(first.Begin(0), Outcome::First);
    EXPECT_EQ(Single_Start(m_home.filePath(QStringLiteral("link"))).Begin(0), Outcome::No_Answer);
}

TEST_F(Single_Start_Test, A_Path_Longer_Than_A_Sockets_Name_Is_Fine)
{
    const QString folder = m_home.filePath(QString(200, u'x') + u'/' + QString(200, u'y') + QStringLiteral("/corvane"));
    Single_Start first(folder);
    ASSERT_EQ(first.Begin(0), Outcome::First);
    int asked = 0;
    first.When_Asked([&asked] { ++asked; });
    std::optional<Outcome> outcome;
    std::jthread other([&] { outcome = Single_Start(folder).Begin(20); });
    EXPECT_TRUE(Serve_Until([&] { return asked == 1; }));
    other.join();
    EXPECT_EQ(*outcome, Outcome::Shown);
}

TEST_F(Single_Start_Test, The_Folder_Stays_Taken_When_The_Lock_File_Is_Deleted_Or_Can_Not_Be_Made)
{
    {
        Single_Start first(Folder());
        ASSERT_EQ(first.Begin(0), Outcome::First);
        ASSERT_TRUE(QFile::remove(In_Folder("Running.lock")));
        EXPECT_EQ(Single_Start(Folder()).Begin(0), Outcome::No_Answer);
    }
    QFile::remove(In_Folder("Running.lock"));
    ASSERT_TRUE(QDir().mkpath(In_Folder("Running.lock")));
    Single_Start first(Folder());
    EXPECT_EQ(first.Begin(0), Outcome::First);
    EXPECT_EQ(Single_Start(Folder()).Begin(0), Outcome::No_Answer);
}

TEST_F(Single_Start_Test, The_Lock_File_Alone_Keeps_The_Folder_Where_Its_Own_Lock_Is_Another_Computers)
{
    ASSERT_TRUE(QDir().mkpath(Folder()));
    const int elsewhere = open(QFile::encodeName(In_Folder("Running.lock")).constData(), O_RDWR | O_CREAT, 0600);
    ASSERT_EQ(flock(elsewhere, LOCK_EX | LOCK_NB), 0);
    {
        Single_Start second(Folder());
        EXPECT_EQ(second.Begin(0), Outcome::No_Answer);
        EXPECT_EQ(flock(elsewhere, LOCK_UN), 0);
        Single_Start third(Folder()); // what the second could not have, it has not kept
        EXPECT_EQ(third.Begin(0), Outcome::First);
    }
    close(elsewhere);
}

TEST_F(Single_Start_Test, A_Folder_On_Which_Locks_Do_Not_Work_Keeps_Nobody_From_Starting)
{
    for (const int error : {ENOLCK, EOPNOTSUPP, ENOSYS, EINVAL, EBADF}) {
        Log_Lines log;
        Flock_Error = error;
        EXPECT_EQ(Single_Start(Folder()).Begin(0), Outcome::First) << strerror(error);
        Flock_Error = 0;
        EXPECT_TRUE(Serve_Until([&] { return !log.All().empty(); })); // the log tells why
    }
}

TEST_F(Single_Start_Test, A_Folder_That_Can_Not_Be_Made_Is_Left_To_Whoever_Needs_It)
{
    QFile in_the_way(Folder());
    ASSERT_TRUE(in_the_way.open(QIODevice::WriteOnly));
    in_the_way.write("mine");
    in_the_way.close();
    EXPECT_EQ(Single_Start(Folder()).Begin(0), Outcome::First);
    ASSERT_TRUE(in_the_way.open(QIODevice::ReadOnly));
    EXPECT_EQ(in_the_way.readAll(), "mine");
}

TEST_F(Single_Start_Test, A_Link_In_Place_Of_The_Lock_File_Is_Not_Followed)
{
    ASSERT_TRUE(QDir().mkpath(Folder()));
    const QString target = m_home.filePath(QStringLiteral("elsewhere"));
    ASSERT_EQ(symlink(QFile::encodeName(target).constData(), QFile::encodeName(In_Folder("Running.lock")).constData()),
              0);
    Single_Start start(Folder());
    EXPECT_EQ(start.Begin(0), Outcome::First);
    EXPECT_FALSE(QFile::exists(target));
}

TEST_F(Single_Start_Test, A_Child_That_The_First_Started_Does_Not_Keep_The_Folder)
{
    auto first = std::make_unique<Single_Start>(Folder());
    ASSERT_EQ(first->Begin(0), Outcome::First);
    int held[2];
    ASSERT_EQ(pipe(held), 0);
    const pid_t child = fork(); // has not got to its exec yet
    ASSERT_NE(child, -1);
    if (child == 0) {
        close(held[1]);
        char end = 0;
        _exit(read(held[0], &end, 1) == 0 ? 0 : 1);
    }
    close(held[0]);
    first.reset();
    EXPECT_EQ(Single_Start(Folder()).Begin(0), Outcome::First);
    close(held[1]);
    waitpid(child, nullptr, 0);
}
