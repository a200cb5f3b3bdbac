#include "records/Data_Paths.h"
#include "records/Store_File.h"

#include "platform/Text_Files.h"
#include "records/Samples.h"
#include "records/Sent_Item_Store.h"
#include "records/Store_Files.h"

#include <QDir>
#include <QFileInfo>
#include <random>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

class Store_File_Test : public testing::Test
{
protected:
    QByteArray Stored() const { return Bytes_Of(Sent_Item_Path); }
    QStringList Names() const
    {
        return QDir(Corvane_Data_Folder_Path).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    Data_Folder m_folder;
    Store_File m_file{Sent_Item_Path};
};

} // namespace

TEST_F(Store_File_Test, Lines_Are_Appended_Behind_What_Is_There)
{
    Write_Bytes(Sent_Item_Path, "one\n");
    EXPECT_TRUE(m_file.Append("two\n"));
    EXPECT_EQ(Stored(), QByteArray("one\ntwo\n"));
}

TEST_F(Store_File_Test, A_File_Deleted_While_Running_Is_Made_Again_Before_The_Append)
{
    ASSERT_TRUE(QFile::remove(Sent_Item_Path));
    ASSERT_TRUE(QFile::remove(Templates_Path));
    EXPECT_TRUE(m_file.Append("one\n"));
    EXPECT_EQ(Stored(), QByteArray("one\n"));
    EXPECT_TRUE(QFileInfo::exists(Templates_Path)) << "the other data files are made as well";
    struct stat found = {};
    ASSERT_EQ(stat(qPrintable(Sent_Item_Path), &found), 0);
    EXPECT_EQ(found.st_mode & 0777U, 0777U);
}

TEST_F(Store_File_Test, An_Append_Where_Nothing_Can_Be_Written_Is_Dropped)
{
    m_folder.Take_Away();
    EXPECT_FALSE(m_file.Append("one\n"));
    EXPECT_FALSE(m_file.Rewrite("one\n"));
    m_folder.Bring_Back();
    EXPECT_EQ(Stored(), QByteArray());
}

TEST_F(Store_File_Test, A_Rewrite_Takes_The_Place_Of_What_Was_Loaded)
{
    Write_Bytes(Sent_Item_Path, "one\ntwo\n");
    EXPECT_EQ(m_file.Load(), QStringLiteral("one\ntwo\n"));
    EXPECT_TRUE(m_file.Rewrite("two\n"));
    EXPECT_EQ(Stored(), QByteArray("two\n"));
    EXPECT_TRUE(m_file.Rewrite("three\n"));
    EXPECT_EQ(Stored(), QByteArray("three\n"));
}

TEST_F(Store_File_Test, What_Was_Appended_After_The_Load_Stays_Behind_The_Rewritten_Lines)
{
    Write_Bytes(Sent_Item_Path, "one\ntwo\n");
    m_file.Load();
    EXPECT_TRUE(Store_File(Sent_Item_Path).Append("three\n"));
    EXPECT_TRUE(m_file.Rewrite("two\n"));
    EXPECT_EQ(Stored(), QByteArray("two\nthree\n"));
    EXPECT_TRUE(Store_File(Sent_Item_Path).Append("four\n"));
    EXPECT_TRUE(m_file.Rewrite(""));
    EXPECT_EQ(Stored(), QByteArray("three\nfour\n")) << "a second rewrite knows no more of it";
}

TEST_F(Store_File_Test, A_File_Made_Anew_Since_The_Load_Keeps_Only_Lines_That_Were_Not_Loaded)
{
    Write_Bytes(Sent_Item_Path, "one\ntwo\nthree\n");
    m_file.Load();
    Write_Bytes(Sent_Item_Path, "three\nfour\none\none\n"); // deleted and rewritten by someone else
    EXPECT_TRUE(m_file.Rewrite("two\n"));
    EXPECT_EQ(Stored(), QByteArray("two\nfour\none\n"));
}

TEST_F(Store_File_Test, A_File_Deleted_Since_The_Load_Is_Written_Again)
{
    Write_Bytes(Sent_Item_Path, "one\n");
    m_file.Load();
    ASSERT_TRUE(QFile::remove(Sent_Item_Path));
    EXPECT_TRUE(m_file.Rewrite("one\n"));
    EXPECT_EQ(Stored(), QByteArray("one\n"));
}

