#include "platform/Single_Start.h"

#include "platform/Files_Test.h"
#include "support/Log_Lines.h"
#include "support/Serve_Until.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <sys/wait.h>

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

class Single_Start_Test : public Files_Test
{
protected:
    ~Single_Start_Test() override { Flock_Error = 0; }

    QString Folder() const { return Path("corvane"); }
    QString In_Folder(const char* name) const { return Folder() + "/" + name; }

    /// A start that finds the folder free.
    std::unique_ptr<Single_Start> First(const QString& folder) const
    {
        auto start = std::make_unique<Single_Start>(folder);
        EXPECT_EQ(start->Begin(0), Outcome::First);
        return start;
    }
    std::unique_ptr<Single_Start> First() const { return First(Folder()); }

    /// One that finds it taken by another that does not answer.
    void Expect_It_Is_Taken(double patience = 0) const
    {
        EXPECT_EQ(Single_Start(Folder()).Begin(patience), Outcome::No_Answer);
    }

    /// A further start, as another program would make it, while something happens here.
    static Outcome Start_While(const std::function<void()>& what_happens, const QString& folder)
    {
        Outcome outcome{};
        std::thread other([&] { outcome = Single_Start(folder).Begin(20); });
        what_happens();
        other.join();
        return outcome;
    }
    Outcome Start_While(const std::function<void()>& what_happens) const { return Start_While(what_happens, Folder()); }

    /// One whose question is answered.
    static void Expect_It_Is_Shown(Single_Start& first, const QString& folder)
    {
        int asked = 0;
        first.When_Asked([&asked] { ++asked; });
        const auto serve = [&] { EXPECT_TRUE(Serve_Until([&] { return asked == 1; })); };
        EXPECT_EQ(Start_While(serve, folder), Outcome::Shown);
        first.When_Asked([] {});
    }
};

} // namespace

TEST_F(Single_Start_Test, The_First_Start_Makes_The_Folder_And_Keeps_It_Private)
{
    const auto start = First();
    EXPECT_EQ(Permissions_Of(Folder()), 0700U);
    EXPECT_EQ(Permissions_Of(In_Folder("Running.lock")), 0600U);
    EXPECT_EQ(Permissions_Of(In_Folder("Running.socket")), 0600U);
    const QString left_open = Path("left open");
    Put_A_Folder_At(left_open);
    ASSERT_EQ(chmod(qPrintable(left_open), 0777), 0);
    const auto side_by_side = First(left_open);
    EXPECT_EQ(Permissions_Of(left_open), 0700U);
}

TEST_F(Single_Start_Test, Only_Who_Has_Both_Locks_Is_Alone)
{
    {
        Single_Start start(Folder());
        EXPECT_FALSE(start.Is_Alone());
        EXPECT_EQ(start.Begin(), Outcome::First);
        EXPECT_TRUE(start.Is_Alone());
        EXPECT_TRUE(start.Is_Alone()) << "asking changes nothing";
        Expect_It_Is_Taken(0.1);
        Single_Start second(Folder());
        EXPECT_EQ(second.Begin(0), Outcome::No_Answer);
        EXPECT_FALSE(second.Is_Alone());
    }
    Flock_Error = ENOLCK;
    EXPECT_FALSE(First()->Is_Alone()) << "on a file system without locks nobody is certain";
}

TEST_F(Single_Start_Test, Every_Further_Start_Asks_The_First_To_The_Front)
{
    // The second folder's path is longer than a socket's name.
    for (const QString& folder : {Folder(), Path(QString(200, u'x') + "/" + QString(200, u'y') + "/corvane")}) {
        const auto first = First(folder);
        for (int start = 1; start <= 3; ++start)
            Expect_It_Is_Shown(*first, folder);
    }
}

TEST_F(Single_Start_Test, A_Question_Asked_Before_The_First_Is_Ready_Is_Answered_When_It_Is)
{
    const auto first = First();
    int asked = 0;
    const auto become_ready = [&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50)); // most often it has asked; either way is right
        first->When_Asked([&asked] { ++asked; });
        EXPECT_TRUE(Serve_Until([&] { return asked == 1; }));
    };
    EXPECT_EQ(Start_While(become_ready), Outcome::Shown);
}

TEST_F(Single_Start_Test, A_First_That_Hangs_Does_Not_Hang_The_Second)
{
    const auto first = First();
    const double begin = Now_Seconds();
    Expect_It_Is_Taken(0.2);
    EXPECT_GE(Now_Seconds() - begin, 0.2);
    Expect_It_Is_Taken();
    int asked = 0;
    first->When_Asked([&asked] { ++asked; }); // it comes to itself: those who asked have gone, and do it no harm
    EXPECT_TRUE(Serve_Until([&] { return asked == 2; }));
    Expect_It_Is_Shown(*first, Folder());
}

