#include <gtest/gtest.h>

#include "Reference_Codec.h"
#include "Sample_Texts.h"
#include "Text_Printing.h"
#include "pdu/PDU.h"

using namespace Qt::StringLiterals;

TEST(Address, An_Empty_One_Is_A_Single_Octet_Of_Zero)
{
    EXPECT_EQ(PDU::EncodeSMSCAddress(QString()), u"00"_s);
    EXPECT_EQ(PDU::EncodeDestinationAddress(QString()), u"00"_s);
    EXPECT_EQ(PDU::EncodeDestinationAddress(u""_s), u"00"_s);
}

TEST(Address, A_Service_Centre_Counts_Octets_And_A_Destination_Digits)
{
    EXPECT_EQ(PDU::EncodeSMSCAddress(u"+15550009999"_s), u"07915155009099F9"_s);
    EXPECT_EQ(PDU::EncodeDestinationAddress(u"+15550009999"_s), u"0B915155009099F9"_s);
    EXPECT_EQ(PDU::EncodeSMSCAddress(u"0123456789"_s), u"06811032547698"_s);
    EXPECT_EQ(PDU::EncodeDestinationAddress(u"0123456789"_s), u"0A811032547698"_s);
    EXPECT_EQ(PDU::EncodeAddress(u"0123456789"_s, true), PDU::EncodeSMSCAddress(u"0123456789"_s));
    EXPECT_EQ(PDU::EncodeAddress(u"0123456789"_s, false), PDU::EncodeDestinationAddress(u"0123456789"_s));
}

TEST(Address, An_Odd_Number_Of_Digits_Ends_In_A_Pair_That_Begins_With_F)
{
    EXPECT_EQ(PDU::EncodeDestinationAddress(u"123"_s), u"038121F3"_s);
    EXPECT_EQ(PDU::EncodeDestinationAddress(u"1"_s), u"0181F1"_s);
    EXPECT_EQ(PDU::EncodeSMSCAddress(u"123"_s), u"038121F3"_s);
}

TEST(Address, A_Number_Made_International_By_Two_Zeros_Is_Sent_As_Plain_Digits)
{
    EXPECT_EQ(PDU::EncodeDestinationAddress(u"0015550001234"_s), u"0D81005155001032F4"_s);
    EXPECT_EQ(PDU::EncodeDestinationAddress(u"+15550001234"_s), u"0B915155001032F4"_s);
}

TEST(Address, Only_A_Leading_Plus_Is_Looked_At)
{
    EXPECT_EQ(PDU::EncodeDestinationAddress(u"+"_s), u"0091"_s);
    EXPECT_EQ(PDU::EncodeSMSCAddress(u"+"_s), u"0191"_s);
    EXPECT_EQ(PDU::EncodeDestinationAddress(u"++44"_s), u"03914+F4"_s);
    EXPECT_EQ(PDU::EncodeDestinationAddress(u"44+1"_s), u"0481441+"_s);
}

TEST(Address, Other_Characters_Stand_In_The_Place_Of_Digits)
{
    EXPECT_EQ(PDU::EncodeSMSCAddress(u"+1-55 00"_s), u"0591-1550 F0"_s);
    EXPECT_EQ(PDU::EncodeSMSCAddress(u"12-34"_s), u"0481213-F4"_s);
    EXPECT_EQ(PDU::EncodeSMSCAddress(u"1 2"_s), u"0381 1F2"_s);
    EXPECT_EQ(PDU::EncodeDestinationAddress(u"a%1b"_s), u"0481%ab1"_s);
    EXPECT_EQ(PDU::EncodeDestinationAddress(u"٠١"_s), u"0281١٠"_s);
}

TEST(Address, Lengths_Past_15_Have_Two_Digits_And_Past_255_As_Many_As_They_Need)
{
    EXPECT_EQ(PDU::EncodeDestinationAddress(QString(20, u'1')), u"1481"_s + QString(20, u'1'));
    EXPECT_EQ(PDU::EncodeDestinationAddress(QString(255, u'1')), u"FF81"_s + QString(254, u'1') + u"F1"_s);
    EXPECT_EQ(PDU::EncodeDestinationAddress(QString(256, u'1')), u"10081"_s + QString(256, u'1'));
    EXPECT_EQ(PDU::EncodeSMSCAddress(QString(508, u'1')), u"FF81"_s + QString(508, u'1'));
    EXPECT_EQ(PDU::EncodeSMSCAddress(QString(510, u'1')), u"10081"_s + QString(510, u'1'));
}

TEST(Address, Every_Length_And_Any_Text_Comes_Out_As_The_Long_Way_Has_It)
{
    Sample_Texts samples(4102);
    for (qsizetype length = 0; length <= 600; ++length) {
        for (const QString& address : {samples.Digits(length), u'+' + samples.Digits(length), samples.Text(length)}) {
            ASSERT_EQ(PDU::EncodeDestinationAddress(address), Reference_Codec::EncodeAddress(address, false));
            ASSERT_EQ(PDU::EncodeSMSCAddress(address), Reference_Codec::EncodeAddress(address, true));
        }
    }
}
