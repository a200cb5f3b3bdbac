#include "gui/Open_Program.h"
#include "records/Sent_Item_Store.h"
#include "records/Template_Store.h"
#include "support/Opened_Files.h"

#include <set>

using testing::IsEmpty;

// Everything that the environment gives a program to write to is under one folder, where what is new shows.
class Own_World
{
protected:
    Own_World()
    {
        for (const char* folder : {"home", "data", "config", "cache", "temporary", "here", "picked"})
            EXPECT_TRUE(QDir(m_world.path()).mkdir(folder));
        for (const auto& [name, folder] : Variables) {
            m_before.push_back(qgetenv(name));
            qputenv(name, QFile::encodeName(In_World(folder)));
        }
        QDir::setCurrent(In_World("here"));
    }
    ~Own_World()
    {
        QDir::setCurrent(m_folder_before);
        for (std::size_t i = 0; i < std::size(Variables); ++i)
            qputenv(Variables[i].first, m_before[i]);
    }

    QString In_World(const char* name) const { return m_world.filePath(name); }
    QString Picked(const char* name) const { return In_World("picked") + QLatin1Char('/') + name; }

    std::set<QString> Files() const
    {
        std::set<QString> paths;
        QDirIterator walk(m_world.path(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                          QDirIterator::Subdirectories);
        while (walk.hasNext())
            paths.insert(walk.next());
        return paths;
    }

    /// What is there now and was not before. The toolkit's own note of the panel's size and folder is not counted, but
    /// may hold nothing of the data.
    QStringList New_Since(const std::set<QString>& before) const
    {
        QStringList found;
        for (const QString& path : Files()) {
            if (before.contains(path))
                continue;
            QFile file(path);
            if (!path.contains("/QtProject")) {
                found.append(path);
            } else if (file.open(QIODevice::ReadOnly)) {
                EXPECT_FALSE(file.readAll().contains("secret")) << path.toStdString();
            }
        }
        return found;
    }

private:
    static constexpr std::pair<const char*, const char*> Variables[] = {
        {"HOME", "home"},        {"XDG_DATA_HOME", "data"}, {"XDG_CONFIG_HOME", "config"}, {"XDG_CACHE_HOME", "cache"},
        {"TMPDIR", "temporary"},
    };
    QTemporaryDir m_world;
    QString m_folder_before = QDir::currentPath();
    std::vector<QByteArray> m_before;
};

class Exports : public Own_World, public Open_Program
{
protected:
    Exports()
    {
        EXPECT_TRUE(Sent_Item_Store::Append({"111", "secret", QString(), QString()}));
        EXPECT_TRUE(Template_Store::Append("secret template"));
        m_delegate->Create_Num_Msg_List("111", "secret");
    }

    void Will_Save_As(const QString& path)
    {
        Will_Enter_Path(user, path);
        Will_Click_In(user, "Open_Export_Log", "CancelPressed");
    }

    void Export_From(const char* opener, const char* window_name, const char* format)
    {
        When_Filled(user, window_name, [this, format](QWidget& window) {
            user.When_Opens("Export_Option", [format](QWidget& dialog) {
                In<QRadioButton>(dialog, format).click();
                Click_In(dialog, "OKPressed");
            });
            Click_In(window, "Export_Btn");
            Click_In(window, "Cancel_Btn");
        });
        Click(opener);
    }

    Opened_Files m_opener;
};

TEST_F(Exports, Go_Nowhere_When_The_Panel_Is_Cancelled_And_Only_Where_The_Person_Says)
{
    const auto cancel = [](QDialog* panel) { panel->reject(); };
    const auto before = Files();
    user.Will_Do(cancel);
    Click("Export_Btn");
    user.Will_Do(cancel);
    Export_From("Sent_Item_Btn", "Sent_Items", "Export_In_Html_RD");
    user.Will_Do(cancel);
    Export_From("View_Templates_Btn", "Templates", "Export_In_Text_RD");
    EXPECT_THAT(New_Since(before), IsEmpty());
    Will_Save_As(Picked("list.txt"));
    Click("Export_Btn");
    EXPECT_EQ(New_Since(before), QStringList{Picked("list.txt")});
    Will_Save_As(Picked("sent.txt"));
    Export_From("Sent_Item_Btn", "Sent_Items", "Export_In_Text_RD");
    EXPECT_EQ(New_Since(before), (QStringList{Picked("list.txt"), Picked("sent.txt")}));
    Will_Save_As(Picked("templates.html"));
    Export_From("View_Templates_Btn", "Templates", "Export_In_Html_RD");
    EXPECT_EQ(New_Since(before), (QStringList{Picked("list.txt"), Picked("sent.txt"), Picked("templates.html")}));
    EXPECT_THAT(m_opener.m_urls, IsEmpty());
}
