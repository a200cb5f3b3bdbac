#include "records/Job_Journal.h"

#include "records/Job_Samples.h"
#include "records/Store_Files.h"

#include <QTemporaryFile>
#include <fcntl.h>

namespace {

class Job_Journal_Test : public Job_Test
{
protected:
    /// What the sample's lines tell, told by the program.
    static bool Write_The_Sample(Job_Journal& journal)
    {
        const qint64 reported = QDateTime(QDate(2026, 11, 21), QTime(9, 15, 9), Qt::UTC).toSecsSinceEpoch();
        return journal.Hand_Over(1, 1, 1) && journal.Accepted(1, 1, 17) && journal.Hand_Over(2, 1, 2) &&
               journal.Accepted(2, 1, 18, "26/11/21,10:15:04+04") &&
               journal.Report("234150000000001", 17, "00447700900100", reported, 0) && journal.Hand_Over(2, 2, 2) &&
               journal.Refused(2, 2, "cms:500") && journal.Hand_Over(3, 1, 1) &&
               journal.Unknown(3, 1, "no word in 180 s") && journal.Decide(3, Job_Decision::Send_Again, "Ann B.") &&
               journal.Hand_Over(3, 1, 1) && journal.Accepted(3, 1, -1) && journal.Skipped(4, "person") &&
               journal.End();
    }
};

} // namespace

TEST_F(Job_Journal_Test, A_Whole_Job_Is_Written_Byte_For_Byte)
{
    const Job_Journal::Opened created = Create();
    ASSERT_EQ(created.trouble, Job_Trouble::None);
    EXPECT_EQ(created.journal->Path(), Path());
    EXPECT_EQ(Bytes_Of(Path()), Sample_Lines.first());
    EXPECT_EQ(Bytes_Of(List_Path()), Sample_List);
    EXPECT_TRUE(Write_The_Sample(*created.journal));
    EXPECT_EQ(Bytes_Of(Path()), Sample_Lines.join());
    EXPECT_EQ(Names(), QStringList({Sample_Id + ".journal", Sample_Id + ".list"}));
}

TEST_F(Job_Journal_Test, The_Header_Says_Whether_The_Receipt_Is_Kept)
{
    for (const bool keeps_receipt : {true, false}) {
        Job_Start start = Sample_Start();
        start.keeps_receipt = keeps_receipt;
        start.id = keeps_receipt ? "kept" : "not-kept";
        ASSERT_TRUE(Job_Journal::Create(m_folder, start, Each_Of(Sample_Rows()), Sample_Clock()).journal);
        const auto opened = Job_Journal::Open_To_Go_On(Path(start.id));
        ASSERT_TRUE(opened.record);
        EXPECT_EQ(opened.record->Header().keeps_receipt, keeps_receipt);
        const QByteArray word = keeps_receipt ? " keep:yes " : " keep:no ";
        EXPECT_EQ(Bytes_Of(Path(start.id)).lastIndexOf(word), Bytes_Of(Path(start.id)).size() - word.size() - 9);
    }
}

TEST_F(Job_Journal_Test, A_Part_Tells_The_Card_That_It_Goes_Through_Where_It_Is_Not_The_First)
{
    const QString first = Sample_Start().imsi;
    const auto created = Create();
    ASSERT_TRUE(created.journal);
    EXPECT_TRUE(created.journal->Hand_Over(1, 1, 1, first));
    EXPECT_TRUE(created.journal->Hand_Over(2, 1, 2, "26201 A"));
    EXPECT_TRUE(created.journal->Hand_Over(3, 1, 1, ""));
    const QByteArrayList lines = Bytes_Of(Path()).split('\n');
    EXPECT_TRUE(lines[1].startsWith("H 1 1 1 2026-11-21T09:15:01Z "));
    EXPECT_TRUE(lines[2].startsWith("H 2 1 2 26201%20A 2026-11-21T09:15:02Z "));
    EXPECT_TRUE(lines[3].startsWith("H 3 1 1 - 2026-11-21T09:15:03Z "));
    const Job_Reading reading = Read_Job(Path());
    ASSERT_TRUE(reading.record);
    EXPECT_EQ(reading.record->Part(1, 1).imsi, first);
    EXPECT_EQ(reading.record->Part(2, 1).imsi, "26201 A");
    EXPECT_EQ(reading.record->Part(2, 2).imsi, first) << "it was not handed over";
    EXPECT_EQ(reading.record->Part(3, 1).imsi, "");
    EXPECT_EQ(reading.record->Cards(), QStringList({first, "26201 A"}));
}

