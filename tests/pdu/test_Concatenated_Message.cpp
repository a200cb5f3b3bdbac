#include <thread>

#include <gtest/gtest.h>

#include "Measured.h"
#include "Reference_Codec.h"
#include "Sample_Texts.h"
#include "Text_Printing.h"
#include "pdu/PDU.h"

using namespace Qt::StringLiterals;

namespace {

const QString To = u"+15550001234"_s;
const QString To_Head = u"0B915155001032F4"_s;

QString Part(const QString& message, int total, int part, bool unicode = false, bool flash = false)
{
    return PDU().Encode_UDH_PDU(message, To, QString(), 0, true, flash, total, part, unicode);
}

// Everything up to TP-UDL, which follows.
const QString Head_7_Bit = u"005100"_s + To_Head + u"0000FF"_s;
const QString Head_Ucs2 = u"005100"_s + To_Head + u"0008FF"_s;

QString Udl(const QString& pdu)
{
    return pdu.mid(Head_7_Bit.size(), 2);
}

QString Header(const QString& pdu)
{
    return pdu.mid(Head_7_Bit.size() + 2, 14);
}

QString Slice(const QString& pdu)
{
    return pdu.mid(Head_7_Bit.size() + 2 + 14);
}

// TP-UDL of each part of a message of one repeated character.
QStringList Lengths(qsizetype characters, int parts, bool unicode)
{
    QStringList lengths;
    for (int part = 1; part <= parts; ++part)
        lengths << Udl(Part(QString(characters, u'A'), parts, part, unicode));
    return lengths;
}

} // namespace

TEST(Concatenated_Message, The_Worked_Example_Of_159_Characters_Comes_Out_As_Written)
{
    const QString message = QString(152, u'A') + u"BCDEFGH"_s;
    EXPECT_EQ(Measured(PDU().EncodePDU(message, To, QString(), 0, true, false, false), QString()), 154);

    const QString first = Part(message, 2, 1);
    EXPECT_TRUE(first.startsWith(u"0051000B915155001032F40000FFA006080400000201"_s));
    EXPECT_EQ(Slice(first), PDU::EncodeUserData(QString(152, u'A')));
    EXPECT_EQ(Slice(first).size(), 266);
    EXPECT_EQ(Measured(first, QString()), 154);

    const QString second = Part(message, 2, 2);
    EXPECT_EQ(second, Head_7_Bit + u"10"_s + u"06080400000202"_s + PDU::EncodeUserData(u"BCDEFGH"_s));
    EXPECT_EQ(Measured(second, QString()), 28);
}

TEST(Concatenated_Message, The_Coding_Scheme_Follows_Unicode_And_Flash)
{
    EXPECT_EQ(Part(u"a"_s, 1, 1, false, false), u"005100"_s + To_Head + u"0000FF090608040000010161"_s);
    EXPECT_EQ(Part(u"a"_s, 1, 1, false, true), u"005100"_s + To_Head + u"0010FF090608040000010161"_s);
    EXPECT_EQ(Part(u"a"_s, 1, 1, true, false), u"005100"_s + To_Head + u"0008FF09060804000001010061"_s);
    EXPECT_EQ(Part(u"a"_s, 1, 1, true, true), u"005100"_s + To_Head + u"0018FF09060804000001010061"_s);
}

TEST(Concatenated_Message, The_Service_Centre_Goes_Before_Every_Part)
{
    const PDU pdu;
    for (const QString& smsc : {QString(), u"05550009999"_s, u"+15550009999"_s}) {
        for (int part = 1; part <= 2; ++part) {
            const QString alone = Part(QString(160, u'A'), 2, part);
            EXPECT_EQ(pdu.Encode_UDH_PDU(QString(160, u'A'), To, smsc, 0, true, false, 2, part, false),
                      PDU::EncodeSMSCAddress(smsc) + alone.mid(2));
        }
    }
}

TEST(Concatenated_Message, Text_Goes_Out_As_It_Stands_And_Not_By_The_Alphabet)
{
    EXPECT_EQ(Slice(Part(u"@"_s, 1, 1)), u"00"_s);
    EXPECT_EQ(Slice(Part(u"|"_s, 1, 1)), u"40"_s);
    EXPECT_EQ(Slice(Part(u"["_s, 1, 1)), u"5B"_s);
    EXPECT_EQ(Slice(Part(u"_"_s, 1, 1)), u"5F"_s);
    EXPECT_EQ(Slice(Part(u"ö"_s, 1, 1)), u"76"_s);
    EXPECT_EQ(Slice(Part(u"¡"_s, 1, 1)), u"21"_s);
    EXPECT_EQ(Slice(Part(u"Ω"_s, 1, 1)), u"29"_s);
    EXPECT_EQ(Udl(Part(u"[[[["_s, 1, 1)), u"0C"_s); // four septets after the header's eight, no escapes
}

