#include "platform/File_Calls.h"
#include "platform/Folders_And_Files.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <atomic>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

class Folders_And_Files : public testing::Test
{
protected:
    ~Folders_And_Files() override { umask(m_old_mask); }

    QString Path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    static unsigned Permissions_Of(const QString& path)
    {
        struct stat found = {};
        return stat(QFile::encodeName(path).constData(), &found) == 0 ? found.st_mode & 07777U : ~0U;
    }

    static void Write(const QString& path, const char* text)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    QTemporaryDir m_folder;
    mode_t m_old_mask = umask(022);
};

} // namespace

TEST_F(Folders_And_Files, Permissions_Are_As_Asked_For_Whatever_The_Umask)
{
    for (const mode_t mask : {0000, 0022, 0077, 0777}) {
        umask(mask);
        const QString folder = Path("folder") + QString::number(mask);
        EXPECT_TRUE(Make_Folder_If_Missing(folder, 0777));
        EXPECT_EQ(Permissions_Of(folder), 0777U) << mask;
        EXPECT_TRUE(Make_Folder_If_Missing(folder + QLatin1String("p"), 0700));
        EXPECT_EQ(Permissions_Of(folder + QLatin1String("p")), 0700U) << mask;
        const QString file = Path("file") + QString::number(mask);
        EXPECT_TRUE(Make_Empty_File_If_Missing(file, 0777));
        EXPECT_EQ(Permissions_Of(file), 0777U) << mask;
    }
}

TEST_F(Folders_And_Files, The_Folders_Above_Are_Made_As_Well)
{
    EXPECT_TRUE(Make_Folder_If_Missing(Path("a/b/c"), 0700));
    EXPECT_TRUE(QFileInfo(Path("a/b/c")).isDir());
    EXPECT_EQ(Permissions_Of(Path("a/b/c")), 0700U);
    EXPECT_EQ(Permissions_Of(Path("a/b")), 0755U);
    EXPECT_TRUE(Make_Folder_If_Missing(Path("d/e/"), 0700)) << "a slash at the end is no name";
    EXPECT_EQ(Permissions_Of(Path("d/e")), 0700U);
}

TEST_F(Folders_And_Files, What_Is_There_Stays_As_It_Is)
{
    ASSERT_TRUE(Make_Folder_If_Missing(Path("folder"), 0700));
    EXPECT_TRUE(Make_Folder_If_Missing(Path("folder"), 0777));
    EXPECT_EQ(Permissions_Of(Path("folder")), 0700U);
    Write(Path("file"), "kept");
    chmod(QFile::encodeName(Path("file")).constData(), 0600);
    EXPECT_TRUE(Make_Empty_File_If_Missing(Path("file"), 0777));
    EXPECT_EQ(Permissions_Of(Path("file")), 0600U);
    EXPECT_EQ(QFileInfo(Path("file")).size(), 4);
}

TEST_F(Folders_And_Files, Something_Else_In_The_Way_Is_A_Failure)
{
    Write(Path("file"), "in the way");
    EXPECT_FALSE(Make_Folder_If_Missing(Path("file"), 0777));
    EXPECT_FALSE(Make_Folder_If_Missing(Path("file/below"), 0777));
    EXPECT_FALSE(Make_Empty_File_If_Missing(Path("file/below"), 0777));
    ASSERT_TRUE(Make_Folder_If_Missing(Path("folder"), 0777));
    EXPECT_FALSE(Make_Empty_File_If_Missing(Path("folder"), 0777));
    EXPECT_FALSE(Make_Empty_File_If_Missing(Path("nowhere/file"), 0777));
    EXPECT_FALSE(Make_Folder_If_Missing(QStringLiteral("/proc/self/nothing"), 0777));
    EXPECT_FALSE(Set_Permissions(Path("nothing"), 0700));
}

TEST_F(Folders_And_Files, Permissions_That_Are_Not_To_Be_Had_Are_No_Failure)
{
    struct Case
    {
        int error;
        bool is_failure;
    };
    for (const auto& [error, is_failure] : {Case{EPERM, false}, {EOPNOTSUPP, false}, {ENOSYS, false}, {EIO, true}}) {
        const QString folder = Path("folder") + QString::number(error);
        const QString file = folder + QLatin1String("/file");
        {
            const File_Calls calls({.fail_at = 1, .error = error});
            EXPECT_EQ(Make_Folder_If_Missing(folder, 0777), !is_failure) << error;
            EXPECT_EQ(calls.Made(), QByteArrayList({"chmod"}));
        }
        {
            const File_Calls calls({.fail_at = 1, .error = error});
            EXPECT_EQ(Set_Permissions(folder, 0700), !is_failure) << error;
        }
        const File_Calls calls({.fail_at = 2, .error = error});
        EXPECT_EQ(Make_Empty_File_If_Missing(file, 0777), !is_failure) << error;
        EXPECT_EQ(calls.Made().mid(0, 2), QByteArrayList({"open", "fchmod"}));
        EXPECT_TRUE(QFileInfo(file).isFile());
    }
}

TEST_F(Folders_And_Files, Only_What_Is_Known_Not_To_Be_There_Is_Missing)
{
    EXPECT_TRUE(Is_Missing(Path("nothing")));
    EXPECT_TRUE(Is_Missing(Path("nothing/below")));
    Write(Path("file"), "");
    EXPECT_TRUE(Is_Missing(Path("file/below")));
    EXPECT_FALSE(Is_Missing(Path("file")));
    EXPECT_FALSE(Is_Missing(m_folder.path()));
    ASSERT_EQ(symlink("nothing", QFile::encodeName(Path("link")).constData()), 0);
    EXPECT_FALSE(Is_Missing(Path("link")));
    const File_Calls calls({.fail_at = 1, .error = EACCES});
    EXPECT_FALSE(Is_Missing(Path("nothing"))) << "nobody can tell";
}

TEST_F(Folders_And_Files, Starts_At_The_Same_Moment_All_Find_The_Folder_And_The_File)
{
    for (int round = 0; round < 50; ++round) {
        const QString folder = Path("folder") + QString::number(round);
        std::atomic<int> successes{0};
        std::vector<std::thread> starts;
        starts.reserve(4);
        for (int i = 0; i < 4; ++i) {
            starts.emplace_back([&] {
                successes += Make_Folder_If_Missing(folder, 0777) ? 1 : 0;
                successes += Make_Empty_File_If_Missing(folder + QLatin1String("/file"), 0777) ? 1 : 0;
            });
        }
        for (auto& start : starts)
            start.join();
        ASSERT_EQ(successes, 8) << round;
    }
}
