#include "platform/File_Calls.h"
#include "records/Job_Samples.h"
#include "records/Job_Shelf.h"

#include <QFileInfo>
#include <atomic>
#include <cerrno>
#include <memory>
#include <sys/mman.h>

namespace {

/// A number that child processes and this one see alike.
std::atomic<int>& Shared_Number()
{
    static void* const place =
        mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (place == MAP_FAILED)
        qFatal("No memory to share");
    static std::atomic<int>* const number = std::construct_at(static_cast<std::atomic<int>*>(place), 0);
    return *number;
}

using Step = std::function<bool(Job_Journal&)>;

// The steps of a job after it was made, and the states of the sample's parts when each is done.
const std::vector<Step> Steps = {
    [](Job_Journal& journal) { return journal.Hand_Over(1, 1, 1); },
    [](Job_Journal& journal) { return journal.Accepted(1, 1, 17); },
    [](Job_Journal& journal) { return journal.Hand_Over(2, 1, 2); },
    [](Job_Journal& journal) { return journal.Refused(2, 1, "cms:42"); },
    [](Job_Journal& journal) { return journal.Hand_Over(2, 1, 2); },
    [](Job_Journal& journal) { return journal.Unknown(2, 1, "silence"); },
    [](Job_Journal& journal) { return journal.Sync(); },
    [](Job_Journal& journal) { return journal.Hand_Over(3, 1, 1); },
    [](Job_Journal& journal) { return journal.Accepted(3, 1, 18); },
    [](Job_Journal& journal) { return journal.End(); },
};
const QStringList States = {"W WW W K", "H WW W K", "S WW W K", "S HW W K", "S EW W K",      "S HW W K",
                            "S UW W K", "S UW W K", "S UW H K", "S UW S K", "S UW S K ended"};

class Job_Crashes : public Job_Test
{
protected:
    /// Makes the job and takes its steps as long as they answer yes; counts them, and the making as one.
    void Work(const std::function<void()>& after_a_step = {}) const
    {
        Shared_Number() = 0;
        const Job_Journal::Opened created = Create();
        if (!created.journal)
            return;
        ++Shared_Number();
        for (const Step& step : Steps) {
            if (after_a_step)
                after_a_step();
            if (!step(*created.journal))
                return;
            ++Shared_Number();
        }
        if (after_a_step)
            after_a_step();
    }

    void Begin_Anew() const { ASSERT_TRUE(QDir(m_folder).removeRecursively()); }

    /// The calls of the whole work when nothing fails.
    QByteArrayList Calls() const
    {
        const File_Calls calls({});
        Work();
        return calls.Made();
    }
};

} // namespace

TEST_F(Job_Crashes, A_Job_Is_On_The_Disk_Before_It_Begins)
{
    ASSERT_TRUE(QDir().mkpath(m_folder));
    const File_Calls calls({});
    const Job_Journal::Opened created = Create();
    const QByteArrayList expected = {"lstat",  "lstat",                                // there is none yet
                                     "open",   "fchmod",    "flock", "fstat",          // the journal under another name
                                     "open",   "fchmod",    "write", "fsync", "close", // the list
                                     "write",  "fallocate", "fsync",                   // the journal's header
                                     "rename", "open",      "fsync", "close"};         // both names
    const QByteArrayList& made = calls.Made();
    EXPECT_EQ(made.mid(made.size() - expected.size()).join(' '), expected.join(' '));
}

TEST_F(Job_Crashes, Each_Part_Costs_One_Write_And_One_Sync_Before_It_And_One_Write_After_It)
{
    const Job_Journal::Opened created = Create();
    ASSERT_TRUE(created.journal);
    const File_Calls calls({});
    EXPECT_TRUE(created.journal->Hand_Over(1, 1, 1));
    EXPECT_EQ(calls.Made().join(' '), "write fdatasync");
    EXPECT_TRUE(created.journal->Accepted(1, 1, 1));
    EXPECT_EQ(calls.Made().join(' '), "write fdatasync write");
    EXPECT_TRUE(created.journal->Sync() && created.journal->Sync());
    EXPECT_EQ(calls.Made().join(' '), "write fdatasync write fdatasync") << "nothing new, nothing to sync";
}