TEST_F(Job_Journal_Test, Nobody_Else_Can_Read_A_Job)
{
    const mode_t old_mask = umask(0);
    const Job_Journal::Opened created = Create();
    umask(old_mask);
    ASSERT_TRUE(created.journal);
    EXPECT_EQ(Permissions_Of(m_folder), 0700U);
    EXPECT_EQ(Permissions_Of(Path()), 0600U);
    EXPECT_EQ(Permissions_Of(List_Path()), 0600U);
}

TEST_F(Job_Journal_Test, A_Folder_Is_Made_With_All_That_Is_Missing_Above_It)
{
    m_folder = m_home.filePath("a/b/Jobs/");
    EXPECT_EQ(Create().trouble, Job_Trouble::None);
    EXPECT_EQ(Permissions_Of(m_folder), 0700U);
    m_folder = m_home.filePath("file");
    Write_Bytes(m_folder, "");
    EXPECT_EQ(Create().trouble, Job_Trouble::Not_Written);
    m_folder = "/proc/self/Jobs";
    EXPECT_EQ(Create().trouble, Job_Trouble::Not_Written);
}

TEST_F(Job_Journal_Test, The_Room_For_The_Whole_Job_Is_Taken_At_Its_Beginning_And_Given_Back_At_Its_End)
{
    const auto occupied = [this] {
        struct stat found = {};
        EXPECT_EQ(stat(qPrintable(Path()), &found), 0);
        return found.st_blocks * 512;
    };
    const Job_Journal::Opened created = Create({Plain_Row("1", 200), Plain_Row("2", 200)});
    ASSERT_TRUE(created.journal);
    const auto before = occupied();
    QTemporaryFile other(m_home.filePath("XXXXXX"));
    ASSERT_TRUE(other.open());
    const bool can_be_set_aside = fallocate(other.handle(), FALLOC_FL_KEEP_SIZE, 0, 1) == 0;
    EXPECT_TRUE(before >= 400 * 200 || !can_be_set_aside) << before;
    ASSERT_TRUE(created.journal->End());
    EXPECT_TRUE(occupied() < before || !can_be_set_aside);
}

TEST_F(Job_Journal_Test, No_Job_Takes_Another_Ones_Place)
{
    {
        const Job_Journal::Opened created = Create();
        EXPECT_EQ(Create().trouble, Job_Trouble::Exists);
    }
    EXPECT_EQ(Create().trouble, Job_Trouble::Exists);
    EXPECT_EQ(Read(), "W WW W K");
    ASSERT_TRUE(QFile::remove(Path()));
    EXPECT_EQ(Create().trouble, Job_Trouble::Exists) << "nor its list";
    EXPECT_EQ(Bytes_Of(List_Path()), Sample_List);
}

TEST_F(Job_Journal_Test, A_Job_That_Can_Not_Be_Made_Leaves_Nothing)
{
    EXPECT_EQ(Create({Plain_Row("1", 0)}).trouble, Job_Trouble::Too_Large);
    EXPECT_EQ(Names(), QStringList());
    for (const char* id : {"", "a/b", "..", ".", "a b", "ä", "a.journal"})
        EXPECT_EQ(Job_Journal::Create(m_folder, {id, "", "", {}}, Each_Of({})).trouble, Job_Trouble::Not_Written);
    EXPECT_EQ(Names(), QStringList());
    for (const rlim_t room : {0U, 100U, 250U, 300U, 380U}) { // the list has 276 bytes
        const Full_Disk disk(room);
        EXPECT_EQ(Create().trouble, room < 276 ? Job_Trouble::No_Room : Job_Trouble::None) << room;
        EXPECT_EQ(Names().isEmpty(), room < 276);
        ASSERT_TRUE(QDir(m_folder).removeRecursively());
    }
}

TEST_F(Job_Journal_Test, A_Disk_That_Fills_Up_Kills_The_Journal_And_Loses_No_Part)
{
    for (qsizetype room = Sample_List.size(); room < Sample_Lines.join().size(); room += 7) {
        const QString states = [&] {
            const Full_Disk disk(static_cast<rlim_t>(room));
            const Job_Journal::Opened created = Create();
            EXPECT_TRUE(created.journal);
            EXPECT_FALSE(Write_The_Sample(*created.journal));
            EXPECT_EQ(created.journal->Trouble(), Job_Trouble::No_Room);
            EXPECT_FALSE(created.journal->Sync());
            return Read();
        }();
        const qsizetype lines = Sample_Lines.join().left(room).count('\n');
        EXPECT_EQ(states, Sample_States.at(lines)) << room;
        EXPECT_TRUE(QDir(m_folder).removeRecursively());
    }
}

