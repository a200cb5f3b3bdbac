#include "records/Job_Shelf.h"

#include "records/Job_Samples.h"

#include <QRegularExpression>
#include <QSet>

namespace {

class Job_Shelf_Test : public Job_Test
{
protected:
    /// A job of one row with a text for each letter of its states: what was done to it in its turn.
    Job_Journal::Opened Make(const QString& id, const QString& states) const
    {
        QList<Job_Row> rows;
        for (qsizetype row = 0; row < states.size(); ++row)
            rows.append(Plain_Row(QString::number(row)));
        Job_Start start = Sample_Start();
        start.id = id;
        auto made = Job_Journal::Create(m_folder, start, Each_Of(rows), Sample_Clock());
        for (int row = 1; made.journal && row <= states.size(); ++row) {
            const QChar state = states.at(row - 1);
            EXPECT_TRUE(state == u'W' || state == u'K' || made.journal->Hand_Over(row, 1, 1));
            EXPECT_TRUE(state != u'S' || made.journal->Accepted(row, 1, 7));
            EXPECT_TRUE(state != u'E' || made.journal->Refused(row, 1, "error"));
            EXPECT_TRUE(state != u'U' || made.journal->Unknown(row, 1, "silence"));
            EXPECT_TRUE(state != u'K' || made.journal->Skipped(row, "person"));
        }
        EXPECT_TRUE(made.journal);
        return made;
    }
};

} // namespace

TEST_F(Job_Shelf_Test, An_Id_Is_The_Local_Time_And_Four_Random_Digits)
{
    QSet<QString> ids;
    for (int i = 0; i < 20; ++i) {
        const QString id = New_Job_Id(Sample_Clock());
        EXPECT_TRUE(QRegularExpression("^20261121-101500-[0-9a-f]{4}$").match(id).hasMatch()) << id.toStdString();
        EXPECT_TRUE(Is_Job_Id(id));
        ids.insert(id);
    }
    EXPECT_GT(ids.size(), 15);
    EXPECT_TRUE(Is_Job_Id(New_Job_Id()));
    EXPECT_TRUE(Is_Job_Id(QString(64, u'a')));
    for (const QString& text : {QString(), QString("../a"), QString("a b"), QString("a\n"), QString("."),
                                QString("a_b"), QString(65, u'a'), QString(QChar(0x661))})
        EXPECT_FALSE(Is_Job_Id(text)) << text.toStdString();
    EXPECT_EQ(Job_Journal_Path("/Jobs", "../../etc/passwd"), "");
}

TEST_F(Job_Shelf_Test, Unfinished_Jobs_Are_Named_With_What_Is_Left_Of_Them)
{
    EXPECT_TRUE(Unfinished_Jobs(m_folder).isEmpty()) << "there is no folder yet";
    ASSERT_TRUE(Make("3-ended", "SS").journal->End());
    Make("2-broken-off", "SSEHUUKWWWW");
    const auto in_use = Make("1-in-use", "W");
    Make("4-damaged", "W");
    Write_Bytes(Path("4-damaged"), "J1 damaged\n");
    Make("5-listless", "W");
    ASSERT_TRUE(QFile::remove(List_Path("5-listless")));
    Write_Bytes(m_folder + "/Readme.txt", "");
    Write_Bytes(m_folder + "/6.journal.new", "");
    Put_A_Folder_At(m_folder + "/7.journal");
    const QStringList before = Names();
    const QList<Unfinished_Job> jobs = Unfinished_Jobs(m_folder);
    EXPECT_EQ(Names(), before);
    ASSERT_EQ(jobs.size(), 4);
    EXPECT_EQ(jobs.at(0).id, "1-in-use");
    EXPECT_TRUE(jobs.at(0).is_in_use);
    EXPECT_EQ(jobs.at(0).counts.not_tried, 1);
    const Unfinished_Job& broken_off = jobs.at(1);
    EXPECT_EQ(broken_off.id, "2-broken-off");
    EXPECT_EQ(broken_off.path, Path("2-broken-off"));
    EXPECT_EQ(broken_off.trouble, Job_Trouble::None);
    EXPECT_FALSE(broken_off.is_in_use);
    EXPECT_EQ(broken_off.seconds, 1795252500);
    EXPECT_EQ(broken_off.device, "/dev/ttyUSB0");
    EXPECT_EQ(broken_off.counts.rows, 11);
    EXPECT_EQ(broken_off.counts.sent, 2);
    EXPECT_EQ(broken_off.counts.refused, 1);
    EXPECT_EQ(broken_off.counts.unknown, 3);
    EXPECT_EQ(broken_off.counts.skipped, 1);
    EXPECT_EQ(broken_off.counts.not_tried, 4);
    EXPECT_EQ(jobs.at(2).id, "4-damaged");
    EXPECT_EQ(jobs.at(2).trouble, Job_Trouble::Damaged);
    EXPECT_EQ(jobs.at(3).id, "5-listless");
    EXPECT_EQ(jobs.at(3).trouble, Job_Trouble::List_Missing);
}