TEST(Concatenated_Message, Parts_Meet_Their_Lengths_At_The_Boundaries)
{
    EXPECT_EQ(Lengths(7, 1, false), QStringList({u"10"_s}));
    EXPECT_EQ(Lengths(8, 1, false), QStringList({u"10"_s}));
    EXPECT_EQ(Lengths(152, 1, false), QStringList({u"A0"_s}));
    EXPECT_EQ(Lengths(153, 2, false), QStringList({u"A0"_s, u"09"_s}));
    EXPECT_EQ(Lengths(160, 2, false), QStringList({u"A0"_s, u"10"_s}));
    EXPECT_EQ(Lengths(161, 2, false), QStringList({u"A0"_s, u"11"_s}));
    EXPECT_EQ(Lengths(304, 2, false), QStringList({u"A0"_s, u"A0"_s}));
    EXPECT_EQ(Lengths(305, 3, false), QStringList({u"A0"_s, u"A0"_s, u"09"_s}));
    EXPECT_EQ(Lengths(66, 1, true), QStringList({u"8B"_s}));
    EXPECT_EQ(Lengths(67, 2, true), QStringList({u"8B"_s, u"09"_s}));
    EXPECT_EQ(Lengths(70, 2, true), QStringList({u"8B"_s, u"0F"_s}));
    EXPECT_EQ(Lengths(71, 2, true), QStringList({u"8B"_s, u"11"_s}));
}

TEST(Concatenated_Message, A_Last_Part_Of_Seven_More_Than_A_Multiple_Of_Eight_Announces_One_Septet_Too_Many)
{
    for (int septets = 1; septets <= 152; ++septets) {
        const int announced = septets + 8 + (septets % 8 == 7 ? 1 : 0);
        EXPECT_EQ(Udl(Part(QString(septets, u'A'), 1, 1)), PDU::BCDEncode(announced)) << septets;
    }
}

TEST(Concatenated_Message, The_Longest_Text_Goes_Out_In_Eleven_Parts_Or_Twenty_Five_In_Ucs2)
{
    Sample_Texts samples(4104);
    const QString message = samples.Text(1600);
    QString seven_bit;
    for (int part = 1; part <= 11; ++part) {
        const QString pdu = Part(message, 11, part);
        EXPECT_EQ(Header(pdu), u"06080400000B"_s + PDU::BCDEncode(part));
        seven_bit += Slice(pdu);
    }
    EXPECT_EQ(seven_bit, PDU::EncodeUserData(message));
    QString ucs2;
    for (int part = 1; part <= 25; ++part) {
        const QString pdu = Part(message, 25, part, true);
        EXPECT_EQ(Header(pdu), u"060804000019"_s + PDU::BCDEncode(part));
        ucs2 += Slice(pdu);
    }
    EXPECT_EQ(ucs2, PDU::EncodeUserData_16_bit(message));
}

TEST(Concatenated_Message, A_Surrogate_Pair_May_Fall_Apart_Between_Two_Parts)
{
    const QString message = QString(65, u'x') + u"\U0001F600"_s;
    EXPECT_TRUE(Slice(Part(message, 2, 1, true)).endsWith(u"0078D83D"_s));
    EXPECT_EQ(Slice(Part(message, 2, 2, true)), u"DE00"_s);
}

TEST(Concatenated_Message, Parts_And_Totals_Have_Two_Digits_And_The_Reference_Is_Zero)
{
    Part(QString(1600, u'A'), 10, 1);
    EXPECT_EQ(Header(Part(u"a"_s, 10, 10)), u"06080400000A0A"_s);
    EXPECT_EQ(Header(Part(u"a"_s, 16, 15)), u"0608040000100F"_s);
    EXPECT_EQ(Header(Part(u"a"_s, 255, 16)), u"0608040000FF10"_s);
    EXPECT_EQ(Header(Part(u"a"_s, 256, 257)), u"06080400000001"_s);
    EXPECT_EQ(Header(Part(u"b"_s, 3, 1)), u"06080400000301"_s);
}

