#include <functional>

#include "Pdu_Test.h"
#include "pdu/Submit_Fields.h"

TEST(Submit_Fields, Each_Writes_Its_Own_Octets_And_No_More)
{
    const std::vector<std::pair<QString, std::function<void(Hex_Writer&)>>> fields = {
        {u"11"_s, [](Hex_Writer& writer) { Put_First_Octet(writer, false); }},
        {u"51"_s, [](Hex_Writer& writer) { Put_First_Octet(writer, true); }},
        {u"00"_s, Put_Message_Reference},
        {u"00"_s, Put_Pid},
        {u"00"_s, [](Hex_Writer& writer) { Put_Dcs(writer, false, false); }},
        {u"10"_s, [](Hex_Writer& writer) { Put_Dcs(writer, true, false); }},
        {u"08"_s, [](Hex_Writer& writer) { Put_Dcs(writer, false, true); }},
        {u"18"_s, [](Hex_Writer& writer) { Put_Dcs(writer, true, true); }},
        {u"FF"_s, Put_Validity},
        {u"A0"_s, [](Hex_Writer& writer) { Put_Udl(writer, 160); }},
        {u"40"_s, [](Hex_Writer& writer) { Put_Udl(writer, 1600); }},
        {u"06080400000B0A"_s,
         [](Hex_Writer& writer) {
             Put_Concatenation(writer, {11, 10});
         }},
        {u"00"_s, [](Hex_Writer& writer) { Put_Address(writer, {}, Address_Length::Digits); }},
        {u"039121F3"_s, [](Hex_Writer& writer) { Put_Address(writer, u"+123", Address_Length::Digits); }},
        {u"04812143F5"_s, [](Hex_Writer& writer) { Put_Address(writer, u"12345", Address_Length::Octets_And_Type); }},
        {u"0011000181F10000FF07"_s,
         [](Hex_Writer& writer) {
             Put_Head(writer, {u"", u"1", false, false, false}, 7);
         }},
        {u"0281F15100000018FF07"_s,
         [](Hex_Writer& writer) {
             Put_Head(writer, {u"1", u"", true, true, true}, 7);
         }},
    };
    for (const auto& [octets, put] : fields) {
        Hex_Writer writer(octets.size());
        put(writer);
        EXPECT_EQ(writer.Take(), octets);
    }
}

TEST(Submit_Fields, An_Address_And_A_Head_Take_The_Digits_Foretold_For_Any_Addresses)
{
    for (qsizetype length = 0; length <= 9000; length += length < 1100 ? 1 : 97) {
        for (const QString& address : {QString(length, u'1'), u'+' + QString(length, u'1')}) {
            for (const Address_Length counted : {Address_Length::Digits, Address_Length::Octets_And_Type}) {
                Hex_Writer writer(Address_Digits(address, counted));
                ASSERT_NO_THROW(Put_Address(writer, address, counted)) << length;
                ASSERT_EQ(writer.Take().size(), Address_Digits(address, counted)) << length;
            }
            const Submit_Head head{address, address, true, true, true};
            Hex_Writer writer(Head_Digits(head));
            ASSERT_NO_THROW(Put_Head(writer, head, 0)) << length;
            ASSERT_EQ(writer.Take().size(), Head_Digits(head)) << length;
        }
    }
}
