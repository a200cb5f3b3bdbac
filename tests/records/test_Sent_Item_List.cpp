#include "records/Sent_Item_List.h"

#include "platform/Text_Files.h"
#include "records/Samples.h"
#include "records/Sent_Item_Format.h"
#include "records/Store_Files.h"

namespace {

/// What the file's records are, read as one text.
QList<Sent_Item> Read_As_Text(const QByteArray& file)
{
    QList<Sent_Item> items;
    Sent_Item_Format::Read(Decode_Utf8(file).value(), [&](Sent_Item item) { items.append(std::move(item)); });
    return items;
}

void Expect_Same(const QByteArray& file)
{
    const QList<Sent_Item> items = Read_As_Text(file);
    const Sent_Item_List list = Sent_Item_List::Read(file);
    ASSERT_EQ(All_Of(list), items) << file.toHex(' ').constData();
    ASSERT_EQ(list.Lines(), Sent_Item_Format::Lines(items)) << file.toHex(' ').constData();
}

QByteArray Numbered(int first, int last)
{
    QByteArray lines;
    for (int number = first; number <= last; ++number)
        lines += "\a" + QByteArray::number(number) + "\vm|AP*|DX/\ad\v\n";
    return lines;
}

const QByteArrayList Harmless_Pieces =
    QByteArray("1,+,a, ,\t,\r,|,/,|AP*,DX/,|AP*|DX/,\xc3\xbc,\xe2\x82\xac,\xef\xbb\xbf,\xc2\xa0,\xc2\x85,"
               "\xe2\x80\xa8,\xf0\x9f\x98\x80,\x1c,\x7f")
        .split(',') +
    QByteArrayList{QByteArray(1, '\0')};

TEST(Sent_Item_List, The_Sample_File_Is_Read_And_Written_As_It_Is)
{
    const QByteArray file = Golden("SentItem.ZOVA");
    const Sent_Item_List list = Sent_Item_List::Read(file);
    EXPECT_EQ(All_Of(list), Sample_Sent_Items());
    EXPECT_EQ(list.Lines(), file);
    EXPECT_EQ(list.Lines().constData(), file.constData()) << "one and the same bytes: a large file is kept once";
}

TEST(Sent_Item_List, Odd_Files_Are_Read_As_Their_Text_Is)
{
    const QByteArray files =
        "~\n\n\n~\a1\vm\ad\v~\a1\vm\ad\v\n\a2\vm\ad\v~\a1\vm\ad\vs\n~\a1\vm\ad\v s \r\n~\a1\vm\ad\v\r\n\a2\vm\ad\v\r\n"
        "~\a 12 3 \v  m  \a d \v s \n~\a\vm\ad\v\n~\a  \vm\ad\v\n~\a|AP*|DX/\vm\ad\v\n~\a1|AP*|DX/2\vm\ad\v\n"
        "~\a|AP*|DX/1|AP*|DX/\vm\ad\v|AP*|DX/\n~\a\xc2\xa0\vm\ad\v\n~\a\xc2\xa0+\xc2\xa0\vm\ad\v\n"
        "~\xef\xbb\xbf\a1\vm\ad\v\n~\a\xef\xbb\xbf+\v\xef\xbb\xbfm\a\xef\xbb\xbf\v\xef\xbb\xbf\n~  \a1\vm\ad\v\n"
        "~\a1\vm1\ad1\vs1\a2\vm2\ad2\vs2\n\a3\vm\ad\v\n~\a1\vm1\ad1\vs1\a2\vm2\ad2\v\n~\a\vm\ad\vs\a\a7\n"
        "~\a1\vbell \a here\ad\v\n\a2\vtab \v here\ad\v\n~\a1\v\a\v\n~\a1\v\v\a\v\n~\a\a1\vm\ad\v\n"
        "~\a1\vm\ad\n~\a1\vm\n~\a1\n~just text\n\vand more\n";
    for (const QByteArray& file : files.split('~'))
        Expect_Same(file);
    for (const int size : {65'530, 65'536, 70'000, 1 << 20})
        Expect_Same("\a1\v" + QByteArray(size, 'x') + "|AP*|DX/\ad\v\n\a2\vm\ad\v\n");
}

TEST(Sent_Item_List, Any_Lines_Are_Read_As_Their_Text_Is)
{
    Random_Pieces random(2024);
    QByteArrayList pieces = Harmless_Pieces;
    pieces += {"\a", "\a", "\v", "\v", "\n", "\a1\vm\ad\v\n"};
    for (int round = 0; round < 20'000; ++round)
        ASSERT_NO_FATAL_FAILURE(Expect_Same(random.Some_Of(pieces, 24))) << "round " << round;
    // And lines with all their separators.
    for (int round = 0; round < 5'000; ++round) {
        QByteArray file;
        for (unsigned line = random.Below(5); line > 0; --line) {
            for (const char separator : {'\a', '\v', '\a', '\v'})
                file += separator + random.Some_Of(Harmless_Pieces, separator == '\a' ? 4 : 10);
            file += line > 1 || random.Below(4) > 0 ? "\n" : "";
        }
        ASSERT_NO_FATAL_FAILURE(Expect_Same(file)) << "round " << round;
    }
}

TEST(Sent_Item_List, Rows_Leave_It_And_The_Others_Stay)
{
    const QByteArray file = Numbered(1, 4) + "\a5\vm\ad\vs\a6\vm\ad\vs\n" + Numbered(7, 9) + "\a10\vm\ad\v";
    const QList<Sent_Item> items = Read_As_Text(file);
    ASSERT_EQ(items.size(), 10);
    const Sent_Item_List list = Sent_Item_List::Read(file);
    for (unsigned removed = 0; removed < 1U << 10; ++removed) {
        std::vector<int> rows;
        QList<Sent_Item> left;
        for (int row = 0; row < 10; ++row) {
            if (removed >> row & 1)
                rows.push_back(row);
            else
                left.append(items.at(row));
        }
        const Sent_Item_List rest = Rows_Without(list, rows);
        ASSERT_EQ(All_Of(rest), left);
        ASSERT_EQ(rest.Lines(), Sent_Item_Format::Lines(left));
        ASSERT_EQ(rest.isEmpty(), left.isEmpty());
    }
    EXPECT_EQ(All_Of(list), items) << "the list that was asked is as it was";
}

TEST(Sent_Item_List, What_Is_Added_Later_Comes_Behind_The_Lines_Of_The_File)
{
    Sent_Item_List list;
    list.append(Sample_Sent_Items().at(0));
    EXPECT_EQ(All_Of(list), Sample_Sent_Items().mid(0, 1));
    list = Sent_Item_List::Read(Numbered(1, 3));
    const Sent_Item_List before = list;
    for (const Sent_Item& item : Sample_Sent_Items())
        list.append(item);
    EXPECT_EQ(All_Of(list), Read_As_Text(Numbered(1, 3)) + Sample_Sent_Items());
    EXPECT_EQ(list.Lines(), Numbered(1, 3) + Golden("SentItem.ZOVA"));
    EXPECT_EQ(before.size(), 3) << "a copy does not change with the list";
}

TEST(Sent_Item_List, The_First_Rows_Are_Handed_On_Early_And_Once)
{
    QList<QList<Sent_Item>> handed_on;
    const auto early = [&](const Sent_Item_List& first) { handed_on.append(All_Of(first)); };
    Sent_Item_List::Read(Numbered(1, 9), 10, early);
    EXPECT_TRUE(handed_on.isEmpty());
    Sent_Item_List::Read(Numbered(1, 10), 10, early);
    Sent_Item_List::Read(Numbered(1, 30), 10, early);
    Sent_Item_List::Read(Numbered(1, 9) + "\a10\vm\n\ad\v\n\a11\vm\ad\vs\a12\vm\ad\vs\n", 10, early);
    ASSERT_EQ(handed_on.size(), 3);
    EXPECT_EQ(handed_on.at(0), Read_As_Text(Numbered(1, 10)));
    EXPECT_EQ(handed_on.at(1), handed_on.at(0));
    EXPECT_EQ(handed_on.at(2).size(), 10);
}

TEST(Sent_Item_List, Bytes_That_Are_No_Utf_8_Are_Known_Without_Their_Text)
{
    Random_Pieces random(11);
    QByteArrayList pieces = Harmless_Pieces;
    pieces += QByteArray("\x80 \xc3 \xe2\x82 \xf0\x9f\x98 \xff \xc0\x80 \xed\xa0\x80 \xf4\x90\x80\x80 \xef\xbf\xbf "
                         "\xf4\x8f\xbf\xbf xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx")
                  .split(' ');
    int valid = 0;
    for (int round = 0; round < 20'000; ++round) {
        const QByteArray bytes = random.Some_Of(pieces, 5);
        ASSERT_EQ(Is_Valid_Utf8(bytes), Decode_Utf8(bytes).has_value()) << bytes.toHex(' ').constData();
        valid += Is_Valid_Utf8(bytes) ? 1 : 0;
    }
    EXPECT_GT(valid, 2'000);
    EXPECT_LT(valid, 18'000);
}

} // namespace
