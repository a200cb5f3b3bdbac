#include "records/Sent_Item_Format.h"

#include "platform/Text_Files.h"
#include "platform/Waiting.h"
#include "records/Samples.h"
#include "records/Store_Files.h"
#include "records/Stored_Text.h"

#include <random>

namespace {

QList<Sent_Item> Read(const QString& text)
{
    QList<Sent_Item> items;
    Sent_Item_Format::Read(text, [&](Sent_Item item) { items.append(std::move(item)); });
    return items;
}

Sent_Item Item(const char* number, const char* message, const char* date, const char* status = "")
{
    return {QString::fromUtf8(number), QString::fromUtf8(message), QString::fromUtf8(date), QString::fromUtf8(status)};
}

// The reader's steps, one after the other, on copies of the rest: slow, and easy to check against the format.
class Slow_Reader
{
public:
    static QList<Sent_Item> Read(const QString& text)
    {
        Slow_Reader reader;
        for (const QString& line : text.split(u'\n'))
            reader.Read_Line(QString(line).replace(QStringLiteral("|AP*|DX/"), QStringLiteral("\n")));
        return reader.m_items;
    }

private:
    static bool Cut(QString& rest, char16_t at, QString& before)
    {
        const auto place = rest.indexOf(at);
        if (place < 0)
            return false;
        before = rest.left(place);
        rest = rest.mid(place);
        return true;
    }
    static void Drop(QString& text, char16_t first)
    {
        if (text.startsWith(first))
            text.remove(0, 1);
    }

    void Read_Line(QString rest)
    {
        QString number;
        QString message;
        QString date;
        while (!rest.isEmpty()) {
            Cut(rest, u'\v', number);
            number = number.trimmed();
            Drop(number, u'\a');
            Cut(rest, u'\a', message);
            Drop(message, u'\v');
            Drop(rest, u'\a');
            Cut(rest, u'\v', date);
            rest = rest.trimmed();
            Drop(rest, u'\v');
            QString status;
            if (!Cut(rest, u'\a', status))
                status = std::exchange(rest, QString());
            if (number.isEmpty())
                continue;
            if (!number.trimmed().isEmpty())
                m_items.append({number.trimmed(), message, date, status});
            number = message = date = QString();
        }
    }

    QList<Sent_Item> m_items;
};

QString Random_Text(std::mt19937& random, const QStringList& letters, int longest)
{
    QString text;
    for (auto left = random() % static_cast<unsigned>(longest + 1); left > 0; --left)
        text += letters.at(static_cast<qsizetype>(random() % static_cast<unsigned>(letters.size())));
    return text;
}

} // namespace

TEST(Sent_Item_Format, A_File_Is_Written_Byte_For_Byte)
{
    EXPECT_EQ(Sent_Item_Format::Lines(Sample_Sent_Items()), Golden("SentItem.ZOVA"));
}

TEST(Sent_Item_Format, A_File_Is_Read_As_It_Was_Written)
{
    EXPECT_EQ(Read(Decode_Utf8(Golden("SentItem.ZOVA")).value()), Sample_Sent_Items());
}

TEST(Sent_Item_Format, Two_Line_Breaks_Take_One_Line_With_Two_Tokens_And_Come_Back)
{
    const Sent_Item item = Item("123", "a\nb\nc", "05/03/2024");
    const QByteArray line = Sent_Item_Format::Line(item);
    EXPECT_EQ(line, QByteArray("\a123\va|AP*|DX/b|AP*|DX/c\a05/03/2024\v\n"));
    EXPECT_EQ(Read(QString::fromUtf8(line)), QList{item});
}

TEST(Sent_Item_Format, The_Status_Is_Shown_When_It_Is_Read_And_Never_Written)
{
    const Sent_Item item = Item("1", "m", "d", "Delivered");
    EXPECT_EQ(Read(QStringLiteral("\a1\vm\ad\v Delivered \n")), QList{item});
    EXPECT_EQ(Sent_Item_Format::Line(item), QByteArray("\a1\vm\ad\v\n"));
}

TEST(Sent_Item_Format, An_Empty_File_Is_An_Empty_List)
{
    EXPECT_TRUE(Read(QString()).isEmpty());
    EXPECT_TRUE(Read(QStringLiteral("\n\n\n")).isEmpty());
}

TEST(Sent_Item_Format, A_Line_Without_A_Number_Adds_No_Record)
{
    EXPECT_TRUE(Read(QStringLiteral("\a\vm\ad\v\n")).isEmpty());
    EXPECT_TRUE(Read(QStringLiteral("\a   \vm\ad\v\n")).isEmpty());
    EXPECT_TRUE(Read(QStringLiteral("  \a \t \vm\ad\vs\n")).isEmpty());
    EXPECT_FALSE(Sent_Item_Format::Record(QStringLiteral(" \n "), {}, {}, {}).has_value());
}

TEST(Sent_Item_Format, The_Number_Is_Trimmed_And_The_Message_Is_Not)
{
    EXPECT_EQ(Read(QStringLiteral("\a 12 3 \v  m  \a d \v s \n")), QList{Item("12 3", "  m  ", " d ", "s")});
}

TEST(Sent_Item_Format, Several_Records_In_One_Line_Come_Apart)
{
    EXPECT_EQ(Read(QStringLiteral("\a1\vm1\ad1\vs1\a2\vm2\ad2\vs2\a3\vm3\ad3\vs3\n")),
              (QList{Item("1", "m1", "d1", "s1"), Item("2", "m2", "d2", "s2"), Item("3", "m3", "d3", "s3")}));
    EXPECT_EQ(Read(QStringLiteral("\a1\vm1\ad1\v\a2\vm2\ad2\vs2\n")),
              (QList{Item("1", "m1", "d1"), Item("2", "m2", "d2", "s2")}));
}

