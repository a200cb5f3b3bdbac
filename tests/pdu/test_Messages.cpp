#include <QStringList>
#include <thread>

#include "Pdu_Test.h"

namespace {

const QString To_Head = u"0A811032547698"_s;

// Everything of a part up to TP-UDL, which follows.
const QString Part_Head = u"005100"_s + To_Head + u"0000FF"_s;

// The digits of TP-UDL, of a single message and of a part alike.
QString Udl(const QString& pdu)
{
    return pdu.mid(Part_Head.size(), 2);
}

// The user-data header of a part, and what follows it.
QString Header(const QString& part)
{
    return part.mid(Part_Head.size() + 2, 14);
}

QString Slice(const QString& part)
{
    return part.mid(Part_Head.size() + 2 + 14);
}

// Claims more characters than a text can hold, so that memory for its digits is refused before any is looked at.
QString Boundless()
{
    static const QChar only = u'a';
    return QString::fromRawData(&only, (qsizetype{1} << 60) + 5);
}

} // namespace

TEST(Single_Message, The_Worked_Examples_Come_Out_As_Written)
{
    const QString plain = Single(u"hello"_s, {.to = u"+15550001234"_s});
    EXPECT_EQ(plain, u"0011000B915155001032F40000FF05E8329BFD06"_s);
    EXPECT_EQ(Measured(plain), 19);

    const QString flash = Single(u"hello"_s, {.smsc = u"+15550009999"_s, .flash = true});
    EXPECT_EQ(flash, u"07915155009099F911000A8110325476980010FF05E8329BFD06"_s);
    EXPECT_EQ(Measured(flash, u"+15550009999"_s), 18);

    const QString unicode = Single(u"Hi Ω"_s, {.to = u"+15550001234"_s, .unicode = true});
    EXPECT_EQ(unicode, u"0011000B915155001032F40008FF0800480069002003A9"_s);
    EXPECT_EQ(Measured(unicode), 22);

    EXPECT_EQ(Single(QString(), {.to = QString()}), u"001100000000FF00"_s);
}

TEST(Single_Message, Its_Length_Counts_Escapes_Or_Units_Twice_And_Keeps_Its_Last_Two_Digits)
{
    EXPECT_EQ(Udl(Single(u"a{b}"_s)), u"06"_s);
    EXPECT_EQ(Udl(Single(u"a{b}"_s, {.unicode = true})), u"08"_s);
    EXPECT_EQ(Udl(Single(u"\U0001F600"_s)), u"02"_s);
    EXPECT_EQ(Udl(Single(u"\U0001F600"_s, {.unicode = true})), u"04"_s);
    EXPECT_EQ(Udl(Single(QString(256, u'A'))), u"00"_s);
    EXPECT_EQ(Udl(Single(QString(1600, u'A'), {.unicode = true})), u"80"_s);
}

TEST(Single_Message, A_Full_One_Measures_153_Octets_To_Ten_Digits_And_One_More_To_Eleven)
{
    const QString eleven = u"+15550001234"_s;
    EXPECT_EQ(Measured(Single(QString(160, u'A'))), 153);
    EXPECT_EQ(Measured(Single(QString(161, u'A'))), 154);
    EXPECT_EQ(Measured(Single(QString(70, u'Ж'), {.unicode = true})), 153);
    EXPECT_EQ(Measured(Single(QString(71, u'Ж'), {.unicode = true})), 155);
    EXPECT_EQ(Measured(Single(QString(160, u'A'), {.to = eleven})), 154);
    EXPECT_EQ(Measured(Single(QString(158, u'A'), {.to = eleven})), 153);
    EXPECT_EQ(Measured(Single(QString(70, u'Ж'), {.to = eleven, .unicode = true})), 154);
    EXPECT_EQ(Measured(Single(QString(69, u'Ж'), {.to = eleven, .unicode = true})), 152);
}

