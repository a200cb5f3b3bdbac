#include "records/Job_Reader.h"

#include "records/Job_Samples.h"
#include "support/Own_Seconds.h"

#include <QCryptographicHash>
#include <QFileInfo>

namespace {

const QByteArray Time = "2026-11-21T09:15:00Z";

class Job_Reader_Test : public Job_Test
{
protected:
    Job_Reader_Test() { m_folder = m_memory.filePath(QStringLiteral("Jobs")); }

    /// The sample's header and these lines, with times where an "@" stands.
    static QByteArray Journal(const QByteArrayList& lines)
    {
        QByteArray journal = Sample_Lines.first();
        for (QByteArray line : lines)
            journal += Job_Line::Whole(line.replace("@", Time).split(' '));
        return journal;
    }

    // Thousands of journals are written: a disk would make each of them wait.
    QTemporaryDir m_memory{(QFileInfo("/dev/shm").isWritable() ? QStringLiteral("/dev/shm") : QDir::tempPath()) +
                           "/XXXXXX"};
};

/// What becomes of a row: its state, its words, what was sent of it, its references and tries.
QString Told(const Job_Row_State& row)
{
    static const char* const Names[] = {"accepted", "skipped", "waiting", "refused", "handing over", "unknown"};
    QString told = Names[static_cast<int>(row.state)];
    if (!row.words.isEmpty())
        told += " (" + row.words + ")";
    told += QStringLiteral(" %1/%2").arg(row.parts_sent).arg(row.parts);
    for (const int reference : row.references)
        told += QStringLiteral(" #%1").arg(reference);
    return told + QStringLiteral(" x%1").arg(row.tries);
}

struct Story
{
    const char* name;
    QByteArrayList lines;
    int row;
    const char* told;
};

class Job_Story : public Job_Reader_Test, public testing::WithParamInterface<Story>
{
};

} // namespace

TEST_P(Job_Story, Is_Told)
{
    Put(Journal(GetParam().lines));
    const Job_Reading reading = Read_Job(Path());
    ASSERT_TRUE(reading.record) << static_cast<int>(reading.trouble);
    EXPECT_EQ(Told(reading.record->State_Of(GetParam().row)), GetParam().told);
}