TEST_F(Job_Crashes, Killed_At_Any_Call_It_Knows_Every_Part_That_Was_Handed_Over)
{
    int kills = 0;
    for (int call = 1;; ++call) {
        for (const bool is_after : {false, true}) {
            Begin_Anew();
            File_Call_Plan plan;
            (is_after ? plan.kill_after : plan.kill_before) = call;
            if (Lives_Through(plan, [this] { Work(); })) {
                EXPECT_GT(kills, 2 * 30);
                return;
            }
            ++kills;
            const int done = Shared_Number();
            const QString states = Read();
            if (done == 0 && !QFile::exists(Path())) {
                EXPECT_TRUE(Create().journal) << call << ": another one finds its place free";
                EXPECT_EQ(Names().size(), 2) << "and nothing beside it";
                continue;
            }
            const int last = qMax(0, done - 1);
            EXPECT_TRUE(states == States.at(last) || states == States.value(last + 1))
                << call << " " << states.toStdString();
            const Job_Journal::Opened opened = Job_Journal::Open_To_Go_On(Path());
            ASSERT_TRUE(opened.journal) << call;
            EXPECT_TRUE(opened.journal->End());
            EXPECT_EQ(Names().size(), 2);
        }
    }
}

TEST_F(Job_Crashes, When_A_Call_Fails_It_Is_Told_And_Nothing_Is_Written_After_It)
{
    const auto all_calls = Calls().size();
    for (const int error : {ENOSPC, EIO, EDQUOT, EROFS}) {
        for (int call = 1; call <= all_calls; ++call) {
            Begin_Anew();
            QByteArrayList made;
            {
                const File_Calls calls({.fail_at = call, .error = error});
                Work();
                made = calls.Made();
            }
            const int done = Shared_Number();
            const QByteArray failed = made.value(call - 1);
            if (done == 0) {
                EXPECT_FALSE(QFile::exists(Path())) << call << failed.constData();
                EXPECT_TRUE(QDir(m_folder).isEmpty() || failed == "lstat" || failed == "unlink")
                    << call << failed.constData();
                continue;
            }
            const QString states = Read();
            EXPECT_TRUE(states == States.at(done - 1) || states == States.value(done)) << call << failed.constData();
            const QByteArrayList later = made.mid(call);
            const bool has_worked_on = later.contains("write") || later.contains("fdatasync");
            EXPECT_TRUE(done > static_cast<int>(Steps.size()) || !has_worked_on) << call << failed.constData();
        }
    }
}

TEST_F(Job_Crashes, What_Could_Not_Be_Synced_Once_Is_Never_Synced_Again)
{
    const Job_Journal::Opened created = Create();
    ASSERT_TRUE(created.journal);
    {
        const File_Calls calls({.fail_at = 2, .error = EIO});
        EXPECT_FALSE(created.journal->Hand_Over(1, 1, 1));
        EXPECT_EQ(calls.Made().join(' '), "write fdatasync");
    }
    EXPECT_EQ(created.journal->Trouble(), Job_Trouble::Not_Written);
    const File_Calls calls({});
    EXPECT_FALSE(created.journal->Sync());
    EXPECT_FALSE(created.journal->Hand_Over(1, 1, 1));
    EXPECT_FALSE(created.journal->Accepted(1, 1, 1));
    EXPECT_FALSE(created.journal->Refused(1, 1, "error"));
    EXPECT_FALSE(created.journal->Unknown(1, 1, ""));
    EXPECT_FALSE(created.journal->Skipped(1, ""));
    EXPECT_FALSE(created.journal->Report("", 1, "", 0, 0));
    EXPECT_FALSE(created.journal->Report("", -1, "", 0, 0));
    EXPECT_FALSE(created.journal->Decide(1, Job_Decision::Count_As_Sent, ""));
    EXPECT_FALSE(created.journal->End());
    EXPECT_EQ(calls.Made(), QByteArrayList());
}

TEST_F(Job_Crashes, Where_No_Room_Can_Be_Set_Aside_And_Nothing_Synced_A_Job_Runs_All_The_Same)
{
    QByteArrayList made = Calls();
    for (const char* name : {"fallocate", "fsync", "fdatasync", "flock"}) {
        const int call = static_cast<int>(made.indexOf(name)) + 1;
        ASSERT_GT(call, 0) << name;
        for (const int error : {EOPNOTSUPP, ENOSYS, EINVAL}) {
            Begin_Anew();
            const File_Calls calls({.fail_at = call, .error = error});
            Work();
            EXPECT_EQ(Read(), States.last()) << name << error;
        }
    }
    for (const int error : {ENOSPC, EDQUOT, EFBIG}) {
        Begin_Anew();
        const File_Calls calls({.fail_at = static_cast<int>(made.indexOf("fallocate")) + 1, .error = error});
        EXPECT_EQ(Create().trouble, Job_Trouble::No_Room);
        EXPECT_EQ(Names(), QStringList()) << "before anything is sent";
    }
}

