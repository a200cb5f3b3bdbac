#include <thread>

#include <gtest/gtest.h>

#include "Measured.h"
#include "Reference_Codec.h"
#include "Sample_Texts.h"
#include "Text_Printing.h"
#include "pdu/PDU.h"

using namespace Qt::StringLiterals;

namespace {

const QString To = u"0123456789"_s;
const QString To_Head = u"0A811032547698"_s;

// One message to a number of ten digits through the device's own service centre.
QString Single(const QString& message, bool flash = false, bool unicode = false)
{
    return PDU().EncodePDU(message, To, QString(), 0, true, flash, unicode);
}

// The digits of TP-UDL of such a message, and what follows them.
QString Udl(const QString& pdu)
{
    return pdu.mid(2 + 4 + To_Head.size() + 6, 2);
}

QString User_Data(const QString& pdu)
{
    return pdu.mid(2 + 4 + To_Head.size() + 6 + 2);
}

} // namespace

TEST(Single_Message, The_Worked_Examples_Come_Out_As_Written)
{
    const PDU pdu;
    const QString plain = pdu.EncodePDU(u"hello"_s, u"+15550001234"_s, QString(), 0, true, false, false);
    EXPECT_EQ(plain, u"0011000B915155001032F40000FF05E8329BFD06"_s);
    EXPECT_EQ(Measured(plain, QString()), 19);

    const QString flash = pdu.EncodePDU(u"hello"_s, u"0123456789"_s, u"+15550009999"_s, 0, true, true, false);
    EXPECT_EQ(flash, u"07915155009099F911000A8110325476980010FF05E8329BFD06"_s);
    EXPECT_EQ(Measured(flash, u"+15550009999"_s), 18);

    const QString unicode = pdu.EncodePDU(u"Hi Ω"_s, u"+15550001234"_s, QString(), 0, true, false, true);
    EXPECT_EQ(unicode, u"0011000B915155001032F40008FF0800480069002003A9"_s);
    EXPECT_EQ(Measured(unicode, QString()), 22);
}

TEST(Single_Message, The_Coding_Scheme_Follows_Unicode_And_Flash)
{
    EXPECT_EQ(Single(u"a"_s, false, false), u"001100"_s + To_Head + u"0000FF0161"_s);
    EXPECT_EQ(Single(u"a"_s, true, false), u"001100"_s + To_Head + u"0010FF0161"_s);
    EXPECT_EQ(Single(u"a"_s, false, true), u"001100"_s + To_Head + u"0008FF020061"_s);
    EXPECT_EQ(Single(u"a"_s, true, true), u"001100"_s + To_Head + u"0018FF020061"_s);
}

TEST(Single_Message, The_Service_Centre_Goes_Before_It_None_National_Or_International)
{
    const PDU pdu;
    const QString tpdu = u"1100"_s + To_Head + u"0000FF0161"_s;
    EXPECT_EQ(pdu.EncodePDU(u"a"_s, To, QString(), 0, true, false, false), u"00"_s + tpdu);
    EXPECT_EQ(pdu.EncodePDU(u"a"_s, To, u"05550009999"_s, 0, true, false, false), u"07815055009099F9"_s + tpdu);
    EXPECT_EQ(pdu.EncodePDU(u"a"_s, To, u"+15550009999"_s, 0, true, false, false), u"07915155009099F9"_s + tpdu);
}

TEST(Single_Message, An_Empty_Destination_And_An_Empty_Text_Are_Encoded_As_They_Are)
{
    const PDU pdu;
    EXPECT_EQ(pdu.EncodePDU(u"a"_s, QString(), QString(), 0, true, false, false), u"001100000000FF0161"_s);
    EXPECT_EQ(Single(QString()), u"001100"_s + To_Head + u"0000FF00"_s);
    EXPECT_EQ(Single(QString(), false, true), u"001100"_s + To_Head + u"0008FF00"_s);
    EXPECT_EQ(pdu.EncodePDU(QString(), QString(), QString(), 0, true, false, false), u"001100000000FF00"_s);
}

TEST(Single_Message, Without_The_Service_Centre_There_Is_No_Result)
{
    const PDU pdu;
    EXPECT_EQ(pdu.EncodePDU(u"hello"_s, To, u"+15550009999"_s, 0, false, false, false), QString());
    EXPECT_EQ(pdu.EncodePDU(u"hello"_s, To, QString(), 0, false, false, true), QString());
}

