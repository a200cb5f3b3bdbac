#include "Pdu_Test.h"

TEST(Address, Each_Is_Encoded_As_This_Table_Says)
{
    struct Row
    {
        QString address;
        QString as_destination; // begins with the number of digits
        QString as_centre;      // begins with the number of octets
    };
    const QString long_odd = QString(254, u'1') + u"F1"_s;
    const std::vector<Row> rows = {
        {QString(), u"00"_s, u"00"_s},
        {u""_s, u"00"_s, u"00"_s},
        {u"1"_s, u"0181F1"_s, u"0281F1"_s},
        {u"123"_s, u"038121F3"_s, u"038121F3"_s},
        {u"0123456789"_s, u"0A811032547698"_s, u"06811032547698"_s},
        {u"+15550009999"_s, u"0B915155009099F9"_s, u"07915155009099F9"_s},
        {u"0015550001234"_s, u"0D81005155001032F4"_s, u"0881005155001032F4"_s}, // two zeros make no plus
        {u"+"_s, u"0091"_s, u"0191"_s},                                         // only a leading one is looked at
        {u"++44"_s, u"03914+F4"_s, u"03914+F4"_s},
        {u"44+1"_s, u"0481441+"_s, u"0381441+"_s},
        {u"+1-55 00"_s, u"0791-1550 F0"_s, u"0591-1550 F0"_s}, // other characters stand in the place of digits
        {u"a%1b"_s, u"0481%ab1"_s, u"0381%ab1"_s},
        {u"٠١"_s, u"0281١٠"_s, u"0281١٠"_s},
        // Lengths past 15 have two digits, and past 255 as many as they need.
        {QString(20, u'1'), u"1481"_s + QString(20, u'1'), u"0B81"_s + QString(20, u'1')},
        {QString(255, u'1'), u"FF81"_s + long_odd, u"8181"_s + long_odd},
        {QString(256, u'1'), u"10081"_s + QString(256, u'1'), u"8181"_s + QString(256, u'1')},
        {QString(508, u'1'), u"1FC81"_s + QString(508, u'1'), u"FF81"_s + QString(508, u'1')},
        {QString(510, u'1'), u"1FE81"_s + QString(510, u'1'), u"10081"_s + QString(510, u'1')},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(PDU::EncodeDestinationAddress(row.address), row.as_destination);
        EXPECT_EQ(PDU::EncodeSMSCAddress(row.address), row.as_centre);
        EXPECT_EQ(PDU::EncodeAddress(row.address, false), row.as_destination);
        EXPECT_EQ(PDU::EncodeAddress(row.address, true), row.as_centre);
    }
}
