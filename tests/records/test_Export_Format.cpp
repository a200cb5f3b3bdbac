#include "records/Export_Format.h"

#include "records/Export_Writer.h"
#include "records/Samples.h"
#include "records/Store_Files.h"

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

class Export_Writer : public testing::Test
{
protected:
    static Export_Content Three_Pieces()
    {
        return {"head", 3, [](qsizetype index) { return QByteArray::number(index); }};
    }

    Data_Folder m_folder;
    QString m_path = m_folder.Beside("list.txt");
};

} // namespace

TEST(Export_Format, Files_Are_Written_Byte_For_Byte)
{
    EXPECT_EQ(Sent_Items_File(Export_Format::Text_Mode), Golden("SentItems.txt"));
    EXPECT_EQ(Sent_Items_File(Export_Format::Html_Mode), Golden("SentItems.html"));
    EXPECT_EQ(Templates_File(Export_Format::Text_Mode), Golden("Templates.txt"));
    EXPECT_EQ(Templates_File(Export_Format::Html_Mode), Golden("Templates.html"));
}

TEST(Export_Format, Every_Piece_Has_A_Byte_Order_Mark_Of_Its_Own)
{
    for (const int mode : {0, 1}) {
        EXPECT_EQ(Sent_Items_File(mode).count("\xff\xfe"), 1 + Sample_Sent_Items().size());
        EXPECT_TRUE(Export_Format::Sent_Items_Header(mode).startsWith("\xff\xfe"));
        EXPECT_TRUE(Export_Format::Sent_Item_Piece(mode, {}).startsWith("\xff\xfe"));
        EXPECT_TRUE(Export_Format::Templates_Header(mode).startsWith("\xff\xfe"));
        EXPECT_TRUE(Export_Format::Template_Piece(mode, {}).startsWith("\xff\xfe"));
    }
}

TEST(Export_Format, Only_The_Message_Is_Changed_For_The_Page_And_The_Status_Is_Left_Out)
{
    const QByteArray piece = Export_Format::Sent_Item_Piece(1, {"1 2", "<b>  b\nc", "d d", "gone"});
    const QString row = QString::fromUtf16(reinterpret_cast<const char16_t*>(piece.constData()), piece.size() / 2);
    for (const char* cell : {"<td>1 2</td>", "<td>d d</td>", "<td><b>&nbsp;&nbsp;b<br>c</td>"})
        EXPECT_TRUE(row.contains(cell)) << cell;
    EXPECT_FALSE(row.contains("gone"));
}

TEST_F(Export_Writer, What_Stood_At_The_Path_Is_Replaced_And_What_A_Link_Leads_To_Is_Not)
{
    Write_Bytes(Sent_Item_Path, "precious");
    ASSERT_TRUE(QFile::link(Sent_Item_Path, m_path));
    m_folder.Turn_Read_Only();
    EXPECT_FALSE(As_Nobody([&] { return Write_Export(m_path, Three_Pieces()); })) << "it can not be taken away";
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), "precious");
    m_folder.Turn_Writable();
    EXPECT_TRUE(Write_Export(m_path, Three_Pieces()));
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), "precious");
    EXPECT_EQ(Bytes_Of(m_path), "head012");
    Write_Bytes(m_path, QByteArray(1000, 'x'));
    EXPECT_TRUE(Write_Export(m_path, Three_Pieces()));
    EXPECT_EQ(Bytes_Of(m_path), "head012");
}

TEST_F(Export_Writer, A_Folder_A_Device_And_An_Exception_During_The_Writing_Are_Errors)
{
    Put_A_Folder_At(m_folder.Beside("folder"));
    EXPECT_FALSE(Write_Export(m_folder.Beside("folder"), Three_Pieces()));
    EXPECT_TRUE(QFileInfo(m_folder.Beside("folder")).isDir());
    EXPECT_FALSE(Write_Export(m_folder.Beside("no/such/folder.txt"), Three_Pieces()));
    EXPECT_FALSE(Write_Export("/dev/full", Three_Pieces()));
    EXPECT_FALSE(Write_Export(m_path, {"head", 1, [](qsizetype) -> QByteArray { throw std::bad_alloc(); }}));
}

TEST_F(Export_Writer, A_Full_Disk_Is_An_Error_And_What_Was_Written_Stays)
{
    {
        const Full_Disk full_disk(100'000);
        EXPECT_FALSE(Write_Export(m_path, {"head", 30, [](qsizetype) { return QByteArray(10'000, 'x'); }}));
    }
    EXPECT_EQ(Bytes_Of(m_path), "head" + QByteArray(99'996, 'x'));
}

TEST_F(Export_Writer, A_Long_List_Comes_Whole)
{
    const auto line = [](qsizetype index) { return QByteArray::number(index) + '\n'; };
    EXPECT_TRUE(Write_Export(m_path, {"", 100'000, line}));
    QByteArray expected;
    for (int index = 0; index < 100'000; ++index)
        expected += line(index);
    EXPECT_EQ(Bytes_Of(m_path), expected);
}
