#include "handset/Gsm_Alphabet.h"
#include "handset/Replacements.h"
#include "handset/Unicode_Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iomanip>
#include <set>

using namespace Handset;

namespace {

constexpr std::array Outside_The_Alphabet = {Replacement_Group::Common, Replacement_Group::Script};

bool Is_In_Alphabet(char32_t character)
{
    return Gsm_Place_Of(character).has_value();
}

bool Is_Ascii(char32_t character)
{
    return character < 0x80;
}

struct Replaced_Letter
{
    char32_t m_character;
    std::u16string_view m_text;
    Replacement_Group m_group = Replacement_Group::Common;
};

void PrintTo(const Replaced_Letter& letter, std::ostream* out)
{
    *out << "U+" << std::hex << std::setw(4) << std::setfill('0') << std::uppercase
         << std::uint32_t(letter.m_character);
}

class A_Replacement : public testing::TestWithParam<Replaced_Letter>
{
};

class No_Replacement : public testing::TestWithParam<char32_t>
{
};

} // namespace

TEST(Replacements, Stand_In_For_What_The_Alphabet_Lacks)
{
    for (const auto group : Outside_The_Alphabet) {
        for (const auto& row : Replacement_Rows(group))
            EXPECT_FALSE(Is_In_Alphabet(row.m_character)) << std::uint32_t(row.m_character);
    }
}

TEST(Replacements, Are_Written_In_The_Alphabet)
{
    for (const auto group : {Replacement_Group::Common, Replacement_Group::Script, Replacement_Group::Plain}) {
        for (const auto& row : Replacement_Rows(group))
            EXPECT_TRUE(std::ranges::all_of(row.m_text, Is_In_Alphabet)) << std::uint32_t(row.m_character);
    }
}

TEST(Replacements, Of_The_Plain_Group_Are_Ascii_For_Characters_Of_The_Alphabet)
{
    for (const auto& row : Replacement_Rows(Replacement_Group::Plain)) {
        EXPECT_TRUE(Is_In_Alphabet(row.m_character)) << std::uint32_t(row.m_character);
        EXPECT_TRUE(!row.m_text.empty() && std::ranges::all_of(row.m_text, Is_Ascii)) << std::uint32_t(row.m_character);
    }
}

TEST(Replacements, Are_Each_There_Once)
{
    std::set<char32_t> seen;
    for (const auto group : {Replacement_Group::Common, Replacement_Group::Script, Replacement_Group::Plain}) {
        for (const auto& row : Replacement_Rows(group))
            EXPECT_TRUE(seen.insert(row.m_character).second) << std::uint32_t(row.m_character);
    }
    EXPECT_EQ(Replacement_Rows(Replacement_Group::Common).size(), 371U);
    EXPECT_EQ(Replacement_Rows(Replacement_Group::Script).size(), 169U);
}

TEST(Replacements, Cover_Every_Latin_Letter_With_A_Mark_Up_To_U017F)
{
    for (char32_t letter = 0xC0; letter < 0x180; ++letter) {
        EXPECT_TRUE(Is_In_Alphabet(letter) || Replacement_Of(letter, Replacement_Group::Common))
            << std::uint32_t(letter);
    }
}

TEST_P(A_Replacement, Is_Found_In_Its_Group_Alone)
{
    const auto& [character, text, group] = GetParam();
    for (const auto other : {Replacement_Group::Common, Replacement_Group::Script, Replacement_Group::Plain}) {
        const auto wanted = other == group ? std::optional(text) : std::nullopt;
        EXPECT_EQ(Replacement_Of(character, other), wanted);
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Of, A_Replacement, testing::Values(
    Replaced_Letter{U'’', u"'"},
    Replaced_Letter{U'“', u"\""},
    Replaced_Letter{U'—', u"-"},
    Replaced_Letter{U'…', u"..."},
    Replaced_Letter{0xA0, u" "},       // no-break space
    Replaced_Letter{0x2009, u" "},     // thin space
    Replaced_Letter{0x200B, u""},      // zero-width space
    Replaced_Letter{0x0301, u""},      // combining acute accent
    Replaced_Letter{U'\t', u" "},
    Replaced_Letter{U'`', u"'"},
    Replaced_Letter{U'ç', u"c"},       // the alphabet has the capital alone
    Replaced_Letter{U'á', u"a"},
    Replaced_Letter{U'ł', u"l"},
    Replaced_Letter{U'Đ', u"D"},
    Replaced_Letter{U'ş', u"s"},
    Replaced_Letter{U'ğ', u"g"},
    Replaced_Letter{U'ı', u"i"},
    Replaced_Letter{U'İ', u"I"},
    Replaced_Letter{U'ő', u"ö"},       // which the alphabet has
    Replaced_Letter{U'œ', u"oe"},
    Replaced_Letter{U'ﬁ', u"fi"},
    Replaced_Letter{U'½', u"1/2"},
    Replaced_Letter{U'№', u"No"},
    Replaced_Letter{U'™', u"(TM)"},
    Replaced_Letter{U'₹', u"INR"},
    Replaced_Letter{U'Щ', u"Shch", Replacement_Group::Script},
    Replaced_Letter{U'ь', u"", Replacement_Group::Script},
    Replaced_Letter{U'α', u"A", Replacement_Group::Script},
    Replaced_Letter{U'ς', u"Σ", Replacement_Group::Script},
    Replaced_Letter{U'€', u"EUR", Replacement_Group::Plain},
    Replaced_Letter{U'ü', u"u", Replacement_Group::Plain}));

INSTANTIATE_TEST_SUITE_P(Of, No_Replacement, testing::Values(
    U'a', U'\n', U'$', U'Δ', U'日', U'ש', 0x1F642, 0x1F468, 0xD800, 0x10FFFF));
// clang-format on

TEST_P(No_Replacement, Is_Offered)
{
    for (const auto group : {Replacement_Group::Common, Replacement_Group::Script, Replacement_Group::Plain})
        EXPECT_FALSE(Replacement_Of(GetParam(), group));
}
