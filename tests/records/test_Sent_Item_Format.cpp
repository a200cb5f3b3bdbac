#include "records/Sent_Item_Format.h"

#include "platform/Text_Files.h"
#include "platform/Waiting.h"
#include "records/Samples.h"
#include "records/Store_Files.h"
#include "records/Stored_Text.h"

namespace {

QList<Sent_Item> Read(const QString& text)
{
    QList<Sent_Item> items;
    Sent_Item_Format::Read(text, [&](Sent_Item item) { items.append(std::move(item)); });
    return items;
}

Sent_Item Item(const char* number, const char* message, const char* date, const char* status = "")
{
    return {number, message, date, status};
}

// The reader's steps, one after the other, on copies of the rest: slow, and easy to check against the format.
class Slow_Reader
{
public:
    static QList<Sent_Item> Read(const QString& text)
    {
        Slow_Reader reader;
        for (const QString& line : text.split(u'\n'))
            reader.Read_Line(QString(line).replace("|AP*|DX/", "\n"));
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

} // namespace

TEST(Sent_Item_Format, A_File_Is_Written_Byte_For_Byte_And_Read_As_It_Was_Written)
{
    EXPECT_EQ(Sent_Item_Format::Lines(Sample_Sent_Items()), Golden("SentItem.ZOVA"));
    EXPECT_EQ(Read(Decode_Utf8(Golden("SentItem.ZOVA")).value()), Sample_Sent_Items());
}

TEST(Sent_Item_Format, A_Line_Has_A_Token_For_Each_Line_Break_And_Never_A_Status)
{
    EXPECT_EQ(Sent_Item_Format::Line(Item("123", "a\nb\nc", "05/03/2024", "Delivered")),
              "\a123\va|AP*|DX/b|AP*|DX/c\a05/03/2024\v\n");
    const QString half = QString("x") + QChar(0xd83d);
    EXPECT_EQ(Sent_Item_Format::Line({"1", half, "d", {}}), "\a1\vx\xef\xbf\xbd\ad\v\n");
    EXPECT_EQ(As_Stored(half + "y"), "x\uFFFDy");
    EXPECT_EQ(As_Stored(QChar(0xde00) + QString("\U0001F600")), "\uFFFD\U0001F600");
    EXPECT_FALSE(Sent_Item_Format::Record(" \n ", {}, {}, {}).has_value());
}

TEST(Sent_Item_Format, Lines_Are_Read_As_Far_As_They_Hold_Records)
{
    const Sent_Item sound = Item("3", "sound", "d");
    const std::pair<QString, QList<Sent_Item>> texts_and_records[]{
        {"", {}},
        {"\n\n\n", {}},
        {"\a\vm\ad\v\n", {}},
        {"\a   \vm\ad\v\n", {}},
        {"  \a \t \vm\ad\vs\n", {}},
        {"just some text\nand more\r\n", {}},
        {"\a1\va|AP*|DX/b|AP*|DX/c\ad\v\n", {Item("1", "a\nb\nc", "d")}},
        {"\a 12 3 \v  m  \a d \v s \n", {Item("12 3", "  m  ", " d ", "s")}}, // a message is never trimmed
        // Several records in one line come apart. The last loses a separator at the line's end: the rest of the line is
        // trimmed at both its ends for every record, and the separator counts as white space.
        {"\a1\vm1\ad1\vs1\a2\vm2\ad2\vs2\a3\vm3\ad3\vs3\n",
         {Item("1", "m1", "d1", "s1"), Item("2", "m2", "d2", "s2"), Item("3", "m3", "d3", "s3")}},
        {"\a1\vm1\ad1\v\a2\vm2\ad2\vs2\n", {Item("1", "m1", "d1"), Item("2", "m2", "d2", "s2")}},
        {"\a1\vm1\ad1\vs1\a2\vm2\ad2\v\n", {Item("1", "m1", "d1", "s1"), Item("2", "m2", "", "d2")}},
        // A separator in a message breaks its own line only: what follows it is taken for the next field.
        {"\a1\vbell \a here\ad\v\n\a3\vsound\ad\v\n", {Item("1", "bell ", " here\ad"), sound}},
        {"\a2\vtab \v here\ad\v\n\a3\vsound\ad\v\n", {Item("2", "tab \v here", "d"), sound}},
        // What a record without a number leaves goes to the record behind it.
        {"\a\vm\ad\vs\a7\vx\n", {Item("7", "m", "", "x")}},
        {"\a\vm\ad\vs\a\a7\n", {}},
    };
    for (const auto& [text, records] : texts_and_records) {
        EXPECT_EQ(Read(text), records) << text.toStdString();
        EXPECT_EQ(Slow_Reader::Read(text), records) << text.toStdString();
    }
}

TEST(Sent_Item_Format, Whatever_Is_Written_Is_Read_Back_Within_What_The_Format_Can_Carry)
{
    Random_Pieces random(20240305);
    const QStringList letters{"a",   "Z",      "0",  " ",   "\n", "\r", "\t",     "|", "|AP*",
                              "DX/", "\u00a0", "%1", "\\n", "<",  "€",  "\u2028", "😀", "\u0000"};
    for (int round = 0; round < 3000; ++round) {
        QList<Sent_Item> items;
        for (unsigned count = random.Below(4); count > 0; --count)
            items.append(
                {"n" + random.Some_Of(letters, 6) + u'1', random.Some_Of(letters, 20), random.Some_Of(letters, 4), {}});
        QList<Sent_Item> expected = items;
        for (Sent_Item& item : expected) // pieces of the token that came together by chance
            for (QString* field : {&item.Number, &item.Message, &item.Date})
                *field = With_Line_Breaks(With_Line_Break_Tokens(*field));
        ASSERT_EQ(Read(Decode_Utf8(Sent_Item_Format::Lines(items)).value()), expected) << "round " << round;
    }
}

TEST(Sent_Item_Format, Any_Text_Is_Read_By_The_Steps_Of_The_Format)
{
    Random_Pieces random(7112);
    const QStringList letters{"\a", "\a", "\v", "\v", " ", "\n", "|AP*|DX/", "1", "x", "\r", "\u00a0"};
    for (int round = 0; round < 20000; ++round) {
        const QString text = random.Some_Of(letters, 24);
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
        Read("\a1\v" + line);
        EXPECT_LT(Now_Seconds() - begin, 15) << pattern.toUtf8().toHex().constData();
    }
}
