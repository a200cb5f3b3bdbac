#include "records/Template_Format.h"

#include "platform/Text_Files.h"
#include "platform/Waiting.h"
#include "records/Samples.h"
#include "records/Store_Files.h"

#include <random>

namespace {

QStringList Read(const QString& text)
{
    QStringList texts;
    Template_Format::Read(text, [&](const Template_Item& item) { texts.append(item.Message); });
    return texts;
}

} // namespace

TEST(Template_Format, A_File_Is_Written_Byte_For_Byte)
{
    EXPECT_EQ(Template_Format::Lines(Sample_Templates()), Golden("Templates.ZOVA"));
}

TEST(Template_Format, A_File_Is_Read_As_It_Was_Written)
{
    QList<Template_Item> items;
    Template_Format::Read(Decode_Utf8(Golden("Templates.ZOVA")).value(),
                          [&](const Template_Item& item) { items.append(item); });
    EXPECT_EQ(items, Sample_Templates());
}

TEST(Template_Format, Two_Line_Breaks_Survive)
{
    const QByteArray line = Template_Format::Line(QStringLiteral("a\nb\nc"));
    EXPECT_EQ(line, QByteArray("a|AP*|DX/b|AP*|DX/c\n"));
    EXPECT_EQ(Read(QString::fromUtf8(line)), QStringList{QStringLiteral("a\nb\nc")});
}

TEST(Template_Format, A_Line_That_Equals_A_Template_Before_It_Is_Left_Out)
{
    EXPECT_EQ(Read(QStringLiteral("a\nb\na\nb\nc\n")), (QStringList{"a", "b", "c"}));
}

TEST(Template_Format, A_Line_That_Differs_By_Blanks_Around_It_Comes_Trimmed_Once_More)
{
    EXPECT_EQ(Read(QStringLiteral("a\n a \na\n")), (QStringList{"a", "a"}));
    EXPECT_EQ(Read(QStringLiteral("|AP*|DX/a\n")), QStringList{"a"});
}

TEST(Template_Format, Blank_And_Empty_Lines_Are_No_Templates)
{
    EXPECT_TRUE(Read(QString()).isEmpty());
    EXPECT_TRUE(Read(QStringLiteral("\n  \n|AP*|DX/\n\t\r\n")).isEmpty());
    EXPECT_FALSE(Template_Format::Template_Of(QStringLiteral(" \n ")).has_value());
}

TEST(Template_Format, A_Template_Is_Trimmed_And_Then_Cut_To_1600_Characters)
{
    const QString text = QString(1599, u'x') + QStringLiteral("  y");
    EXPECT_EQ(Template_Format::Template_Of(u' ' + text)->Message, QString(1599, u'x') + u' ');
    EXPECT_EQ(Template_Format::Template_Of(QString(1600, u'x'))->Message.size(), 1600);
}

TEST(Template_Format, What_Is_Written_Is_Read_Back_Within_What_The_Format_Can_Carry)
{
    std::mt19937 random(72);
    const QStringList letters{"a", "b", " ", "\n", "|", "|AP*", "DX", "é", "😀", "\r", "\t", "\a", "\v"};
    for (int round = 0; round < 3000; ++round) {
        QList<Template_Item> items;
        QStringList expected;
        for (unsigned count = random() % 5; count > 0; --count) {
            QString text = QString::number(count) + u':'; // no two alike
            for (auto left = random() % 20; left > 0; --left)
                text += letters.at(static_cast<qsizetype>(random() % static_cast<unsigned>(letters.size())));
            items.append({text + u'.'});
            expected.append(text + u'.');
        }
        ASSERT_EQ(Read(Decode_Utf8(Template_Format::Lines(items)).value()), expected) << "round " << round;
    }
}

TEST(Template_Format, One_Huge_Line_And_A_Million_Short_Ones_Are_Read_In_No_Time)
{
    const double begin = Now_Seconds();
    EXPECT_EQ(Read(QString(10 << 20, u'x')).first().size(), 1600);
    EXPECT_TRUE(Read(QString(1 << 20, u'\n')).isEmpty());
    EXPECT_EQ(Read(QStringLiteral("a\n").repeated(1 << 20)).size(), 1);
    EXPECT_EQ(Read(QStringLiteral("|AP*|DX/").repeated(1 << 17)).size(), 0);
    EXPECT_LT(Now_Seconds() - begin, 30);
}
