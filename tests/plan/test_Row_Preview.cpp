#include "plan/Row_Preview.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

Row_Preview Previewed(const QString& text, Job_Alphabet_Choice alphabet, bool fixed_waits = false)
{
    Plan_Manner manner;
    manner.alphabet = alphabet;
    manner.fixed_waits = fixed_waits;
    return Preview_Of({1, QStringLiteral("00447700900100"), text, {}}, manner);
}

} // namespace

TEST(Row_Preview, The_Seven_Bit_Alphabet_Counts_Its_Extension_Twice)
{
    const Row_Preview preview = Previewed(QStringLiteral("10 €"), Job_Alphabet_Choice::Auto);
    EXPECT_EQ(preview.alphabet, Job_Alphabet::Gsm);
    EXPECT_EQ(preview.units, 5);
    EXPECT_EQ(preview.parts, 1);
    EXPECT_EQ(preview.shown, QStringLiteral("10 €"));
    EXPECT_THAT(preview.changed, IsEmpty());
}

TEST(Row_Preview, A_Text_That_Does_Not_Fit_Takes_Unicode_By_Itself)
{
    const QString text = QStringLiteral("Привет 😀");
    const Row_Preview preview = Previewed(text, Job_Alphabet_Choice::Auto);
    EXPECT_EQ(preview.alphabet, Job_Alphabet::Ucs2);
    EXPECT_EQ(preview.units, 9);
    EXPECT_EQ(preview.shown, text);
    EXPECT_THAT(preview.changed, IsEmpty());
}

TEST(Row_Preview, A_Mark_Of_The_Byte_Order_In_Front_Is_A_Character_Like_Others)
{
    for (const QString& text : {u"\uFEFFПривет"_qs, u"\uFFFEПривет"_qs}) {
        const Row_Preview preview = Previewed(text, Job_Alphabet_Choice::Auto);
        EXPECT_EQ(preview.shown, text);
        EXPECT_THAT(preview.changed, IsEmpty());
    }
}

TEST(Row_Preview, What_Has_No_Place_Is_Named)
{
    const Row_Preview preview = Previewed(QStringLiteral("a😀bж"), Job_Alphabet_Choice::Gsm);
    EXPECT_EQ(preview.shown, QStringLiteral("a?b?"));
    EXPECT_THAT(preview.changed, ElementsAre(Changed_Text{1, QStringLiteral("😀"), QStringLiteral("?")},
                                             Changed_Text{4, QStringLiteral("ж"), QStringLiteral("?")}));
}

TEST(Row_Preview, Parts_Are_Joined_As_A_Handset_Joins_Them)
{
    const QString text = QString(300, u'x') + QStringLiteral("€") + QString(400, u'y');
    for (const bool fixed_waits : {false, true}) {
        const QString sent = fixed_waits ? text.chopped(0).replace(u'€', u'e') : text;
        const Row_Preview preview = Previewed(sent, Job_Alphabet_Choice::Gsm, fixed_waits);
        EXPECT_EQ(preview.parts, 5);
        EXPECT_EQ(preview.shown, sent);
    }
}

TEST(Changes, Are_Found_In_Step_And_As_A_Stretch)
{
    EXPECT_THAT(Changes_Between("same", "same"), IsEmpty());
    EXPECT_THAT(Changes_Between("abc", "axc"), ElementsAre(Changed_Text{1, "b", "x"}));
    EXPECT_THAT(Changes_Between("abcd", "ad"), ElementsAre(Changed_Text{1, "bc", ""}));
    EXPECT_THAT(Changes_Between("ad", "abcd"), ElementsAre(Changed_Text{1, "", "bc"}));
    EXPECT_THAT(Changes_Between("aaa", "aa"), ElementsAre(Changed_Text{2, "a", ""}));
    EXPECT_THAT(Changes_Between("", "x"), ElementsAre(Changed_Text{0, "", "x"}));
}
