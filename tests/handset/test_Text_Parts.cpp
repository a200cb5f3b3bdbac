#include "handset/Gsm_Alphabet.h"
#include "handset/Text_Parts.h"
#include "handset/Utf16.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <tuple>
#include <vector>

using namespace Handset;

namespace {

constexpr Alphabet Gsm = Alphabet::Gsm_7_Bit;
constexpr Alphabet Ucs2 = Alphabet::Ucs2;

const std::u16string High(1, char16_t(0xD83D));
const std::u16string Low(1, char16_t(0xDE00));

using Parts = std::vector<Text_Part>;
using Changes = std::vector<Changed_Character>;

struct Cut_Case
{
    const char* m_name;
    std::u16string m_text;
    Alphabet m_alphabet;
    Parts m_parts;
};

class Cutting : public testing::TestWithParam<Cut_Case>
{
};

} // namespace

TEST(Alphabet_For, Every_Character_Of_Both_Tables_Is_Seven_Bit)
{
    std::u16string all;
    for (int code = 0; code < 128; ++code) {
        if (code != Gsm_Escape)
            all += char16_t(Gsm_Default_Table.at(std::size_t(code)));
    }
    for (const auto& row : Gsm_Extension_Table)
        all += char16_t(row.m_character);
    EXPECT_EQ(Alphabet_For(all), Gsm);
    EXPECT_EQ(Written_Units(all, Gsm), 127u + 2 * 10u);
}

TEST(Alphabet_For, One_Character_Without_A_Place_Makes_The_Whole_Text_Ucs2)
{
    for (const char* seven_bit : {"", "\u00C7", "\u00E0\u00E8\u00E9\u00EC\u00F2\u00F9", "\n\r\f", "\u20AC", "\u0394"})
        EXPECT_EQ(Alphabet_For(Utf16_Of(seven_bit)), Gsm) << seven_bit;
    for (const char* ucs2 : {"\u00E7", "\u00E1", "\u2019", "\u2026", "\u00A0", "`", "\t", "\u0391", "\u00B4",
                             "\U0001F600", "\x1B", "\u20AB", "\u03A3\u03C2"})
        EXPECT_EQ(Alphabet_For(u"abc" + Utf16_Of(ucs2) + u"def"), Ucs2) << ucs2;
    EXPECT_EQ(Alphabet_For(std::u16string(1, u'\0')), Ucs2);
}

TEST(Alphabet_For, Lone_Surrogates_Have_No_Place)
{
    EXPECT_EQ(Alphabet_For(u"a" + High), Ucs2);
    EXPECT_EQ(Alphabet_For(Low + u"a"), Ucs2);
}

TEST(Alphabet_For, A_Choice_Rules)
{
    EXPECT_EQ(Alphabet_For(u"abc", Alphabet_Choice::Ucs2), Ucs2);
    EXPECT_EQ(Alphabet_For(u"\u00E7", Alphabet_Choice::Gsm_7_Bit), Gsm);
    EXPECT_EQ(Alphabet_For(u"\u00E7", Alphabet_Choice::Fitting), Ucs2);
}

TEST(Alphabet_For, The_Tables_And_The_Way_Back_Agree_For_Every_Unit)
{
    for (char32_t unit = 0; unit <= 0xFFFF; ++unit) {
        const auto place = Gsm_Place_Of(unit);
        if (!place)
            continue;
        const std::vector<std::uint8_t> septets = place->m_escaped
                                                      ? std::vector<std::uint8_t>{Gsm_Escape, place->m_code}
                                                      : std::vector<std::uint8_t>{place->m_code};
        EXPECT_EQ(Text_Of_Septets(septets), Utf8_Of(std::u16string(1, char16_t(unit)))) << std::uint32_t(unit);
    }
    EXPECT_FALSE(Gsm_Place_Of(0x1F600));
    EXPECT_FALSE(Gsm_Place_Of(0x10041)); // whose low half is a letter
}