TEST_F(Job_Shelf_Test, All_Jobs_Are_Named_The_Newest_First)
{
    EXPECT_TRUE(Kept_Jobs(m_folder).isEmpty()) << "there is no folder yet";
    ASSERT_TRUE(Make("1-ended", "SS").journal->End());
    Make("2-broken-off", "SW");
    Write_Bytes(Path("3-damaged"), "J1 damaged\n");
    QStringList jobs;
    for (const Kept_Job& kept : Kept_Jobs(m_folder))
        jobs.append(kept.job.id + (kept.has_ended ? ", ended " : " ") + QString::number(kept.job.counts.sent));
    EXPECT_EQ(jobs.join(u'|'), "3-damaged 0|2-broken-off 1|1-ended, ended 2");
    EXPECT_FALSE(Look_At_Job(Path("4")));
}

TEST_F(Job_Shelf_Test, Any_Job_Can_Be_Removed_But_One_That_Is_Being_Worked_On)
{
    auto made = Make("1", "W");
    EXPECT_EQ(Remove_Job(Path("1")), Job_Trouble::In_Use);
    EXPECT_EQ(Names().size(), 2);
    made.journal.reset();
    EXPECT_EQ(Remove_Job(Path("1")), Job_Trouble::None);
    EXPECT_EQ(Names(), QStringList());
    EXPECT_EQ(Remove_Job(Path("1")), Job_Trouble::Missing);
    Write_Bytes(Path("2"), "damaged, and without a list");
    EXPECT_EQ(Remove_Job(Path("2")), Job_Trouble::None);
    EXPECT_EQ(Names(), QStringList());
    Write_Bytes(m_folder + "/Readme.txt", "");
    EXPECT_EQ(Remove_Job(m_folder + "/Readme.txt"), Job_Trouble::Missing) << "no job";
    Put_A_Folder_At(Path("3"));
    EXPECT_EQ(Remove_Job(Path("3")), Job_Trouble::Not_A_Journal);
    EXPECT_EQ(Names().size(), 2);
}

TEST_F(Job_Shelf_Test, What_Was_Killed_While_It_Was_Made_Is_Cleared_Up_But_Nothing_Else)
{
    Make("1", "W");
    const auto in_use = Make("2", "W");
    for (const char* name : {"3.journal.new", "3.list", "4.journal.new", "5.list", "1.journal.new", "Readme.new"})
        Write_Bytes(m_folder + "/" + name, "");
    const Job_Journal::Opened being_made =
        Job_Journal::Create(m_folder, {"9", "", "", {}}, [&]() -> std::optional<Job_Row> {
            Clear_Up_Jobs(m_folder);
            EXPECT_TRUE(QFile::exists(m_folder + "/9.journal.new")) << "it is being made";
            return std::nullopt;
        });
    EXPECT_TRUE(being_made.journal);
    EXPECT_EQ(Names().join(u' '), "1.journal 1.list 2.journal 2.list 5.list 9.journal 9.list Readme.new");
}
