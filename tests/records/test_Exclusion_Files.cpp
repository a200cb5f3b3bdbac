#include "records/Exclusion_Files.h"

#include "platform/Text_Files.h"
#include "records/Store_Files.h"

namespace {

QStringList Texts_Of(const auto& numbers)
{
    QStringList texts;
    for (int row = 0; row < numbers.Count(); ++row)
        texts.append(numbers.At(row));
    return texts;
}

Number_List Numbers_Of(const QStringList& texts)
{
    Number_List numbers;
    for (const QString& text : texts)
        numbers.Append(text);
    return numbers;
}

QStringList Applied_Texts()
{
    return Texts_Of(Exclusion_Files::Read_Applied_Numbers().numbers);
}

class Exclusion_Files_Test : public testing::Test
{
protected:
    static void Expect_No_List_Is_Written(const QString& name)
    {
        EXPECT_FALSE(Exclusion_Files::Create_List_If_Missing(name)) << name.toStdString();
        EXPECT_FALSE(Exclusion_Files::Write_List(name, Numbers_Of({"9"}))) << name.toStdString();
    }

    static void Expect_Nothing_Is_Written()
    {
        EXPECT_FALSE(Exclusion_Files::Append_To_Index("a"));
        EXPECT_FALSE(Exclusion_Files::Write_Index({"a"}));
        EXPECT_FALSE(Exclusion_Files::Write_Applied({"a"}));
        Expect_No_List_Is_Written("a");
    }

