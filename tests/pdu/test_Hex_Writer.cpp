#include <stdexcept>

#include "Pdu_Test.h"
#include "pdu/Hex_Writer.h"

TEST(Hex_Writer, Gives_What_Was_Written_Once_And_Not_The_Room_Left_Over)
{
    Hex_Writer writer(100);
    writer.Put_Octet(0x0A);
    writer.Put_Octet(0x1234); // its low eight bits
    writer.Put_Octet(-1);
    writer.Put_Pair(u'x', u'F');
    writer.Put_Text(u"-+"_s);
    writer.Put_Ucs2(u"Ω"_s);
    EXPECT_EQ(writer.Take(), u"0A34FFxF-+03A9"_s);
    EXPECT_EQ(writer.Take(), QString());
    EXPECT_THROW(writer.Put_Octet(1), std::length_error); // no room is left, either
    EXPECT_EQ(Hex_Writer(10).Take(), QString());
    EXPECT_EQ(Hex_Writer(0).Take(), QString());
}

TEST(Hex_Writer, Refuses_Whatever_Goes_Past_Its_Room)
{
    Hex_Writer writer(3);
    writer.Put_Octet(0xAB);
    EXPECT_THROW(writer.Put_Octet(0), std::length_error);
    EXPECT_THROW(writer.Put_Pair(u'1', u'2'), std::length_error);
    EXPECT_THROW(writer.Put_Text(u"12"_s), std::length_error);
    EXPECT_THROW(writer.Put_Ucs2(u"a"_s), std::length_error);
    EXPECT_THROW(writer.Put_Septets(Septet_Buffer({1})), std::length_error);
    writer.Put_Text(u"c"_s);
    EXPECT_EQ(writer.Take(), u"ABc"_s);
}
