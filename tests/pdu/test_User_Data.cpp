#include "Pdu_Test.h"

TEST(User_Data, A_Mapped_Text_Has_One_Character_For_Each_Septet)
{
    EXPECT_EQ(PDU::MapTo7BitAlphabet(u"hello"_s), u"hello"_s);
    EXPECT_EQ(PDU::MapTo7BitAlphabet(u"a{b}"_s), u"a\x1B(b\x1B)"_s);
    EXPECT_EQ(PDU::MapTo7BitAlphabet(u"_£\n"_s), u"\x11\x01\n"_s);
    // Code 0 and a plain 64 are carried as "@", an escaped 64 as the bar.
    EXPECT_EQ(PDU::MapTo7BitAlphabet(u"@¡|"_s + QChar(u'\0')), u"@@\x1B|@"_s);
}

TEST(User_Data, Mapping_A_Text_Leaves_The_Flag_Of_Its_Last_Character_And_Ucs2_Leaves_It_Alone)
{
    PDU::MapTo7BitAlphabet(u"a["_s);
    PDU::MapTo7BitAlphabet(QString());
    EXPECT_EQ(escap_char, 1);
    PDU::MapTo7BitAlphabet(u"[a"_s);
    EXPECT_EQ(escap_char, 0);
    Single(u"a["_s);
    Single(u"a"_s, {.unicode = true});
    EXPECT_EQ(escap_char, 1);
    Single(u"a"_s);
    EXPECT_EQ(escap_char, 0);
}

TEST(User_Data, Mapped_Texts_Are_Packed_As_Written)
{
    const auto packed = [](const QString& text) { return PDU::EncodeUserData(PDU::MapTo7BitAlphabet(text)); };
    EXPECT_EQ(packed(u"hello"_s), u"E8329BFD06"_s);
    EXPECT_EQ(packed(u"a{b}"_s), u"E10D4ABC4901"_s);
    EXPECT_EQ(packed(u"1234567"_s), u"31D98C56B3DD00"_s);
    EXPECT_EQ(packed(u"12345678"_s), u"31D98C56B3DD70"_s);
    EXPECT_EQ(packed(u"123456789"_s), u"31D98C56B3DD7039"_s);
    EXPECT_EQ(packed(QString()), QString());
    // The code 124 of "ö" is the bar's, so 64 and no escape; "ż", "ŀ" and "Ā" have the low bytes 124, 64 and 0.
    const std::vector<std::pair<QString, QString>> rows = {
        {u"@"_s, u"00"_s}, {u"¡"_s, u"00"_s}, {u"|"_s, u"1B20"_s}, {u"¿"_s, u"9B32"_s}, {u"ø"_s, u"0C"_s},
        {u"ö"_s, u"40"_s}, {u"ż"_s, u"40"_s}, {u"ŀ"_s, u"00"_s},   {u"Ā"_s, u"00"_s},   {u"À"_s, u"40"_s}};
    for (const auto& [text, octets] : rows)
        EXPECT_EQ(packed(text), octets) << text.toStdString();
}

TEST(User_Data, Only_The_First_Character_Is_Mapped_And_The_Flag_Handed_In_Changes_Nothing)
{
    for (const bool flag : {false, true}) {
        EXPECT_EQ(PDU::MapChar(u"{a"_s, flag), 40);
        EXPECT_EQ(PDU::MapChar(QString(), flag), 0);
        EXPECT_EQ(escap_char, 1) << "an empty text leaves it alone";
        EXPECT_EQ(PDU::MapChar(u"a{"_s, flag), 97);
        EXPECT_EQ(PDU::MapChar(QString(), flag), 0);
        EXPECT_EQ(escap_char, 0);
    }
}

TEST(User_Data, Only_The_Low_Seven_Bits_Of_A_Raw_Character_Are_Packed)
{
    EXPECT_EQ(PDU::EncodeUserData(u"中"_s), u"2D"_s);
    EXPECT_EQ(PDU::EncodeUserData(u"@"_s), u"00"_s);
    EXPECT_EQ(PDU::EncodeUserData(u"|"_s), u"40"_s);
    EXPECT_EQ(PDU::EncodeUserData(u"ŀ"_s), u"40"_s); // its low byte is 64, but it is not "@"
    EXPECT_EQ(PDU::EncodeUserData(u"ż"_s), u"7C"_s); // its low byte is 124, but it is not the bar
}

TEST(User_Data, Ucs2_Is_Four_Digits_For_Each_Unit_And_Comes_Back_As_Far_As_One_Byte_Goes)
{
    EXPECT_EQ(PDU::EncodeUserData_16_bit(u"Hi Ω"_s), u"00480069002003A9"_s);
    EXPECT_EQ(PDU::EncodeUserData_16_bit(u"\U0001F600"_s + QChar(u'\0')), u"D83DDE000000"_s);
    EXPECT_EQ(PDU::EncodeUserData_16_bit(QString()), QString());

    for (const auto& [digits, text] :
         {std::pair(u"004800690020"_s, u"Hi "_s), std::pair(u"00ff"_s, u"ÿ"_s), std::pair(u"03A9"_s, u"©"_s),
          std::pair(u"0048006"_s, u"H"_s), std::pair(u"004"_s, QString()), std::pair(QString(), QString())})
        EXPECT_EQ(PDU::DecodeUserData_16_bit(digits), text) << digits.toStdString();
    for (char16_t unit = 0; unit <= 0xFF; ++unit)
        EXPECT_EQ(PDU::DecodeUserData_16_bit(PDU::EncodeUserData_16_bit(QChar(unit))), QString(QChar(unit)));
}
