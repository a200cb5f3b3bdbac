#include "engine/Report_Desk.h"

#include "records/Job_Journal.h"

#include <QDateTime>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace {

constexpr std::uint8_t Delivered = 0x00;
constexpr std::uint8_t Phone_Busy = 0x21; // still trying

Handset::Status_Report Report(int reference, const char* number, std::uint8_t status = Delivered,
                              const char* submitted = "")
{
    Handset::Status_Report report;
    report.m_reference = reference;
    report.m_number = number;
    report.m_status = status;
    report.m_submitted = submitted;
    return report;
}

qint64 Seconds(const char* time)
{
    return QDateTime::fromString(QString::fromLatin1(time), Qt::ISODate).toSecsSinceEpoch();
}

} // namespace

TEST(Report_Desk, Finds_The_Part_By_Its_Reference_And_The_Last_Digits_Of_Its_Number)
{
    Report_Desk desk;
    desk.Expect(QStringLiteral("00447700900100"), {4, 2, 17, 0});
    EXPECT_FALSE(desk.Match(Report(18, "+447700900100"))) << "another reference";
    EXPECT_FALSE(desk.Match(Report(17, "+447700900101"))) << "another number";
    const auto part = desk.Match(Report(17, "07700900100"));
    ASSERT_TRUE(part);
    EXPECT_EQ(part->index, 4);
    EXPECT_EQ(part->part, 2);
}

TEST(Report_Desk, A_Final_Report_Closes_The_Part_And_A_Second_One_Finds_None)
{
    Report_Desk desk;
    desk.Expect(QStringLiteral("07700900100"), {0, 1, 17, 0});
    EXPECT_TRUE(desk.Match(Report(17, "07700900100", Phone_Busy)));
    EXPECT_FALSE(desk.Is_Empty()) << "it is still trying";
    EXPECT_TRUE(desk.Match(Report(17, "07700900100")));
    EXPECT_TRUE(desk.Is_Empty());
    EXPECT_FALSE(desk.Match(Report(17, "07700900100")));
}

TEST(Report_Desk, Parts_Of_Several_Cards_Are_Told_Apart_Whatever_Their_Times)
{
    const QString number = QStringLiteral("07700900100");
    Report_Desk desk;
    desk.Expect(number, {0, 1, 17, Seconds("2026-11-21T10:00:00Z"), 0, QStringLiteral("23415")});
    desk.Expect(number, {1, 1, 17, Seconds("2026-11-21T11:00:00Z"), 0, QStringLiteral("26201")});
    const Handset::Status_Report report = Report(17, "07700900100", Delivered, "2026-11-21T10:00:00Z");
    EXPECT_FALSE(desk.Match(report, QStringLiteral("31015")));
    EXPECT_EQ(desk.Match(report, QStringLiteral("26201"))->index, 1);
    EXPECT_FALSE(desk.Is_Empty());
}

TEST(Report_Desk, Of_Several_Alike_The_Nearest_In_Time_Is_Meant)
{
    Report_Desk desk;
    desk.Expect(QStringLiteral("07700900100"), {0, 1, 17, Seconds("2026-11-21T10:00:00Z")});
    desk.Expect(QStringLiteral("07700900100"), {256, 1, 17, Seconds("2026-11-21T11:00:00Z")});
    EXPECT_EQ(desk.Match(Report(17, "07700900100", Delivered, "2026-11-21T11:58:00+01:00"))->index, 256);
    EXPECT_EQ(desk.Match(Report(17, "07700900100"))->index, 0);
}

TEST(Report_Desk, The_Same_Report_Counts_Once)
{
    Report_Desk desk;
    for (const int index : {0, 256})
        desk.Expect(QStringLiteral("07700900100"), {index, 1, 17, Seconds("2026-11-21T10:00:00Z")});
    const auto busy = Report(17, "07700900100", Phone_Busy, "2026-11-21T10:00:01Z");
    const auto delivered = Report(17, "+447700900100", Delivered, "2026-11-21T10:00:01Z");
    EXPECT_FALSE(desk.Counted_For(busy));
    EXPECT_EQ(desk.Match(busy)->index, 0);
    EXPECT_FALSE(desk.Match(busy));
    EXPECT_EQ(desk.Match(delivered)->index, 0);
    EXPECT_FALSE(desk.Match(delivered)) << "it is not about the other part";
    EXPECT_EQ(desk.Counted_For(delivered), 0);
    EXPECT_FALSE(desk.Match(busy)) << "out of order";
    const auto without_time = Report(17, "07700900100");
    EXPECT_EQ(desk.Match(without_time)->index, 256);
    EXPECT_FALSE(desk.Match(without_time));
    EXPECT_EQ(desk.Counted_For(without_time), 0);
}

