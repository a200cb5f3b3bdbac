#include "records/Data_Paths.h"

#include "records/Store_Files.h"

namespace {

class Data_Paths : public testing::Test
{
protected:
    Data_Paths() { Set_Home(m_home.path()); }

    ~Data_Paths() override
    {
        umask(m_old_mask);
        qputenv("XDG_DATA_HOME", m_old_home);
    }

    static void Set_Home(const QString& home)
    {
        qputenv("XDG_DATA_HOME", home.toUtf8());
        Set_Data_Paths(Default_Resource_Path());
    }

    static void Start()
    {
        ASSERT_TRUE(Create_Resource_Folder());
        Check_Path_And_Create_Files();
    }

    QString Path(const char* name) const { return m_home.filePath(name); }

    static void Set_Mode(const QString& path, mode_t mode) { ASSERT_EQ(chmod(qPrintable(path), mode), 0); }

    QTemporaryDir m_home;
    QByteArray m_old_home = qgetenv("XDG_DATA_HOME");
    mode_t m_old_mask = umask(022);
};

QString Everything_In(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name).join(u' ');
}

} // namespace

TEST_F(Data_Paths, Every_Path_Hangs_On_The_Resource_Folder_In_The_Users_Data_Home)
{
    EXPECT_EQ(Resource_Path, Path("corvane/Resources"));
    EXPECT_EQ(Corvane_Data_Folder_Path, Path("corvane/Resources/CORVANE_DATA"));
    EXPECT_EQ(Sent_Item_Path, Path("corvane/Resources/CORVANE_DATA/SentItem.ZOVA"));
    EXPECT_EQ(Templates_Path, Path("corvane/Resources/CORVANE_DATA/Templates.ZOVA"));
    EXPECT_EQ(Applied_Exclusion_Path, Path("corvane/Resources/CORVANE_DATA/AppExclusion.ZOVA"));
    EXPECT_EQ(Exclusion_Folder_Path, Path("corvane/Resources/CORVANE_DATA/Exclusion"));
    EXPECT_EQ(Exclusion_Index_Path, Path("corvane/Resources/CORVANE_DATA/Exclusion/ExListIndex.ZOVA"));
    EXPECT_EQ(Jobs_Folder_Path, Path("corvane/Resources/Jobs"));
    EXPECT_EQ(Everything_In(m_home.path()), "") << "naming the paths creates nothing";
    qunsetenv("XDG_DATA_HOME");
    EXPECT_EQ(Default_Resource_Path(), QDir::homePath() + "/.local/share/corvane/Resources");
}

TEST_F(Data_Paths, A_First_Start_Creates_Everything_Open_To_All_In_A_Private_Folder)
{
    umask(0077);
    ASSERT_TRUE(Create_Resource_Folder());
    EXPECT_EQ(Everything_In(Resource_Path), "");
    Check_Path_And_Create_Files();
    EXPECT_EQ(Everything_In(Resource_Path), "CORVANE_DATA");
    EXPECT_EQ(Everything_In(Corvane_Data_Folder_Path), "AppExclusion.ZOVA Exclusion SentItem.ZOVA Templates.ZOVA");
    EXPECT_EQ(Everything_In(Exclusion_Folder_Path), "ExListIndex.ZOVA");
    for (const QString& path : {Sent_Item_Path, Templates_Path, Applied_Exclusion_Path, Exclusion_Index_Path})
        EXPECT_EQ(Bytes_Of(path), "") << path.toStdString();
    EXPECT_EQ(Permissions_Of(Path("corvane")), 0700U);
    for (const QString& path : {Resource_Path, Corvane_Data_Folder_Path, Sent_Item_Path, Templates_Path,
                                Applied_Exclusion_Path, Exclusion_Folder_Path, Exclusion_Index_Path})
        EXPECT_EQ(Permissions_Of(path), 0777U) << path.toStdString();
}

TEST_F(Data_Paths, A_Second_Start_Closes_A_Private_Folder_Left_Open_And_Makes_What_Was_Deleted)
{
    umask(0);
    Start();
    Write_Bytes(Sent_Item_Path, "kept\n");
    Set_Mode(Path("corvane"), 0755);
    Start();
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), "kept\n");
    EXPECT_EQ(Permissions_Of(Path("corvane")), 0700U);
    ASSERT_TRUE(QFile::remove(Sent_Item_Path));
    Check_Path_And_Create_Files();
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), "");
    ASSERT_TRUE(QDir(Corvane_Data_Folder_Path).removeRecursively());
    Check_Path_And_Create_Files();
    EXPECT_EQ(Bytes_Of(Exclusion_Index_Path), "");
    EXPECT_EQ(Permissions_Of(Sent_Item_Path), 0777U);
}

TEST_F(Data_Paths, A_Home_Where_Nothing_Can_Be_Created_Is_Refused)
{
    Write_Bytes(Path("corvane"), "in the way");
    EXPECT_FALSE(Create_Resource_Folder());
    Check_Path_And_Create_Files();
    EXPECT_FALSE(QFileInfo::exists(Corvane_Data_Folder_Path)) << "failures are silent here";
    Set_Home("/proc/self");
    EXPECT_FALSE(Create_Resource_Folder());
}

TEST_F(Data_Paths, A_Home_Of_Another_Account_Will_Do_While_It_Can_Be_Written_To)
{
    Set_Mode(m_home.path(), 0555);
    EXPECT_FALSE(As_Nobody(Create_Resource_Folder));
    Set_Mode(m_home.path(), 0755);
    ASSERT_TRUE(QDir().mkdir(Path("corvane")));
    Set_Mode(Path("corvane"), 0777);
    EXPECT_TRUE(As_Nobody(Create_Resource_Folder)) << "though its permissions can not be set";
}
