#include <thread>

#include <gtest/gtest.h>

#include "Expected_Alphabet.h"
#include "Reference_Codec.h"
#include "Text_Printing.h"
#include "pdu/Gsm_Alphabet.h"
#include "pdu/PDU.h"

using namespace Qt::StringLiterals;

TEST(Gsm_Alphabet, Its_65_Rows_Stand_In_Their_Order)
{
    ASSERT_EQ(Gsm_Alphabet.size(), Expected_Alphabet.size());
    for (size_t row = 0; row < Expected_Alphabet.size(); ++row) {
        EXPECT_EQ(Gsm_Alphabet[row].character, Expected_Alphabet[row].character) << "row " << row + 1;
        EXPECT_EQ(Gsm_Alphabet[row].code, Expected_Alphabet[row].code) << "row " << row + 1;
        EXPECT_EQ(Gsm_Alphabet[row].escape, Expected_Alphabet[row].escape) << "row " << row + 1;
    }
}

TEST(Gsm_Alphabet, Every_Row_Is_Mapped_As_Written_But_The_One_Never_Reached)
{
    PDU pdu;
    for (size_t row = 0; row < Expected_Alphabet.size(); ++row) {
        const bool never_reached = row + 1 == 59;
        const int code = never_reached ? 12 : Expected_Alphabet[row].code;
        EXPECT_EQ(pdu.MapChar(QString(QChar(Expected_Alphabet[row].character)), false), code) << "row " << row + 1;
        EXPECT_EQ(escap_char, Expected_Alphabet[row].escape ? 1 : 0) << "row " << row + 1;
    }
}

TEST(Gsm_Alphabet, Every_Unit_Is_Mapped_As_The_First_Match_From_The_Top)
{
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
        const auto character = static_cast<char16_t>(unit);
        bool escape = false;
        const int code = Reference_Codec::MapChar(character, escape);
        ASSERT_EQ(PDU::MapChar(QString(QChar(character)), false), code) << "U+" << std::hex << unit;
        ASSERT_EQ(escap_char, escape ? 1 : 0) << "U+" << std::hex << unit;
    }
}

TEST(Gsm_Alphabet, Characters_Without_A_Row_Give_Their_Low_Byte)
{
    for (const QChar character : u"ABCXYZabcxyz0189 \n\r\"'()/<>`\f€Λù中ŀżÀê\x1B\x7F"_s) {
        EXPECT_EQ(PDU::MapChar(QString(character), false), character.unicode() & 0xFF)
            << static_cast<int>(character.unicode());
        EXPECT_EQ(escap_char, 0) << static_cast<int>(character.unicode());
    }
    EXPECT_EQ(PDU::MapChar(u"中"_s, false), 0x2D);
    EXPECT_EQ(PDU::MapChar(u"€"_s, false), 0xAC);
    EXPECT_EQ(PDU::MapChar(u"`"_s, false), 96);
}

TEST(Gsm_Alphabet, An_Empty_Text_Gives_0_And_Leaves_The_Escape_Flag_Alone)
{
    for (const QString& before : {u"["_s, u"a"_s}) {
        PDU::MapChar(before, false);
        const quint8 flag = escap_char;
        EXPECT_EQ(PDU::MapChar(QString(), false), 0);
        EXPECT_EQ(PDU::MapChar(QString(), true), 0);
        EXPECT_EQ(escap_char, flag) << before.toStdString();
    }
}

TEST(Gsm_Alphabet, Only_The_First_Character_Is_Mapped)
{
    EXPECT_EQ(PDU::MapChar(u"ab"_s, false), 97);
    EXPECT_EQ(escap_char, 0);
    EXPECT_EQ(PDU::MapChar(u"{a"_s, false), 40);
    EXPECT_EQ(escap_char, 1);
    EXPECT_EQ(PDU::MapChar(u"a{"_s, false), 97);
    EXPECT_EQ(escap_char, 0);
}

TEST(Gsm_Alphabet, The_Flag_Handed_In_Changes_Nothing)
{
    EXPECT_EQ(PDU::MapChar(u"a"_s, true), 97);
    EXPECT_EQ(escap_char, 0);
    EXPECT_EQ(PDU::MapChar(u"~"_s, true), PDU::MapChar(u"~"_s, false));
    EXPECT_EQ(escap_char, 1);
}

TEST(Gsm_Alphabet, The_Tilde_And_The_Equals_Sign_Share_A_Code_And_Differ_By_The_Escape)
{
    EXPECT_EQ(PDU::MapChar(u"~"_s, false), 61);
    EXPECT_EQ(escap_char, 1);
    EXPECT_EQ(PDU::MapChar(u"="_s, false), 61);
    EXPECT_EQ(escap_char, 0);
}

TEST(Gsm_Alphabet, Each_Thread_Has_An_Escape_Flag_Of_Its_Own)
{
    PDU::MapChar(u"["_s, false);
    int seen_before = -1;
    std::thread([&seen_before] {
        seen_before = escap_char;
        PDU::MapChar(u"a"_s, false);
    }).join();
    EXPECT_EQ(seen_before, 0);
    EXPECT_EQ(escap_char, 1);
}
