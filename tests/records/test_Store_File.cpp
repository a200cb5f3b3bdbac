#include "records/Store_File.h"

#include "platform/Text_Files.h"
#include "records/Store_Files.h"

#include <QSet>
#include <thread>

namespace {

class Store_File_Test : public testing::Test
{
protected:
    QByteArray Stored() const { return Bytes_Of(Sent_Item_Path); }

    Data_Folder m_folder;
    Store_File m_file{Sent_Item_Path};
};

} // namespace

TEST_F(Store_File_Test, Lines_Are_Appended_Behind_What_Is_There)
{
    Write_Bytes(Sent_Item_Path, "one\n");
    EXPECT_TRUE(m_file.Append("two\n"));
    EXPECT_EQ(Stored(), "one\ntwo\n");
    for (const QString& path : {Sent_Item_Path, Templates_Path})
        ASSERT_TRUE(QFile::remove(path));
    EXPECT_TRUE(m_file.Append("one\n"));
    EXPECT_EQ(Stored(), "one\n");
    EXPECT_TRUE(QFileInfo::exists(Templates_Path)) << "the other data files are made as well";
    EXPECT_EQ(Permissions_Of(Sent_Item_Path), 0777U);
    m_folder.Take_Away();
    EXPECT_FALSE(m_file.Append("two\n"));
    EXPECT_FALSE(m_file.Rewrite("two\n"));
    m_folder.Bring_Back();
    EXPECT_EQ(Stored(), "one\n") << "dropped";
}

TEST_F(Store_File_Test, A_Rewrite_Takes_The_Place_Of_What_Was_Loaded)
{
    Write_Bytes(Sent_Item_Path, "one\ntwo\n");
    EXPECT_EQ(m_file.Load(), "one\ntwo\n");
    EXPECT_TRUE(m_file.Rewrite("two\n"));
    EXPECT_EQ(Stored(), "two\n");
    EXPECT_TRUE(m_file.Rewrite("three\n"));
    EXPECT_EQ(Stored(), "three\n");
    ASSERT_TRUE(QFile::remove(Sent_Item_Path));
    EXPECT_TRUE(m_file.Rewrite("one\n"));
    EXPECT_EQ(Stored(), "one\n");
    EXPECT_TRUE(m_file.Clear());
    EXPECT_EQ(Stored(), "");
    ASSERT_TRUE(QFile::remove(Sent_Item_Path));
    EXPECT_FALSE(m_file.Clear());
    EXPECT_FALSE(QFileInfo::exists(Sent_Item_Path)) << "a clear makes no file";
    ASSERT_TRUE(QDir(Corvane_Data_Folder_Path).removeRecursively());
    EXPECT_FALSE(m_file.Rewrite("one\n"));
    EXPECT_FALSE(QFileInfo::exists(Corvane_Data_Folder_Path)) << "and a rewrite no folder";
}

TEST_F(Store_File_Test, Without_A_Load_Before_It_A_Rewrite_Loses_Nothing)
{
    Write_Bytes(Sent_Item_Path, "one\n");
    EXPECT_TRUE(m_file.Rewrite("two\n"));
    EXPECT_EQ(Stored(), "two\none\n");
    m_file.Forget();
    EXPECT_TRUE(m_file.Rewrite(""));
    EXPECT_EQ(Stored(), "two\none\n");
}

TEST_F(Store_File_Test, What_Was_Appended_After_The_Load_Stays_Behind_The_Rewritten_Lines)
{
    Write_Bytes(Sent_Item_Path, "one\ntwo\n");
    m_file.Load();
    EXPECT_TRUE(Store_File(Sent_Item_Path).Append("three\n"));
    EXPECT_TRUE(m_file.Rewrite("two\n"));
    EXPECT_EQ(Stored(), "two\nthree\n");
    EXPECT_TRUE(Store_File(Sent_Item_Path).Append("four\n"));
    EXPECT_TRUE(m_file.Rewrite(""));
    EXPECT_EQ(Stored(), "three\nfour\n") << "a second rewrite knows no more of it";
}

TEST_F(Store_File_Test, A_File_Made_Anew_Since_The_Load_Keeps_Only_Lines_That_Were_Not_Loaded)
{
    Write_Bytes(Sent_Item_Path, "one\ntwo\nthree\n");
    m_file.Load();
    Write_Bytes(Sent_Item_Path, "three\nfour\none\none\n"); // deleted and rewritten by someone else
    EXPECT_TRUE(m_file.Rewrite("two\n"));
    EXPECT_EQ(Stored(), "two\nfour\none\n");
}

