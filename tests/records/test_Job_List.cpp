#include "records/Job_List.h"

#include "records/Job_List_Format.h"
#include "records/Job_Samples.h"
#include "records/Store_Files.h"
#include "support/Own_Seconds.h"

#include <QCryptographicHash>
#include <fcntl.h>

namespace {

QByteArray Sum_Of(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

class Job_List_Test : public Job_Test
{
protected:
    Job_List_Test() { QDir().mkpath(m_folder); }

    Job_List::Written Write(const Next_Job_Row& next_row, const Job_Options& options = Sample_Options()) const
    {
        const Descriptor file(open(qPrintable(List_Path()), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600));
        return Job_List::Write(file, Sample_Id, options, next_row);
    }

    /// A list with these bytes and the right checksum.
    Job_List::Opened Opened(const QByteArray& bytes) const
    {
        Write_Bytes(List_Path(), bytes);
        return Job_List::Open(List_Path(), Sample_Id, Sum_Of(bytes));
    }
};

} // namespace

TEST_F(Job_List_Test, A_List_Is_Lines_Of_Fields_Divided_By_Tabs)
{
    const Job_List::Written written = Write(Each_Of(Sample_Rows()));
    EXPECT_EQ(written.trouble, Job_Trouble::None);
    EXPECT_EQ(written.rows, 4);
    EXPECT_EQ(written.parts, 4) << "without the one that is skipped";
    EXPECT_EQ(Bytes_Of(List_Path()), Sample_List);
    EXPECT_EQ(written.sha256, Sum_Of(Sample_List));
}

TEST_F(Job_List_Test, It_Comes_Back_As_It_Was)
{
    const auto list = Opened(Sample_List).list;
    ASSERT_TRUE(list);
    EXPECT_EQ(list->Options(), Sample_Options());
    EXPECT_EQ(list->Row_Count(), 4);
    EXPECT_EQ(list->Part_Count(), 4);
    EXPECT_EQ(list->Parts_Of_All(), 5);
    const QList<Job_Row> rows = Sample_Rows();
    for (int row = 1; row <= 4; ++row) {
        EXPECT_EQ(list->Row(row), rows.at(row - 1)) << row;
        EXPECT_EQ(list->Parts_Of(row), rows.at(row - 1).parts) << row;
        EXPECT_EQ(list->Is_Skipped(row), row == 4) << row;
    }
    EXPECT_EQ(list->Parts_Before(3), 3);
}

TEST_F(Job_List_Test, Every_Text_Comes_Back_Unit_For_Unit)
{
    const QChar high(0xD83D);
    const QChar low(0xDE42);
    QString every_unit;
    for (int unit = 0; unit < 0x3000; ++unit)
        every_unit += QChar(unit);
    const QString texts[] = {"",
                             "\\n",
                             "\\",
                             "\\u0041",
                             "a\r\nb\n\nc\td",
                             every_unit,
                             QString(high) + low + high + high + low + low,
                             QString(low),
                             QString(high),
                             QString(QChar::LineSeparator) + QChar(0xFEFF) + QChar(0xFFFF),
                             QString(100000, u'x')};
    for (const QString& text : texts) {
        Job_Row row = Plain_Row("1");
        row.text = row.number = text;
        ASSERT_EQ(Write(Each_Of({row})).trouble, Job_Trouble::None);
        const auto list = Opened(Bytes_Of(List_Path())).list;
        ASSERT_TRUE(list);
        EXPECT_TRUE(list->Row(1) == row) << text.left(20).toStdString();
    }
}

TEST_F(Job_List_Test, Any_Options_Come_Back)
{
    const Job_Options Table[] = {{},
                                 {"", -1, 0, 0.1, Job_Alphabet_Choice::Gsm},
                                 {"+44 7785\t016005", 0, 2147483647, 1e9, Job_Alphabet_Choice::Unicode}};
    for (const Job_Options& options : Table) {
        ASSERT_EQ(Write(Each_Of({}), options).trouble, Job_Trouble::None);
        const auto list = Opened(Bytes_Of(List_Path())).list;
        ASSERT_TRUE(list);
        EXPECT_EQ(list->Options(), options);
        EXPECT_EQ(list->Row_Count(), 0);
    }
}

TEST_F(Job_List_Test, A_Row_That_No_Line_Can_Hold_Is_Refused)
{
    const auto with = [](auto change) {
        Job_Row row = Plain_Row("1");
        change(row);
        return row;
    };
    const Job_Row Table[] = {
        with([](Job_Row& row) { row.parts = 0; }),         with([](Job_Row& row) { row.parts = 256; }),
        with([](Job_Row& row) { row.reference = 65536; }), with([](Job_Row& row) { row.reference = -2; }),
        with([](Job_Row& row) { row.message_class = 4; }), with([](Job_Row& row) { row.source_row = 0; }),
    };
    for (const Job_Row& row : Table)
        EXPECT_EQ(Write(Each_Of({Plain_Row("1"), row})).trouble, Job_Trouble::Too_Large);
    Job_Row huge = Plain_Row("1");
    huge.text = QString(17 << 20, u'x');
    EXPECT_EQ(Write(Each_Of({huge})).trouble, Job_Trouble::Too_Large);
    Job_Row skipped = Plain_Row("1", 0);
    skipped.skipped = "too-long";
    EXPECT_EQ(Write(Each_Of({skipped})).trouble, Job_Trouble::None) << "a row that is skipped needs no parts";
}

TEST_F(Job_List_Test, What_Is_Not_The_Frozen_List_Is_Refused)
{
    EXPECT_EQ(Job_List::Open(List_Path(), Sample_Id, Sum_Of(Sample_List)).trouble, Job_Trouble::List_Missing);
    for (qsizetype at = 0; at < Sample_List.size(); ++at) {
        QByteArray changed = Sample_List;
        changed[at] = static_cast<char>(changed.at(at) ^ 1);
        for (const QByteArray& bytes : {changed, Sample_List.left(at)}) {
            Write_Bytes(List_Path(), bytes);
            EXPECT_EQ(Job_List::Open(List_Path(), Sample_Id, Sum_Of(Sample_List)).trouble, Job_Trouble::List_Changed);
        }
    }
    Put_A_Folder_At(List_Path());
    EXPECT_EQ(Job_List::Open(List_Path(), Sample_Id, Sum_Of(Sample_List)).trouble, Job_Trouble::Unreadable);
}

TEST_F(Job_List_Test, What_No_List_Says_Is_Refused_Though_Its_Checksum_Is_Right)
{
    const auto with = [](const QByteArray& before, const QByteArray& after) {
        EXPECT_TRUE(Sample_List.contains(before));
        return QByteArray(Sample_List).replace(before, after);
    };
    EXPECT_EQ(Opened(with("L1\t", "L2\t")).trouble, Job_Trouble::Newer);
    const QByteArray Table[] = {
        "",
        "L1\n",
        Sample_List.chopped(1),
        Sample_List + "Z\t4\t4\n",
        Sample_List + "R\t5\t1\tgsm\t-\t1\t-\t\t\n",
        with("3f9a", "3f9b"),
        with("Z\t4\t4\n", ""),
        with("Z\t4\t4", "Z\t4\t5"),
        with("Z\t4\t4", "Z\t3\t4"),
        with("\t60\t", "\t060\t"),
        with("2.5", "two"),
        with("2.5", "inf"),
        with("auto", "any"),
        with("O\t", "o\t"),
        with("R\t2", "\nR\t2"),
        with("\t2\t200\t", "\t0\t200\t"),
        with("\t2\t200\t", "\t256\t200\t"),
        with("\tA long one", "\tA long\tone"),
        with("\tA long one", ""),
    };
    for (const QByteArray& bytes : Table)
        EXPECT_EQ(Opened(bytes).trouble, Job_Trouble::Damaged) << bytes.constData();
}

TEST_F(Job_List_Test, A_Row_That_Can_Not_Be_Read_Is_No_Row)
{
    const std::pair<QByteArray, QByteArray> Table[] = {
        {"Dear Ann,\\n", "Dear Ann,\\x"},
        {"Dear Ann,\\n", "Dear Ann,\\u00"},
        {"Dear Ann,\\n", "Dear Ann,\\u0041"},
        {"soon.", "soon.\\"},
        {"soon.", "so\xFFon."},
        {"\tgsm\t-\t1\t-\t\tDear", "\tGSM\t-\t1\t-\t\tDear"},
        {"gsm\t-\t1", "gsm\t4\t1"},
        {"R\t1\t", "R\t0\t"},
    };
    for (const auto& [before, after] : Table) {
        QByteArray bytes = Sample_List;
        const qsizetype found = bytes.indexOf(before);
        ASSERT_GE(found, 0);
        const auto list = Opened(bytes.replace(found, before.size(), after)).list;
        ASSERT_TRUE(list) << after.constData();
        EXPECT_EQ(list->Row(1), std::nullopt) << after.constData();
        EXPECT_TRUE(list->Row(2));
    }
    const auto list = Opened(Sample_List).list;
    ASSERT_TRUE(list);
    ASSERT_EQ(truncate(qPrintable(List_Path()), 100), 0);
    EXPECT_EQ(list->Row(4), std::nullopt) << "cut while it was open";
}

TEST_F(Job_List_Test, A_Hundred_Thousand_Rows_Take_No_Time)
{
    constexpr int Rows = 100'000;
    const Stopwatch watch;
    const auto next_row = [next = 0]() mutable {
        return next++ < Rows ? std::optional(Plain_Row(QString::number(next), 1 + next % 3)) : std::nullopt;
    };
    ASSERT_EQ(Write(next_row).rows, Rows);
    const auto list = Opened(Bytes_Of(List_Path())).list;
    ASSERT_TRUE(list);
    EXPECT_EQ(list->Row_Count(), Rows);
    EXPECT_EQ(list->Row(Rows), Plain_Row(QString::number(Rows), 1 + Rows % 3));
    EXPECT_LT(watch.Lasted_For_The_Thread(), 5.0);
}

TEST_F(Job_List_Test, A_Full_Disk_Is_Told)
{
    for (const rlim_t room : {0U, 1U, 100U, 250U}) {
        const Full_Disk disk(room);
        EXPECT_EQ(Write(Each_Of(Sample_Rows())).trouble, Job_Trouble::No_Room) << room;
    }
}
