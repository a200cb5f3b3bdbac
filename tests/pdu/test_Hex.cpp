#include <gtest/gtest.h>

#include "Text_Printing.h"
#include "pdu/Asc_Unused.h"
#include "pdu/Hex.h"

using namespace Qt::StringLiterals;

TEST(Hex, Drops_The_Leading_Zero_Of_Two_Digits_Only)
{
    EXPECT_EQ(Hex(0), u"0"_s);
    EXPECT_EQ(Hex(5), u"5"_s);
    EXPECT_EQ(Hex(0x0F), u"F"_s);
    EXPECT_EQ(Hex(0x10), u"10"_s);
    EXPECT_EQ(Hex(0x1F), u"1F"_s);
    EXPECT_EQ(Hex(255), u"FF"_s);
    EXPECT_EQ(Hex(256), u"100"_s);
    EXPECT_EQ(Hex(0x3A9), u"3A9"_s);
    EXPECT_EQ(Hex(0x7FFFFFFF), u"7FFFFFFF"_s);
}

TEST(Hex, A_Negative_Number_Is_Its_Twos_Complement)
{
    EXPECT_EQ(Hex(-1), u"FFFFFFFF"_s);
    EXPECT_EQ(Hex(-256), u"FFFFFF00"_s);
}

TEST(Hex, Asc_Gives_The_Low_Byte_Of_The_First_Unit)
{
    EXPECT_EQ(Asc(u"ab"_s), 97);
    EXPECT_EQ(Asc(u"Ω"_s), 0xA9);
    EXPECT_EQ(Asc(u"中"_s), 0x2D);
    EXPECT_EQ(Asc(QString()), 0);
}

TEST(Hex, AscW_Gives_The_First_Unit_Whole)
{
    EXPECT_EQ(AscW(u"ab"_s), 97);
    EXPECT_EQ(AscW(u"Ω"_s), 0x3A9);
    EXPECT_EQ(AscW(u"\U0001F600"_s), 0xD83D);
    EXPECT_EQ(AscW(QString(QChar(0xFFFF))), 0xFFFF);
    EXPECT_EQ(AscW(QString()), 0);
}