TEST_F(Store_File_Test, A_Folder_Deleted_Since_The_Load_Is_Not_Made_For_A_Rewrite)
{
    m_file.Load();
    ASSERT_TRUE(QDir(Corvane_Data_Folder_Path).removeRecursively());
    EXPECT_FALSE(m_file.Rewrite("one\n"));
    EXPECT_FALSE(QFileInfo::exists(Corvane_Data_Folder_Path));
}

TEST_F(Store_File_Test, A_File_That_Is_No_Utf_8_Shows_Empty_And_Is_Kept_Beside_Before_It_Is_Rewritten)
{
    const QByteArray bytes("one\n\xff\xfe\n");
    Write_Bytes(Sent_Item_Path, bytes);
    EXPECT_EQ(m_file.Load(), QString());
    EXPECT_EQ(Stored(), bytes);
    EXPECT_TRUE(m_file.Rewrite(""));
    EXPECT_EQ(Stored(), QByteArray());
    EXPECT_EQ(Bytes_Of(Kept_Path(Sent_Item_Path)), bytes);
    EXPECT_FALSE(Kept_Path(Sent_Item_Path).endsWith(QStringLiteral(".ZOVA")));
    EXPECT_TRUE(m_file.Rewrite("two\n")) << "what is kept stays, once the file can be read again";
    EXPECT_EQ(Bytes_Of(Kept_Path(Sent_Item_Path)), bytes);
}

TEST_F(Store_File_Test, What_Is_Appended_To_A_File_That_Is_No_Utf_8_Stays_When_It_Is_Rewritten)
{
    Write_Bytes(Sent_Item_Path, "\xff\n");
    m_file.Load();
    EXPECT_TRUE(m_file.Append("two\n"));
    EXPECT_TRUE(m_file.Rewrite(""));
    EXPECT_EQ(Stored(), QByteArray("two\n"));
}

TEST_F(Store_File_Test, A_File_That_Became_Unreadable_Since_The_Load_Is_Kept_Beside_As_Well)
{
    Write_Bytes(Sent_Item_Path, "one\n");
    m_file.Load();
    Write_Bytes(Sent_Item_Path, "one\n\xff\n");
    EXPECT_TRUE(m_file.Rewrite("one\n"));
    EXPECT_EQ(Stored(), QByteArray("one\n"));
    EXPECT_EQ(Bytes_Of(Kept_Path(Sent_Item_Path)), QByteArray("one\n\xff\n"));
}

TEST_F(Store_File_Test, Bytes_That_Can_Not_Be_Kept_Are_Not_Rewritten)
{
    Write_Bytes(Sent_Item_Path, "\xff\n");
    m_file.Load();
    ASSERT_TRUE(QDir().mkpath(Kept_Path(Sent_Item_Path) + QStringLiteral("/in the way")));
    EXPECT_FALSE(m_file.Rewrite("one\n"));
    EXPECT_EQ(Stored(), QByteArray("\xff\n"));
}

TEST_F(Store_File_Test, What_Is_No_Regular_File_Shows_Empty_And_Stays)
{
    ASSERT_TRUE(QFile::remove(Sent_Item_Path));
    ASSERT_EQ(mkfifo(qPrintable(Sent_Item_Path), 0666), 0);
    EXPECT_EQ(m_file.Load(), QString());
    EXPECT_FALSE(m_file.Append("one\n"));
    EXPECT_FALSE(m_file.Rewrite("one\n"));
    struct stat found = {};
    ASSERT_EQ(stat(qPrintable(Sent_Item_Path), &found), 0);
    EXPECT_TRUE(S_ISFIFO(found.st_mode));
    ASSERT_TRUE(QFile::remove(Sent_Item_Path));
    ASSERT_TRUE(QFile::link(Sent_Item_Path, Sent_Item_Path));
    EXPECT_EQ(m_file.Load(), QString());
    EXPECT_FALSE(m_file.Rewrite("one\n"));
    ASSERT_TRUE(QFile::remove(Sent_Item_Path));
    ASSERT_TRUE(QDir().mkpath(Sent_Item_Path));
    EXPECT_EQ(m_file.Load(), QString());
    EXPECT_FALSE(m_file.Append("one\n"));
    EXPECT_FALSE(m_file.Rewrite("one\n"));
}

