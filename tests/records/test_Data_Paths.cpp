#include "records/Data_Paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cstdlib>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

unsigned Permissions_Of(const QString& path)
{
    struct stat found = {};
    return stat(QFile::encodeName(path).constData(), &found) == 0 ? found.st_mode & 07777U : ~0U;
}

class Data_Paths : public testing::Test
{
protected:
    Data_Paths()
    {
        qputenv("XDG_DATA_HOME", m_home.path().toUtf8());
        Set_Data_Paths(Default_Resource_Path());
    }

    ~Data_Paths() override
    {
        umask(m_old_mask);
        qputenv("XDG_DATA_HOME", m_old_home);
    }

    QString Path(const char* name) const { return m_home.filePath(QLatin1String(name)); }

    QTemporaryDir m_home;
    QByteArray m_old_home = qgetenv("XDG_DATA_HOME");
    mode_t m_old_mask = umask(022);
};

const char* const Data_Folder = "corvane/Resources/CORVANE_DATA";

QStringList Everything_In(const QString& folder)
{
    QStringList found = QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
    return found;
}

// As a user without any power over the folder, in a process of its own: 0 when the folder is refused.
[[noreturn]] void Try_As_Nobody(const QString& home)
{
    qputenv("XDG_DATA_HOME", home.toUtf8());
    Set_Data_Paths(Default_Resource_Path());
    if (getuid() == 0 && setuid(65534) != 0)
        std::_Exit(90);
    std::_Exit(Create_Resource_Folder() ? 1 : 0);
}

} // namespace

TEST_F(Data_Paths, Every_Path_Hangs_On_The_Resource_Folder_In_The_Users_Data_Home)
{
    EXPECT_EQ(Resource_Path, Path("corvane/Resources"));
    EXPECT_EQ(Corvane_Data_Folder_Path, Path(Data_Folder));
    EXPECT_EQ(Sent_Item_Path, Path("corvane/Resources/CORVANE_DATA/SentItem.ZOVA"));
    EXPECT_EQ(Templates_Path, Path("corvane/Resources/CORVANE_DATA/Templates.ZOVA"));
    EXPECT_EQ(Applied_Exclusion_Path, Path("corvane/Resources/CORVANE_DATA/AppExclusion.ZOVA"));
    EXPECT_EQ(Exclusion_Folder_Path, Path("corvane/Resources/CORVANE_DATA/Exclusion"));
    EXPECT_EQ(Exclusion_Index_Path, Path("corvane/Resources/CORVANE_DATA/Exclusion/ExListIndex.ZOVA"));
}

TEST_F(Data_Paths, Naming_The_Paths_Creates_Nothing)
{
    EXPECT_EQ(Everything_In(m_home.path()), QStringList());
}

TEST_F(Data_Paths, Without_A_Data_Home_It_Is_The_One_In_The_Home_Folder)
{
    qunsetenv("XDG_DATA_HOME");
    EXPECT_EQ(Default_Resource_Path(), QDir::homePath() + QLatin1String("/.local/share/corvane/Resources"));
}

TEST_F(Data_Paths, A_First_Start_Creates_Everything)
{
    ASSERT_TRUE(Create_Resource_Folder());
    EXPECT_EQ(Everything_In(Resource_Path), QStringList());
    Check_Path_And_Create_Files();
    EXPECT_EQ(Everything_In(Resource_Path).join(u' '), QLatin1String("CORVANE_DATA"));
    EXPECT_EQ(Everything_In(Corvane_Data_Folder_Path).join(u' '),
              QLatin1String("AppExclusion.ZOVA Exclusion SentItem.ZOVA Templates.ZOVA"));
    EXPECT_EQ(Everything_In(Exclusion_Folder_Path).join(u' '), QLatin1String("ExListIndex.ZOVA"));
    EXPECT_TRUE(QFileInfo(Exclusion_Folder_Path).isDir());
    for (const QString& path : {Sent_Item_Path, Templates_Path, Applied_Exclusion_Path, Exclusion_Index_Path})
        EXPECT_EQ(QFileInfo(path).size(), 0) << path.toStdString();
}