INSTANTIATE_TEST_SUITE_P(
    All, Job_Story,
    testing::Values(
        Story{"Untouched", {}, 1, "waiting 0/1 x0"}, Story{"Broken_Off", {"H 1 1 1 @"}, 1, "handing over 0/1 x1"},
        Story{"Sent", {"H 1 1 1 @", "S 1 1 255 @"}, 1, "accepted 1/1 #255 x1"},
        Story{"Sent_With_A_Time", {"H 1 1 1 @", "S 1 1 0 26/11/21 @"}, 1, "accepted 1/1 #0 x1"},
        Story{"Sent_Without_A_Reference", {"H 1 1 1 @", "S 1 1 - @"}, 1, "accepted 1/1 x1"},
        Story{"Refused", {"H 1 1 1 @", "E 1 1 cms:21 @"}, 1, "refused (cms:21) 0/1 x1"},
        Story{"Refused_Before_It_Was_Handed_Over", {"E 1 1 cme:11 @"}, 1, "refused (cme:11) 0/1 x1"},
        Story{"No_Word", {"H 1 1 1 @", "U 1 1 silence @"}, 1, "unknown (silence) 0/1 x1"},
        Story{"Refused_And_Tried_Again", {"H 1 1 1 @", "E 1 1 cms:42 @", "H 1 1 1 @"}, 1, "handing over 0/1 x2"},
        Story{"The_Last_Try_Counts",
              {"H 1 1 1 @", "E 1 1 cms:42 @", "H 1 1 1 @", "E 1 1 cms:41 @", "H 1 1 1 @", "S 1 1 9 @"},
              1,
              "accepted 1/1 #9 x3"},
        Story{"Refused_At_The_Last_Try",
              {"H 1 1 1 @", "S 1 1 9 @", "H 1 1 1 @", "E 1 1 error @"},
              1,
              "refused (error) 0/1 x2"},
        Story{"A_Late_Word", {"H 1 1 1 @", "U 1 1 silence @", "S 1 1 9 @"}, 1, "accepted 1/1 #9 x1"},
        Story{"A_Late_Refusal", {"H 1 1 1 @", "U 1 1 silence @", "E 1 1 cms:500 @"}, 1, "refused (cms:500) 0/1 x1"},
        Story{"Refused_For_Now", {"H 1 1 1 @", "E 1 1 again:cms:331 @"}, 1, "waiting (cms:331) 0/1 x1"},
        Story{"Refused_In_The_End",
              {"H 1 1 1 @", "E 1 1 again:cms:41 @", "H 1 1 1 @", "E 1 1 cms:41 @"},
              1,
              "refused (cms:41) 0/1 x2"},
        Story{"Words_With_Blanks", {"E 1 1 words:not%20now @"}, 1, "refused (words:not now) 0/1 x1"},
        Story{"Both_Parts", {"H 2 1 2 @", "S 2 1 7 @", "H 2 2 2 @", "S 2 2 8 @"}, 2, "accepted 2/2 #7 #8 x1"},
        Story{"Between_Two_Parts", {"H 2 1 2 @", "S 2 1 7 @"}, 2, "waiting 1/2 #7 x1"},
        Story{"Refused_Between_Two_Parts", {"H 2 1 2 @", "S 2 1 7 @", "E 2 2 error @"}, 2, "refused (error) 1/2 #7 x1"},
        Story{"Unknown_Is_Worse_Than_Refused",
              {"H 2 1 2 @", "U 2 1 silence @", "E 2 2 cms:500 @"},
              2,
              "unknown (silence) 0/2 x1"},
        Story{"Broken_Off_Is_Worse_Than_Refused", {"E 2 1 cms:500 @", "H 2 2 2 @"}, 2, "handing over 0/2 x1"},
        Story{"The_First_Of_Two_Refusals", {"E 2 1 cms:1 @", "E 2 2 cms:2 @"}, 2, "refused (cms:1) 0/2 x1"},
        Story{"Skipped_From_The_Beginning", {}, 4, "skipped (duplicate) 0/1 x0"},
        Story{"Skipped_By_A_Person", {"K 1 person"}, 1, "skipped (person) 0/1 x0"},
        Story{"Skipped_After_A_Part", {"H 2 1 2 @", "S 2 1 7 @", "K 2 person"}, 2, "skipped (person) 1/2 #7 x1"},
        Story{"Skipped_Too_Late", {"H 1 1 1 @", "K 1 person"}, 1, "handing over 0/1 x1"},
        Story{"To_Be_Sent_Again", {"H 1 1 1 @", "R 1 send-again:person @"}, 1, "waiting 0/1 x1"},
        Story{"To_Be_Sent_Again_After_No_Word",
              {"H 1 1 1 @", "U 1 1 silence @", "R 1 send-again: @"},
              1,
              "waiting 0/1 x1"},
        Story{"Sent_Again", {"H 1 1 1 @", "R 1 send-again:x @", "H 1 1 1 @", "S 1 1 3 @"}, 1, "accepted 1/1 #3 x2"},
        Story{"Broken_Off_Again", {"H 1 1 1 @", "R 1 send-again:x @", "H 1 1 1 @"}, 1, "handing over 0/1 x2"},
        Story{"Counted_As_Sent", {"H 1 1 1 @", "R 1 count-as-sent:person @"}, 1, "accepted (counted) 1/1 x1"},
        Story{"Counted_As_Sent_With_What_Follows",
              {"H 2 1 2 @", "U 2 1 silence @", "R 2 count-as-sent:x @"},
              2,
              "accepted (counted) 1/2 x1"},
        Story{"Counted_As_Sent_But_Not_What_Was_Refused",
              {"E 2 1 error @", "H 2 2 2 @", "R 2 count-as-sent:x @"},
              2,
              "refused (error) 1/2 x1"},
        Story{"Counting_Is_For_What_Is_Doubtful", {"R 1 count-as-sent:x @"}, 1, "waiting 0/1 x0"},
        Story{"Only_What_Is_Doubtful_Goes_Again",
              {"H 2 1 2 @", "S 2 1 7 @", "H 2 2 2 @", "R 2 send-again:x @"},
              2,
              "waiting 1/2 #7 x1"},
        Story{"What_Was_Refused_Stays_So", {"E 1 1 error @", "R 1 send-again:x @"}, 1, "refused (error) 0/1 x1"},
        Story{"What_Was_Sent_Stays_So", {"H 1 1 1 @", "S 1 1 3 @", "R 1 send-again:x @"}, 1, "accepted 1/1 #3 x1"}),
    [](const auto& story) { return story.param.name; });

