#include <limits>

#include <gtest/gtest.h>

#include "Text_Printing.h"
#include "pdu/PDU.h"

using namespace Qt::StringLiterals;

TEST(Digits, ConvertToBinary_Writes_The_Low_Eight_Bits_From_Bit_7_On)
{
    EXPECT_EQ(PDU::ConvertToBinary(0), u"00000000"_s);
    EXPECT_EQ(PDU::ConvertToBinary(1), u"00000001"_s);
    EXPECT_EQ(PDU::ConvertToBinary(0xA5), u"10100101"_s);
    EXPECT_EQ(PDU::ConvertToBinary(0x1FF), u"11111111"_s);
    EXPECT_EQ(PDU::ConvertToBinary(-2), u"11111110"_s);
}

TEST(Digits, BinToDec_Reads_From_The_Right_And_Counts_Ones_Only)
{
    EXPECT_EQ(PDU::BinToDec(QString()), 0U);
    EXPECT_EQ(PDU::BinToDec(u"1"_s), 1U);
    EXPECT_EQ(PDU::BinToDec(u"10"_s), 2U);
    EXPECT_EQ(PDU::BinToDec(u"1x2 1"_s), 17U);
    EXPECT_EQ(PDU::BinToDec(QString(32, u'1')), 0xFFFFFFFFU);
    EXPECT_EQ(PDU::BinToDec(QString(40, u'1')), 0xFFFFFFFFU);
    for (int value = 0; value < 256; ++value)
        EXPECT_EQ(PDU::BinToDec(PDU::ConvertToBinary(value)), static_cast<quint32>(value));
}

TEST(Digits, Power2_Knows_32_Powers)
{
    quint64 expected = 1;
    for (int exponent = 0; exponent < 32; ++exponent, expected *= 2)
        EXPECT_EQ(PDU::Power2(exponent), expected) << exponent;
    EXPECT_EQ(PDU::Power2(31), 0x80000000U);
    EXPECT_EQ(PDU::Power2(32), 0U);
    EXPECT_EQ(PDU::Power2(-1), 0U);
}

TEST(Digits, Hex2dec_Knows_Both_Cases_And_Takes_All_Else_As_0)
{
    const QString digits = u"0123456789ABCDEF"_s;
    for (int value = 0; value < 16; ++value) {
        EXPECT_EQ(PDU::hex2dec(digits.sliced(value, 1)), value);
        EXPECT_EQ(PDU::hex2dec(digits.sliced(value, 1).toLower()), value);
    }
    for (const QString& other : {u"G"_s, u"g"_s, u"-"_s, u" "_s, u"/"_s, u":"_s, u"@"_s, u"`"_s, u"٣"_s, QString()})
        EXPECT_EQ(PDU::hex2dec(other), 0) << other.toStdString();
}

TEST(Digits, Hex2int_Adds_Digits_By_Their_Place)
{
    EXPECT_EQ(PDU::hex2int(QString()), 0U);
    EXPECT_EQ(PDU::hex2int(u"0"_s), 0U);
    EXPECT_EQ(PDU::hex2int(u"1F"_s), 31U);
    EXPECT_EQ(PDU::hex2int(u"03a9"_s), 0x3A9U);
    EXPECT_EQ(PDU::hex2int(u"1x1"_s), 0x101U);
    EXPECT_EQ(PDU::hex2int(u"FFFFFFFF"_s), 0xFFFFFFFFU);
    EXPECT_EQ(PDU::hex2int(u"FFFFFFFFFFFFFFFF"_s), std::numeric_limits<quint64>::max());
}

TEST(Digits, ReverseString_Turns_The_Units_Round)
{
    EXPECT_EQ(PDU::reverseString(QString()), QString());
    EXPECT_EQ(PDU::reverseString(u"a"_s), u"a"_s);
    EXPECT_EQ(PDU::reverseString(u"abc"_s), u"cba"_s);
    const QString text = u"untouched"_s;
    EXPECT_EQ(PDU::reverseString(PDU::reverseString(text)), text);
    EXPECT_EQ(text, u"untouched"_s);
}

TEST(Digits, PadZero_Fills_Up_And_Never_Cuts)
{
    EXPECT_EQ(PDU::PadZero(u"5"_s, 2), u"05"_s);
    EXPECT_EQ(PDU::PadZero(u"3A9"_s, 4), u"03A9"_s);
    EXPECT_EQ(PDU::PadZero(u"100"_s, 2), u"100"_s);
    EXPECT_EQ(PDU::PadZero(QString(), 3), u"000"_s);
    EXPECT_EQ(PDU::PadZero(u"1"_s, 0), u"1"_s);
    EXPECT_EQ(PDU::PadZero(u"1"_s, -1), u"1"_s);
}

TEST(Digits, BCDEncode_Writes_At_Least_Two_Digits)
{
    EXPECT_EQ(PDU::BCDEncode(145), u"91"_s);
    EXPECT_EQ(PDU::BCDEncode(129), u"81"_s);
    EXPECT_EQ(PDU::BCDEncode(0), u"00"_s);
    EXPECT_EQ(PDU::BCDEncode(10), u"0A"_s);
    EXPECT_EQ(PDU::BCDEncode(255), u"FF"_s);
    EXPECT_EQ(PDU::BCDEncode(256), u"100"_s);
}

TEST(Digits, Mid_String_Stays_Within_The_Text)
{
    const QString text = u"abcdef"_s;
    EXPECT_EQ(PDU::Mid_String(text, 1, 3), u"bcd"_s);
    EXPECT_EQ(PDU::Mid_String(text, 0, 6), text);
    EXPECT_EQ(PDU::Mid_String(text, 4, 10), u"ef"_s);
    EXPECT_EQ(PDU::Mid_String(text, -5, 2), u"ab"_s);
    EXPECT_EQ(PDU::Mid_String(text, 2, -1), QString());
    EXPECT_EQ(PDU::Mid_String(text, 6, 1), QString());
    EXPECT_EQ(PDU::Mid_String(text, 7, 1), QString());
    EXPECT_EQ(PDU::Mid_String(QString(), 0, 5), QString());
    EXPECT_EQ(PDU::Mid_String(text, 2, std::numeric_limits<qsizetype>::max()), u"cdef"_s);
}