TEST_F(Store_File_Test, A_Clear_Empties_The_File_But_Makes_None)
{
    Write_Bytes(Sent_Item_Path, "one\n");
    m_file.Load();
    EXPECT_TRUE(m_file.Clear());
    EXPECT_EQ(Stored(), QByteArray());
    ASSERT_TRUE(QFile::remove(Sent_Item_Path));
    EXPECT_FALSE(m_file.Clear());
    EXPECT_FALSE(QFileInfo::exists(Sent_Item_Path));
}

TEST_F(Store_File_Test, Without_A_Load_Before_It_A_Rewrite_Loses_Nothing)
{
    Write_Bytes(Sent_Item_Path, "one\n");
    EXPECT_TRUE(m_file.Rewrite("two\n"));
    EXPECT_EQ(Stored(), QByteArray("two\none\n"));
    m_file.Forget();
    EXPECT_TRUE(m_file.Rewrite(""));
    EXPECT_EQ(Stored(), QByteArray("two\none\n"));
}

TEST_F(Store_File_Test, In_A_Folder_That_Turned_Read_Only_The_Old_Whole_Stays_And_Appends_Still_Come_In)
{
    Write_Bytes(Sent_Item_Path, "one\n");
    m_folder.Turn_Read_Only();
    EXPECT_FALSE(As_Nobody([this] {
        m_file.Load();
        return m_file.Rewrite("two\n");
    }));
    EXPECT_EQ(Stored(), QByteArray("one\n"));
    EXPECT_TRUE(As_Nobody([this] { return m_file.Append("two\n"); }));
    EXPECT_EQ(Stored(), QByteArray("one\ntwo\n"));
    ASSERT_EQ(chmod(qPrintable(Sent_Item_Path), 0000), 0);
    EXPECT_FALSE(As_Nobody([this] { return m_file.Append("three\n"); }));
    EXPECT_FALSE(As_Nobody([this] { return !m_file.Load().isEmpty() || m_file.Rewrite(""); }));
    EXPECT_EQ(Stored(), QByteArray("one\ntwo\n"));
    m_folder.Turn_Writable();
}

TEST_F(Store_File_Test, Appends_And_Rewrites_From_Many_Threads_Lose_No_Line)
{
    constexpr int Each = 100;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([thread] {
            for (int line = 0; line < Each; ++line)
                EXPECT_TRUE(Store_File(Sent_Item_Path).Append(QByteArray::number(thread * Each + line) + '\n'));
        });
    }
    for (int round = 0; round < 50; ++round) {
        const QByteArray loaded = m_file.Load().toUtf8();
        EXPECT_TRUE(m_file.Rewrite(loaded));
    }
    for (auto& thread : threads)
        thread.join();
    auto lines = Stored().split('\n');
    EXPECT_TRUE(lines.takeLast().isEmpty());
    EXPECT_EQ(lines.size(), 4 * Each);
    EXPECT_EQ(QSet<QByteArray>(lines.begin(), lines.end()).size(), 4 * Each);
    EXPECT_EQ(Names(), (QStringList{"AppExclusion.ZOVA", "SentItem.ZOVA", "Templates.ZOVA"}));
}

TEST_F(Store_File_Test, No_Byte_String_Read_As_A_Store_Does_Any_Harm)
{
    std::mt19937 random(99);
    const QByteArrayList pieces{
        "\a", "\v",  "\n", "|AP*|DX/", "1", "\xff", "\xc3", "\xf0\x9f\x98\x80", "\xef\xbb\xbf", QByteArray(1, '\0'),
        " ",  "\r\n"};
    for (int round = 0; round < 500; ++round) {
        QByteArray bytes;
        for (auto left = random() % 60; left > 0; --left)
            bytes += pieces.at(static_cast<qsizetype>(random() % static_cast<unsigned>(pieces.size())));
        Write_Bytes(Sent_Item_Path, bytes);
        Sent_Item_Store store;
        const Sent_Item_List list = store.Load_List();
        EXPECT_LE(list.size(), bytes.size());
        for (const Sent_Item& item : All_Of(list))
            EXPECT_FALSE(item.Number.trimmed().isEmpty());
    }
}
