#include "plan/Message_Preview.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QString Number = QStringLiteral("00447700900100");

Plan_Manner Described(bool is_unicode = false)
{
    Plan_Manner manner;
    manner.fixed_waits = true;
    manner.alphabet = is_unicode ? Job_Alphabet_Choice::Unicode : Job_Alphabet_Choice::Gsm;
    return manner;
}

Plan_Manner Confirmed(Job_Alphabet_Choice alphabet = Job_Alphabet_Choice::Auto)
{
    Plan_Manner manner;
    manner.alphabet = alphabet;
    return manner;
}

Message_Preview Previewed(const QString& text, const Plan_Manner& manner)
{
    return Preview_Of_Message(text, Number, manner);
}

QString Emoji(int count)
{
    return QStringLiteral("🙂").repeated(count);
}

// Each named character as "from > to (count) = replacement", those of other scripts with "~".
std::vector<std::string> Named(const Message_Preview& preview)
{
    std::vector<std::string> named;
    for (const Named_Character& character : preview.characters) {
        QString line =
            character.character + " > " + character.arrives_as + QStringLiteral(" (%1)").arg(character.count);
        if (character.replacement)
            line += (character.replacement->is_of_script ? " ~ " : " = ") + character.replacement->text;
        named.push_back(line.toStdString());
    }
    return named;
}

QString Replacing(const QString& text, const Plan_Manner& manner, Replaced what, int which = 0)
{
    return With_Changes(text, Replacements_In(text, Previewed(text, manner), what, which));
}

struct Measured
{
    const char* name;
    QString text;
    int parts;
    int room;
    int left;
};

void PrintTo(const Measured& measured, std::ostream* out)
{
    *out << measured.name;
}

class Confirmed_Room : public testing::TestWithParam<Measured>
{
};

class Described_Room : public testing::TestWithParam<Measured>
{
};

void Expect_Room(const Measured& wanted, const Plan_Manner& manner)
{
    const Message_Preview preview = Previewed(wanted.text, manner);
    EXPECT_EQ(preview.row.parts, wanted.parts);
    EXPECT_EQ(preview.room, wanted.room);
    EXPECT_EQ(preview.left, wanted.left);
    EXPECT_EQ(Previewed(wanted.text + QString(preview.left, u'a'), manner).row.parts, wanted.parts);
    EXPECT_EQ(Previewed(wanted.text + QString(preview.left + 1, u'a'), manner).row.parts, wanted.parts + 1);
}

struct Shown_Replacement
{
    const char* text;
    const char* replaced;
    Replaced what = Replaced::Common;
};

class A_Replaced_Text : public testing::TestWithParam<Shown_Replacement>
{
};

} // namespace