    Data_Folder m_data;
};

TEST_F(Exclusion_Files_Test, A_Lists_Path_Is_Its_Name_With_The_Extension_In_The_Folder)
{
    for (const QString name : {"Staff", "a:b", "exlistindex", "a\\b", ".", "..", "a b", "\xF0\x9F\x98\x80"})
        EXPECT_EQ(Exclusion_Files::List_Path(name), Exclusion_Folder_Path + "/" + name + ".ZOVA");
    for (const QString& name :
         QStringList{"../x", "a/b", "/", "/etc/passwd", "x/..", "a" + QString(QChar(u'\0')) + "b", QChar(u'\0')})
        EXPECT_FALSE(Exclusion_Files::List_Path(name).has_value()) << name.toStdString();
}

TEST_F(Exclusion_Files_Test, Nothing_Outside_The_Folder_Is_Touched_Under_Any_Name)
{
    const QString outside = Corvane_Data_Folder_Path + "/x.ZOVA";
    Write_Bytes(outside, "1\n");
    QDir(Exclusion_Folder_Path).mkpath("sub");
    Write_Bytes(Path_Of_List("sub/x"), "2\n");
    Make_List("Staff", "3\n");
    for (const QString& name :
         QStringList{"../x", "sub/x", Corvane_Data_Folder_Path + "/x", "Staff" + QString(QChar(u'\0'))}) {
        Expect_No_List_Is_Written(name);
        EXPECT_EQ(Exclusion_Files::Read_List(name).Count(), 0);
        Exclusion_Files::Delete_List(name);
        Write_Bytes(Applied_Exclusion_Path, name.toUtf8() + "\n");
        EXPECT_EQ(Applied_Texts(), QStringList());
    }
    EXPECT_EQ(Bytes_Of(outside), "1\n");
    EXPECT_EQ(Bytes_Of(Path_Of_List("sub/x")), "2\n");
    EXPECT_EQ(Bytes_Of(Path_Of_List("Staff")), "3\n") << "a NUL in a name does not lead to the list before it";
}

TEST_F(Exclusion_Files_Test, The_Files_Are_Written_Byte_For_Byte)
{
    EXPECT_TRUE(Exclusion_Files::Create_List_If_Missing("a"));
    EXPECT_EQ(Bytes_Of(Path_Of_List("a")), "");
    EXPECT_TRUE(Exclusion_Files::Append_To_Index("Staff"));
    EXPECT_TRUE(Exclusion_Files::Append_To_Index("Küche \xF0\x9F\x98\x80"));
    EXPECT_EQ(Bytes_Of(Exclusion_Index_Path), "Staff\nKüche \xF0\x9F\x98\x80\n");
    EXPECT_TRUE(Exclusion_Files::Write_Index({"b", "a"}));
    EXPECT_EQ(Bytes_Of(Exclusion_Index_Path), "b\na\n");
    EXPECT_TRUE(Exclusion_Files::Write_Index({}));
    EXPECT_EQ(Bytes_Of(Exclusion_Index_Path), "");
    EXPECT_TRUE(Exclusion_Files::Write_Applied({"a", "b"}));
    EXPECT_EQ(Bytes_Of(Applied_Exclusion_Path), "a\nb\n");
    EXPECT_TRUE(Exclusion_Files::Write_List("a", Numbers_Of({"004912", "7", "7"})));
    EXPECT_TRUE(Exclusion_Files::Create_List_If_Missing("a"));
    EXPECT_EQ(Bytes_Of(Path_Of_List("a")), "004912\n7\n7\n") << "left as it is";
    EXPECT_TRUE(Exclusion_Files::Write_List("a", {}));
    EXPECT_EQ(Bytes_Of(Path_Of_List("a")), "");
    EXPECT_EQ(Permissions_Of(Path_Of_List("a")), 0777U);
    Exclusion_Files::Delete_List("a");
    EXPECT_EQ(Bytes_Of(Path_Of_List("a")), "(no file)");
    Exclusion_Files::Delete_List("a");
}

TEST_F(Exclusion_Files_Test, The_Golden_Files_Read_As_They_Were_Meant)
{
    const QString golden = CORVANE_TEST_DATA "/exclusion/";
    Write_Bytes(Exclusion_Index_Path, Bytes_Of(golden + "ExListIndex.ZOVA"));
    Write_Bytes(Applied_Exclusion_Path, Bytes_Of(golden + "AppExclusion.ZOVA"));
    for (const char* name : {"Staff", "Customers"})
        Write_Bytes(Path_Of_List(name), Bytes_Of(golden + name + ".ZOVA"));
    EXPECT_EQ(Exclusion_Files::Read_Index(), QStringList({"Staff", "Customers", "Küche"}));
    EXPECT_EQ(Exclusion_Files::Read_Applied(), QStringList({"Customers", "Staff"}));
    EXPECT_EQ(Texts_Of(Exclusion_Files::Read_List("Staff")), QStringList({"00447700900123", "12345"}));
    EXPECT_EQ(Applied_Texts(), QStringList({"12345", "00491701234567", "00447700900123", "12345"}));

    EXPECT_TRUE(Exclusion_Files::Write_Index(Exclusion_Files::Read_Index()));
    EXPECT_TRUE(Exclusion_Files::Write_Applied(Exclusion_Files::Read_Applied()));
    EXPECT_TRUE(Exclusion_Files::Write_List("Staff", Exclusion_Files::Read_List("Staff")));
    EXPECT_EQ(Bytes_Of(Exclusion_Index_Path), Bytes_Of(golden + "ExListIndex.ZOVA"));
    EXPECT_EQ(Bytes_Of(Applied_Exclusion_Path), Bytes_Of(golden + "AppExclusion.ZOVA"));
    EXPECT_EQ(Bytes_Of(Path_Of_List("Staff")), Bytes_Of(golden + "Staff.ZOVA"));
}

TEST_F(Exclusion_Files_Test, Entries_Are_Trimmed_And_Empty_Ones_Skipped)
{
    Write_Bytes(Exclusion_Index_Path, "\r\n  Staff \r\n\n \t \nAdmin");
    EXPECT_EQ(Exclusion_Files::Read_Index(), QStringList({"Staff", "Admin"}));
    Write_Bytes(Applied_Exclusion_Path, "a\r\nb\r\n");
    EXPECT_EQ(Exclusion_Files::Read_Applied(), QStringList({"a", "b"}));
    Write_Bytes(Path_Of_List("a"), "1\r\n\r\n 2\n2\n");
    EXPECT_EQ(Texts_Of(Exclusion_Files::Read_List("a")), QStringList({"1", "2", "2"}));
}

TEST_F(Exclusion_Files_Test, A_Byte_Order_Mark_Is_No_Part_Of_A_Name_Or_A_Number)
{
    const QByteArray mark = "\xEF\xBB\xBF";
    Make_List("a", mark + "1\r\n2\n" + mark + " 3\n"); // two files joined to one
    Make_List("b", "4\n" + mark + "\n");
    Write_Bytes(Exclusion_Index_Path, mark + "a\n" + mark + mark + "b\n" + mark);
    Write_Bytes(Applied_Exclusion_Path, mark + "a\n" + mark + mark + "b\n" + mark);
    EXPECT_EQ(Exclusion_Files::Read_Index(), QStringList({"a", "b"}));
    EXPECT_EQ(Exclusion_Files::Read_Applied(), QStringList({"a", "b"}));
    EXPECT_EQ(Texts_Of(Exclusion_Files::Read_List("a")), QStringList({"1", "2", "3"}));
    const auto applied = Exclusion_Files::Read_Applied_Numbers();
    EXPECT_EQ(Texts_Of(applied.numbers), QStringList({"1", "2", "3", "4"}));
    EXPECT_EQ(applied.unusable_lists, QStringList());
    EXPECT_TRUE(applied.is_readable);
}

TEST_F(Exclusion_Files_Test, An_Applied_List_That_Is_There_And_Excludes_Nobody_Is_Named_Once)
{
    Make_List("good", "1\n");
    Make_List("bytes", "2\n\xFF\n");
    Make_List("sixteen bit", QByteArray("\xFF\xFE\x31\0\n\0", 6));
    Put_A_Folder_At(Path_Of_List("folder"));
    ASSERT_TRUE(QFile::link(Path_Of_List("loop"), Path_Of_List("loop")));
    Make_List("blank", "3\n");
    Make_List("empty", "");
    Write_Bytes(Applied_Exclusion_Path,
                "good\nbytes\nsixteen bit\ngone\nfolder\nloop\nblank \n\nblank\r\na/b\nempty\nbytes\n");
    const auto applied = Exclusion_Files::Read_Applied_Numbers();
    EXPECT_EQ(Texts_Of(applied.numbers), QStringList("1"));
    EXPECT_EQ(applied.unusable_lists, QStringList({"bytes", "sixteen bit", "folder", "loop", "blank"}));
    EXPECT_TRUE(applied.is_readable);
}

TEST_F(Exclusion_Files_Test, What_Can_Not_Be_Read_Reads_As_Empty_And_What_Is_Missing_Is_Not_Told)
{
    for (const QString& path : {Exclusion_Index_Path, Applied_Exclusion_Path})
        ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(Exclusion_Files::Read_Index(), QStringList());
    EXPECT_TRUE(Exclusion_Files::Read_Applied_Numbers().is_readable);
    for (const QString& path : {Exclusion_Index_Path, Applied_Exclusion_Path})
        Write_Bytes(path, "Staff\n\xFF\n");
    EXPECT_EQ(Exclusion_Files::Read_Index(), QStringList());
    EXPECT_FALSE(Exclusion_Files::Read_Applied_Numbers().is_readable);
    Put_A_Folder_At(Applied_Exclusion_Path);
    EXPECT_EQ(Exclusion_Files::Read_Applied(), QStringList());
    EXPECT_EQ(Applied_Texts(), QStringList());
    EXPECT_FALSE(Exclusion_Files::Read_Applied_Numbers().is_readable);
    ASSERT_EQ(mkfifo(qPrintable(Path_Of_List("pipe")), 0600), 0);
    ASSERT_TRUE(QFile::link(Path_Of_List("loop"), Path_Of_List("loop")));
    for (const char* name : {"pipe", "loop", "missing"})
        EXPECT_EQ(Exclusion_Files::Read_List(name).Count(), 0) << name;
}

TEST_F(Exclusion_Files_Test, A_File_That_Can_Not_Be_Read_At_All_Is_Not_Written_Over)
{
    const QString paths[]{Exclusion_Index_Path, Applied_Exclusion_Path, Path_Of_List("Staff")};
    for (const QString& path : paths) {
        Write_Bytes(path, "Staff\n");
        ASSERT_TRUE(QFile::resize(path, (qint64{2} << 30) + 1)); // larger than what is ever read
    }
    EXPECT_EQ(Exclusion_Files::Read_List("Staff").Count(), 0);
    EXPECT_FALSE(Exclusion_Files::Write_List("Staff", Numbers_Of({"1"})));
    EXPECT_FALSE(Exclusion_Files::Write_Index({"New"}));
    EXPECT_FALSE(Exclusion_Files::Write_Applied({"New"}));
    for (const QString& path : paths)
        EXPECT_EQ(QFileInfo(path).size(), (qint64{2} << 30) + 1);
}

TEST_F(Exclusion_Files_Test, What_Is_No_File_Can_Not_Be_Written_And_Stays)
{
    for (const QString& path : {Exclusion_Index_Path, Applied_Exclusion_Path, Path_Of_List("a")})
        Put_A_Folder_At(path);
    EXPECT_TRUE(Exclusion_Files::Index_Exists());
    Expect_Nothing_Is_Written();
    Exclusion_Files::Delete_List("a");
    EXPECT_TRUE(QFileInfo(Path_Of_List("a")).isDir());
    ASSERT_EQ(mkfifo(qPrintable(Path_Of_List("pipe")), 0600), 0);
    Expect_No_List_Is_Written("pipe");

    ASSERT_TRUE(QDir(Corvane_Data_Folder_Path).removeRecursively());
    Write_Bytes(Corvane_Data_Folder_Path, "in the way");
    Check_Path_And_Create_Files();
    EXPECT_FALSE(Exclusion_Files::Index_Exists());
    Expect_Nothing_Is_Written();
    EXPECT_EQ(Exclusion_Files::Read_Index(), QStringList());
    EXPECT_EQ(Applied_Texts(), QStringList());
}

TEST_F(Exclusion_Files_Test, What_Can_Not_Be_Read_Is_Kept_Beside_The_File_Before_It_Is_Replaced)
{
    const QString paths[]{Exclusion_Index_Path, Applied_Exclusion_Path, Path_Of_List("Staff")};
    for (const QString& path : paths)
        Write_Bytes(path, "Staff\n\xff\n");
    EXPECT_TRUE(Exclusion_Files::Write_Index({"New"}));
    EXPECT_TRUE(Exclusion_Files::Write_Applied({"New"}));
    EXPECT_TRUE(Exclusion_Files::Write_List("Staff", Numbers_Of({"1"})));
    EXPECT_EQ(Bytes_Of(Exclusion_Index_Path), "New\n");
    for (const QString& path : paths)
        EXPECT_EQ(Bytes_Of(Kept_Path(path)), "Staff\n\xff\n");
    EXPECT_TRUE(Exclusion_Files::Write_Index({"Other"})); // what can be read is not kept, and what was kept stays
    EXPECT_EQ(Bytes_Of(Kept_Path(Exclusion_Index_Path)), "Staff\n\xff\n");
}

TEST_F(Exclusion_Files_Test, Applied_Lists_Give_Their_Trimmed_Numbers_One_After_The_Other_Repeats_Included)
{
    Make_List("a", "1\r\n 2 \r\n\r\n");
    Make_List("b", "2\n3\n");
    Write_Bytes(Path_Of_List(""), "666\n");
    Write_Bytes(Applied_Exclusion_Path, "b\ngone\n\na"); // without a file, without a name, without a line end
    EXPECT_EQ(Applied_Texts(), QStringList({"2", "3", "1", "2"}));
    EXPECT_EQ(Exclusion_Files::Read_Applied_Numbers().numbers.Count_Of("2"), 2);
    Write_Bytes(Applied_Exclusion_Path, "a\r\n a\na \n");
    EXPECT_EQ(Applied_Texts(), QStringList()) << "their names are not trimmed";
    Write_Bytes(Path_Of_List(" a"), "7\n");
    EXPECT_EQ(Applied_Texts(), QStringList("7"));
}

} // namespace
