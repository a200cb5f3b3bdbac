#include <numeric>
#include <stdexcept>

#include <gtest/gtest.h>

#include "Text_Printing.h"
#include "pdu/Hex_Writer.h"

using namespace Qt::StringLiterals;

namespace {

Septet_Buffer Septets(std::initializer_list<quint8> septets)
{
    return Septet_Buffer(septets);
}

} // namespace

TEST(Hex_Writer, Gives_What_Was_Written_And_Not_The_Room_Left_Over)
{
    Hex_Writer writer(100);
    writer.Put_Octet(0x0A);
    writer.Put_Pair(u'x', u'F');
    writer.Put_Text(u"-+"_s);
    writer.Put_Ucs2(u"Ω"_s);
    EXPECT_EQ(writer.Take(), u"0AxF-+03A9"_s);
    EXPECT_EQ(Hex_Writer(10).Take(), QString());
    EXPECT_EQ(Hex_Writer(0).Take(), QString());
}

TEST(Hex_Writer, Is_Empty_And_Without_Room_Once_Its_Text_Is_Taken)
{
    Hex_Writer writer(4);
    writer.Put_Octet(1);
    writer.Take();
    EXPECT_EQ(writer.Take(), QString());
    EXPECT_THROW(writer.Put_Octet(1), std::length_error);
}

TEST(Hex_Writer, Refuses_Whatever_Goes_Past_Its_Room)
{
    Hex_Writer writer(3);
    writer.Put_Octet(0xAB);
    EXPECT_THROW(writer.Put_Octet(0), std::length_error);
    EXPECT_THROW(writer.Put_Pair(u'1', u'2'), std::length_error);
    EXPECT_THROW(writer.Put_Text(u"12"_s), std::length_error);
    EXPECT_THROW(writer.Put_Ucs2(u"a"_s), std::length_error);
    EXPECT_THROW(writer.Put_Septets(Septets({1})), std::length_error);
    writer.Put_Text(u"c"_s);
    EXPECT_EQ(writer.Take(), u"ABc"_s);
}

TEST(Hex_Writer, An_Octet_Is_The_Low_Eight_Bits)
{
    Hex_Writer writer(10);
    for (const qint64 value : {0LL, 255LL, 256LL, 0x1234LL, -1LL})
        writer.Put_Octet(value);
    EXPECT_EQ(writer.Take(), u"00FF0034FF"_s);
}

TEST(Hex_Writer, Septets_Take_Seven_Eighths_Of_Their_Number_Rounded_Up)
{
    for (qsizetype count = 0; count <= 1600; ++count) {
        EXPECT_EQ(Packed_Octets(count), (count * 7 + 7) / 8);
        Hex_Writer writer(Packed_Octets(count) * 2);
        Septet_Buffer septets(count);
        std::iota(septets.begin(), septets.end(), quint8{0});
        for (quint8& septet : septets)
            septet &= 0x7F;
        writer.Put_Septets(septets);
        EXPECT_EQ(writer.Take().size(), Packed_Octets(count) * 2);
    }
}

TEST(Hex_Writer, Each_Septet_Stands_At_Seven_Times_Its_Number_Of_Bits)
{
    for (int place = 0; place < 24; ++place) {
        Septet_Buffer septets(24);
        std::fill(septets.begin(), septets.end(), quint8{0});
        septets[place] = 0x7F;
        Hex_Writer writer(42);
        writer.Put_Septets(septets);
        const QString digits = writer.Take();
        for (int bit = 0; bit < 168; ++bit) {
            const int octet = digits.sliced(bit / 8 * 2, 2).toInt(nullptr, 16);
            EXPECT_EQ((octet >> bit % 8) & 1, bit / 7 == place ? 1 : 0) << "septet " << place << ", bit " << bit;
        }
    }
}
