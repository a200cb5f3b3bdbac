#include <limits>

#include "Pdu_Test.h"
#include "pdu/Asc_Unused.h"
#include "pdu/Hex.h"

TEST(Digits, Binary_Ones_Are_Written_From_Bit_7_On_And_Read_From_The_Right)
{
    EXPECT_EQ(PDU::ConvertToBinary(0xA7), u"10100111"_s);
    EXPECT_EQ(PDU::ConvertToBinary(0x1FF), u"11111111"_s);
    EXPECT_EQ(PDU::ConvertToBinary(-2), u"11111110"_s);
    for (int value = 0; value < 256; ++value)
        EXPECT_EQ(PDU::BinToDec(PDU::ConvertToBinary(value)), static_cast<quint32>(value));
    EXPECT_EQ(PDU::BinToDec(QString()), 0U);
    EXPECT_EQ(PDU::BinToDec(u"1x2 1"_s), 17U);
    EXPECT_EQ(PDU::BinToDec(QString(40, u'1')), 0xFFFFFFFFU);
    quint64 power = 1;
    for (int exponent = 0; exponent < 32; ++exponent, power *= 2)
        EXPECT_EQ(PDU::Power2(exponent), power) << exponent;
    EXPECT_EQ(PDU::Power2(32), 0U);
    EXPECT_EQ(PDU::Power2(-1), 0U);
}

TEST(Digits, Hexadecimal_Ones_Of_Both_Cases_Are_Read_And_All_Else_Is_0)
{
    const QString digits = u"0123456789ABCDEF"_s;
    for (int value = 0; value < 16; ++value) {
        EXPECT_EQ(PDU::hex2dec(digits.sliced(value, 1)), value);
        EXPECT_EQ(PDU::hex2dec(digits.sliced(value, 1).toLower()), value);
    }
    for (const QString& other : {u"G"_s, u"g"_s, u"-"_s, u" "_s, u"/"_s, u":"_s, u"@"_s, u"`"_s, u"٣"_s, QString()})
        EXPECT_EQ(PDU::hex2dec(other), 0) << other.toStdString();
    EXPECT_EQ(PDU::hex2int(u"03a9"_s), 0x3A9U);
    EXPECT_EQ(PDU::hex2int(u"1x1"_s), 0x101U);
    EXPECT_EQ(PDU::hex2int(u"FFFFFFFFFFFFFFFF"_s), std::numeric_limits<quint64>::max());
}

TEST(Digits, Hex_Writes_No_Leading_Zero_BCDEncode_At_Least_Two_Digits)
{
    for (const auto& [value, digits] :
         {std::pair(0, u"0"_s), std::pair(5, u"5"_s), std::pair(0x0F, u"F"_s), std::pair(0x10, u"10"_s),
          std::pair(255, u"FF"_s), std::pair(256, u"100"_s), std::pair(0x3A9, u"3A9"_s),
          std::pair(0x7FFFFFFF, u"7FFFFFFF"_s), std::pair(-1, u"FFFFFFFF"_s), std::pair(-256, u"FFFFFF00"_s)}) {
        EXPECT_EQ(Hex(value), digits);
        EXPECT_EQ(PDU::BCDEncode(value), digits.size() == 1 ? u'0' + digits : digits);
    }
}

TEST(Digits, Texts_Are_Reversed_Filled_Up_And_Cut_Within_Their_Ends)
{
    EXPECT_EQ(PDU::reverseString(QString()), QString());
    EXPECT_EQ(PDU::reverseString(u"abc"_s), u"cba"_s);

    EXPECT_EQ(PDU::PadZero(u"3A9"_s, 4), u"03A9"_s);
    EXPECT_EQ(PDU::PadZero(u"100"_s, 2), u"100"_s);
    EXPECT_EQ(PDU::PadZero(QString(), 3), u"000"_s);
    EXPECT_EQ(PDU::PadZero(u"1"_s, -1), u"1"_s);

    const QString text = u"abcdef"_s;
    EXPECT_EQ(PDU::Mid_String(text, 1, 3), u"bcd"_s);
    EXPECT_EQ(PDU::Mid_String(text, 4, 10), u"ef"_s);
    EXPECT_EQ(PDU::Mid_String(text, -5, 2), u"ab"_s);
    EXPECT_EQ(PDU::Mid_String(text, 2, -1), QString());
    EXPECT_EQ(PDU::Mid_String(text, 7, 1), QString());
    EXPECT_EQ(PDU::Mid_String(text, 2, std::numeric_limits<qsizetype>::max()), u"cdef"_s);
}

TEST(Digits, Asc_Gives_The_Low_Byte_Of_The_First_Unit_And_AscW_The_Whole)
{
    for (const auto& [text, unit] :
         {std::pair(u"ab"_s, 97), std::pair(u"Ω"_s, 0x3A9), std::pair(u"\U0001F600"_s, 0xD83D),
          std::pair(QString(QChar(0xFFFF)), 0xFFFF), std::pair(QString(), 0)}) {
        EXPECT_EQ(AscW(text), unit);
        EXPECT_EQ(Asc(text), unit & 0xFF);
    }
}
