#include "list/Number_File.h"
#include "support/Files.h"

#include <QTemporaryDir>
#include <sys/stat.h>

namespace {

class Number_File_Test : public testing::Test
{
protected:
    QString Text_Of(const char* name, const QByteArray& bytes) const
    {
        Write_Bytes(m_folder.filePath(name), bytes);
        return Text_Of_Number_File(m_folder.filePath(name));
    }

    QTemporaryDir m_folder;
};

TEST_F(Number_File_Test, Plain_Text_Is_Taken_As_Strict_Utf_8)
{
    EXPECT_EQ(Text_Of("a.txt", "1\r\n2\n"), "1\r\n2\n");
    EXPECT_EQ(Text_Of("a", "\xC3\xA4"), QString::fromUtf8("\xC3\xA4"));
    EXPECT_EQ(Text_Of("a.txt", "1\n2\n\xFF\n3\n"), "");
    EXPECT_EQ(Text_Of("a.txt", QByteArray("\xFF\xFE\x31\x00\x0A\x00", 6)), "") << "UTF-16";
    EXPECT_EQ(Text_Of("a.txt", ""), "");
}

TEST_F(Number_File_Test, A_Byte_Order_Mark_At_The_Front_Is_Passed_Over)
{
    EXPECT_EQ(Text_Of("a.txt", "\xEF\xBB\xBF"
                               "1\n"),
              "1\n");
}

TEST_F(Number_File_Test, Rich_Text_Goes_By_Its_Extension_In_Any_Case)
{
    const QByteArray rich = "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0 +44-7700\\par 1234\\par}";
    for (const char* name : {"a.rtf", "a.RTF", "a.Rtf"}) {
        const auto lines = Text_Of(name, rich).split('\n', Qt::SkipEmptyParts);
        EXPECT_EQ(lines, QStringList({"+44-7700", "1234"})) << name;
    }
    EXPECT_EQ(Text_Of("a.txt", rich), QString(rich));
}

TEST_F(Number_File_Test, What_Can_Not_Be_Read_Is_Empty)
{
    EXPECT_EQ(Text_Of_Number_File(m_folder.filePath("missing.txt")), "");
    EXPECT_EQ(Text_Of_Number_File(m_folder.filePath("missing.rtf")), "");
    ASSERT_TRUE(QDir().mkpath(m_folder.filePath("folder.txt")));
    EXPECT_EQ(Text_Of_Number_File(m_folder.filePath("folder.txt")), "");
    ASSERT_EQ(mkfifo(m_folder.filePath("pipe.txt").toLocal8Bit().constData(), 0600), 0);
    EXPECT_EQ(Text_Of_Number_File(m_folder.filePath("pipe.txt")), "");
}

TEST_F(Number_File_Test, What_Is_There_And_No_List_Of_Numbers_Has_Not_A_Byte)
{
    Write_Bytes(m_folder.filePath("a.txt"), "1\n22\n");
    EXPECT_EQ(Bytes_Of_Number_File(m_folder.filePath("a.txt"), 5), "1\n22\n");
    EXPECT_EQ(Bytes_Of_Number_File(m_folder.filePath("a.txt"), 4), "") << "too large";
    ASSERT_TRUE(QDir().mkpath(m_folder.filePath("folder.txt")));
    EXPECT_EQ(Bytes_Of_Number_File(m_folder.filePath("folder.txt")), "");
    ASSERT_EQ(mkfifo(m_folder.filePath("pipe.txt").toLocal8Bit().constData(), 0600), 0);
    EXPECT_EQ(Bytes_Of_Number_File(m_folder.filePath("pipe.txt")), "");
    EXPECT_EQ(Bytes_Of_Number_File(m_folder.filePath("missing.txt")), std::nullopt);
}

TEST_F(Number_File_Test, Of_Gigabytes_Not_One_Is_Read)
{
    Write_Bytes(m_folder.filePath("huge.txt"), "1\n");
    ASSERT_TRUE(QFile::resize(m_folder.filePath("huge.txt"), Largest_Number_File + 1));
    EXPECT_EQ(Text_Of_Number_File(m_folder.filePath("huge.txt")), "");
    EXPECT_EQ(Bytes_Of_Number_File(m_folder.filePath("huge.txt")), "");
}

} // namespace