TEST_P(Confirmed_Room, Is_That_Of_The_Standard)
{
    Expect_Room(GetParam(), Confirmed());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(In, Confirmed_Room, testing::Values(
    Measured{"Some_Letters", QString(137, u'a'), 1, 160, 23},
    Measured{"A_Full_Message", QString(160, u'a'), 1, 160, 0},
    Measured{"An_Escape_That_Makes_Two_Parts", QString(159, u'a') + u'\\', 2, 153, 145},
    Measured{"An_Escape_That_Moves_To_The_Next_Part", QString(152, u'a') + u'[' + QString(8, u'a'), 2, 153, 143},
    Measured{"Emoji", Emoji(35), 1, 70, 0},
    Measured{"Emoji_That_Are_Not_Cut", Emoji(70), 3, 67, 59}));
// clang-format on

TEST_P(Described_Room, Is_That_Of_The_Frames)
{
    Expect_Room(GetParam(), Described());
}

// A frame of 154 octets is none of a single message: for a number of 14 digits that is one of 151 septets.
// clang-format off
INSTANTIATE_TEST_SUITE_P(In, Described_Room, testing::Values(
    Measured{"Some_Letters", QString(100, u'a'), 1, 157, 57},
    Measured{"Parts", QString(161, u'a'), 2, 152, 143},
    Measured{"Three_Parts", QString(305, u'a'), 3, 152, 151}));
// clang-format on

TEST(Message_Preview, Characters_That_Make_A_Message_Unicode_Are_Named_And_Counted)
{
    const QString text = QStringLiteral("I’ll be there, won’t I? 🙂") + QString(50, u'.');
    const Message_Preview preview = Previewed(text, Confirmed());
    EXPECT_TRUE(preview.is_unicode_by_its_characters);
    EXPECT_EQ(preview.row.parts, 2);
    EXPECT_EQ(preview.parts_without, 1);
    EXPECT_THAT(Named(preview), ElementsAre("’ > ’ (2) = '", "🙂 > 🙂 (1)"));
    ASSERT_EQ(preview.places.size(), 3U);
    EXPECT_EQ(preview.places[1].at, text.lastIndexOf(u'’'));
    EXPECT_EQ(preview.places[2].length, 2);
    EXPECT_FALSE(Previewed(text, Confirmed(Job_Alphabet_Choice::Unicode)).is_unicode_by_its_characters);
    EXPECT_THAT(Named(Previewed(text, Confirmed(Job_Alphabet_Choice::Unicode))), IsEmpty());
}

TEST(Message_Preview, An_Invisible_Character_That_Makes_A_Message_Unicode_Is_Named)
{
    EXPECT_THAT(Named(Previewed(u"a\uFEFFb"_qs, Confirmed())), ElementsAre("\uFEFF > \uFEFF (1) = "));
}

TEST(Message_Preview, In_The_Described_Manner_What_Arrives_As_Another_Is_Named)
{
    // It would lose "ö", too.
    EXPECT_THAT(Named(Previewed("10 € or 20 €, ő", Described())), ElementsAre("€ > , (2) = EUR", "ő > Q (1) = o"));
    EXPECT_THAT(Named(Previewed("10 € or 20 €, ő", Described(true))), IsEmpty());
}

TEST(Message_Preview, Letters_Of_A_Long_Described_Message_Are_Replaced_By_Those_That_Arrive)
{
    const QString text = QStringLiteral("é and ő, $") + QString(200, u'.');
    EXPECT_THAT(Named(Previewed(text, Described())), ElementsAre("é > i (1) = e", "ő > Q (1) = o", "$ > ¤ (1)"));
}

TEST(Message_Preview, A_Pair_Is_Named_Whole_Among_Others)
{
    EXPECT_THAT(Named(Previewed("a🙂b€c", Described())), ElementsAre("🙂 > =B (1)", "€ > , (1) = EUR"));
}

// The low byte of both is the escape code.
TEST(Message_Preview, A_Character_That_Becomes_The_Escape_Is_Lost_Or_Changes_The_Next)
{
    EXPECT_THAT(Named(Previewed("děda", Described())), ElementsAre("ě >  (1) = e"));
    EXPECT_THAT(Named(Previewed("děeda", Described())), ElementsAre("ěe > € (1) = ee"));
    EXPECT_THAT(Named(Previewed("Лe", Described())), ElementsAre("Лe > € (1) ~ Le"));
    EXPECT_EQ(Previewed("děeda", Described()).row.shown, QStringLiteral("d€da"));
    EXPECT_THAT(Named(Previewed("dě", Described())), ElementsAre("ě >   (1) = e"));
}

TEST(Message_Preview, A_Letter_And_Its_Marks_Are_One)
{
    const QString composed = QStringLiteral("cafe\u0301");
    EXPECT_THAT(Named(Previewed(composed, Confirmed())), ElementsAre("e\u0301 > e\u0301 (1) = é"));
    EXPECT_EQ(Replacing(composed, Confirmed(), Replaced::Common), QStringLiteral("café"));
}

TEST(Message_Preview, One_Kind_Is_Replaced_Without_The_Others)
{
    const QString text = QStringLiteral("“A” – “B”");
    EXPECT_EQ(Replacing(text, Confirmed(), Replaced::One, 0), QStringLiteral("\"A” – \"B”"));
    EXPECT_EQ(Replacing(text, Confirmed(), Replaced::One, 2), QStringLiteral("“A” - “B”"));
}

TEST_P(A_Replaced_Text, Reads)
{
    const auto& [text, replaced, what] = GetParam();
    EXPECT_EQ(Replacing(QString::fromUtf8(text), Confirmed(), what), QString::fromUtf8(replaced));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(As, A_Replaced_Text, testing::Values(
    Shown_Replacement{"“Łódź” – № 5…", "\"Lodz\" - No 5..."},
    Shown_Replacement{"Đặng Şükrü İıĞğ", "Dang Sükrü IiGg"},
    Shown_Replacement{"äöüéßÅØÑ ç ’", "äöüéßÅØÑ c '"},         // what the alphabet has stays
    Shown_Replacement{"Nguyễn Trường", "Nguyen Truong"},
    Shown_Replacement{"½ °C ™️", "1/2  degC (TM)"},
    Shown_Replacement{"Щёкин Юля …", "Щёкин Юля ..."},          // another script is for a wish of its own
    Shown_Replacement{"Щёкин Юля …", "Shchekin Yulya …", Replaced::Script},
    Shown_Replacement{"Καλημέρα “Δ”", "KAΛHMEPA “Δ”", Replaced::Script},
    Shown_Replacement{"日本 👨‍👩‍👧 ™", "日本 👨‍👩‍👧 (TM)"}, // joined emoji are one
    Shown_Replacement{"a\u200Bb\u200Dc\u00A0d", "abc d"}));
// clang-format on

TEST(Changed_Texts, Are_Put_In_Their_Places)
{
    EXPECT_EQ(With_Changes("abcd", {{0, "a", "xy"}, {2, "c", ""}, {4, "", "!"}}), QStringLiteral("xybd!"));
    EXPECT_EQ(With_Changes("abcd", {}), QStringLiteral("abcd"));
}
