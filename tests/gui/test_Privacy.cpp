#include "gui/Open_Program.h"
#include "platform/Folders_And_Files.h"
#include "records/Data_Paths.h"
#include "records/Exclusion_Files.h"
#include "records/Sent_Item_Store.h"
#include "records/Template_Store.h"
#include "support/Opened_Files.h"

#include <QDesktopServices>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileDialog>
#include <QProcess>
#include <QRadioButton>
#include <QTemporaryDir>
#include <cstring>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <set>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

using testing::IsEmpty;

namespace {

constexpr unsigned Nobody = 65534;

QStringList Everything_Under(const QString& folder)
{
    QStringList paths;
    QDirIterator walk(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext())
        paths.append(walk.next());
    paths.sort();
    return paths;
}

struct stat Status_Of(const QString& path)
{
    struct stat status = {};
    EXPECT_EQ(lstat(QFile::encodeName(path).constData(), &status), 0) << path.toStdString();
    return status;
}

// In a child process that is somebody else: no memory is taken and nothing but the system is called there.
namespace Somebody_Else {

bool Become()
{
    return syscall(SYS_setgroups, 0, nullptr) == 0 && syscall(SYS_setgid, Nobody) == 0 &&
           syscall(SYS_setuid, Nobody) == 0;
}

bool Opens(const char* path, int how)
{
    const int descriptor = open(path, how | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor >= 0)
        close(descriptor);
    return descriptor >= 0;
}

bool Connects(const char* path)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    strncpy(address.sun_path, path, sizeof address.sun_path - 1);
    const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK, 0);
    return connect(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

bool Gets_At(const char* path)
{
    struct stat status = {};
    return Opens(path, O_RDONLY) || Opens(path, O_WRONLY) || Opens(path, O_PATH) || Connects(path) ||
           stat(path, &status) == 0 || access(path, F_OK) == 0 || chmod(path, 0777) == 0;
}

} // namespace Somebody_Else

// What of the paths another account can see, read, write or reach in any way, and whether it can make, remove or rename
// anything in the folder.
QStringList What_Others_Get_At(const QString& folder, const QStringList& paths)
{
    QByteArrayList names;
    for (const QString& path : paths)
        names.append(QFile::encodeName(path));
    const QByteArray new_file = QFile::encodeName(folder + QStringLiteral("/of somebody else"));
    const QByteArray private_folder = QFile::encodeName(folder);
    const QByteArray renamed = private_folder + " renamed";
    int answers[2];
    EXPECT_EQ(pipe(answers), 0);
    const pid_t child = fork();
    EXPECT_NE(child, -1);
    if (child == 0) {
        if (!Somebody_Else::Become())
            _exit(1);
        for (const QByteArray& name : names) {
            const char answer = Somebody_Else::Gets_At(name.constData()) ? 'y' : 'n';
            if (write(answers[1], &answer, 1) != 1)
                _exit(2);
        }
        const bool makes = Somebody_Else::Opens(new_file.constData(), O_WRONLY | O_CREAT) ||
                           rename(private_folder.constData(), renamed.constData()) == 0 ||
                           Somebody_Else::Opens(private_folder.constData(), O_RDONLY | O_DIRECTORY);
        const char answer = makes ? 'y' : 'n';
        _exit(write(answers[1], &answer, 1) == 1 ? 0 : 2);
    }
    close(answers[1]);
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0) << "the child could not become somebody else";
    QStringList reached;
    const QStringList asked = paths + QStringList{folder};
    for (const QString& path : asked) {
        char answer = 0;
        EXPECT_EQ(read(answers[0], &answer, 1), 1);
        if (answer == 'y')
            reached.append(path);
    }
    close(answers[0]);
    return reached;
}