TEST(Single_Message, Without_The_Service_Centre_There_Is_No_Result_And_The_Length_Handed_In_Changes_Nothing)
{
    const PDU pdu;
    const QString to = How().to;
    for (const bool unicode : {false, true})
        EXPECT_EQ(pdu.EncodePDU(u"hello"_s, to, u"+15550009999"_s, 0, false, false, unicode), QString());
    EXPECT_EQ(pdu.Encode_UDH_PDU(u"hello"_s, to, QString(), 0, false, false, 1, 1, false), QString());
    EXPECT_EQ(tp_ud, u"E8329BFD06"_s); // packed all the same
    for (const quint16 length : {quint16{1}, quint16{153}, quint16{0xFFFF}}) {
        EXPECT_EQ(pdu.EncodePDU(u"hello"_s, to, QString(), length, true, false, false), Single(u"hello"_s));
        EXPECT_EQ(pdu.Encode_UDH_PDU(u"hello"_s, to, QString(), length, true, false, 1, 1, false),
                  Part(u"hello"_s, 1, 1));
    }
}

TEST(Single_Message, Where_There_Is_No_Memory_For_User_Data_It_Ends_At_Its_Length_And_Says_So)
{
    QStringList lines;
    const PDU pdu([&lines](const QString& line) { lines << line; });
    pdu.EncodePDU(u"a{b}"_s, How().to, QString(), 0, true, false, false);
    pdu.Encode_UDH_PDU(u"a{b}"_s, How().to, QString(), 0, true, false, 1, 1, true);
    EXPECT_EQ(lines, QStringList()); // nothing went wrong

    const QString head = u"001100"_s + To_Head + u"0008FF0A"_s;
    EXPECT_EQ(pdu.EncodePDU(Boundless(), How().to, QString(), 0, true, false, true), head);
    EXPECT_EQ(lines, QStringList{u"catch on encode data appending"_s});
    EXPECT_EQ(Single(Boundless(), {.unicode = true}), head);
}

TEST(Single_Message, Several_Threads_Encode_At_Once_Without_Touching_Each_Other)
{
    const auto encode = [](const QString& text, const QString& expected, bool& alike) {
        for (int turn = 0; turn < 2000; ++turn)
            alike = alike && Single(text) == expected;
    };
    bool first_alike = true;
    bool second_alike = true;
    std::thread first(encode, QString(160, u'['), Single(QString(160, u'[')), std::ref(first_alike));
    std::thread second(encode, QString(160, u'a'), Single(QString(160, u'a')), std::ref(second_alike));
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
    EXPECT_EQ(standing->EncodePDU(u"a"_s, How().to, QString(), 0, true, false, false), Single(u"a"_s));
}

TEST(Concatenated_Message, The_Worked_Example_Of_159_Characters_Comes_Out_As_Written)
{
    const QString message = QString(152, u'A') + u"BCDEFGH"_s;
    const How how{.to = u"+15550001234"_s};
    EXPECT_EQ(Measured(Single(message, how)), 154);

    const QString first = Part(message, 2, 1, how);
    EXPECT_EQ(first, u"0051000B915155001032F40000FFA006080400000201"_s + PDU::EncodeUserData(QString(152, u'A')));
    EXPECT_EQ(Measured(first), 154);

    const QString second = Part(message, 2, 2, how);
    EXPECT_EQ(second, u"0051000B915155001032F40000FF1006080400000202"_s + PDU::EncodeUserData(u"BCDEFGH"_s));
    EXPECT_EQ(Measured(second), 28);
}

TEST(Concatenated_Message, Parts_Meet_Their_Lengths_At_The_Boundaries)
{
    EXPECT_EQ(Udl(Part(QString(152, u'A'), 1, 1)), u"A0"_s);
    EXPECT_EQ(Udl(Part(QString(153, u'A'), 2, 1)), u"A0"_s);
    EXPECT_EQ(Udl(Part(QString(153, u'A'), 2, 2)), u"09"_s);
    EXPECT_EQ(Udl(Part(QString(67, u'A'), 2, 1, {.unicode = true})), u"8B"_s);
    EXPECT_EQ(Udl(Part(QString(67, u'A'), 2, 2, {.unicode = true})), u"09"_s);
    EXPECT_EQ(Udl(Part(u"[[[["_s, 1, 1)), u"0C"_s); // four septets after the header's eight, no escapes
}

