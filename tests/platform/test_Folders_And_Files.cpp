#include "platform/Folders_And_Files.h"

#include "platform/Files_Test.h"

#include <atomic>

using Folders_And_Files = Files_Test;

TEST_F(Folders_And_Files, Permissions_Are_As_Asked_For_Whatever_The_Umask)
{
    for (const mode_t mask : {0000, 0022, 0077, 0777}) {
        umask(mask);
        const QString name = Path(QString::number(mask));
        for (const unsigned permissions : {0777U, 0700U}) {
            const QString folder = name + QString::number(permissions);
            EXPECT_TRUE(Make_Folder_If_Missing(folder, permissions));
            EXPECT_EQ(Permissions_Of(folder), permissions) << mask;
        }
        EXPECT_TRUE(Make_Empty_File_If_Missing(name, 0777));
        EXPECT_EQ(Permissions_Of(name), 0777U) << mask;
    }
}

TEST_F(Folders_And_Files, The_Folders_Above_Are_Made_And_What_Is_There_Stays_As_It_Is)
{
    EXPECT_TRUE(Make_Folder_If_Missing(Path("a/b/c"), 0700));
    EXPECT_TRUE(QFileInfo(Path("a/b/c")).isDir());
    EXPECT_EQ(Permissions_Of(Path("a/b/c")), 0700U);
    EXPECT_EQ(Permissions_Of(Path("a/b")), 0755U);
    EXPECT_TRUE(Make_Folder_If_Missing(Path("d/e/"), 0700)) << "a slash at the end is no name";
    EXPECT_EQ(Permissions_Of(Path("d/e")), 0700U);
    EXPECT_TRUE(Make_Folder_If_Missing(Path("d/e"), 0777));
    EXPECT_EQ(Permissions_Of(Path("d/e")), 0700U);
    Write_Bytes(Path("file"), "kept");
    chmod(qPrintable(Path("file")), 0600);
    EXPECT_TRUE(Make_Empty_File_If_Missing(Path("file"), 0777));
    EXPECT_EQ(Permissions_Of(Path("file")), 0600U);
    EXPECT_EQ(Bytes_Of(Path("file")), "kept");
}

TEST_F(Folders_And_Files, Something_Else_In_The_Way_Is_A_Failure)
{
    Write_Bytes(Path("file"), "in the way");
    EXPECT_FALSE(Make_Folder_If_Missing(Path("file"), 0777));
    EXPECT_FALSE(Make_Folder_If_Missing(Path("file/below"), 0777));
    EXPECT_FALSE(Make_Folder_If_Missing("/proc/self/nothing", 0777));
    ASSERT_TRUE(Make_Folder_If_Missing(Path("folder"), 0777));
    for (const char* name : {"file/below", "folder", "nowhere/file"})
        EXPECT_FALSE(Make_Empty_File_If_Missing(Path(name), 0777)) << name;
    EXPECT_FALSE(Set_Permissions(Path("nothing"), 0700));
}

TEST_F(Folders_And_Files, Permissions_That_Are_Not_To_Be_Had_Are_No_Failure)
{
    for (const auto& [error, is_failure] :
         {std::pair(EPERM, false), {EOPNOTSUPP, false}, {ENOSYS, false}, {EIO, true}}) {
        const QString folder = Path(QString::number(error));
        {
            const File_Calls calls({.fail_at = 1, .error = error});
            EXPECT_EQ(Make_Folder_If_Missing(folder, 0777), !is_failure) << error;
            EXPECT_EQ(calls.Made(), QByteArrayList({"chmod"}));
        }
        const auto set = [&] { return Set_Permissions(folder, 0700); };
        EXPECT_EQ(Under({.fail_at = 1, .error = error}, set), !is_failure) << error;
        const File_Calls calls({.fail_at = 2, .error = error});
        EXPECT_EQ(Make_Empty_File_If_Missing(folder + "/file", 0777), !is_failure) << error;
        EXPECT_EQ(calls.Made().mid(0, 2), QByteArrayList({"open", "fchmod"}));
        EXPECT_TRUE(QFileInfo(folder + "/file").isFile());
    }
}

TEST_F(Folders_And_Files, Only_What_Is_Known_Not_To_Be_There_Is_Missing)
{
    Write_Bytes(Path("file"), "");
    ASSERT_EQ(symlink("nothing", qPrintable(Path("link"))), 0);
    for (const char* name : {"nothing", "nothing/below", "file/below"})
        EXPECT_TRUE(Is_Missing(Path(name))) << name;
    for (const char* name : {"file", "", "link"})
        EXPECT_FALSE(Is_Missing(Path(name))) << name;
    const File_Calls calls({.fail_at = 1, .error = EACCES});
    EXPECT_FALSE(Is_Missing(Path("nothing"))) << "nobody can tell";
}

TEST_F(Folders_And_Files, Starts_At_The_Same_Moment_All_Find_The_Folder_And_The_File)
{
    for (int round = 0; round < 50; ++round) {
        const QString folder = Path(QString::number(round));
        std::atomic<int> successes{0};
        {
            std::vector<std::jthread> starts;
            for (int i = 0; i < 4; ++i)
                starts.emplace_back([&] {
                    successes += Make_Folder_If_Missing(folder, 0777);
                    successes += Make_Empty_File_If_Missing(folder + "/file", 0777);
                });
        }
        ASSERT_EQ(successes, 8) << round;
    }
}
