#include "handset/Unicode_Text.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

using namespace Handset;

TEST(Unicode_Text, Code_Points_Of_Every_Length_Become_Utf8)
{
    const std::pair<char32_t, std::string> cases[] = {{0x00, std::string(1, '\0')},
                                                      {0x7F, "\x7F"},
                                                      {0x80, "\xC2\x80"},
                                                      {0x7FF, "\xDF\xBF"},
                                                      {0x800, "\xE0\xA0\x80"},
                                                      {0xFFFF, "\xEF\xBF\xBF"},
                                                      {0x10000, "\xF0\x90\x80\x80"},
                                                      {0x10FFFF, "\xF4\x8F\xBF\xBF"}};
    for (const auto& [code_point, utf8] : cases) {
        std::string text;
        Append_Code_Point(text, code_point);
        EXPECT_EQ(text, utf8) << std::uint32_t(code_point);
        EXPECT_EQ(Code_Points_Of(utf8), std::u32string(1, code_point));
    }
}

TEST(Unicode_Text, What_Is_No_Character_Becomes_The_Replacement_Character)
{
    for (const char32_t none : {0xD800, 0xDBFF, 0xDC00, 0xDFFF, 0x110000}) {
        std::string text;
        Append_Code_Point(text, none);
        EXPECT_EQ(text, "\uFFFD");
    }
}

TEST(Unicode_Text, Surrogate_Pairs_Become_One_Character_And_Lone_Ones_The_Replacement_Character)
{
    const std::pair<std::vector<std::uint8_t>, const char*> cases[] = {
        {{0xD8, 0x3D, 0xDE, 0x00}, "😀"},
        {{0x03, 0xA9, 0x00, 0x21}, "Ω!"},
        {{0xD8, 0x3D, 0x00, 0x41}, "\uFFFDA"},
        {{0xDE, 0x00, 0x00, 0x41}, "\uFFFDA"},
        {{0xD8, 0x3D}, "\uFFFD"},
        {{0xD8, 0x3D, 0xD8, 0x3D, 0xDE, 0x00}, "\uFFFD😀"},
        {{0x00, 0x41, 0x00}, "A\uFFFD"},
    };
    for (const auto& [octets, text] : cases)
        EXPECT_EQ(Text_Of_Utf16_Octets(octets), text) << text;
}

TEST(Unicode_Text, Only_Well_Formed_Utf8_Has_Code_Points)
{
    EXPECT_EQ(Code_Points_Of("aé😀"), U"aé😀");
    for (const char* wrong : {"\x80", "\xC3", "\xC3(", "\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80",
                              "\xF8\x88\x80\x80\x80", "\xFF", "a\xE2\x82"})
        EXPECT_FALSE(Code_Points_Of(wrong)) << testing::PrintToString(std::string(wrong));
}

TEST(Unicode_Text, Latin_1_Bytes_Are_One_Character_Each)
{
    EXPECT_EQ(Text_Of_Latin_1("gr\xFC\xDF"), "grüß");
}

TEST(Unicode_Text, Hexadecimal_Digits_Come_In_Pairs_And_Text_Becomes_Such_Of_Utf16)
{
    EXPECT_EQ(Octets_Of_Hex("00fFa9"), (std::vector<std::uint8_t>{0x00, 0xFF, 0xA9}));
    EXPECT_EQ(Octets_Of_Hex("")->size(), 0u);
    for (const char* wrong : {"0", "0G", "G0", " 0", "+1", "0x", "000"})
        EXPECT_FALSE(Octets_Of_Hex(wrong)) << wrong;
    EXPECT_EQ(Hex_Utf16_Of("Hi Ω"), "00480069002003A9");
    EXPECT_EQ(Hex_Utf16_Of("😀"), "D83DDE00");
}

TEST(Unicode_Text, The_Code_Point_At_A_Unit_Is_A_Pair_Or_The_Unit_Itself)
{
    const std::u16string text = u"a\U0001F600\u20AC";
    EXPECT_EQ(Code_Point_At(text, 0), U'a');
    EXPECT_EQ(Code_Point_At(text, 1), char32_t(0x1F600));
    EXPECT_EQ(Code_Point_At(text, 2), char32_t(0xDE00)) << "in the middle of a pair";
    EXPECT_EQ(Code_Point_At(text, 3), char32_t(0x20AC));
    const std::u16string lone = {char16_t(0xD83D), u'a', char16_t(0xDBFF), char16_t(0xD83D)};
    for (std::size_t at = 0; at < lone.size(); ++at)
        EXPECT_EQ(Code_Point_At(lone, at), char32_t(lone[at])) << at;
    EXPECT_EQ(Utf16_Units_Of(0xFFFF), 1u);
    EXPECT_EQ(Utf16_Units_Of(0x10000), 2u);
}

TEST(Unicode_Text, Octets_And_Units_Become_Upper_Case_Digits)
{
    const std::vector<std::uint8_t> octets = {0x00, 0x1F, 0xA0, 0xFF};
    EXPECT_EQ(Hex_Of_Octets(octets), "001FA0FF");
    EXPECT_EQ(Octets_Of_Hex(Hex_Of_Octets(octets)), octets);
    EXPECT_EQ(Hex_Of_Utf16(u"A\u20AC\U0001F600"), "004120ACD83DDE00");
    EXPECT_EQ(Hex_Of_Utf16(u"A\u20AC\U0001F600"), Hex_Utf16_Of("A\u20AC\U0001F600"));
}