// 160 septets or 70 units alone; 153 or 67 beside a header (3GPP TS 23.040 9.2.3.24.1).
INSTANTIATE_TEST_SUITE_P(
    All, Cutting,
    testing::Values(
        Cut_Case{"Empty", u"", Gsm, {{0, 0, 0}}}, Cut_Case{"Empty_Ucs2", u"", Ucs2, {{0, 0, 0}}},
        Cut_Case{"Full", 160 * std::u16string(u"a"), Gsm, {{0, 160, 160}}},
        Cut_Case{"One_More", 161 * std::u16string(u"a"), Gsm, {{0, 153, 153}, {153, 8, 8}}},
        Cut_Case{"Two_Full", 306 * std::u16string(u"a"), Gsm, {{0, 153, 153}, {153, 153, 153}}},
        Cut_Case{"Three", 307 * std::u16string(u"a"), Gsm, {{0, 153, 153}, {153, 153, 153}, {306, 1, 1}}},
        Cut_Case{"An_Extension_At_The_Very_End", 158 * std::u16string(u"a") + u"\\", Gsm, {{0, 159, 160}}},
        Cut_Case{"An_Extension_Past_It", 159 * std::u16string(u"a") + u"\\", Gsm, {{0, 153, 153}, {153, 7, 8}}},
        Cut_Case{"An_Extension_At_A_Parts_End",
                 151 * std::u16string(u"a") + u"[" + 20 * std::u16string(u"b"),
                 Gsm,
                 {{0, 152, 153}, {152, 20, 20}}},
        Cut_Case{"An_Extension_Across_A_Parts_End",
                 152 * std::u16string(u"a") + u"[" + 20 * std::u16string(u"b"),
                 Gsm,
                 {{0, 152, 152}, {152, 21, 22}}},
        Cut_Case{"Extensions_Alone", 100 * std::u16string(u"\u20AC"), Gsm, {{0, 76, 152}, {76, 24, 48}}},
        Cut_Case{"Full_Ucs2", 70 * std::u16string(u"\u0436"), Ucs2, {{0, 70, 70}}},
        Cut_Case{"One_More_Ucs2", 71 * std::u16string(u"\u0436"), Ucs2, {{0, 67, 67}, {67, 4, 4}}},
        Cut_Case{"Pairs_That_Fit", 35 * (High + Low), Ucs2, {{0, 70, 70}}},
        Cut_Case{"Seventy_Pairs", 70 * (High + Low), Ucs2, {{0, 66, 66}, {66, 66, 66}, {132, 8, 8}}},
        Cut_Case{"A_Pair_At_A_Parts_End",
                 65 * std::u16string(u"\u0436") + High + Low + 10 * std::u16string(u"a"),
                 Ucs2,
                 {{0, 67, 67}, {67, 10, 10}}},
        Cut_Case{"Extensions_Cost_One_Unit_In_Ucs2", 70 * std::u16string(u"{"), Ucs2, {{0, 70, 70}}},
        Cut_Case{
            "What_Has_No_Place_Costs_One_Septet", 159 * std::u16string(u"\u00E7") + High + Low, Gsm, {{0, 161, 160}}},
        Cut_Case{"A_Pair_Without_A_Place_At_A_Parts_End",
                 152 * std::u16string(u"a") + High + Low + 10 * std::u16string(u"b"),
                 Gsm,
                 {{0, 154, 153}, {154, 10, 10}}}),
    [](const auto& row) { return std::string(row.param.m_name); });

TEST_P(Cutting, Gives_These_Parts)
{
    const Parts cut = Cut_Text(GetParam().m_text, GetParam().m_alphabet);
    ASSERT_EQ(cut.size(), GetParam().m_parts.size());
    for (std::size_t i = 0; i < cut.size(); ++i) {
        EXPECT_EQ(cut[i].m_first, GetParam().m_parts[i].m_first) << i;
        EXPECT_EQ(cut[i].m_length, GetParam().m_parts[i].m_length) << i;
        EXPECT_EQ(cut[i].m_units, GetParam().m_parts[i].m_units) << i;
    }
}

TEST(Cut_Text_Apart, Leaves_No_Room_For_Headers)
{
    EXPECT_EQ(Cut_Text_Apart(u"", Gsm), (Parts{{0, 0, 0}}));
    EXPECT_EQ(Cut_Text_Apart(330 * std::u16string(u"a"), Gsm), (Parts{{0, 160, 160}, {160, 160, 160}, {320, 10, 10}}));
    EXPECT_EQ(Cut_Text_Apart(159 * std::u16string(u"a") + u"]b", Gsm), (Parts{{0, 159, 159}, {159, 2, 3}}));
    EXPECT_EQ(Cut_Text_Apart(69 * std::u16string(u"a") + High + Low, Ucs2), (Parts{{0, 69, 69}, {69, 2, 2}}));
}

