#include "handset/Gsm_Alphabet.h"
#include "handset/Unicode_Text.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>

using namespace Handset;

namespace {

// 3GPP TS 23.038 6.2.1, column by column, the escape code left out.
const std::u32string Columns[8] = {U"@£$¥èéùìòÇ\nØø\rÅå", U"Δ_ΦΓΛΩΠΨΣΘΞÆæßÉ",  U" !\"#¤%&'()*+,-./",
                                   U"0123456789:;<=>?",   U"¡ABCDEFGHIJKLMNO", U"PQRSTUVWXYZÄÖÑÜ§",
                                   U"¿abcdefghijklmno",   U"pqrstuvwxyzäöñüà"};

std::map<int, std::string> Expected_Rows()
{
    std::map<int, std::string> rows;
    int code = 0;
    for (const auto& column : Columns) {
        for (const char32_t character : column) {
            code += code == Gsm_Escape ? 1 : 0;
            Append_Code_Point(rows[code++], character);
        }
    }
    return rows;
}

} // namespace

TEST(Gsm_Alphabet, Every_Row_Of_The_Default_Table_Shows_Its_Character)
{
    const auto rows = Expected_Rows();
    ASSERT_EQ(rows.size(), 127u);
    for (const auto& [code, text] : rows)
        EXPECT_EQ(Text_Of_Septets({std::uint8_t(code)}), text) << code;
}

TEST(Gsm_Alphabet, No_Character_Stands_In_Two_Rows)
{
    std::set<char32_t> seen;
    for (const char32_t character : Gsm_Default_Table)
        EXPECT_TRUE(seen.insert(character).second) << std::uint32_t(character);
    for (const auto& row : Gsm_Extension_Table)
        EXPECT_TRUE(seen.insert(row.m_character).second) << std::uint32_t(row.m_character);
}

TEST(Gsm_Alphabet, An_Escape_Shows_The_Row_Of_The_Extension_Table_Or_Else_Of_The_Default_Table)
{
    const std::map<int, std::string> extension = {{0x0A, "\f"}, {0x14, "^"}, {0x28, "{"}, {0x29, "}"}, {0x2F, "\\"},
                                                  {0x3C, "["},  {0x3D, "~"}, {0x3E, "]"}, {0x40, "|"}, {0x65, "€"}};
    ASSERT_EQ(extension.size(), Gsm_Extension_Table.size());
    auto rows = extension;
    rows.merge(Expected_Rows());
    ASSERT_EQ(rows.size(), 127u);
    for (const auto& [code, text] : rows)
        EXPECT_EQ(Text_Of_Septets({Gsm_Escape, std::uint8_t(code)}), text) << code;
}

TEST(Gsm_Alphabet, An_Escape_Before_An_Escape_And_One_At_The_End_Show_A_Blank)
{
    EXPECT_EQ(Text_Of_Septets({'a', Gsm_Escape, Gsm_Escape, 0x65}), "a e");
    EXPECT_EQ(Text_Of_Septets({'a', Gsm_Escape}), "a ");
    EXPECT_EQ(Text_Of_Septets({Gsm_Escape, Gsm_Escape, Gsm_Escape, 0x65}), " €");
}

TEST(Gsm_Alphabet, Septets_Come_Out_Of_Octets_Lowest_Bit_First)
{
    const std::vector<std::uint8_t> octets = {0xE8, 0x32, 0x9B, 0xFD, 0x06};
    EXPECT_EQ(Text_Of_Septets(Unpack_Septets(octets, 0, 5).value()), "hello");
    const std::vector<std::uint8_t> full = {0x31, 0xD9, 0x8C, 0x56, 0xB3, 0xDD, 0x70};
    EXPECT_EQ(Text_Of_Septets(Unpack_Septets(full, 0, 8).value()), "12345678");
    EXPECT_EQ(Text_Of_Septets(Unpack_Septets(full, 0, 7).value()), "1234567");
}

TEST(Gsm_Alphabet, Septets_Begin_Behind_The_Fill_Bits)
{
    for (std::size_t fill = 0; fill < 7; ++fill) {
        // 'A' (0x41) and 'b' (0x62) behind this many bits.
        const unsigned bits = (0x41u | 0x62u << 7) << fill;
        const std::vector<std::uint8_t> octets = {std::uint8_t(bits), std::uint8_t(bits >> 8),
                                                  std::uint8_t(bits >> 16)};
        EXPECT_EQ(Text_Of_Septets(Unpack_Septets(octets, fill, 2).value()), "Ab") << fill;
    }
}

TEST(Gsm_Alphabet, More_Septets_Than_The_Octets_Hold_Are_Refused)
{
    const std::vector<std::uint8_t> octets(7);
    EXPECT_TRUE(Unpack_Septets(octets, 0, 8));
    EXPECT_FALSE(Unpack_Septets(octets, 0, 9));
    EXPECT_FALSE(Unpack_Septets(octets, 1, 8));
    EXPECT_EQ(Unpack_Septets({}, 0, 0)->size(), 0u);
}

TEST(Gsm_Alphabet, Extension_Characters_Count_As_Two_Septets)
{
    const std::vector<std::tuple<std::string, std::size_t>> cases = {
        {"", 0}, {"hello", 5}, {"€", 2}, {"a{b}", 6}, {"@£ñ", 3}, {"中", 1}, {"^{}\\[~]|€", 18}};
    for (const auto& [text, count] : cases)
        EXPECT_EQ(Septet_Count_Of(text), count) << text;
}