TEST_F(Single_Start_Test, A_Full_Queue_Of_Questions_Hangs_Nobody)
{
    const auto first = First();
    const int folder = open(qPrintable(Folder()), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    snprintf(address.sun_path, sizeof address.sun_path, "/proc/self/fd/%d/Running.socket", folder);
    std::vector<int> questions;
    do {
        questions.push_back(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
        ASSERT_NE(questions.back(), -1);
    } while (connect(questions.back(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0);
    ASSERT_EQ(errno, EAGAIN);
    Expect_It_Is_Taken(0.1);
    for (const int question : questions)
        close(question);
    close(folder);
}

TEST_F(Single_Start_Test, A_Start_While_The_First_Is_On_Its_Way_Out_Waits_And_Becomes_The_First)
{
    auto first = First();
    int asked = 0;
    first->When_Asked([&asked] { ++asked; });
    first->Stop_Listening();
    const auto end = [&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        first.reset();
    };
    EXPECT_EQ(Start_While(end), Outcome::First);
    EXPECT_EQ(asked, 0);
    EXPECT_FALSE(QFile::exists(In_Folder("Running.socket"))) << "given back the folder is free and holds none";
    EXPECT_TRUE(First());
}

TEST_F(Single_Start_Test, What_A_Killed_Program_Left_Is_Taken_Over)
{
    const pid_t child = fork();
    ASSERT_NE(child, -1);
    if (child == 0) {
        Single_Start killed(Folder());
        if (killed.Begin() != Outcome::First)
            _exit(1);
        kill(getpid(), SIGKILL);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status));
    ASSERT_TRUE(QFile::exists(In_Folder("Running.lock")));
    ASSERT_NE(Permissions_Of(In_Folder("Running.socket")), ~0U);
    const auto first = First();
    Expect_It_Is_Shown(*first, Folder());
}

TEST_F(Single_Start_Test, Of_Many_At_The_Same_Moment_Exactly_One_Is_The_First)
{
    for (int round = 0; round < 20; ++round) {
        const QString folder = Path(QString::number(round));
        std::vector<std::unique_ptr<Single_Start>> starts(4);
        std::vector<Outcome> outcomes(4, Outcome::Shown);
        std::atomic<int> ready{0};
        {
            std::vector<std::jthread> threads;
            for (std::size_t i = 0; i < 4; ++i)
                threads.emplace_back([&, i] {
                    starts[i] = std::make_unique<Single_Start>(folder);
                    for (++ready; ready < 4;)
                        std::this_thread::yield();
                    outcomes[i] = starts[i]->Begin(0.05);
                });
        }
        EXPECT_EQ(std::ranges::count(outcomes, Outcome::First), 1);
        EXPECT_EQ(std::ranges::count(outcomes, Outcome::No_Answer), 3);
    }
}

TEST_F(Single_Start_Test,
       The_Folder_Stays_Taken_Whichever_Way_Leads_There_And_When_The_Lock_File_Is_Deleted_Or_Can_Not_Be_Made)
{
    {
        const auto first = First();
        ASSERT_TRUE(QFile::link(Folder(), Path("link")));
        EXPECT_EQ(Single_Start(Path("link")).Begin(0), Outcome::No_Answer);
        ASSERT_TRUE(QFile::remove(In_Folder("Running.lock")));
        Expect_It_Is_Taken();
    }
    Put_A_Folder_At(In_Folder("Running.lock"));
    const auto first = First();
    Expect_It_Is_Taken();
}

TEST_F(Single_Start_Test, The_Lock_File_Alone_Keeps_The_Folder_Where_Its_Own_Lock_Is_Another_Computers)
{
    Put_A_Folder_At(Folder());
    const int elsewhere = open(qPrintable(In_Folder("Running.lock")), O_RDWR | O_CREAT, 0600);
    ASSERT_EQ(flock(elsewhere, LOCK_EX | LOCK_NB), 0);
    Single_Start second(Folder());
    EXPECT_EQ(second.Begin(0), Outcome::No_Answer);
    EXPECT_EQ(flock(elsewhere, LOCK_UN), 0);
    EXPECT_TRUE(First()) << "what the second could not have, it has not kept";
    close(elsewhere);
}

TEST_F(Single_Start_Test, A_Folder_On_Which_Locks_Do_Not_Work_Keeps_Nobody_From_Starting)
{
    for (const int error : {ENOLCK, EOPNOTSUPP, ENOSYS, EINVAL, EBADF}) {
        Log_Lines log;
        Flock_Error = error;
        EXPECT_TRUE(First()) << strerror(error);
        Flock_Error = 0;
        EXPECT_TRUE(Serve_Until([&] { return !log.All().empty(); })); // the log tells why
    }
}

TEST_F(Single_Start_Test, What_Stands_In_The_Way_Of_The_Folder_Or_The_Lock_File_Is_Left_As_It_Is)
{
    Write_Bytes(Path("file"), "mine");
    EXPECT_TRUE(First(Path("file"))) << "whoever needs the folder finds out";
    EXPECT_EQ(Bytes_Of(Path("file")), "mine");
    Put_A_Folder_At(Folder());
    ASSERT_TRUE(QFile::link(Path("elsewhere"), In_Folder("Running.lock")));
    EXPECT_TRUE(First());
    EXPECT_FALSE(QFile::exists(Path("elsewhere"))) << "a link is not followed";
}

TEST_F(Single_Start_Test, A_Child_That_The_First_Started_Does_Not_Keep_The_Folder)
{
    auto first = First();
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
    EXPECT_TRUE(First());
    close(held[1]);
    waitpid(child, nullptr, 0);
}