TEST(Report_Desk, Of_Several_Jobs_The_Nearest_In_Time_Is_Meant_And_Of_Earlier_Ones_None_Far_Away)
{
    Report_Desk desk;
    const QString number = QStringLiteral("07700900100");
    desk.Expect(number, {0, 1, 17, Seconds("2026-11-01T10:00:00Z"), 1});
    desk.Expect(number, {0, 1, 17, Seconds("2026-11-08T10:00:00Z"), 2});
    EXPECT_TRUE(desk.Is_Empty()) << "nothing of the job at hand is open";
    EXPECT_FALSE(desk.Match(Report(17, "07700900100", Delivered, "2026-11-03T11:00:00Z"))) << "another program's";
    EXPECT_EQ(desk.Match(Report(17, "07700900100", Delivered, "2026-11-08T11:00:00Z"))->job, 2);
    desk.Expect(number, {0, 1, 17, Seconds("2026-11-21T10:00:00Z")});
    EXPECT_FALSE(desk.Is_Empty());
    EXPECT_EQ(desk.Match(Report(17, "07700900100", Delivered, "2026-11-20T10:00:00Z"))->job, 0);
    EXPECT_EQ(desk.Match(Report(17, "07700900100", Delivered, "2026-11-02T10:00:00Z"))->job, 1);
}

TEST(Report_Desk, A_Journal_Says_What_Is_Awaited_And_What_Was_Counted)
{
    const QTemporaryDir folder;
    const QDateTime begin(QDate(2026, 11, 21), QTime(10, 0), Qt::UTC);
    const auto opened = Job_Journal::Create(
        folder.path(), {QStringLiteral("a"), QStringLiteral("001010123456789"), {}, {}},
        [row = 0]() mutable -> std::optional<Job_Row> {
            if (++row > 4)
                return std::nullopt;
            Job_Row frozen;
            frozen.number = QStringLiteral("0770090010%1").arg(row);
            frozen.parts = row == 1 ? 2 : 1;
            return frozen;
        },
        [begin] { return begin; });
    Job_Journal& journal = *opened.journal;
    const auto accept = [&](int row, int part, int of, int reference) {
        ASSERT_TRUE(journal.Hand_Over(row, part, of) && journal.Accepted(row, part, reference));
    };
    accept(1, 1, 2, 7);
    accept(1, 2, 2, 8);
    accept(2, 1, 1, -1);
    accept(3, 1, 1, 9);
    ASSERT_TRUE(journal.Hand_Over(4, 1, 1) && journal.Refused(4, 1, QStringLiteral("cms:500")));
    const qint64 submitted = begin.toSecsSinceEpoch() + 1;
    ASSERT_TRUE(journal.Report({}, 7, QStringLiteral("+447700900101"), submitted + 90'000, Delivered, submitted));
    ASSERT_TRUE(journal.Report({}, 9, QStringLiteral("07700900103"), submitted, Phone_Busy));
    Report_Desk desk;
    desk.Take_Over(Report_Desk::Of(*Read_Job(journal.Path()).record, 3));
    EXPECT_TRUE(desk.Is_Empty());
    const auto first = Report(7, "07700900101", Delivered, "2026-11-21T10:00:01Z");
    EXPECT_FALSE(desk.Match(first));
    EXPECT_EQ(desk.Counted_For(first), 3);
    const auto second = desk.Match(Report(8, "07700900101", Delivered, "2026-11-21T10:00:01Z"));
    ASSERT_TRUE(second);
    EXPECT_EQ((std::array{second->index, second->part, second->job}), (std::array{0, 2, 3}));
    EXPECT_TRUE(desk.Match(Report(9, "07700900103", Delivered, "2026-11-21T10:00:01Z"))) << "it was still trying";
    EXPECT_FALSE(Report_Desk::Of(*Read_Job(journal.Path()).record).Is_Empty());
}