TEST(Concatenated_Message, Part_2_Asked_For_First_Is_Cut_Out_Of_The_Message_Before)
{
    const QString before = QString(152, u'A') + u"before"_s;
    Part(before, 2, 1);
    EXPECT_EQ(tp_ud, PDU::EncodeUserData(before));
    const QString stale = Part(QString(152, u'B') + u"after!"_s, 2, 2);
    EXPECT_EQ(Slice(stale), PDU::EncodeUserData(u"before"_s));
    EXPECT_EQ(tp_ud, PDU::EncodeUserData(before));
    Part(QString(152, u'B') + u"after!"_s, 2, 1);
    EXPECT_EQ(Slice(Part(QString(), 2, 2)), PDU::EncodeUserData(u"after!"_s));
}

TEST(Concatenated_Message, A_Single_Message_Leaves_The_Long_Ones_User_Data_Alone)
{
    Part(u"kept"_s, 1, 1);
    const PDU pdu;
    pdu.EncodePDU(u"other"_s, To, QString(), 0, true, false, false);
    EXPECT_EQ(tp_ud, PDU::EncodeUserData(u"kept"_s));
}

TEST(Concatenated_Message, Each_Thread_Has_A_Long_Message_Of_Its_Own)
{
    Part(u"mine"_s, 1, 1);
    QString seen_before = u"not looked"_s;
    std::thread([&seen_before] {
        seen_before = tp_ud;
        Part(u"yours"_s, 1, 1);
    }).join();
    EXPECT_EQ(seen_before, QString());
    EXPECT_EQ(tp_ud, PDU::EncodeUserData(u"mine"_s));
}

TEST(Concatenated_Message, A_Part_Past_The_End_Or_Before_The_First_Is_Still_Two_Digits_And_No_More)
{
    Part(QString(160, u'A'), 2, 1);
    EXPECT_EQ(Part(u"x"_s, 2, 3), Head_7_Bit + u"08"_s + u"06080400000203"_s);
    EXPECT_EQ(Part(u"x"_s, 2, 0), Head_7_Bit + u"A0"_s + u"06080400000200"_s + tp_ud.first(266));
    EXPECT_EQ(Header(Part(u"x"_s, -1, -1)), u"0608040000FFFF"_s);
    EXPECT_EQ(Slice(Part(u"x"_s, 1, 0x7FFFFFFF)), QString());
}

TEST(Concatenated_Message, An_Empty_Text_Is_A_Part_With_Nothing_But_Its_Header)
{
    EXPECT_EQ(Part(QString(), 1, 1), Head_7_Bit + u"08"_s + u"06080400000101"_s);
    EXPECT_EQ(Part(QString(), 1, 1, true), Head_Ucs2 + u"07"_s + u"06080400000101"_s);
}

TEST(Concatenated_Message, Without_The_Service_Centre_There_Is_No_Result_But_The_Message_Is_Packed)
{
    const PDU pdu;
    EXPECT_EQ(pdu.Encode_UDH_PDU(u"hello"_s, To, QString(), 0, false, false, 1, 1, false), QString());
    EXPECT_EQ(tp_ud, u"E8329BFD06"_s);
}

TEST(Concatenated_Message, The_Length_Handed_In_Changes_Nothing)
{
    const PDU pdu;
    EXPECT_EQ(pdu.Encode_UDH_PDU(u"hello"_s, To, QString(), 154, true, false, 1, 1, false), Part(u"hello"_s, 1, 1));
}

TEST(Concatenated_Message, Where_There_Is_No_Memory_There_Is_No_Result_And_The_Message_Before_Stays)
{
    Part(u"kept"_s, 1, 1);
    const QChar only = u'a';
    const QString boundless = QString::fromRawData(&only, (qsizetype{1} << 60) + 5); // refused before it is looked at
    EXPECT_EQ(Part(boundless, 1, 1, true), QString());
    EXPECT_EQ(tp_ud, PDU::EncodeUserData(u"kept"_s));
}

TEST(Concatenated_Message, Every_Length_Up_To_1600_Comes_Out_As_The_Long_Way_Has_It)
{
    Sample_Texts samples(4105);
    Reference_Codec reference;
    const PDU pdu;
    for (int length = 0; length <= 1600; ++length) {
        const QString text = samples.Text(length);
        const QString to = samples.Digits(samples.Below(21));
        const bool flash = samples.Below(2) == 1;
        const bool unicode = length % 2 == 1;
        const int parts = unicode ? (length + 65) / 66 : (length + 151) / 152;
        for (int part = 1; part <= parts; ++part)
            ASSERT_EQ(pdu.Encode_UDH_PDU(text, to, QString(), 0, true, flash, parts, part, unicode),
                      reference.Encode_UDH_PDU(text, to, QString(), flash, parts, part, unicode))
                << length << " characters, part " << part;
    }
}