TEST_F(Job_Journal_Test, What_A_Device_Says_Stays_On_Its_Line_And_Short)
{
    const Job_Journal::Opened created = Create();
    ASSERT_TRUE(created.journal);
    EXPECT_TRUE(created.journal->Refused(1, 1, "words:" + QString(1000, u'\n')));
    EXPECT_TRUE(created.journal->Hand_Over(2, 1, 2));
    EXPECT_TRUE(created.journal->Accepted(2, 1, 255, QString(1000, QChar(0xD83D))));
    EXPECT_TRUE(created.journal->Report("", 256, "1", 0, 0)) << "says nothing";
    EXPECT_TRUE(created.journal->Report("", 0, "1", 0, -1));
    EXPECT_TRUE(created.journal->Report("", 0, "", std::numeric_limits<qint64>::min(), 255));
    const Job_Reading reading = Read_Job(Path());
    ASSERT_TRUE(reading.record);
    EXPECT_EQ(reading.record->Part(1, 1).words, "words:" + QString(94, u'\n'));
    EXPECT_EQ(reading.record->Part(2, 1).reference, 255);
    EXPECT_EQ(reading.record->Reports().size(), 1);
    EXPECT_LT(Bytes_Of(Path()).size(), 1000);
}

TEST_F(Job_Journal_Test, What_No_Job_Has_Is_Never_Written)
{
    const std::function<bool(Job_Journal&)> Table[] = {
        [](Job_Journal& journal) { return journal.Hand_Over(0, 1, 1); },
        [](Job_Journal& journal) { return journal.Hand_Over(5, 1, 1); },
        [](Job_Journal& journal) { return journal.Hand_Over(1, 0, 1); },
        [](Job_Journal& journal) { return journal.Hand_Over(1, 2, 1); },
        [](Job_Journal& journal) { return journal.Accepted(1, 1, 256); },
        [](Job_Journal& journal) { return journal.Accepted(1, 1, -2); },
        [](Job_Journal& journal) { return journal.Refused(5, 1, "error"); },
        [](Job_Journal& journal) { return journal.Unknown(1, 0, ""); },
        [](Job_Journal& journal) { return journal.Skipped(-1, ""); },
        [](Job_Journal& journal) { return journal.Decide(5, Job_Decision::Send_Again, ""); },
    };
    for (const auto& step : Table) {
        const Job_Journal::Opened created = Create();
        ASSERT_TRUE(created.journal);
        EXPECT_FALSE(step(*created.journal));
        EXPECT_EQ(created.journal->Trouble(), Job_Trouble::Not_Written);
        EXPECT_FALSE(created.journal->Hand_Over(1, 1, 1)) << "and the job is over";
        EXPECT_EQ(Bytes_Of(Path()), Sample_Lines.first());
        ASSERT_TRUE(QDir(m_folder).removeRecursively());
    }
}

TEST_F(Job_Journal_Test, A_Job_Goes_On_Behind_What_Was_Written_Whole)
{
    for (qsizetype lines = 1; lines <= Sample_Lines.size(); ++lines) {
        const QByteArray whole = Sample_Lines.first(lines).join();
        for (const QByteArray& torn :
             {QByteArray(), QByteArray("H"), QByteArray("H 1 1 1 2026-11-21T09:15:01Z 803fabd9"),
              QByteArray("S 1 1 1 broken\n"), QByteArray(5000, '\0')}) {
            Put(whole + torn);
            const Job_Journal::Opened opened = Job_Journal::Open_To_Go_On(Path(), Sample_Clock());
            ASSERT_TRUE(opened.journal) << lines;
            EXPECT_EQ(States_Of(*opened.record), Sample_States.at(lines));
            EXPECT_EQ(Bytes_Of(Path()), whole) << "what is torn is cut off before anything else is written";
            EXPECT_TRUE(opened.journal->Hand_Over(1, 1, 1));
            EXPECT_EQ(Bytes_Of(Path()), whole + Job_Line::Whole({"H", "1", "1", "1", "2026-11-21T09:15:00Z"}));
        }
    }
}

TEST_F(Job_Journal_Test, One_Program_At_A_Time_Works_On_A_Job)
{
    Job_Journal::Opened created = Create();
    ASSERT_TRUE(created.journal);
    EXPECT_EQ(Job_Journal::Open_To_Go_On(Path()).trouble, Job_Trouble::In_Use);
    EXPECT_EQ(Read(), "W WW W K") << "but it can be looked at";
    created.journal.reset();
    Job_Journal::Opened opened = Job_Journal::Open_To_Go_On(Path());
    ASSERT_TRUE(opened.journal);
    EXPECT_EQ(Job_Journal::Open_To_Go_On(Path()).trouble, Job_Trouble::In_Use);
    opened.journal.reset();
    EXPECT_EQ(Job_Journal::Open_To_Go_On(Path()).trouble, Job_Trouble::None);
}

