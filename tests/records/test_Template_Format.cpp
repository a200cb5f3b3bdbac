#include "records/Template_Format.h"

#include "platform/Text_Files.h"
#include "platform/Waiting.h"
#include "records/Samples.h"
#include "records/Store_Files.h"

namespace {

QStringList Read(const QString& text)
{
    QStringList texts;
    Template_Format::Read(text, [&](const Template_Item& item) { texts.append(item.Message); });
    return texts;
}

} // namespace

TEST(Template_Format, A_File_Is_Written_Byte_For_Byte_And_Read_As_It_Was_Written)
{
    EXPECT_EQ(Template_Format::Lines(Sample_Templates()), Golden("Templates.ZOVA"));
    QList<Template_Item> items;
    Template_Format::Read(Decode_Utf8(Golden("Templates.ZOVA")).value(),
                          [&](const Template_Item& item) { items.append(item); });
    EXPECT_EQ(items, Sample_Templates());
    EXPECT_EQ(Template_Format::Line("a\nb\nc"), "a|AP*|DX/b|AP*|DX/c\n");
}

TEST(Template_Format, Lines_Are_Read_Trimmed_And_Those_That_Equal_A_Template_Before_Them_Are_Left_Out)
{
    EXPECT_EQ(Read("a\nb\na\nb\nc\n"), (QStringList{"a", "b", "c"}));
    EXPECT_EQ(Read("a\n a \na\n"), (QStringList{"a", "a"})) << "blanks make a difference, and are then trimmed";
    EXPECT_EQ(Read("|AP*|DX/a|AP*|DX/b\n"), QStringList{"a\nb"});
    EXPECT_TRUE(Read("").isEmpty());
    EXPECT_TRUE(Read("\n  \n|AP*|DX/\n\t\r\n").isEmpty());
    EXPECT_FALSE(Template_Format::Template_Of(" \n ").has_value());
}

TEST(Template_Format, A_Template_Is_Trimmed_And_Then_Cut_To_1600_Characters)
{
    EXPECT_EQ(Template_Format::Template_Of(u' ' + QString(1599, u'x') + "  y")->Message, QString(1599, u'x') + u' ');
    EXPECT_EQ(Template_Format::Template_Of(QString(1600, u'x'))->Message.size(), 1600);
}

TEST(Template_Format, What_Is_Written_Is_Read_Back_Within_What_The_Format_Can_Carry)
{
    Random_Pieces random(72);
    const QStringList letters{"a", "b", " ", "\n", "|", "|AP*", "DX", "é", "😀", "\r", "\t", "\a", "\v"};
    for (int round = 0; round < 3000; ++round) {
        QList<Template_Item> items;
        QStringList expected;
        for (unsigned count = random.Below(5); count > 0; --count) {
            expected.append(QString::number(count) + u':' + random.Some_Of(letters, 19) + u'.'); // no two alike
            items.append({expected.last()});
        }
        ASSERT_EQ(Read(Decode_Utf8(Template_Format::Lines(items)).value()), expected) << "round " << round;
    }
}

TEST(Template_Format, One_Huge_Line_And_A_Million_Short_Ones_Are_Read_In_No_Time)
{
    const double begin = Now_Seconds();
    EXPECT_EQ(Read(QString(10 << 20, u'x')).first().size(), 1600);
    EXPECT_TRUE(Read(QString(1 << 20, u'\n')).isEmpty());
    EXPECT_EQ(Read(QString("a\n").repeated(1 << 20)).size(), 1);
    EXPECT_EQ(Read(QString("|AP*|DX/").repeated(1 << 17)).size(), 0);
    EXPECT_LT(Now_Seconds() - begin, 30);
}