TEST(Concatenated_Message, A_Last_Part_Of_Seven_More_Than_A_Multiple_Of_Eight_Announces_One_Septet_Too_Many)
{
    for (int septets = 1; septets <= 152; ++septets) {
        const int announced = septets + 8 + (septets % 8 == 7 ? 1 : 0);
        EXPECT_EQ(Udl(Part(QString(septets, u'A'), 1, 1)), PDU::BCDEncode(announced)) << septets;
    }
}

TEST(Concatenated_Message, Parts_And_Totals_Have_Two_Digits_And_The_Reference_Is_Zero)
{
    EXPECT_EQ(Header(Part(u"a"_s, 10, 10)), u"06080400000A0A"_s);
    EXPECT_EQ(Header(Part(u"a"_s, 16, 15)), u"0608040000100F"_s);
    EXPECT_EQ(Header(Part(u"a"_s, 255, 16)), u"0608040000FF10"_s);
    EXPECT_EQ(Header(Part(u"a"_s, 256, 257)), u"06080400000001"_s);
    EXPECT_EQ(Header(Part(u"b"_s, 3, 1)), u"06080400000301"_s);
    EXPECT_EQ(Header(Part(u"x"_s, -1, -1)), u"0608040000FFFF"_s);
}

TEST(Concatenated_Message, Part_2_Asked_For_First_Is_Cut_Out_Of_The_Message_Before)
{
    const QString before = QString(152, u'A') + u"before"_s;
    Part(before, 2, 1);
    EXPECT_EQ(tp_ud, PDU::EncodeUserData(before));
    EXPECT_EQ(Slice(Part(QString(152, u'B') + u"after!"_s, 2, 2)), PDU::EncodeUserData(u"before"_s));
    Single(u"other"_s);
    EXPECT_EQ(Part(Boundless(), 1, 1, {.unicode = true}), QString()); // no memory, no result
    EXPECT_EQ(tp_ud, PDU::EncodeUserData(before));
    Part(QString(152, u'B') + u"after!"_s, 2, 1);
    EXPECT_EQ(Slice(Part(QString(), 2, 2)), PDU::EncodeUserData(u"after!"_s));
}

TEST(Concatenated_Message, Each_Thread_Has_A_Long_Message_And_An_Escape_Flag_Of_Its_Own)
{
    Part(u"mine"_s, 1, 1);
    PDU::MapChar(u"["_s, false);
    QString message_before = u"not looked"_s;
    int flag_before = -1;
    std::thread([&] {
        message_before = tp_ud;
        flag_before = escap_char;
        Part(u"yours"_s, 1, 1);
        PDU::MapChar(u"a"_s, false);
    }).join();
    EXPECT_EQ(message_before, QString());
    EXPECT_EQ(flag_before, 0);
    EXPECT_EQ(tp_ud, PDU::EncodeUserData(u"mine"_s));
    EXPECT_EQ(escap_char, 1);
}

TEST(Concatenated_Message, A_Part_Without_Text_Is_Nothing_But_Its_Header_Wherever_It_Lies)
{
    EXPECT_EQ(Part(QString(), 1, 1), Part_Head + u"0806080400000101"_s);
    EXPECT_EQ(Part(QString(), 1, 1, {.unicode = true}), u"005100"_s + To_Head + u"0008FF0706080400000101"_s);
    Part(QString(160, u'A'), 2, 1);
    EXPECT_EQ(Part(u"x"_s, 2, 3), Part_Head + u"0806080400000203"_s);
    EXPECT_EQ(Part(u"x"_s, 2, 0), Part_Head + u"A006080400000200"_s + tp_ud.first(266));
    EXPECT_EQ(Slice(Part(u"x"_s, 1, 0x7FFFFFFF)), QString());
}