TEST_F(Job_Journal_Test, A_Child_That_Has_Just_Been_Started_Keeps_No_Lock)
{
    Job_Journal::Opened created = Create();
    ASSERT_TRUE(created.journal);
    int pipe_ends[2] = {};
    ASSERT_EQ(pipe(pipe_ends), 0);
    const pid_t child = fork();
    if (child == 0) {
        close(pipe_ends[1]);
        char end = 0;
        std::_Exit(read(pipe_ends[0], &end, 1) == 0 ? 0 : 1); // with the journal open
    }
    created.journal.reset();
    EXPECT_EQ(Job_Journal::Open_To_Go_On(Path()).trouble, Job_Trouble::None);
    close(pipe_ends[1]);
    close(pipe_ends[0]);
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
}

TEST_F(Job_Journal_Test, What_Can_Not_Be_Gone_On_With_Stays_As_It_Is)
{
    EXPECT_EQ(Job_Journal::Open_To_Go_On(Path()).trouble, Job_Trouble::Missing);
    EXPECT_EQ(Job_Journal::Open_To_Go_On({}).trouble, Job_Trouble::Missing);
    const QByteArray damaged = Sample_Lines.first(3).join() + "X\n" + Sample_Lines.at(3) + "H 1";
    Put(damaged);
    EXPECT_EQ(Job_Journal::Open_To_Go_On(Path()).trouble, Job_Trouble::Damaged);
    EXPECT_EQ(Bytes_Of(Path()), damaged);
    const QByteArray torn = Sample_Lines.first(3).join() + "H 1";
    Put(torn);
    Write_Bytes(List_Path(), Sample_List + " ");
    EXPECT_EQ(Job_Journal::Open_To_Go_On(Path()).trouble, Job_Trouble::List_Changed);
    ASSERT_TRUE(QFile::remove(List_Path()));
    EXPECT_EQ(Job_Journal::Open_To_Go_On(Path()).trouble, Job_Trouble::List_Missing);
    EXPECT_EQ(Bytes_Of(Path()), torn);
    Put_A_Folder_At(Path());
    EXPECT_EQ(Job_Journal::Open_To_Go_On(Path()).trouble, Job_Trouble::Not_A_Journal);
    ASSERT_TRUE(QDir().rmdir(Path()));
    ASSERT_EQ(mkfifo(qPrintable(Path()), 0600), 0);
    EXPECT_EQ(Job_Journal::Open_To_Go_On(Path()).trouble, Job_Trouble::Not_A_Journal) << "without waiting for a writer";
}

TEST_F(Job_Journal_Test, What_Another_Account_Owns_Can_Not_Be_Gone_On_With)
{
    Put(Sample_Lines);
    ASSERT_EQ(chmod(qPrintable(m_home.path()), 0755) + chmod(qPrintable(m_folder), 0755), 0);
    for (const QString& path : {Path(), List_Path()})
        ASSERT_EQ(chmod(qPrintable(path), 0644), 0);
    EXPECT_TRUE(As_Nobody([this] { return Read_Job(Path()).trouble == Job_Trouble::None; }));
    EXPECT_TRUE(As_Nobody([this] { return Job_Journal::Open_To_Go_On(Path()).trouble == Job_Trouble::Unreadable; }));
    EXPECT_TRUE(As_Nobody([this] { return Create().trouble == Job_Trouble::Exists; }));
    ASSERT_EQ(chmod(qPrintable(Path()), 0600), 0);
    EXPECT_TRUE(As_Nobody([this] { return Read_Job(Path()).trouble == Job_Trouble::Unreadable; }));
}

TEST_F(Job_Journal_Test, A_Job_In_The_Middle_Of_A_Message_Goes_On_With_Its_Reference)
{
    Put(Sample_Lines.first(5));
    Job_Journal::Opened opened = Job_Journal::Open_To_Go_On(Path(), Sample_Clock());
    ASSERT_TRUE(opened.journal);
    EXPECT_EQ(opened.record->State_Of(2).state, Sending_State::Waiting);
    EXPECT_EQ(opened.record->State_Of(2).parts_sent, 1);
    EXPECT_EQ(opened.record->Row(2)->reference, 200);
    EXPECT_TRUE(opened.journal->Hand_Over(2, 2, 2) && opened.journal->Accepted(2, 2, 19));
    EXPECT_EQ(Read(), "S SS W K");
}

TEST_F(Job_Journal_Test, A_Report_May_Say_When_Its_Part_Was_Submitted)
{
    ASSERT_TRUE(Create().journal->Report("001", 17, "0123", 1795252509, 0, 1795252500));
    EXPECT_TRUE(Bytes_Of(Path()).contains("\nD 001 17 0123 0 2026-11-21T09:15:00Z 2026-11-21T09:15:09Z "));
    const Job_Report report = Read_Job(Path()).record->Reports().first();
    EXPECT_EQ(report.submitted, 1795252500);
    EXPECT_EQ(report.seconds, 1795252509);
}