TEST(Single_Message, The_Length_Handed_In_Changes_Nothing)
{
    const PDU pdu;
    for (const quint16 length : {quint16{1}, quint16{153}, quint16{0xFFFF}})
        EXPECT_EQ(pdu.EncodePDU(u"hello"_s, To, QString(), length, true, false, false), Single(u"hello"_s));
}

TEST(Single_Message, Escapes_Count_In_The_Length_And_Units_Count_Twice_In_Ucs2)
{
    EXPECT_EQ(Udl(Single(u"a{b}"_s)), u"06"_s);
    EXPECT_EQ(Udl(Single(u"[[[[[["_s)), u"0C"_s);
    EXPECT_EQ(Udl(Single(u"a{b}"_s, false, true)), u"08"_s);
    EXPECT_EQ(Udl(Single(u"\U0001F600"_s, false, true)), u"04"_s);
    EXPECT_EQ(User_Data(Single(u"\U0001F600"_s, false, true)), u"D83DDE00"_s);
    EXPECT_EQ(Udl(Single(u"\U0001F600"_s)), u"02"_s);
}

TEST(Single_Message, Seven_And_Eight_Septets_Differ_By_Their_Length_Only_In_Octets_They_Are_Alike)
{
    EXPECT_EQ(Udl(Single(u"1234567"_s)), u"07"_s);
    EXPECT_EQ(Udl(Single(u"12345678"_s)), u"08"_s);
    EXPECT_EQ(User_Data(Single(u"1234567"_s)), u"31D98C56B3DD00"_s);
    EXPECT_EQ(User_Data(Single(u"12345678"_s)), u"31D98C56B3DD70"_s);
}

TEST(Single_Message, A_Full_One_Measures_153_Octets_To_A_Number_Of_Ten_Digits)
{
    EXPECT_EQ(Udl(Single(QString(160, u'A'))), u"A0"_s);
    EXPECT_EQ(Measured(Single(QString(160, u'A')), QString()), 153);
    EXPECT_EQ(Measured(Single(QString(161, u'A')), QString()), 154);
    EXPECT_EQ(Udl(Single(QString(161, u'A'))), u"A1"_s);
    EXPECT_EQ(Measured(Single(QString(70, u'Ж'), false, true), QString()), 153);
    EXPECT_EQ(Udl(Single(QString(70, u'Ж'), false, true)), u"8C"_s);
    EXPECT_EQ(Measured(Single(QString(71, u'Ж'), false, true), QString()), 155);
}

TEST(Single_Message, A_Number_Of_Eleven_Digits_Makes_A_Full_One_Too_Long_By_An_Octet)
{
    const PDU pdu;
    const QString to = u"+15550001234"_s;
    EXPECT_EQ(Measured(pdu.EncodePDU(QString(160, u'A'), to, QString(), 0, true, false, false), QString()), 154);
    EXPECT_EQ(Measured(pdu.EncodePDU(QString(159, u'A'), to, QString(), 0, true, false, false), QString()), 154);
    EXPECT_EQ(Measured(pdu.EncodePDU(QString(158, u'A'), to, QString(), 0, true, false, false), QString()), 153);
    EXPECT_EQ(Measured(pdu.EncodePDU(QString(70, u'Ж'), to, QString(), 0, true, false, true), QString()), 154);
    EXPECT_EQ(Measured(pdu.EncodePDU(QString(69, u'Ж'), to, QString(), 0, true, false, true), QString()), 152);
}

TEST(Single_Message, An_Over_Long_Length_Keeps_Its_Last_Two_Digits)
{
    EXPECT_EQ(Udl(Single(QString(255, u'A'))), u"FF"_s);
    EXPECT_EQ(Udl(Single(QString(256, u'A'))), u"00"_s);
    EXPECT_EQ(Udl(Single(QString(1600, u'A'))), u"40"_s);
    EXPECT_EQ(Udl(Single(QString(128, u'A'), false, true)), u"00"_s);
    EXPECT_EQ(Udl(Single(QString(1600, u'A'), false, true)), u"80"_s);
    EXPECT_EQ(User_Data(Single(QString(1600, u'A'))).size(), 2800);
}

