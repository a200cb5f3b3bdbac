#include "list/Number_Judge.h"

#include <gtest/gtest.h>

namespace {

using enum Number_Verdict;

class Number_Judge_Test : public testing::Test
{
protected:
    Number_Judge_Test()
    {
        for (const char* number : {"123", "456"})
            m_present.Append(QString(number));
        for (const char* number : {"456", "789"})
            m_excluded.Append(QString(number));
    }

    Number_List m_present;
    Number_List m_excluded;
};

TEST_F(Number_Judge_Test, A_Number_Unchanged_Is_Kept_Without_Any_Check)
{
    m_excluded.Append(QString("123"));
    for (const QString number : {"123", "12,34", "+44+20", "", "   ", "no number at all, and too long"}) {
        const auto kept = Judge_Edited_Number(number, number, {&m_present, &m_excluded});
        EXPECT_EQ(kept.verdict, Accepted) << number.toStdString();
        EXPECT_EQ(kept.number, number);
    }
}

TEST_F(Number_Judge_Test, A_Number_Typed_Or_Changed_Is_Normalised_And_Looked_For_Where_It_Matters)
{
    struct Case
    {
        const char* typed;
        Number_Terms terms;
        Number_Verdict verdict;
        const char* number;
    };
    const Number_Terms all{&m_present, &m_excluded};
    for (const Case& each : {Case{" +44-20-7946", all, Accepted, "0044207946"},
                             {"44+1", all, Not_Valid, ""},
                             {"123", all, Repeated, "123"},
                             {"1-23", all, Repeated, "123"},
                             {"1-23", {nullptr, &m_excluded}, Accepted, "123"},
                             {"456", all, Repeated, "456"},
                             {"456", {nullptr, &m_excluded}, Excluded, "456"},
                             {"456", {}, Accepted, "456"},
                             {"789", all, Excluded, "789"},
                             {"789", {&m_present}, Accepted, "789"}}) {
        for (const auto& judged :
             {Judge_Number(each.typed, each.terms), Judge_Edited_Number(each.typed, "12 3", each.terms)}) {
            EXPECT_EQ(judged.verdict, each.verdict) << each.typed;
            EXPECT_EQ(judged.number, each.number) << each.typed;
        }
    }
}

} // namespace
