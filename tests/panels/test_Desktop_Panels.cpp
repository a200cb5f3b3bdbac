#include "panels/Panels.h"
#include "platform/Settings_File.h"
#include "platform/Waiting.h"
#include "support/Files.h"
#include "support/User.h"
#include "toolkit/File_Panels.h"
#include "toolkit/Remembered.h"
#include "toolkit/Window_Look.h"

#include <QtTest>
#include <QtWidgets>
#include <gmock/gmock.h>

// Whatever is asked for here, the desktop's panel comes.
class Desktop_Panels : public testing::Test, public QObject
{
protected:
    Desktop_Panels()
    {
        Apply_Application_Look(*qApp);
        Remembered::Begin(Settings_File(Path("Settings.ini")));
        m_window.show();
        qApp->installEventFilter(this);
    }
    ~Desktop_Panels() override
    {
        Remembered::End();
        Forget_Program_Exit();
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* panel = qobject_cast<QFileDialog*>(watched);
        if (panel && event->type() == QEvent::Show) {
            EXPECT_FALSE(panel->findChild<QTreeView*>()) << "a panel of the toolkit's own";
        }
        return false;
    }

    QString Path(const QString& name) const { return m_folder.filePath(name); }
    static QString Folder_Asked_For(int panel)
    {
        const auto folder = Panels::Asked().value(panel).value("current_folder").toByteArray();
        return QString::fromUtf8(folder).remove(QChar(u'\0'));
    }

    QTemporaryDir m_folder;
    QWidget m_window;
    User m_user;
};

TEST_F(Desktop_Panels, A_File_Is_Picked_And_Its_Folder_Is_Where_The_Next_One_Opens)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkdir("letters"));
    const QString file = Path("letters/numbers.txt");
    Write_Bytes(file, "1\n");
    Panels::Will_Pick({file, ""});
    EXPECT_EQ(Ask_For_File_To_Open(&m_window), file);
    EXPECT_EQ(Ask_For_File_To_Save(&m_window, "txt"), std::nullopt) << "it was cancelled";
    ASSERT_EQ(Panels::Asked().size(), 2);
    EXPECT_EQ(Panels::Asked()[0].value("what"), "OpenFile");
    EXPECT_EQ(Panels::Asked()[1].value("what"), "SaveFile");
    EXPECT_EQ(Folder_Asked_For(1), Path("letters"));
}

TEST_F(Desktop_Panels, A_Folder_Is_Picked_And_Remembered_Itself)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkdir("out"));
    Panels::Will_Pick({Path("out"), ""});
    EXPECT_EQ(Ask_For_Folder(&m_window), Path("out"));
    EXPECT_TRUE(Panels::Asked().value(0).value("directory").toBool());
    EXPECT_EQ(Ask_For_File_To_Save(&m_window, "txt"), std::nullopt);
    EXPECT_EQ(Folder_Asked_For(1), Path("out"));
}

TEST_F(Desktop_Panels, A_File_That_The_Extension_Makes_It_Is_Replaced_Only_When_Somebody_Says_So)
{
    Write_Bytes(Path("list.txt"), "old");
    Panels::Will_Pick({Path("list"), Path("list")});
    m_user.Will_Press("No");
    m_user.Will_Press("Yes");
    EXPECT_EQ(Ask_For_File_To_Save(&m_window, "txt"), Path("list"));
    EXPECT_EQ(m_user.Was_Shown(), QStringList(2, "\nlist.txt is there already.\n\nDo you want to replace it?"));
    EXPECT_EQ(Panels::Asked().size(), 2) << "after No the panel comes again";
    Panels::Will_Pick({Path("list"), ""});
    m_user.Will_Press("No");
    EXPECT_EQ(Ask_For_File_To_Save(&m_window, "txt"), std::nullopt);
    EXPECT_EQ(Bytes_Of(Path("list.txt")), "old");
}

TEST_F(Desktop_Panels, About_A_Name_That_Was_Picked_As_It_Is_Only_The_Panel_Asks)
{
    Write_Bytes(Path("list.txt"), "old");
    Panels::Will_Pick({Path("list.txt"), Path("other")});
    EXPECT_EQ(Ask_For_File_To_Save(&m_window, "txt"), Path("list.txt"));
    EXPECT_EQ(Ask_For_File_To_Save(&m_window, "txt"), Path("other")) << "nothing lies there";
    EXPECT_EQ(m_user.Was_Shown(), QStringList());
}

TEST_F(Desktop_Panels, One_That_Is_Open_Does_Not_Keep_The_Program_From_Ending)
{
    Panels::Will_Pick({});
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [] {
        if (Panels::Asked().isEmpty())
            return;
        Begin_Program_Exit();
        QCoreApplication::exit(0);
    });
    watch.start(20);
    EXPECT_EQ(Ask_For_File_To_Open(&m_window), std::nullopt);
    watch.stop();
    EXPECT_EQ(Ask_For_File_To_Open(&m_window), std::nullopt) << "and none opens any more";
    EXPECT_EQ(Panels::Asked().size(), 1);
}