// A running program with data of every kind, under a folder that everybody may look into.
class Data_Of_A_Running_Program : public testing::Test
{
protected:
    Data_Of_A_Running_Program()
    {
        EXPECT_EQ(chmod(QFile::encodeName(m_home.path()).constData(), 0755), 0);
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_DATA_HOME"), m_home.path());
        m_corvane.setProcessEnvironment(environment);
        Set_Data_Paths(m_home.path() + QStringLiteral("/corvane/Resources"));
        // The first start makes the folders; one that goes on would clear up what is half written.
        Start();
        EXPECT_TRUE(Serve_Until([] { return QFile::exists(Exclusion_Index_Path); }, 60));
        Kill();
        EXPECT_TRUE(Sent_Item_Store::Append({QStringLiteral("111"), QStringLiteral("secret"), QString(), QString()}));
        EXPECT_TRUE(Template_Store::Append(QStringLiteral("secret")));
        EXPECT_TRUE(Exclusion_Files::Create_List_If_Missing(QStringLiteral("Staff")));
        EXPECT_TRUE(Exclusion_Files::Append_To_Index(QStringLiteral("Staff")));
        EXPECT_TRUE(Exclusion_Files::Write_Applied({QStringLiteral("Staff")}));
        const QString socket = Private_Folder() + QStringLiteral("/Running.socket");
        EXPECT_TRUE(QFile::remove(socket));
        Start();
        EXPECT_TRUE(Serve_Until([&] { return QFile::exists(socket); }, 60));
    }
    ~Data_Of_A_Running_Program() override
    {
        Kill();
        umask(m_mask_before);
    }

    void Start()
    {
        m_corvane.start(QStringLiteral(CORVANE_BUILD_DIR "/corvane"), QStringList());
        EXPECT_TRUE(m_corvane.waitForStarted(-1));
    }
    void Kill()
    {
        m_corvane.kill();
        m_corvane.waitForFinished(-1);
    }

    QString Private_Folder() const { return m_home.filePath(QStringLiteral("corvane")); }

    const mode_t m_mask_before = umask(0); // the user takes nothing away from what others may
    QTemporaryDir m_home;
    QProcess m_corvane;
};

} // namespace

TEST_F(Data_Of_A_Running_Program, Is_Behind_A_Folder_That_Only_The_User_Can_Enter)
{
    EXPECT_EQ(QDir(m_home.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot),
              QStringList{QStringLiteral("corvane")});
    const auto status = Status_Of(Private_Folder());
    EXPECT_TRUE(S_ISDIR(status.st_mode));
    EXPECT_EQ(status.st_mode & 07777U, 0700U);
    EXPECT_EQ(status.st_uid, geteuid());
    const auto paths = Everything_Under(Private_Folder());
    EXPECT_GE(paths.size(), 10);
    for (const QString& path : paths) {
        EXPECT_EQ(Status_Of(path).st_uid, geteuid()) << path.toStdString();
        EXPECT_FALSE(S_ISLNK(Status_Of(path).st_mode)) << path.toStdString() << " leads out of the folder";
    }
    for (const char* name : {"/Running.lock", "/Running.socket"})
        EXPECT_EQ(Status_Of(Private_Folder() + QLatin1String(name)).st_mode & 07777U, 0600U) << name;
}

TEST_F(Data_Of_A_Running_Program, Can_Not_Be_Seen_Read_Or_Changed_By_Another_Account)
{
    const auto paths = Everything_Under(Private_Folder());
    ASSERT_GE(paths.size(), 10);
    if (geteuid() != 0) {
        // Nobody but root can become somebody else: what the system goes by has to do.
        EXPECT_EQ(Status_Of(Private_Folder()).st_mode & 07777U, 0700U);
        return;
    }
    EXPECT_THAT(What_Others_Get_At(Private_Folder(), paths), IsEmpty());
    // With the folder open, the same account would get at everything: it is the folder that keeps it out.
    ASSERT_TRUE(Set_Permissions(Private_Folder(), 0777));
    EXPECT_EQ(What_Others_Get_At(Private_Folder(), paths), paths + QStringList{Private_Folder()});
    QFile::remove(Private_Folder() + QStringLiteral("/of somebody else"));
    // The next start closes it again.
    m_corvane.kill();
    m_corvane.waitForFinished();
    m_corvane.start();
    EXPECT_TRUE(Serve_Until([&] { return (Status_Of(Private_Folder()).st_mode & 07777U) == 0700U; }, 60));
    EXPECT_THAT(What_Others_Get_At(Private_Folder(), paths), IsEmpty());
}

