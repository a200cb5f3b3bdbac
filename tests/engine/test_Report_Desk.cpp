#include "engine/Report_Desk.h"

#include <QDateTime>
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

TEST(Report_Desk, Of_Several_Alike_The_Nearest_In_Time_Is_Meant)
{
    Report_Desk desk;
    desk.Expect(QStringLiteral("07700900100"), {0, 1, 17, Seconds("2026-11-21T10:00:00Z")});
    desk.Expect(QStringLiteral("07700900100"), {256, 1, 17, Seconds("2026-11-21T11:00:00Z")});
    EXPECT_EQ(desk.Match(Report(17, "07700900100", Delivered, "2026-11-21T11:58:00+01:00"))->index, 256);
    EXPECT_EQ(desk.Match(Report(17, "07700900100"))->index, 0);
}