TEST_F(Data_Paths, Everything_Inside_Is_0777_And_The_Folder_Around_It_0700_Whatever_The_Umask)
{
    umask(0077);
    ASSERT_TRUE(Create_Resource_Folder());
    Check_Path_And_Create_Files();
    EXPECT_EQ(Permissions_Of(Path("corvane")), 0700U);
    for (const QString& path : {Resource_Path, Corvane_Data_Folder_Path, Sent_Item_Path, Templates_Path,
                                Applied_Exclusion_Path, Exclusion_Folder_Path, Exclusion_Index_Path})
        EXPECT_EQ(Permissions_Of(path), 0777U) << path.toStdString();
}

TEST_F(Data_Paths, A_Private_Folder_Left_Open_Is_Closed_At_The_Next_Start)
{
    umask(0);
    ASSERT_TRUE(Create_Resource_Folder());
    ASSERT_EQ(chmod(QFile::encodeName(Path("corvane")).constData(), 0755), 0);
    ASSERT_TRUE(Create_Resource_Folder());
    EXPECT_EQ(Permissions_Of(Path("corvane")), 0700U);
}

TEST_F(Data_Paths, A_Second_Start_Changes_Nothing)
{
    ASSERT_TRUE(Create_Resource_Folder());
    Check_Path_And_Create_Files();
    QFile file(Sent_Item_Path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("kept\n");
    file.close();
    ASSERT_TRUE(Create_Resource_Folder());
    Check_Path_And_Create_Files();
    EXPECT_EQ(QFileInfo(Sent_Item_Path).size(), 5);
}

TEST_F(Data_Paths, What_Was_Deleted_While_Running_Is_Created_Again)
{
    ASSERT_TRUE(Create_Resource_Folder());
    Check_Path_And_Create_Files();
    ASSERT_TRUE(QFile::remove(Sent_Item_Path));
    Check_Path_And_Create_Files();
    EXPECT_TRUE(QFileInfo(Sent_Item_Path).isFile());
    ASSERT_TRUE(QDir(Corvane_Data_Folder_Path).removeRecursively());
    Check_Path_And_Create_Files();
    EXPECT_TRUE(QFileInfo(Exclusion_Index_Path).isFile());
    EXPECT_EQ(Permissions_Of(Sent_Item_Path), 0777U);
}

TEST_F(Data_Paths, A_Home_Where_Nothing_Can_Be_Created_Is_Refused)
{
    QFile file(Path("corvane"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    EXPECT_FALSE(Create_Resource_Folder()) << "a file in the way";
    Check_Path_And_Create_Files();
    EXPECT_FALSE(QFileInfo(Corvane_Data_Folder_Path).exists()) << "failures are silent here";

    qputenv("XDG_DATA_HOME", "/proc/self");
    Set_Data_Paths(Default_Resource_Path());
    EXPECT_FALSE(Create_Resource_Folder());
}

TEST_F(Data_Paths, A_Folder_Whose_Permissions_Are_Another_Accounts_Will_Do_While_It_Can_Be_Written_To)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    ASSERT_EQ(chmod(QFile::encodeName(m_home.path()).constData(), 0755), 0);
    ASSERT_TRUE(QDir().mkdir(Path("corvane")));
    ASSERT_EQ(chmod(QFile::encodeName(Path("corvane")).constData(), 0777), 0);
    EXPECT_EXIT(Try_As_Nobody(m_home.path()), testing::ExitedWithCode(1), "");
}

TEST_F(Data_Paths, A_Home_That_May_Not_Be_Written_To_Is_Refused)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    ASSERT_EQ(chmod(QFile::encodeName(m_home.path()).constData(), 0555), 0);
    EXPECT_EXIT(Try_As_Nobody(m_home.path()), testing::ExitedWithCode(0), "");
    ASSERT_EQ(chmod(QFile::encodeName(m_home.path()).constData(), 0700), 0);
}