TEST_F(Job_Reader_Test, The_Sample_Is_Read_In_Full)
{
    Put(Sample_Lines);
    const Job_Reading reading = Read_Job(Path());
    ASSERT_TRUE(reading.record);
    const Job_Record& record = *reading.record;
    EXPECT_EQ(record.Header().id, Sample_Id);
    EXPECT_EQ(record.Header().seconds, 1795252500);
    EXPECT_EQ(record.Header().imsi, "234150000000001");
    EXPECT_EQ(record.Header().device, "/dev/ttyUSB0");
    EXPECT_EQ(record.Header().parts, 4);
    EXPECT_EQ(record.Options(), Sample_Options());
    EXPECT_EQ(States_Of(record), "S SE S K ended");
    EXPECT_EQ(record.Row(3), Sample_Rows().at(2));
    const Job_Part part = record.Part(2, 1);
    EXPECT_EQ(part.reference, 18);
    EXPECT_EQ(part.stamp, "26/11/21,10:15:04+04");
    EXPECT_EQ(part.handed_over_at, 1795252503);
    ASSERT_EQ(record.Reports().size(), 1);
    const Job_Report& report = record.Reports().first();
    EXPECT_EQ(report.imsi, "234150000000001");
    EXPECT_EQ(report.reference, 17);
    EXPECT_EQ(report.number, "00447700900100");
    EXPECT_EQ(report.seconds, 1795252509);
    EXPECT_EQ(report.status, 0);
    const Job_Counts counts = record.Counts();
    EXPECT_EQ((std::array{counts.rows, counts.sent, counts.refused, counts.unknown, counts.skipped, counts.not_tried}),
              (std::array{4, 2, 1, 0, 1, 0}));
    EXPECT_FALSE(reading.is_torn);
    EXPECT_EQ(reading.whole_size, Sample_Lines.join().size());
}

TEST_F(Job_Reader_Test, A_Job_Has_Ended_Until_It_Is_Gone_On_With)
{
    const std::pair<QByteArrayList, bool> Table[] = {
        {{"Z @"}, true},
        {{"Z @", "D 1 2 3 4 @"}, true},
        {{"Z @", "D 1 2 3 4 @ @"}, true},
        {{"H 1 1 1 @", "Z @", "S 1 1 1 @"}, true},
        {{"Z @", "H 1 1 1 @"}, false},
        {{"H 1 1 1 @", "Z @", "R 1 send-again:x @"}, false},
        {{"H 1 1 1 @", "Z @", "R 1 count-as-sent:x @"}, true},
        {{"Z @", "H 1 1 1 @", "Z @"}, true},
    };
    for (const auto& [lines, has_ended] : Table) {
        Put(Journal(lines));
        EXPECT_EQ(Read().endsWith(" ended"), has_ended) << lines.join('|').constData();
    }
}

TEST_F(Job_Reader_Test, Cut_Off_Anywhere_It_Tells_What_The_Whole_Lines_Tell)
{
    const QByteArray journal = Sample_Lines.join();
    for (qsizetype size = 0; size <= journal.size(); ++size) {
        const QByteArray cut = journal.left(size);
        Put(cut);
        const Job_Reading reading = Read_Job(Path());
        const auto lines = cut.count('\n');
        if (lines == 0) {
            EXPECT_NE(reading.trouble, Job_Trouble::None) << size << ": a header is there in full or not at all";
            continue;
        }
        ASSERT_TRUE(reading.record) << size;
        EXPECT_EQ(States_Of(*reading.record), Sample_States.at(lines)) << size;
        EXPECT_EQ(reading.whole_size, cut.lastIndexOf('\n') + 1);
        EXPECT_EQ(reading.is_torn, !cut.endsWith('\n'));
        EXPECT_EQ(Bytes_Of(Path()), cut);
    }
}

