#include "list/Contact_List_File.h"
#include "list/Table_File.h"

#include <QRandomGenerator>
#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

std::shared_ptr<const Contact_Table> Table_Of(const QByteArray& csv)
{
    return std::make_shared<const Contact_Table>(Table_Of_Bytes(csv, QStringLiteral("a.csv"), {}).table);
}

QByteArray Saved(const Recipient_List& list)
{
    QByteArray bytes = Contact_List_File::Heading(list);
    for (int index = 0; index < list.Count(); ++index)
        bytes += Contact_List_File::Line(list, index);
    return bytes;
}

Contact_List_File::Read_List Opened(const QByteArray& bytes)
{
    const Table_In_A_File file = Table_Of_Bytes(bytes, QStringLiteral("list.csv"), {});
    EXPECT_EQ(file.trouble, "");
    EXPECT_TRUE(Contact_List_File::Is_One(file.table));
    return Contact_List_File::List_In(file.table);
}

void Expect_The_Same(const Recipient_List& one, const Recipient_List& other)
{
    ASSERT_EQ(one.Count(), other.Count());
    EXPECT_EQ(one.Field_Names(), other.Field_Names());
    for (int index = 0; index < one.Count(); ++index) {
        EXPECT_EQ(one.At(index).Number, other.At(index).Number) << index;
        EXPECT_EQ(one.Message_At(index), other.Message_At(index)) << index;
        EXPECT_EQ(one.Text_At(index).text, other.Text_At(index).text) << index;
        EXPECT_EQ(one.Text_At(index).fault, other.Text_At(index).fault) << index;
        for (int name = 0; name < one.Field_Names().size(); ++name)
            EXPECT_EQ(one.Field_At(index, name), other.Field_At(index, name)) << index << ", " << name;
    }
}

} // namespace

TEST(Contact_List_File, Holds_The_Number_The_Message_And_The_Fields)
{
    const auto table = Table_Of("Tel,Name\n07700 900100,\"Ann \"\"A\"\" Lee\"\n");
    Recipient_List list;
    list.Append_From_Table(QStringLiteral("00447700900100"), QStringLiteral("Dear {{Name}},\nhello"), table, 0);
    list.Append(QStringLiteral("5550101"), QStringLiteral("a;b,c"));
    EXPECT_EQ(Saved(list).toStdString(),
              "\xEF\xBB\xBF\"Number\",\"Message\",\"Tel\",\"Name\"\r\n"
              "\"00447700900100\",\"Dear {{Name}},\nhello\",\"07700 900100\",\"Ann \"\"A\"\" Lee\"\r\n"
              "\"5550101\",\"a;b,c\"\r\n");
    Expect_The_Same(Opened(Saved(list)).recipients, list);
}

TEST(Contact_List_File, Columns_May_Be_Called_As_Its_Own_Or_Alike_Or_Not_At_All)
{
    const auto table = Table_Of("Number,Message,Name,name,,Column 5\n7700900100,m,a,b,c,d\n7700900101,,,,,\n");
    Recipient_List list;
    for (int row = 0; row < 2; ++row)
        for (const char* message : {"{{Number}} {{Message}}", "{{Name}}", "{{Column 5|x}}", "plain"})
            list.Append_From_Table(QStringLiteral("7700900100"), QString::fromLatin1(message), table, row);
    Expect_The_Same(Opened(Saved(list)).recipients, list);
}

TEST(Contact_List_File, A_List_Without_Fields_Comes_Back_Without_Any)
{
    Recipient_List list;
    list.Append(QStringLiteral("7700900100"), QStringLiteral("{{Name}}"));
    list.Append(QStringLiteral("7700900101"), {});
    const auto read = Opened(Saved(list));
    Expect_The_Same(read.recipients, list);
    EXPECT_FALSE(read.recipients.Has_Fields());
    EXPECT_EQ(Opened(Saved({})).recipients.Count(), 0);
}

TEST(Contact_List_File, Rows_That_Somebody_Spoilt_Are_Left_Out_And_Named)
{
    const auto read = Opened("Number,Message,Name\n7.7E+09,hi,Ann\n+44 7700 900101,hi,Bob\n+447700900102,hi,Cem\n"
                             "7700900103,hi,Dee,one too many\n,hi,Eve\n7700900105\n");
    EXPECT_THAT(read.left_out, ElementsAre(0, 3, 4));
    ASSERT_EQ(read.recipients.Count(), 3);
    EXPECT_EQ(read.recipients.At(0).Number, "00447700900101") << "blanks are no harm";
    EXPECT_EQ(read.recipients.At(1).Number, "00447700900102");
    EXPECT_EQ(read.recipients.Field_At(1, 0), "Cem");
    EXPECT_EQ(read.recipients.At(2).Message, "");
}

TEST(Contact_List_File, Other_Tables_Are_None)
{
    for (const char* other :
         {"Message,Number\nx,1\n", "Number\n1\n", "number,message\n1,x\n", "Name,Number,Message\na,1,x\n"})
        EXPECT_FALSE(Contact_List_File::Is_One(*Table_Of(other))) << other;
}

TEST(Contact_List_File, Whatever_Texts_Hold_Comes_Back)
{
    QRandomGenerator random(20261122);
    const auto text = [&] {
        constexpr QStringView units = u"ab ,;\t|\"'\r\n{}=-+@\uFEFF\u00E4\u4E2D\u001B\u001A\u0007";
        QString made;
        for (int length = random.bounded(12); length > 0; --length)
            made += units[random.bounded(units.size())];
        return made;
    };
    const auto field = [&] { // in which an invisible blank in front counts for nothing
        QString made = text();
        while (made.startsWith(QChar(QChar::ByteOrderMark)))
            made.remove(0, 1);
        return '"' + made.replace(u'"', QLatin1String("\"\"")).toUtf8() + '"';
    };
    for (int round = 0; round < 200; ++round) {
        QByteArray csv = "Tel,A,B\n";
        for (int row = 0; row < 5; ++row)
            csv += "7," + field() + ',' + field() + '\n';
        const auto table = Table_Of(csv);
        Recipient_List list;
        for (int row = 0; row < table->Row_Count(); ++row) {
            list.Append_From_Table(QString::number(770090 + row), text() + QStringLiteral("{{A|") + text(), table, row);
            if (random.bounded(3) == 0)
                list.Append(QStringLiteral("1"), text());
        }
        Expect_The_Same(Opened(Saved(list)).recipients, list);
        ASSERT_FALSE(HasFailure()) << Saved(list).toStdString();
    }
    Recipient_List with_null;
    with_null.Append(QStringLiteral("1"), QString(QChar(u'\0')));
    EXPECT_EQ(Opened(Saved(with_null)).recipients.Message_At(0), " ");
}
