#include <gtest/gtest.h>

#include "Expected_Alphabet.h"
#include "Reference_Codec.h"
#include "Sample_Texts.h"
#include "Text_Printing.h"
#include "pdu/PDU.h"

using namespace Qt::StringLiterals;

namespace {

QString Packed(const QString& text)
{
    return PDU::EncodeUserData(PDU::MapTo7BitAlphabet(text));
}

} // namespace

TEST(User_Data, A_Mapped_Text_Has_One_Character_For_Each_Septet)
{
    EXPECT_EQ(PDU::MapTo7BitAlphabet(u"hello"_s), u"hello"_s);
    EXPECT_EQ(PDU::MapTo7BitAlphabet(u"a{b}"_s), u"a\x1B(b\x1B)"_s);
    EXPECT_EQ(PDU::MapTo7BitAlphabet(u"_£\n"_s), u"\x11\x01\n"_s);
    EXPECT_EQ(PDU::MapTo7BitAlphabet(QString()), QString());
}

TEST(User_Data, Code_0_And_A_Plain_64_Are_Carried_As_At_And_An_Escaped_64_As_The_Bar)
{
    EXPECT_EQ(PDU::MapTo7BitAlphabet(u"@"_s), u"@"_s);
    EXPECT_EQ(PDU::MapTo7BitAlphabet(QString(QChar(u'\0'))), u"@"_s);
    EXPECT_EQ(PDU::MapTo7BitAlphabet(u"¡"_s), u"@"_s);
    EXPECT_EQ(PDU::MapTo7BitAlphabet(u"|"_s), u"\x1B|"_s);
}

TEST(User_Data, Mapping_A_Text_Leaves_The_Flag_Of_Its_Last_Character)
{
    PDU::MapTo7BitAlphabet(u"a["_s);
    EXPECT_EQ(escap_char, 1);
    PDU::MapTo7BitAlphabet(QString());
    EXPECT_EQ(escap_char, 1);
    PDU::MapTo7BitAlphabet(u"[a"_s);
    EXPECT_EQ(escap_char, 0);
}

TEST(User_Data, The_Worked_Examples_Are_Packed_As_Written)
{
    EXPECT_EQ(Packed(u"hello"_s), u"E8329BFD06"_s);
    EXPECT_EQ(Packed(u"a{b}"_s), u"E10D4ABC4901"_s);
    EXPECT_EQ(Packed(u"1234567"_s), u"31D98C56B3DD00"_s);
    EXPECT_EQ(Packed(u"12345678"_s), u"31D98C56B3DD70"_s);
    EXPECT_EQ(Packed(QString()), QString());
}

TEST(User_Data, Seven_And_Eight_Septets_Both_Fill_Seven_Octets_And_The_Fill_Bits_Are_Zero)
{
    EXPECT_EQ(Packed(u"ooooooo"_s).size(), 14);
    EXPECT_EQ(Packed(u"ooooooo"_s).last(2), u"01"_s); // the 49th bit, and seven of fill
    EXPECT_EQ(Packed(u"oooooooo"_s).size(), 14);
    EXPECT_EQ(Packed(u"ooooooooo"_s).size(), 16);
}

TEST(User_Data, Codes_0_64_And_124_Meet_Where_They_Are_Carried_As_At_And_The_Bar)
{
    EXPECT_EQ(Packed(u"@"_s), u"00"_s);
    EXPECT_EQ(Packed(u"¡"_s), u"00"_s);
    EXPECT_EQ(Packed(u"|"_s), u"1B20"_s); // 27, then 64
    EXPECT_EQ(Packed(u"ö"_s), u"40"_s);   // its code 124 is the bar's, so 64 and no escape
    EXPECT_EQ(Packed(u"ż"_s), u"40"_s);   // U+017C: every code 124
    EXPECT_EQ(Packed(u"ŀ"_s), u"00"_s);   // U+0140: every code 64
    EXPECT_EQ(Packed(u"Ā"_s), u"00"_s);   // U+0100: every code 0
    EXPECT_EQ(Packed(u"¿"_s), u"9B32"_s); // 27, then 101
    EXPECT_EQ(Packed(u"ø"_s), u"0C"_s);
    EXPECT_EQ(Packed(u"À"_s), u"40"_s); // U+00C0: seven bits of 192
}

