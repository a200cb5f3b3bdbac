#include "list/Packed_Number.h"

#include <QStringList>
#include <gtest/gtest.h>
#include <set>

namespace {

const QStringList Odd_Texts{
    "+49",         "12,34", " 1", "1 ", "12a", ":", "/", "123456789012345678901", QString(21, u'0'),
    QChar(0x0661), // a digit, but not one of ours
    QChar(u'\0')};

} // namespace

TEST(Packed_Number, Digits_Come_Back_As_They_Were)
{
    for (const QString& text :
         QStringList{"", "0", "9", "00", "004917012345", "12345678", "123456789", "1234567890123456",
                     "12345678901234567", "99999999999999999999", QString(20, u'0')}) {
        const auto packed = Packed_Number::Of(text);
        ASSERT_TRUE(packed) << text.toStdString();
        EXPECT_EQ(Number_Texts().Text_Of(*packed), text);
        EXPECT_EQ(packed->Is_Empty(), text.isEmpty());
    }
    EXPECT_NE(Packed_Number::Of(u"1"), Packed_Number::Of(u"01"));
    EXPECT_NE(Packed_Number::Of(u"0"), Packed_Number::Of(u"00"));
    EXPECT_NE(Packed_Number::Of(u""), Packed_Number::Of(u"0"));
}

TEST(Packed_Number, The_Twenty_First_Digit_Changes_Nothing)
{
    auto number = *Packed_Number::Of(QString(20, u'7'));
    EXPECT_FALSE(number.Add_Digit(u'1'));
    EXPECT_EQ(number, *Packed_Number::Of(QString(20, u'7')));
}

TEST(Packed_Number, Hashes_Of_Neighbours_Differ)
{
    std::set<std::uint32_t> low_bits;
    for (int i = 0; i < 4096; ++i)
        low_bits.insert(Packed_Number::Of(QString::number(4'917'000'000'000 + i))->Hash(1) & 4095);
    EXPECT_GT(low_bits.size(), 2300U); // of 4096 thrown at random, 2589 places are met
}

TEST(Number_Texts, A_List_Keeps_What_Is_Not_Of_Digits_Alone)
{
    Number_Texts texts;
    std::vector<Packed_Number> packed;
    for (const QString& text : Odd_Texts) {
        EXPECT_FALSE(Packed_Number::Of(text)) << text.toStdString();
        EXPECT_FALSE(texts.Packed(text)) << text.toStdString();
        packed.push_back(texts.Pack(text));
    }
    for (qsizetype i = 0; i < Odd_Texts.size(); ++i) {
        const auto& number = packed[static_cast<std::size_t>(i)];
        EXPECT_EQ(texts.Text_Of(number), Odd_Texts[i]);
        EXPECT_EQ(texts.Pack(Odd_Texts[i]), number) << "packed again it is the same";
        EXPECT_EQ(texts.Packed(Odd_Texts[i]), number);
        for (qsizetype other = 0; other < i; ++other)
            EXPECT_NE(packed[static_cast<std::size_t>(other)], number);
    }
    EXPECT_EQ(texts.Pack("12"), *Packed_Number::Of(u"12"));
}
