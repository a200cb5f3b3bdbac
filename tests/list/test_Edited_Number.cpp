#include "list/Edited_Number.h"

#include <gtest/gtest.h>

using Verdict = Edited_Number::Verdict;

namespace {

class Edited_Number_Test : public testing::Test
{
protected:
    Edited_Number_Test()
    {
        m_recipients.Append(QStringLiteral("123"), {});
        m_recipients.Append(QStringLiteral("456"), {});
        m_exclusions.Append(QStringLiteral("456"));
        m_exclusions.Append(QStringLiteral("789"));
    }

    /// The recipient edited is the one with 123.
    Edited_Number Judged(const QString& typed, bool refuse_duplicates = true, bool refuse_excluded = true) const
    {
        return Judge_Edited_Number(typed, QStringLiteral("123"), m_recipients, m_exclusions, refuse_duplicates,
                                   refuse_excluded);
    }

    Recipient_List m_recipients;
    Exclusion_Set m_exclusions;
};

TEST_F(Edited_Number_Test, A_Number_Unchanged_Is_Kept_Without_Any_Check)
{
    m_exclusions.Append(QStringLiteral("123"));
    EXPECT_EQ(Judged(QStringLiteral("123")).verdict, Verdict::Accepted);
    for (const auto* number : {"12,34", "+44+20", "", "   ", "no number at all, and too long"}) {
        const auto kept =
            Judge_Edited_Number(QLatin1String(number), QLatin1String(number), m_recipients, m_exclusions, true, true);
        EXPECT_EQ(kept.verdict, Verdict::Accepted) << number;
        EXPECT_EQ(kept.number, QLatin1String(number));
    }
}

TEST_F(Edited_Number_Test, A_Changed_Number_Is_Normalised)
{
    EXPECT_EQ(Judged(QStringLiteral("+44-20-7946")).number, QStringLiteral("0044207946"));
    EXPECT_EQ(Judged(QStringLiteral(" 12-34 ")).number, QStringLiteral("1234"));
    EXPECT_EQ(Judged(QString(20, u'7')).verdict, Verdict::Accepted);
}

TEST_F(Edited_Number_Test, What_Is_No_Number_Is_Refused)
{
    for (const auto* typed :
         {"", "-", "  ", "+44+20", "+44 20", "++44", "44+1", "12,34", "12a", "+1234567890123456789"})
        EXPECT_EQ(Judged(QLatin1String(typed)).verdict, Verdict::Not_Valid) << typed;
    EXPECT_EQ(Judged(QString(21, u'7')).verdict, Verdict::Not_Valid);
}

TEST_F(Edited_Number_Test, Duplicates_Are_Found_Before_Exclusions)
{
    EXPECT_EQ(Judged(QStringLiteral("456")).verdict, Verdict::Duplicate);
    EXPECT_EQ(Judged(QStringLiteral("456"), false).verdict, Verdict::Excluded);
    EXPECT_EQ(Judged(QStringLiteral("456"), false, false).verdict, Verdict::Accepted);
    EXPECT_EQ(Judged(QStringLiteral("789")).verdict, Verdict::Excluded);
    EXPECT_EQ(Judged(QStringLiteral("789"), true, false).verdict, Verdict::Accepted);
}

TEST_F(Edited_Number_Test, The_Same_Number_Written_Otherwise_Counts_As_Existing)
{
    EXPECT_EQ(Judged(QStringLiteral("1-23")).verdict, Verdict::Duplicate);
    EXPECT_EQ(Judged(QStringLiteral("1-23"), false).number, QStringLiteral("123"));
}

} // namespace