TEST_F(Job_Reader_Test, With_Any_Bit_Changed_It_Is_Refused_Or_Loses_Its_Last_Line)
{
    for (const qsizetype lines : {2, 5, 15}) {
        const QByteArray journal = Sample_Lines.first(lines).join();
        const qsizetype last_line = journal.lastIndexOf('\n', -2) + 1;
        for (qsizetype at = 0; at < journal.size(); ++at) {
            for (int bit = 0; bit < 8; ++bit) {
                QByteArray changed = journal;
                changed[at] = static_cast<char>(changed.at(at) ^ 1 << bit);
                Put(changed);
                const Job_Reading reading = Read_Job(Path());
                const bool is_of_last_line = at >= last_line && at < journal.size() - 1;
                const QString states = reading.record ? States_Of(*reading.record) : QString();
                const QString expected = is_of_last_line ? Sample_States.at(lines - 1) : QString();
                EXPECT_TRUE(states.isEmpty() || states == expected) << at << " " << bit;
                EXPECT_EQ(Bytes_Of(Path()), changed);
            }
        }
    }
}

TEST_F(Job_Reader_Test, A_Line_More_Or_Less_Is_Noticed_Before_The_End)
{
    const QByteArrayList lines = Sample_Lines.first(5);
    const QByteArray journal = lines.join();
    const std::pair<QByteArray, Job_Trouble> Table[] = {
        {"", Job_Trouble::Damaged},
        {"\n", Job_Trouble::Not_A_Journal},
        {"Dear Ann,\n", Job_Trouble::Not_A_Journal},
        {QByteArray(1000, '\0'), Job_Trouble::Not_A_Journal},
        {"J2 whatever it is\n", Job_Trouble::Newer},
        {"J17 x\n" + journal, Job_Trouble::Newer},
        {"J2", Job_Trouble::Not_A_Journal},
        {"J1 ", Job_Trouble::Damaged},
        {"\xEF\xBB\xBF" + journal, Job_Trouble::Not_A_Journal},
        {journal + lines.first(), Job_Trouble::Damaged},
        {lines.first() + "\n" + lines.at(1), Job_Trouble::Damaged},
        {lines.first() + "X\nX\n", Job_Trouble::Damaged},
        {lines.first() + "X\nX", Job_Trouble::Damaged},
        {lines.first() + QByteArray(100, '\0') + lines.at(1) + lines.at(2), Job_Trouble::Damaged},
        {QByteArray(journal).replace("\n", "\r\n"), Job_Trouble::Damaged},
        {lines.at(1), Job_Trouble::Not_A_Journal},
        {lines.first() + QByteArray(17 << 20, 'x'), Job_Trouble::Damaged},
    };
    for (const auto& [bytes, trouble] : Table) {
        Put(bytes);
        EXPECT_EQ(Read_Job(Path()).trouble, trouble) << bytes.left(300).constData();
        EXPECT_EQ(Bytes_Of(Path()), bytes);
    }
}