TEST_F(Job_Crashes, Signals_And_Small_Steps_Change_Nothing)
{
    const File_Calls calls({.longest = 7, .interrupts = true});
    Work();
    EXPECT_EQ(Read(), States.last());
    EXPECT_GT(calls.Made().count("write"), 20);
}

// What was synced stays, and of what was written after it any part from the front on.
TEST_F(Job_Crashes, A_Power_Failure_At_Any_Time_Makes_No_Part_That_Was_Handed_Over_Wait_Again)
{
    const QString other = m_home.filePath("After_The_Failure");
    ASSERT_TRUE(QDir().mkpath(other));
    Write_Bytes(Job_List_Path(Job_Journal_Path(other, Sample_Id)), Sample_List);
    qint64 synced = 0;
    const File_Calls calls({.after = [&](const QByteArray& call) {
        if (call == "fdatasync" || (call == "rename" && synced == 0)) // the header was synced under its first name
            synced = QFileInfo(Path()).size();
    }});
    int failures = 0;
    Work([&] {
        const QByteArray journal = Bytes_Of(Path());
        const QStringView handed_over = States.at(Shared_Number() - 1);
        for (qsizetype size = synced; size <= journal.size(); ++size) {
            Write_Bytes(Job_Journal_Path(other, Sample_Id), journal.left(size));
            const Job_Reading reading = Read_Job(Job_Journal_Path(other, Sample_Id));
            ASSERT_TRUE(reading.record);
            const QString states = States_Of(*reading.record);
            for (qsizetype part = 0; part < QStringLiteral("W WW W").size(); ++part)
                EXPECT_TRUE(handed_over.at(part) == u'W' || states.at(part) != u'W')
                    << states.toStdString() << " after " << handed_over.toString().toStdString();
            ++failures;
        }
    });
    EXPECT_GT(failures, 100);
    EXPECT_EQ(synced, Bytes_Of(Path()).size()) << "the end is synced, too";
}

TEST_F(Job_Crashes, A_Torn_End_Is_Cut_Off_For_Good_Before_Anything_Is_Appended)
{
    Put(Sample_Lines.first(3).join() + "H 2 1");
    const File_Calls calls({});
    const Job_Journal::Opened opened = Job_Journal::Open_To_Go_On(Path());
    ASSERT_TRUE(opened.journal);
    const QByteArray made = calls.Made().join(' ');
    EXPECT_TRUE(made.endsWith("ftruncate fsync fallocate")) << made.constData();
}

TEST_F(Job_Crashes, Opening_That_Fails_At_Any_Call_Changes_Nothing_But_A_Torn_End)
{
    const QByteArray whole = Sample_Lines.first(3).join();
    for (int call = 1;; ++call) {
        Put(whole + "H 2 1");
        const File_Calls calls({.fail_at = call, .error = EIO});
        const bool is_open = Job_Journal::Open_To_Go_On(Path()).journal != nullptr;
        if (calls.Made().size() < call) {
            EXPECT_TRUE(is_open);
            EXPECT_GT(call, 8);
            return;
        }
        EXPECT_TRUE(Bytes_Of(Path()) == whole || Bytes_Of(Path()) == whole + "H 2 1") << call;
    }
}

TEST_F(Job_Crashes, A_Removal_That_Is_Killed_Leaves_A_Whole_Job_Or_None)
{
    for (int call = 1;; ++call) {
        Begin_Anew();
        Put(Sample_Lines.first(3));
        const bool has_lived = Lives_Through({.kill_before = call}, [this] { Remove_Job(Path()); });
        const QString states = Read();
        EXPECT_TRUE(states == "S WW W K" || states == Job_Trouble_Sentence(Job_Trouble::Missing)) << call;
        Clear_Up_Jobs(m_folder);
        EXPECT_EQ(Names().size(), QFile::exists(Path()) ? 2 : 0) << call << " " << Names().join(u' ').toStdString();
        if (has_lived) {
            EXPECT_GT(call, 8);
            return;
        }
    }
}