TEST(Sent_Item_Format, The_Last_Of_Several_Records_Loses_A_Separator_At_The_Lines_End)
{
    // The rest of the line is trimmed at both its ends for every record, and the separator counts as white space.
    EXPECT_EQ(Read(QStringLiteral("\a1\vm1\ad1\vs1\a2\vm2\ad2\v\n")),
              (QList{Item("1", "m1", "d1", "s1"), Item("2", "m2", "", "d2")}));
}

TEST(Sent_Item_Format, Separators_In_A_Message_Break_Their_Own_Line_Only)
{
    const Sent_Item broken = Item("1", "bell \a here", "d");
    const Sent_Item torn = Item("2", "tab \v here", "d");
    const Sent_Item sound = Item("3", "sound", "d");
    const auto items = Read(QString::fromUtf8(Sent_Item_Format::Lines({broken, sound, torn, sound})));
    EXPECT_EQ(items, (QList{Item("1", "bell ", " here\ad"), sound, Item("2", "tab \v here", "d"), sound}))
        << "what follows a separator in a message is taken for the next field";
    EXPECT_EQ(items, Slow_Reader::Read(QString::fromUtf8(Sent_Item_Format::Lines({broken, sound, torn, sound}))));
}

TEST(Sent_Item_Format, A_Line_Without_Any_Separator_Gives_Nothing)
{
    EXPECT_TRUE(Read(QStringLiteral("just some text\nand more\r\n")).isEmpty());
}

TEST(Sent_Item_Format, What_A_Record_Without_A_Number_Leaves_Goes_To_The_Record_Behind_It)
{
    const QString line = QStringLiteral("\a\vm\ad\vs\a\a7\n");
    EXPECT_EQ(Read(line), Slow_Reader::Read(line));
}

TEST(Sent_Item_Format, The_Token_Typed_By_A_Person_Comes_Back_As_A_Line_Break)
{
    EXPECT_EQ(Read(QString::fromUtf8(Sent_Item_Format::Line(Item("1", "a|AP*|DX/b", "d")))),
              QList{Item("1", "a\nb", "d")});
}

TEST(Sent_Item_Format, Half_Of_A_Surrogate_Pair_Is_Stored_As_The_Replacement_Character)
{
    const QString half = QStringLiteral("x") + QChar(0xd83d);
    EXPECT_EQ(Sent_Item_Format::Line({QStringLiteral("1"), half, QStringLiteral("d"), {}}),
              QByteArray("\a1\vx\xef\xbf\xbd\ad\v\n"));
    EXPECT_EQ(As_Stored(half + QStringLiteral("y")), QStringLiteral("x\uFFFDy"));
    EXPECT_EQ(As_Stored(QChar(0xde00) + QString::fromUtf8("\U0001F600")), QString::fromUtf8("\uFFFD\U0001F600"));
}

TEST(Sent_Item_Format, Whatever_Is_Written_Is_Read_Back_Within_What_The_Format_Can_Carry)
{
    std::mt19937 random(20240305);
    const QStringList letters{"a",   "Z",      "0",  " ",   "\n", "\r", "\t",     "|", "|AP*",
                              "DX/", "\u00a0", "%1", "\\n", "<",  "€",  "\u2028", "😀", "\u0000"};
    for (int round = 0; round < 3000; ++round) {
        QList<Sent_Item> items;
        for (unsigned count = random() % 4; count > 0; --count)
            items.append({QStringLiteral("n") + Random_Text(random, letters, 6) + u'1',
                          Random_Text(random, letters, 20),
                          Random_Text(random, letters, 4),
                          {}});
        QList<Sent_Item> expected = items;
        for (Sent_Item& item : expected) // pieces of the token that came together by chance
            for (QString* field : {&item.Number, &item.Message, &item.Date})
                *field = With_Line_Breaks(With_Line_Break_Tokens(*field));
        ASSERT_EQ(Read(Decode_Utf8(Sent_Item_Format::Lines(items)).value()), expected) << "round " << round;
    }
}

TEST(Sent_Item_Format, Any_Text_Is_Read_By_The_Steps_Of_The_Format)
{
    std::mt19937 random(7112);
    const QStringList letters{"\a", "\a", "\v", "\v", " ", "\n", "|AP*|DX/", "1", "x", "\r", "\u00a0"};
    for (int round = 0; round < 20000; ++round) {
        const QString text = Random_Text(random, letters, 24);
        ASSERT_EQ(Read(text), Slow_Reader::Read(text))
            << "round " << round << ": " << text.toUtf8().toHex().constData();
    }
}

TEST(Sent_Item_Format, A_Megabyte_Of_Separators_Is_Read_In_No_Time)
{
    const QStringList patterns{"\a",      "\v",    "\a\v",  "\v\a",  " \a ",
                               " \v ",    "x\a",   "x\v",   "\ax\v", "\a1\vm",
                               "\v\a\a ", "\a\v ", "\v1\a", " ",     "|AP*|DX/\a|AP*|DX/",
                               "1"};
    for (const QString& pattern : patterns) {
        const QString line = pattern.repeated((1 << 20) / pattern.size());
        const double begin = Now_Seconds();
        Read(line);
        Read(QStringLiteral("\a1\v") + line);
        EXPECT_LT(Now_Seconds() - begin, 15) << pattern.toUtf8().toHex().constData();
    }
}