TEST_F(Store_File_Test, A_File_That_Is_No_Utf_8_Shows_Empty_And_Is_Kept_Beside_Before_It_Is_Rewritten)
{
    Write_Bytes(Sent_Item_Path, "one\n\xff\xfe\n");
    EXPECT_EQ(m_file.Load(), "");
    EXPECT_EQ(Stored(), "one\n\xff\xfe\n");
    EXPECT_TRUE(m_file.Append("two\n"));
    EXPECT_TRUE(m_file.Rewrite(""));
    EXPECT_EQ(Stored(), "two\n") << "what was appended stays";
    EXPECT_EQ(Bytes_Of(Kept_Path(Sent_Item_Path)), "one\n\xff\xfe\ntwo\n");
    EXPECT_FALSE(Kept_Path(Sent_Item_Path).endsWith(".ZOVA"));
    EXPECT_TRUE(m_file.Rewrite("three\n"));
    EXPECT_EQ(Bytes_Of(Kept_Path(Sent_Item_Path)), "one\n\xff\xfe\ntwo\n") << "what is kept stays as well";

    m_file.Load();
    Write_Bytes(Sent_Item_Path, "three\n\xff\n"); // since the load
    EXPECT_TRUE(m_file.Rewrite("three\n"));
    EXPECT_EQ(Stored(), "three\n");
    EXPECT_EQ(Bytes_Of(Kept_Path(Sent_Item_Path)), "three\n\xff\n");
}

TEST_F(Store_File_Test, Bytes_That_Can_Not_Be_Kept_Are_Not_Rewritten)
{
    Write_Bytes(Sent_Item_Path, "\xff\n");
    m_file.Load();
    ASSERT_TRUE(QDir().mkpath(Kept_Path(Sent_Item_Path) + "/in the way"));
    EXPECT_FALSE(m_file.Rewrite("one\n"));
    EXPECT_EQ(Stored(), "\xff\n");
}

TEST_F(Store_File_Test, What_Is_No_Regular_File_Shows_Empty_And_Stays)
{
    const auto expect_it_stays = [this](mode_t type) {
        EXPECT_EQ(m_file.Load(), "");
        EXPECT_FALSE(m_file.Append("one\n"));
        EXPECT_FALSE(m_file.Rewrite("one\n"));
        struct stat found = {};
        ASSERT_EQ(lstat(qPrintable(Sent_Item_Path), &found), 0);
        EXPECT_EQ(found.st_mode & S_IFMT, type);
    };
    ASSERT_TRUE(QFile::remove(Sent_Item_Path));
    ASSERT_EQ(mkfifo(qPrintable(Sent_Item_Path), 0666), 0);
    expect_it_stays(S_IFIFO);
    ASSERT_TRUE(QFile::remove(Sent_Item_Path));
    ASSERT_TRUE(QFile::link(Sent_Item_Path, Sent_Item_Path));
    expect_it_stays(S_IFLNK);
    Put_A_Folder_At(Sent_Item_Path);
    expect_it_stays(S_IFDIR);
}

TEST_F(Store_File_Test, In_A_Folder_That_Turned_Read_Only_The_Old_Whole_Stays_And_Appends_Still_Come_In)
{
    Write_Bytes(Sent_Item_Path, "one\n");
    m_folder.Turn_Read_Only();
    EXPECT_FALSE(As_Nobody([this] {
        m_file.Load();
        return m_file.Rewrite("two\n");
    }));
    EXPECT_EQ(Stored(), "one\n");
    EXPECT_TRUE(As_Nobody([this] { return m_file.Append("two\n"); }));
    EXPECT_EQ(Stored(), "one\ntwo\n");
    ASSERT_EQ(chmod(qPrintable(Sent_Item_Path), 0000), 0);
    EXPECT_FALSE(As_Nobody([this] { return m_file.Append("three\n"); }));
    EXPECT_FALSE(As_Nobody([this] { return !m_file.Load().isEmpty() || m_file.Rewrite(""); }));
    EXPECT_EQ(Stored(), "one\ntwo\n");
    m_folder.Turn_Writable();
}

TEST_F(Store_File_Test, Appends_And_Rewrites_From_Many_Threads_Lose_No_Line)
{
    constexpr int Each = 100;
    {
        std::vector<std::jthread> threads;
        for (int thread = 0; thread < 4; ++thread)
            threads.emplace_back([thread] {
                for (int line = 0; line < Each; ++line)
                    EXPECT_TRUE(Store_File(Sent_Item_Path).Append(QByteArray::number(thread * Each + line) + '\n'));
            });
        for (int round = 0; round < 50; ++round)
            EXPECT_TRUE(m_file.Rewrite(m_file.Load().toUtf8()));
    }
    auto lines = Stored().split('\n');
    EXPECT_TRUE(lines.takeLast().isEmpty());
    EXPECT_EQ(lines.size(), 4 * Each);
    EXPECT_EQ(QSet<QByteArray>(lines.begin(), lines.end()).size(), 4 * Each);
    EXPECT_EQ(QDir(Corvane_Data_Folder_Path).entryList(QDir::Files | QDir::Hidden, QDir::Name),
              (QStringList{"AppExclusion.ZOVA", "SentItem.ZOVA", "Templates.ZOVA"}));
}