TEST_F(Job_Reader_Test, A_Line_That_Does_Not_Fit_The_Job_Is_Damage_Though_Its_Checksum_Is_Right)
{
    for (const char* line : {"H 0 1 1 @",
                             "H 5 1 1 @",
                             "H 1 2 1 @",
                             "H 1 0 1 @",
                             "H 2 1 1 @",
                             "H 1 1 1",
                             "H 1 1 1 now",
                             "H 1 1 1 @ x",
                             "H 01 1 1 @",
                             "H 1 1 1  @",
                             "S 1 1 256 @",
                             "S 1 1 -1 @",
                             "S 1 1 @",
                             "S 1 1 1 a b @",
                             "S 9 1 1 @",
                             "S 1 1 1 %zz @",
                             "E 1 1 @",
                             "E 1 1 a b @",
                             "E 1 3 a @",
                             "U 1 1 %41 @",
                             "K 1",
                             "K 5 person",
                             "K 1 person @",
                             "D 1 256 2 3 @",
                             "D 1 2 3 256 @",
                             "D 1 2 3 @",
                             "D 1 2 3 4 5 @",
                             "D 1 2 3 4 @ @ @",
                             "R 1 person @",
                             "R 5 send-again:x @",
                             "R 1 send-again:x",
                             "Z",
                             "Z now",
                             "Z @ @",
                             "h 1 1 1 @",
                             "X 1 @",
                             "HH 1 1 1 @",
                             " @",
                             "J1 @"}) {
        Put(Journal({line}));
        EXPECT_EQ(Read_Job(Path()).trouble, Job_Trouble::Damaged) << line;
    }
}

TEST_F(Job_Reader_Test, A_Header_Must_Fit_Its_File_And_Its_List)
{
    const QByteArrayList good = Sample_Lines.first().chopped(10).split(' ');
    ASSERT_EQ(Job_Line::Whole(good), Sample_Lines.first());
    const std::tuple<int, QByteArray, Job_Trouble> Table[] = {
        {1, "20261121-101500-3f9b", Job_Trouble::Damaged},
        {2, "now", Job_Trouble::Damaged},
        {3, "%zz", Job_Trouble::Damaged},
        {4, "", Job_Trouble::Damaged},
        {5, "5", Job_Trouble::Damaged},
        {5, "99999999999", Job_Trouble::Damaged},
        {6, "5", Job_Trouble::Damaged},
        {6, "-4", Job_Trouble::Damaged},
        {7, QByteArray(64, '0'), Job_Trouble::List_Changed},
    };
    for (const auto& [field, value, trouble] : Table) {
        QByteArrayList fields = good;
        fields[field] = value;
        Put(Job_Line::Whole(fields));
        EXPECT_EQ(Read_Job(Path()).trouble, trouble) << value.constData();
    }
    Put(Job_Line::Whole(good.first(7)));
    EXPECT_EQ(Read_Job(Path()).trouble, Job_Trouble::Damaged);
    const QString copy = Path("a-copy");
    Write_Bytes(copy, Sample_Lines.join());
    Write_Bytes(Job_List_Path(copy), Sample_List);
    EXPECT_EQ(Read_Job(copy).trouble, Job_Trouble::Damaged) << "a copy would send everything again";
}

TEST_F(Job_Reader_Test, A_Header_May_Say_Whether_The_Receipt_Is_Kept)
{
    const QByteArrayList without = Sample_Lines.first().chopped(10).split(' ');
    const std::tuple<QByteArrayList, Job_Trouble, std::optional<bool>> Table[] = {
        {{}, Job_Trouble::None, std::nullopt}, // as older journals are
        {{"keep:yes"}, Job_Trouble::None, true}, {{"keep:no"}, Job_Trouble::None, false},
        {{"keep:"}, Job_Trouble::Damaged, {}},   {{"keep:yes", "keep:yes"}, Job_Trouble::Damaged, {}},
        {{""}, Job_Trouble::Damaged, {}},        {{"KEEP:yes"}, Job_Trouble::Damaged, {}},
    };
    for (const auto& [more, trouble, keeps_receipt] : Table) {
        Put(Job_Line::Whole(without + more));
        const Job_Reading reading = Read_Job(Path());
        EXPECT_EQ(reading.trouble, trouble) << more.join(' ').constData();
        EXPECT_EQ(Read_Job_Front(Path()).has_value(), trouble == Job_Trouble::None);
        EXPECT_EQ(reading.record ? reading.record->Header().keeps_receipt : std::nullopt, keeps_receipt);
    }
}

