#include "list/Number_Judge.h"

#include <gtest/gtest.h>

using Verdict = Number_Verdict;

namespace {

class Number_Judge_Test : public testing::Test
{
protected:
    Number_Judge_Test()
    {
        m_present.Append(QStringLiteral("123"));
        m_present.Append(QStringLiteral("456"));
        m_excluded.Append(QStringLiteral("456"));
        m_excluded.Append(QStringLiteral("789"));
    }

    Number_Terms Terms(bool refuse_repeats = true, bool refuse_excluded = true) const
    {
        return {refuse_repeats ? &m_present : nullptr, refuse_excluded ? &m_excluded : nullptr};
    }

    /// The number edited is 123; typed anew, any other is judged alike.
    Judged_Number Judged(const QString& typed, bool refuse_repeats = true, bool refuse_excluded = true) const
    {
        const auto terms = Terms(refuse_repeats, refuse_excluded);
        const auto edited = Judge_Edited_Number(typed, QStringLiteral("123"), terms);
        const auto anew = Judge_Number(typed, terms);
        EXPECT_TRUE(typed == QStringLiteral("123") || (edited.verdict == anew.verdict && edited.number == anew.number))
            << typed.toStdString();
        return edited;
    }

    Number_List m_present;
    Number_List m_excluded;
};

TEST_F(Number_Judge_Test, A_Number_Unchanged_Is_Kept_Without_Any_Check)
{
    m_excluded.Append(QStringLiteral("123"));
    EXPECT_EQ(Judged(QStringLiteral("123")).verdict, Verdict::Accepted);
    for (const auto* number : {"12,34", "+44+20", "", "   ", "no number at all, and too long"}) {
        const auto kept = Judge_Edited_Number(QLatin1String(number), QLatin1String(number), Terms());
        EXPECT_EQ(kept.verdict, Verdict::Accepted) << number;
        EXPECT_EQ(kept.number, QLatin1String(number));
    }
}

TEST_F(Number_Judge_Test, A_Number_Typed_Again_Is_A_Repeat)
{
    EXPECT_EQ(Judge_Number(QStringLiteral("123"), Terms()).verdict, Verdict::Repeated);
    EXPECT_EQ(Judge_Number(QStringLiteral("123"), {}).verdict, Verdict::Accepted);
}

TEST_F(Number_Judge_Test, A_Changed_Number_Is_Normalised)
{
    EXPECT_EQ(Judged(QStringLiteral("+44-20-7946")).number, QStringLiteral("0044207946"));
    EXPECT_EQ(Judged(QStringLiteral(" 12-34 ")).number, QStringLiteral("1234"));
    EXPECT_EQ(Judged(QStringLiteral("+123456789012345678")).number, QStringLiteral("00123456789012345678"));
    EXPECT_EQ(Judged(QString(20, u'7')).verdict, Verdict::Accepted);
}

TEST_F(Number_Judge_Test, What_Is_No_Number_Is_Refused)
{
    for (const auto* typed :
         {"", "-", "  ", "+44+20", "+44 20", "++44", "44+1", "12,34", "12a", "+1234567890123456789"})
        EXPECT_EQ(Judged(QLatin1String(typed)).verdict, Verdict::Not_Valid) << typed;
    EXPECT_EQ(Judged(QString(21, u'7')).verdict, Verdict::Not_Valid);
}

TEST_F(Number_Judge_Test, Repeats_Are_Found_Before_Exclusions)
{
    EXPECT_EQ(Judged(QStringLiteral("456")).verdict, Verdict::Repeated);
    EXPECT_EQ(Judged(QStringLiteral("456"), false).verdict, Verdict::Excluded);
    EXPECT_EQ(Judged(QStringLiteral("456"), false, false).verdict, Verdict::Accepted);
    EXPECT_EQ(Judged(QStringLiteral("789")).verdict, Verdict::Excluded);
    EXPECT_EQ(Judged(QStringLiteral("789"), true, false).verdict, Verdict::Accepted);
}

TEST_F(Number_Judge_Test, The_Same_Number_Written_Otherwise_Counts_As_Existing)
{
    EXPECT_EQ(Judged(QStringLiteral("1-23")).verdict, Verdict::Repeated);
    EXPECT_EQ(Judged(QStringLiteral("1-23"), false).number, QStringLiteral("123"));
}

} // namespace