TEST(Cut_Text, Parts_Follow_On_One_Another_And_Are_As_Long_As_They_Can_Be)
{
    std::mt19937 random(20261122);
    const std::u16string pieces[] = {u"a", u"{", u"\u20AC", u"\u00E7", u"\u0436", High + Low, High, Low, u"@"};
    for (int round = 0; round < 3000; ++round) {
        std::u16string text;
        const std::size_t count = random() % 500;
        const std::size_t kinds = 1 + random() % std::size(pieces);
        for (std::size_t i = 0; i < count; ++i)
            text += pieces[random() % kinds];
        const Alphabet alphabet = random() % 2 == 0 ? Gsm : Ucs2;
        const Parts parts = Cut_Text(text, alphabet);
        const std::size_t most = alphabet == Gsm ? (parts.size() == 1 ? 160 : 153) : (parts.size() == 1 ? 70 : 67);
        std::size_t next = 0;
        std::size_t units = 0;
        for (std::size_t i = 0; i < parts.size(); ++i) {
            EXPECT_EQ(parts[i].m_first, next);
            const auto stretch = std::u16string_view(text).substr(next, parts[i].m_length);
            EXPECT_EQ(parts[i].m_units, Written_Units(stretch, alphabet));
            EXPECT_LE(parts[i].m_units, most);
            next += parts[i].m_length;
            units += parts[i].m_units;
            if (i + 1 == parts.size())
                continue;
            const std::size_t first_of_next = Utf16_Units_Of(Code_Point_At(text, next));
            EXPECT_GT(parts[i].m_units + Written_Units(text.substr(next, first_of_next), alphabet), most);
        }
        EXPECT_EQ(next, text.size());
        EXPECT_EQ(units, Written_Units(text, alphabet)) << "no character was cut in two";
    }
}

TEST(Cut_Text, Millions_Of_Characters_Take_Their_Time_But_Once)
{
    EXPECT_EQ(Cut_Text(1'000'000 * std::u16string(u"a"), Gsm).size(), 6536u);
    EXPECT_EQ(Cut_Text(500'000 * (High + Low), Ucs2).size(), 15152u);
    EXPECT_EQ(Written_Text(1'000'000 * std::u16string(u"\u00E7"), Gsm).size(), 1'000'000u);
}

TEST(Changed_Characters, A_Text_That_Fits_Stays_As_It_Is)
{
    for (const auto& text : {u"", u"{hello} \u20AC", u"\u00E7 \u0436"}) {
        EXPECT_EQ(Changed_Characters(text, Alphabet_For(text)), Changes{});
        EXPECT_EQ(Written_Text(text, Alphabet_For(text)), text);
    }
    EXPECT_EQ(Changed_Characters(High + Low, Ucs2), Changes{});
}

TEST(Changed_Characters, The_Default_Alphabet_Shows_A_Question_Mark_For_Each_Character_Without_A_Place)
{
    const std::u16string text = u"\u00E7a\u2019" + High + Low + u"{" + High;
    EXPECT_EQ(Changed_Characters(text, Gsm),
              (Changes{{0, u"\u00E7", u"?"}, {2, u"\u2019", u"?"}, {3, High + Low, u"?"}, {6, High, u"?"}}));
    EXPECT_EQ(Written_Text(text, Gsm), u"?a??{?");
    EXPECT_EQ(Written_Units(text, Gsm), 7u);
}

TEST(Changed_Characters, Ucs2_Shows_The_Replacement_Character_For_Lone_Surrogates)
{
    const std::u16string text = u"a" + High + u"b" + Low + High + High + Low;
    EXPECT_EQ(Changed_Characters(text, Ucs2),
              (Changes{{1, High, u"\uFFFD"}, {3, Low, u"\uFFFD"}, {4, High, u"\uFFFD"}}));
    EXPECT_EQ(Written_Text(text, Ucs2), u"a\uFFFDb\uFFFD\uFFFD" + High + Low);
    EXPECT_EQ(Written_Units(text, Ucs2), 7u);
}