TEST_F(Job_Reader_Test, A_List_That_Is_Gone_Or_Changed_Or_Newer_Is_Told)
{
    Put(Sample_Lines);
    Write_Bytes(List_Path(), Sample_List.chopped(1));
    EXPECT_EQ(Read_Job(Path()).trouble, Job_Trouble::List_Changed);
    ASSERT_TRUE(QFile::remove(List_Path()));
    EXPECT_EQ(Read_Job(Path()).trouble, Job_Trouble::List_Missing);
    const QByteArray newer = "L2\t?\n";
    QByteArrayList fields = Sample_Lines.first().chopped(10).split(' ');
    fields.last() = QCryptographicHash::hash(newer, QCryptographicHash::Sha256).toHex();
    Write_Bytes(Path(), Job_Line::Whole(fields));
    Write_Bytes(List_Path(), newer);
    EXPECT_EQ(Read_Job(Path()).trouble, Job_Trouble::Newer);
}

TEST_F(Job_Reader_Test, What_Is_No_File_Is_No_Journal)
{
    EXPECT_EQ(Read_Job(Path()).trouble, Job_Trouble::Missing);
    EXPECT_EQ(Read_Job({}).trouble, Job_Trouble::Missing);
    EXPECT_EQ(Read_Job(QString(QChar(0))).trouble, Job_Trouble::Missing);
    Put_A_Folder_At(Path());
    EXPECT_EQ(Read_Job(Path()).trouble, Job_Trouble::Not_A_Journal);
    EXPECT_EQ(Read_Job("/dev/zero").trouble, Job_Trouble::Not_A_Journal);
    for (int trouble = static_cast<int>(Job_Trouble::Missing); trouble <= static_cast<int>(Job_Trouble::Not_Written);
         ++trouble)
        EXPECT_FALSE(Job_Trouble_Sentence(static_cast<Job_Trouble>(trouble)).isEmpty()) << trouble;
    EXPECT_EQ(Job_Trouble_Sentence(Job_Trouble::None), "");
}

TEST_F(Job_Reader_Test, Ten_Thousand_Rows_Are_Read_In_Well_Under_A_Second)
{
    constexpr int Rows = 10'000;
    QList<Job_Row> rows;
    for (int row = 1; row <= Rows; ++row)
        rows.append(Plain_Row(QString::number(row)));
    ASSERT_TRUE(Create(rows).journal);
    QByteArray journal = Bytes_Of(Path());
    for (int row = 1; row < Rows; ++row) {
        const QByteArray number = QByteArray::number(row);
        journal += Job_Line::Whole({"H", number, "1", "1", Time});
        journal += Job_Line::Whole({"S", number, "1", QByteArray::number(row % 256), Time});
    }
    Write_Bytes(Path(), journal);
    const Stopwatch watch;
    const Job_Reading reading = Read_Job(Path());
    ASSERT_TRUE(reading.record);
    EXPECT_EQ(reading.record->Counts().sent, Rows - 1);
    EXPECT_EQ(reading.record->Parts_Waiting(), 1);
    EXPECT_LT(watch.Lasted_For_The_Thread(), 1.0);
}

TEST_F(Job_Reader_Test, The_Front_Of_A_Job_Is_Told_Without_The_Rest)
{
    Put(Sample_Lines.first() + "torn");
    const auto front = Read_Job_Front(Path());
    ASSERT_TRUE(front);
    EXPECT_EQ(front->header.imsi, "234150000000001");
    EXPECT_EQ(front->report_seconds, 60);
    const QString copy = Path("a-copy");
    Write_Bytes(copy, Sample_Lines.first());
    EXPECT_FALSE(Read_Job_Front(copy));
    Write_Bytes(List_Path(), "L1\t" + Sample_Id.toLatin1() + "\nO\t\t-\t0\t0\tauto\n");
    EXPECT_EQ(Read_Job_Front(Path())->report_seconds, -1);
    Write_Bytes(List_Path(), "L1\n");
    EXPECT_FALSE(Read_Job_Front(Path()));
    ASSERT_TRUE(QFile::remove(List_Path()));
    EXPECT_FALSE(Read_Job_Front(Path()));
    Write_Bytes(Path(), "J2 ?\n");
    EXPECT_FALSE(Read_Job_Front(Path()));
    EXPECT_FALSE(Read_Job_Front(m_folder));
}