TEST(User_Data, Only_The_Low_Seven_Bits_Of_A_Raw_Character_Are_Packed)
{
    EXPECT_EQ(PDU::EncodeUserData(u"中"_s), u"2D"_s);
    EXPECT_EQ(PDU::EncodeUserData(u"€"_s), u"2C"_s);
    EXPECT_EQ(PDU::EncodeUserData(u"@"_s), u"00"_s);
    EXPECT_EQ(PDU::EncodeUserData(u"|"_s), u"40"_s);
    EXPECT_EQ(PDU::EncodeUserData(u"ŀ"_s), u"40"_s); // its low byte is 64, but it is not "@"
    EXPECT_EQ(PDU::EncodeUserData(u"ż"_s), u"7C"_s); // its low byte is 124, but it is not the bar
}

TEST(User_Data, Every_Single_Unit_Comes_Out_As_The_Long_Way_Has_It)
{
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
        const QString text = QString(QChar(static_cast<char16_t>(unit)));
        ASSERT_EQ(PDU::MapTo7BitAlphabet(text), Reference_Codec::MapTo7BitAlphabet(text)) << "U+" << std::hex << unit;
        ASSERT_EQ(Packed(text), Reference_Codec::EncodeUserData(Reference_Codec::MapTo7BitAlphabet(text)))
            << "U+" << std::hex << unit;
        ASSERT_EQ(PDU::EncodeUserData(text), Reference_Codec::EncodeUserData(text)) << "U+" << std::hex << unit;
        ASSERT_EQ(PDU::EncodeUserData_16_bit(text), Reference_Codec::EncodeUserData_16_bit(text))
            << "U+" << std::hex << unit;
    }
}

TEST(User_Data, Every_Length_Up_To_1600_Comes_Out_As_The_Long_Way_Has_It)
{
    Sample_Texts samples(4101);
    for (qsizetype length = 0; length <= 1600; ++length) {
        const QString text = samples.Text(length);
        const QString mapped = Reference_Codec::MapTo7BitAlphabet(text);
        ASSERT_EQ(PDU::MapTo7BitAlphabet(text), mapped);
        ASSERT_EQ(PDU::EncodeUserData(mapped), Reference_Codec::EncodeUserData(mapped));
        ASSERT_EQ(PDU::EncodeUserData(text), Reference_Codec::EncodeUserData(text));
        ASSERT_EQ(PDU::EncodeUserData_16_bit(text), Reference_Codec::EncodeUserData_16_bit(text));
    }
}

TEST(User_Data, Ucs2_Is_Four_Digits_For_Each_Unit)
{
    EXPECT_EQ(PDU::EncodeUserData_16_bit(u"Hi Ω"_s), u"00480069002003A9"_s);
    EXPECT_EQ(PDU::EncodeUserData_16_bit(u"\U0001F600"_s), u"D83DDE00"_s);
    EXPECT_EQ(PDU::EncodeUserData_16_bit(QString(QChar(0xD83D))), u"D83D"_s);
    EXPECT_EQ(PDU::EncodeUserData_16_bit(QString(QChar(u'\0'))), u"0000"_s);
    EXPECT_EQ(PDU::EncodeUserData_16_bit(QString()), QString());
}

TEST(User_Data, Decoded_Ucs2_Comes_Back_As_Far_As_One_Byte_Goes)
{
    EXPECT_EQ(PDU::DecodeUserData_16_bit(u"004800690020"_s), u"Hi "_s);
    EXPECT_EQ(PDU::DecodeUserData_16_bit(u"00ff"_s), u"ÿ"_s);
    EXPECT_EQ(PDU::DecodeUserData_16_bit(u"03A9"_s), u"©"_s);
    EXPECT_EQ(PDU::DecodeUserData_16_bit(u"0048006"_s), u"H"_s);
    EXPECT_EQ(PDU::DecodeUserData_16_bit(u"004"_s), QString());
    EXPECT_EQ(PDU::DecodeUserData_16_bit(QString()), QString());
    for (char16_t unit = 0; unit <= 0xFF; ++unit)
        EXPECT_EQ(PDU::DecodeUserData_16_bit(PDU::EncodeUserData_16_bit(QString(QChar(unit)))), QString(QChar(unit)));
}
