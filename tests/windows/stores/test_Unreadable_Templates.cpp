#include "windows/stores/Stores_Test.h"

// What somebody enters in the templates window while the templates can not be read or written.

class Unreadable_Templates : public Stores_Test
{
protected:
    void Enter()
    {
        Will_Enter("entered");
        Click("AddNew_Btn");
    }
    QString Notice() const
    {
        const auto& notice = The<QLabel>("_notice");
        return notice.isVisible() ? notice.text() : QString();
    }
};

const QString Can_Not_Be_Read = "can not be read";
const QString In_The_List_Again = "could not be saved the last time";

TEST_F(Unreadable_Templates, What_Is_Entered_While_Something_Else_Stands_There_Is_Stored_And_That_Is_Kept)
{
    const std::pair<std::function<void()>, const char*> cases[] = {
        {[] { Write_Bytes(Templates_Path, "\xff\n"); }, ""},
        {[] { ASSERT_TRUE(QDir().mkpath(Templates_Path + "/in it")); }, ".2"},
        {[] { ASSERT_EQ(mkfifo(qPrintable(Templates_Path), 0600), 0); }, ".3"},
        {[] { ASSERT_TRUE(QFile::link(Templates_Path + ".nowhere", Templates_Path)); }, ".4"},
    };
    for (const auto& [put_in_the_way, kept_as] : cases) {
        ASSERT_TRUE(QFile::remove(Templates_Path));
        put_in_the_way();
        Visit_Templates([this] {
            EXPECT_TRUE(Notice().contains(Can_Not_Be_Read)) << qPrintable(Notice());
            Enter();
        });
        EXPECT_EQ(Bytes_Of(Templates_Path), QByteArray("entered\n"));
        const QFileInfo beside(Kept_Path(Templates_Path) + kept_as);
        EXPECT_TRUE(beside.exists() || beside.isSymLink()) << kept_as;
        Visit_Templates([this] {
            EXPECT_EQ(Notice(), QString());
            EXPECT_EQ(Shown(), QStringList("entered"));
        });
    }
    EXPECT_TRUE(QFileInfo(Kept_Path(Templates_Path) + ".2/in it").isDir());
}

TEST_F(Unreadable_Templates, What_Can_Not_Be_Read_Stays_Where_It_Is_When_Nothing_Is_Entered)
{
    ASSERT_TRUE(QFile::remove(Templates_Path));
    ASSERT_TRUE(QDir().mkpath(Templates_Path));
    Visit_Templates([this] { EXPECT_TRUE(Notice().contains(Can_Not_Be_Read)); });
    EXPECT_TRUE(QFileInfo(Templates_Path).isDir());
    EXPECT_FALSE(QFileInfo::exists(Kept_Path(Templates_Path)));
}

TEST_F(Unreadable_Templates, What_Can_Not_Be_Written_Is_In_The_List_Again_At_The_Next_Opening)
{
    Write_Bytes(Templates_Path, "old\n");
    const QString in_the_way = Replacement_Path(Templates_Path);
    ASSERT_TRUE(QDir().mkpath(in_the_way));
    Visit_Templates([this] {
        EXPECT_EQ(Notice(), QString());
        Enter();
    });
    EXPECT_EQ(Bytes_Of(Templates_Path), QByteArray("old\n"));
    for (int opening = 0; opening < 2; ++opening) {
        Visit_Templates([this] {
            EXPECT_EQ(Shown(), (QStringList{"old", "entered"}));
            EXPECT_TRUE(Notice().contains(In_The_List_Again)) << qPrintable(Notice());
        });
    }
    ASSERT_TRUE(QDir().rmdir(in_the_way));
    Visit_Templates([] {});
    EXPECT_EQ(Bytes_Of(Templates_Path), QByteArray("old\nentered\n"));
    Visit_Templates([this] { EXPECT_EQ(Notice(), QString()); });
}

TEST_F(Unreadable_Templates, A_Folder_That_Takes_Nothing_Is_Told_Of_Before_Anything_Is_Entered)
{
    m_folder.Take_Away();
    Visit_Templates([this] {
        EXPECT_TRUE(Notice().contains("Changes can not be saved at present")) << qPrintable(Notice());
        Enter();
    });
    m_folder.Bring_Back();
    Visit_Templates([this] { EXPECT_TRUE(Notice().contains(In_The_List_Again)); });
    EXPECT_EQ(Bytes_Of(Templates_Path), QByteArray("entered\n"));
}
