#include "records/Data_Paths.h"
#include "records/Export_Format.h"

#include "records/Export_Writer.h"
#include "records/Samples.h"
#include "records/Store_Files.h"

#include <QDir>
#include <QTemporaryDir>

namespace {

QByteArray Sent_Items_File(int mode)
{
    QByteArray file = Export_Format::Sent_Items_Header(mode);
    for (const auto& item : Sample_Sent_Items())
        file += Export_Format::Sent_Item_Piece(mode, item);
    return file;
}

QByteArray Templates_File(int mode)
{
    QByteArray file = Export_Format::Templates_Header(mode);
    for (const auto& item : Sample_Templates())
        file += Export_Format::Template_Piece(mode, item);
    return file;
}

QString Text_Of(const QByteArray& piece)
{
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(piece.constData()), piece.size() / 2);
}

Export_Content Three_Pieces()
{
    return {"head", 3, [](qsizetype index) { return QByteArray::number(index); }};
}

} // namespace

TEST(Export_Format, Sent_Items_As_Text)
{
    EXPECT_EQ(Sent_Items_File(Export_Format::Text_Mode), Golden("SentItems.txt"));
}

TEST(Export_Format, Sent_Items_As_Html)
{
    EXPECT_EQ(Sent_Items_File(Export_Format::Html_Mode), Golden("SentItems.html"));
}

TEST(Export_Format, Templates_As_Text)
{
    EXPECT_EQ(Templates_File(Export_Format::Text_Mode), Golden("Templates.txt"));
}

TEST(Export_Format, Templates_As_Html)
{
    EXPECT_EQ(Templates_File(Export_Format::Html_Mode), Golden("Templates.html"));
}

TEST(Export_Format, Every_Piece_Has_A_Byte_Order_Mark_Of_Its_Own)
{
    const QByteArray file = Export_Format::Sent_Items_Header(0) +
                            Export_Format::Sent_Item_Piece(0, Sample_Sent_Items().at(0)) +
                            Export_Format::Sent_Item_Piece(0, Sample_Sent_Items().at(1));
    EXPECT_EQ(file.count("\xff\xfe"), 3);
    for (const int mode : {0, 1}) {
        EXPECT_TRUE(Export_Format::Templates_Header(mode).startsWith("\xff\xfe"));
        EXPECT_TRUE(Export_Format::Template_Piece(mode, {}).startsWith("\xff\xfe"));
    }
}

TEST(Export_Format, Two_Blanks_In_A_Row_Both_Show_In_The_Page)
{
    const QString row = Text_Of(Export_Format::Sent_Item_Piece(1, {{}, QStringLiteral("a  b\nc"), {}, {}}));
    EXPECT_TRUE(row.contains(QStringLiteral("<td>a&nbsp;&nbsp;b<br>c</td>"))) << qPrintable(row);
}

TEST(Export_Format, Only_The_Message_Is_Changed_For_The_Page_And_The_Status_Is_Left_Out)
{
    const QString row = Text_Of(Export_Format::Sent_Item_Piece(
        1, {QStringLiteral("1 2"), QStringLiteral("<b>"), QStringLiteral("d d"), QStringLiteral("gone")}));
    EXPECT_TRUE(row.contains(QStringLiteral("<td>1 2</td>")));
    EXPECT_TRUE(row.contains(QStringLiteral("<td>d d</td>")));
    EXPECT_TRUE(row.contains(QStringLiteral("<td><b></td>")));
    EXPECT_FALSE(row.contains(QStringLiteral("gone")));
}

TEST(Export_Writer, What_Stood_At_The_Path_Is_Replaced)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("list.txt"));
    Write_Bytes(path, QByteArray(1000, 'x'));
    EXPECT_TRUE(Write_Export(path, Three_Pieces()));
    EXPECT_EQ(Bytes_Of(path), QByteArray("head012"));
}

TEST(Export_Writer, A_Link_Is_Replaced_And_What_It_Leads_To_Is_Not)
{
    const QTemporaryDir folder;
    const QString target = folder.filePath(QStringLiteral("target"));
    const QString path = folder.filePath(QStringLiteral("list.txt"));
    Write_Bytes(target, "precious");
    ASSERT_TRUE(QFile::link(target, path));
    EXPECT_TRUE(Write_Export(path, Three_Pieces()));
    EXPECT_EQ(Bytes_Of(target), QByteArray("precious"));
    EXPECT_EQ(Bytes_Of(path), QByteArray("head012"));
}

TEST(Export_Writer, A_Link_To_A_Store_That_Can_Not_Be_Taken_Away_Is_An_Error)
{
    const Data_Folder folder;
    const QString path = folder.Beside("list.txt");
    Write_Bytes(Sent_Item_Path, "precious");
    ASSERT_TRUE(QFile::link(Sent_Item_Path, path));
    folder.Turn_Read_Only();
    EXPECT_FALSE(As_Nobody([&] { return Write_Export(path, Three_Pieces()); }));
    folder.Turn_Writable();
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), QByteArray("precious"));
}

TEST(Export_Writer, A_Folder_At_The_Path_Is_An_Error)
{
    const QTemporaryDir folder;
    EXPECT_FALSE(Write_Export(folder.path(), Three_Pieces()));
    EXPECT_FALSE(Write_Export(folder.filePath(QStringLiteral("no/such/folder.txt")), Three_Pieces()));
    EXPECT_TRUE(QDir(folder.path()).exists());
}

TEST(Export_Writer, An_Exception_During_The_Writing_Is_An_Error)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("list.txt"));
    EXPECT_FALSE(Write_Export(path, {"head", 1, [](qsizetype) -> QByteArray { throw std::bad_alloc(); }}));
}

TEST(Export_Writer, A_Device_At_The_Path_Is_An_Error)
{
    EXPECT_FALSE(Write_Export(QStringLiteral("/dev/full"), Three_Pieces()));
}

TEST(Export_Writer, A_Full_Disk_Is_An_Error_And_What_Was_Written_Stays)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("list.txt"));
    {
        const Full_Disk full_disk(100'000);
        EXPECT_FALSE(Write_Export(path, {"head", 30, [](qsizetype) { return QByteArray(10'000, 'x'); }}));
    }
    EXPECT_EQ(Bytes_Of(path), "head" + QByteArray(99'996, 'x'));
}

TEST(Export_Writer, A_Long_List_Comes_Whole)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("list.txt"));
    EXPECT_TRUE(Write_Export(path, {"", 100'000, [](qsizetype index) { return QByteArray::number(index) + '\n'; }}));
    QByteArray expected;
    for (int index = 0; index < 100'000; ++index)
        expected += QByteArray::number(index) + '\n';
    EXPECT_EQ(Bytes_Of(path), expected);
}