TEST(Single_Message, Encoding_Leaves_The_Flag_Of_The_Last_Character_And_Ucs2_Leaves_It_Alone)
{
    Single(u"a["_s);
    EXPECT_EQ(escap_char, 1);
    Single(u"a"_s, false, true);
    EXPECT_EQ(escap_char, 1);
    Single(u"a"_s);
    EXPECT_EQ(escap_char, 0);
}

TEST(Single_Message, Every_Single_Unit_Comes_Out_As_The_Long_Way_Has_It)
{
    const PDU pdu;
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
        const QString text = QString(QChar(static_cast<char16_t>(unit)));
        for (const bool unicode : {false, true})
            ASSERT_EQ(pdu.EncodePDU(text, To, QString(), 0, true, false, unicode),
                      Reference_Codec::EncodePDU(text, To, QString(), false, unicode))
                << "U+" << std::hex << unit;
    }
}

TEST(Single_Message, Every_Length_Up_To_1600_Comes_Out_As_The_Long_Way_Has_It)
{
    const PDU pdu;
    Sample_Texts samples(4103);
    for (qsizetype length = 0; length <= 1600; ++length) {
        const QString text = samples.Text(length);
        const QString to = samples.Digits(samples.Below(21));
        const QString smsc = length % 3 == 0 ? QString() : QString(length % 3 - 1, u'+') + samples.Digits(12);
        const bool flash = samples.Below(2) == 1;
        for (const bool unicode : {false, true})
            ASSERT_EQ(pdu.EncodePDU(text, to, smsc, 0, true, flash, unicode),
                      Reference_Codec::EncodePDU(text, to, smsc, flash, unicode));
    }
}

TEST(Single_Message, Where_There_Is_No_Memory_For_User_Data_It_Ends_At_Its_Length_And_Says_So)
{
    QStringList lines;
    const PDU pdu([&lines](const QString& line) { lines << line; });
    // Claims more characters than a text can hold, so that the memory for its digits is refused before any is looked
    // at.
    const QChar only = u'a';
    const QString boundless = QString::fromRawData(&only, (qsizetype{1} << 60) + 5);

    EXPECT_EQ(pdu.EncodePDU(boundless, To, QString(), 0, true, false, true), u"001100"_s + To_Head + u"0008FF0A"_s);
    EXPECT_EQ(lines, QStringList{u"catch on encode data appending"_s});
    EXPECT_EQ(PDU().EncodePDU(boundless, To, QString(), 0, true, false, true), u"001100"_s + To_Head + u"0008FF0A"_s);
}

TEST(Single_Message, Nothing_Is_Said_Where_Nothing_Goes_Wrong)
{
    QStringList lines;
    const PDU pdu([&lines](const QString& line) { lines << line; });
    pdu.EncodePDU(u"a{b}"_s, To, QString(), 0, true, false, false);
    pdu.Encode_UDH_PDU(u"a{b}"_s, To, QString(), 0, true, false, 1, 1, true);
    EXPECT_TRUE(lines.isEmpty());
}

TEST(Single_Message, Several_Threads_Encode_At_Once_Without_Touching_Each_Other)
{
    const auto encode = [](const QString& text, bool& alike) {
        const QString expected = Reference_Codec::EncodePDU(text, To, QString(), false, false);
        for (int turn = 0; turn < 2000; ++turn)
            alike = alike && Single(text) == expected;
    };
    bool first_alike = true;
    bool second_alike = true;
    std::thread first(encode, QString(160, u'['), std::ref(first_alike));
    std::thread second(encode, QString(160, u'a'), std::ref(second_alike));
    first.join();
    second.join();
    EXPECT_TRUE(first_alike);
    EXPECT_TRUE(second_alike);
}

TEST(Single_Message, The_Instance_Made_Last_Is_The_Shared_One_As_Long_As_It_Lives)
{
    PDU* const standing = PDU::defaultInstance();
    ASSERT_NE(standing, nullptr);
    {
        PDU first;
        EXPECT_EQ(PDU::defaultInstance(), &first);
        {
            PDU second;
            EXPECT_EQ(PDU::defaultInstance(), &second);
        }
        EXPECT_EQ(PDU::defaultInstance(), standing);
    }
    EXPECT_EQ(PDU::defaultInstance(), standing);
    EXPECT_EQ(standing->EncodePDU(u"a"_s, To, QString(), 0, true, false, false), Single(u"a"_s));
}
