#include "platform/Text_Files.h"
#include "records/Data_Paths.h"
#include "windows/stores/Stores_Test.h"

#include <QDir>
#include <sys/stat.h>

// What somebody enters in the templates window while the templates can not be read or written.

namespace {

class Unreadable_Templates : public Stores_Test
{
protected:
    void Enter(const char* text)
    {
        m_user.When_Opens("UpdateTemp", [text](QWidget& dialog) {
            In<QPlainTextEdit>(dialog, "m_templ_msg_str").setPlainText(QLatin1String(text));
            Click_In(dialog, "OKPressed");
        });
        Click("AddNew_Btn");
    }
    QString Notice() const
    {
        const auto& notice = The<QLabel>("_notice");
        return notice.isVisible() ? notice.text() : QString();
    }

    QString m_in_the_way = Replacement_Path(Templates_Path);
};

const QString Can_Not_Be_Read = QStringLiteral("can not be read");
const QString In_The_List_Again = QStringLiteral("could not be saved the last time");

} // namespace

TEST_F(Unreadable_Templates, What_Is_Entered_While_Something_Else_Stands_There_Is_Stored_And_That_Is_Kept)
{
    const QList<std::function<void()>> each_in_the_way = {
        [] { Write_Bytes(Templates_Path, "\xff\n"); },
        [] { ASSERT_TRUE(QDir().mkpath(Templates_Path + QStringLiteral("/in it"))); },
        [] { ASSERT_EQ(mkfifo(qPrintable(Templates_Path), 0600), 0); },
        [] { ASSERT_TRUE(QFile::link(Templates_Path + QStringLiteral(".nowhere"), Templates_Path)); },
    };
    const QStringList kept = {QString(), QStringLiteral(".2"), QStringLiteral(".3"), QStringLiteral(".4")};
    for (qsizetype each = 0; each < each_in_the_way.size(); ++each) {
        ASSERT_TRUE(QFile::remove(Templates_Path));
        each_in_the_way.at(each)();
        Visit_Templates([this] {
            EXPECT_TRUE(Notice().contains(Can_Not_Be_Read)) << qPrintable(Notice());
            Enter("entered");
        });
        EXPECT_EQ(Bytes_Of(Templates_Path), QByteArray("entered\n"));
        const QFileInfo beside(Kept_Path(Templates_Path) + kept.at(each));
        EXPECT_TRUE(beside.exists() || beside.isSymLink()) << each;
        Visit_Templates([this] {
            EXPECT_EQ(Notice(), QString());
            EXPECT_EQ(Shown(), QStringList("entered"));
        });
    }
    EXPECT_TRUE(QFileInfo(Kept_Path(Templates_Path) + QStringLiteral(".2/in it")).isDir());
    EXPECT_TRUE(m_user.Was_Shown().isEmpty());
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
    ASSERT_TRUE(QDir().mkpath(m_in_the_way));
    Visit_Templates([this] {
        EXPECT_EQ(Notice(), QString());
        Enter("entered");
    });
    EXPECT_EQ(Bytes_Of(Templates_Path), QByteArray("old\n"));
    for (int opening = 0; opening < 2; ++opening) {
        Visit_Templates([this] {
            EXPECT_EQ(Shown(), (QStringList{"old", "entered"}));
            EXPECT_TRUE(Notice().contains(In_The_List_Again)) << qPrintable(Notice());
        });
    }
    ASSERT_TRUE(QDir().rmdir(m_in_the_way));
    Visit_Templates([] {});
    EXPECT_EQ(Bytes_Of(Templates_Path), QByteArray("old\nentered\n"));
    Visit_Templates([this] { EXPECT_EQ(Notice(), QString()); });
    EXPECT_TRUE(m_user.Was_Shown().isEmpty());
}

TEST_F(Unreadable_Templates, A_Folder_That_Takes_Nothing_Is_Told_Of_Before_Anything_Is_Entered)
{
    m_folder.Take_Away();
    Visit_Templates([this] {
        EXPECT_TRUE(Notice().contains(QStringLiteral("Changes can not be saved at present"))) << qPrintable(Notice());
        Enter("entered");
    });
    m_folder.Bring_Back();
    Visit_Templates([this] { EXPECT_TRUE(Notice().contains(In_The_List_Again)); });
    EXPECT_EQ(Bytes_Of(Templates_Path), QByteArray("entered\n"));
}