namespace {

// Everything that the environment gives a program to write to is under one folder, where what is new shows.
class Own_World
{
protected:
    Own_World()
    {
        for (const char* folder : {"home", "data", "config", "cache", "temporary", "here", "picked"})
            EXPECT_TRUE(QDir(m_world.path()).mkdir(QLatin1String(folder)));
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

    QString In_World(const char* name) const { return m_world.filePath(QLatin1String(name)); }
    QString Picked(const char* name) const { return In_World("picked") + QLatin1Char('/') + QLatin1String(name); }

    std::set<QString> Files() const
    {
        const auto paths = Everything_Under(m_world.path());
        return {paths.begin(), paths.end()};
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
            if (!path.contains(QStringLiteral("/QtProject"))) {
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
        QDesktopServices::setUrlHandler(QStringLiteral("file"), &m_opener, "Open");
        EXPECT_TRUE(Sent_Item_Store::Append({QStringLiteral("111"), QStringLiteral("secret"), QString(), QString()}));
        EXPECT_TRUE(Template_Store::Append(QStringLiteral("secret template")));
        m_delegate->Create_Num_Msg_List(QStringLiteral("111"), QStringLiteral("secret"));
    }
    ~Exports() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    static void Click_In(QWidget& window, const char* name)
    {
        QTest::mouseClick(window.findChild<QAbstractButton*>(QLatin1String(name)), Qt::LeftButton);
    }

    void Will_Save_As(const QString& path)
    {
        user.Will_Do([path](QDialog* dialog) {
            auto* panel = qobject_cast<QFileDialog*>(dialog);
            ASSERT_NE(panel, nullptr);
            auto* name = panel->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            name->setText(path);
            QTest::keyClick(name, Qt::Key_Return);
        });
        user.When_Opens(QStringLiteral("Open_Export_Log"), [](QWidget& dialog) { Click_In(dialog, "CancelPressed"); });
    }
    void Will_Cancel_The_Panel()
    {
        user.Will_Do([](QDialog* dialog) { dialog->reject(); });
    }

    void Export_From(const char* opener, const char* window_name, const char* format)
    {
        user.When_Opens(QLatin1String(window_name), [this, format](QWidget& window) {
            EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
            user.When_Opens(QStringLiteral("Export_Option"), [format](QWidget& dialog) {
                dialog.findChild<QRadioButton*>(QLatin1String(format))->click();
                Click_In(dialog, "OKPressed");
            });
            Click_In(window, "Export_Btn");
            Click_In(window, "Cancel_Btn");
        });
        Click(opener);
    }

    Opened_Files m_opener;
};

} // namespace

TEST_F(Exports, Go_Only_Where_The_Person_Says)
{
    const auto before = Files();
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

TEST_F(Exports, Go_Nowhere_When_The_Panel_Is_Cancelled)
{
    const auto before = Files();
    Will_Cancel_The_Panel();
    Click("Export_Btn");
    Will_Cancel_The_Panel();
    Export_From("Sent_Item_Btn", "Sent_Items", "Export_In_Html_RD");
    Will_Cancel_The_Panel();
    Export_From("View_Templates_Btn", "Templates", "Export_In_Text_RD");
    EXPECT_THAT(New_Since(before), IsEmpty());
    EXPECT_THAT(m_opener.m_urls, IsEmpty());
}
