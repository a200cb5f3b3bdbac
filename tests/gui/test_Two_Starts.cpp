#include "app/Program.h"
#include "gui/Open_Program.h"
#include "platform/Single_Start.h"

#include <csignal>
#include <map>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

using testing::HasSubstr;

namespace {

constexpr char Shown_Line[] = "corvane: the program is running already; here is its window.\n";
constexpr char No_Answer_Line[] = "corvane: the program is running already, but does not answer.\n";

// The program as the user starts it, with a data home of its own. Killed when it is still there at the end.
class Started_Corvane
{
public:
    explicit Started_Corvane(const QString& data_home, const QStringList& arguments = {},
                             const QString& screen = "offscreen")
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_DATA_HOME", data_home);
        environment.insert("QT_QPA_PLATFORM", screen);
        m_process.setProcessEnvironment(environment);
        m_process.start(QStringLiteral(CORVANE_BUILD_DIR "/corvane"), arguments);
    }
    ~Started_Corvane() { Kill(); }

    bool Is_Running() const { return m_process.state() != QProcess::NotRunning; }
    bool Has_Ended() const { return !Is_Running(); }
    bool Ends()
    {
        return Serve_Until([this] { return Has_Ended(); }, 60);
    }
    int Status() const { return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1; }
    std::string Output() { return m_process.readAllStandardOutput().toStdString(); }
    std::string Errors() { return m_process.readAllStandardError().toStdString(); }

    void Signal(int signal)
    {
        m_process.waitForStarted();
        ::kill(static_cast<pid_t>(m_process.processId()), signal);
    }
    void Kill()
    {
        if (Has_Ended())
            return;
        m_process.kill();
        EXPECT_TRUE(m_process.waitForFinished());
    }

private:
    QProcess m_process;
};

mode_t Mode_Of(const QString& path)
{
    struct stat status = {};
    EXPECT_EQ(lstat(QFile::encodeName(path).constData(), &status), 0) << path.toStdString();
    EXPECT_EQ(status.st_uid, geteuid()) << path.toStdString();
    return status.st_mode;
}

class Two_Starts : public testing::Test
{
protected:
    QString Home() const { return m_home.path(); }
    QString In_Data(const char* name) const
    {
        return Home() + QStringLiteral("/corvane/Resources/CORVANE_DATA/") + name;
    }

    // The last file that a start makes.
    static QString Last_File(const QString& home)
    {
        return home + "/corvane/Resources/CORVANE_DATA/Exclusion/ExListIndex.ZOVA";
    }
    // Takes it away, so that the next program to come up can be told by it.
    void Remove_Last_File() const { ASSERT_TRUE(QFile::remove(Last_File(Home()))); }

    static bool Comes_Up(const Started_Corvane& started, const QString& home)
    {
        const auto is_made = [&] { // with its permissions, which come after the file
            return QFile::exists(Last_File(home)) && (Mode_Of(Last_File(home)) & 07777U) == 0777U;
        };
        return Serve_Until([&] { return is_made() || started.Has_Ended(); }, 60) && started.Is_Running();
    }

    // A further start: the program that is there answers, and the further one ends.
    static void Expect_Shown_By_The_First(const QString& home, const QStringList& arguments = {},
                                          const QString& screen = "offscreen")
    {
        Started_Corvane second(home, arguments, screen);
        ASSERT_TRUE(second.Ends());
        EXPECT_EQ(second.Status(), 0);
        EXPECT_EQ(second.Output(), Shown_Line);
        EXPECT_EQ(second.Errors(), "");
    }

    // A further start: the program that is there does not answer, and nothing is touched.
    void Expect_No_Answer() const
    {
        const auto before = Everything();
        Started_Corvane second(Home());
        ASSERT_TRUE(second.Ends());
        EXPECT_EQ(second.Status(), 1);
        EXPECT_EQ(second.Output(), "");
        EXPECT_EQ(second.Errors(), No_Answer_Line);
        EXPECT_EQ(Everything(), before);
    }

    // Everything under the data home: names, kinds, modes, sizes, times to the nanosecond, and contents.
    std::map<std::string, std::string> Everything() const
    {
        std::map<std::string, std::string> found;
        QDirIterator walk(Home(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                          QDirIterator::Subdirectories);
        while (walk.hasNext()) {
            const QString path = walk.next();
            struct stat status = {};
            EXPECT_EQ(lstat(QFile::encodeName(path).constData(), &status), 0) << path.toStdString();
            std::ostringstream state;
            state << status.st_ino << ' ' << status.st_mode << ' ' << status.st_size << ' ' << status.st_mtim.tv_sec
                  << '.' << status.st_mtim.tv_nsec << ' ';
            QFile file(path);
            if (S_ISREG(status.st_mode) && file.open(QIODevice::ReadOnly))
                state << file.readAll().toStdString();
            found[path.toStdString()] = state.str();
        }
        return found;
    }

    QTemporaryDir m_home;
};

// The application object lives on: its next event loop is not to end at once.
void Forget_The_End()
{
    Forget_Program_Exit();
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
}

// The first program inside the test, so that its windows can be looked at.
class First_Of_Two_Starts : public Two_Starts
{
protected:
    First_Of_Two_Starts()
    {
        qputenv("XDG_DATA_HOME", Home().toUtf8());
        m_single_start = std::make_unique<Single_Start>(QFileInfo(Default_Resource_Path()).path());
        EXPECT_EQ(m_single_start->Begin(), Single_Start::Outcome::First);
        m_program = std::make_unique<Program>(Command_Line(), m_single_start.get());
        EXPECT_TRUE(m_program->Start());
    }
    ~First_Of_Two_Starts() override
    {
        m_program.reset();
        m_single_start.reset();
        Forget_The_End();
        qputenv("XDG_DATA_HOME", m_home_before);
    }

    QWidget& Main() { return m_program->Delegate(); }

    // Something else that the user looks at meanwhile.
    std::unique_ptr<QWidget> Something_Else() const
    {
        auto other = std::make_unique<QWidget>();
        other->show();
        other->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(other.get()));
        return other;
    }

    QByteArray m_home_before = qgetenv("XDG_DATA_HOME");
    User user;
    std::unique_ptr<Single_Start> m_single_start;
    std::unique_ptr<Program> m_program;
};

} // namespace

TEST_F(First_Of_Two_Starts, The_Second_Brings_The_First_Window_To_The_Front_As_It_Was_And_Ends)
{
    Main().hide();
    m_program->Come_To_The_Front();
    EXPECT_FALSE(Main().isVisible()) << "asked before it has a window it shows none yet";
    Main().show();
    const auto other = Something_Else();
    ASSERT_FALSE(Main().isActiveWindow());
    Expect_Shown_By_The_First(Home());
    EXPECT_TRUE(Serve_Until([this] { return Main().isActiveWindow(); }));
    Main().showMaximized();
    Main().setWindowState(Main().windowState() | Qt::WindowMinimized);
    ASSERT_TRUE(Main().isMinimized());
    Expect_Shown_By_The_First(Home());
    EXPECT_TRUE(Serve_Until([this] { return !Main().isMinimized() && Main().isActiveWindow(); }));
    EXPECT_TRUE(Main().isMaximized());
}

TEST_F(First_Of_Two_Starts, A_Box_That_Is_Open_Comes_To_The_Front_With_Its_Window)
{
    std::unique_ptr<QWidget> other;
    user.Will_Handle([&](QMessageBox& box) {
        other = Something_Else();
        EXPECT_FALSE(box.isActiveWindow());
        Expect_Shown_By_The_First(Home());
        EXPECT_TRUE(Serve_Until([&] { return box.isActiveWindow(); }));
        QTest::mouseClick(box.findChild<QAbstractButton*>(), Qt::LeftButton);
    });
    QTest::mouseClick(Main().findChild<QPushButton*>("Add_Number"), Qt::LeftButton);
    EXPECT_EQ(user.Was_Shown().size(), 1);
}

TEST_F(First_Of_Two_Starts, Once_The_First_Is_Leaving_The_Next_Start_Waits_And_Is_The_Program)
{
    m_program->Leave();
    Started_Corvane next(Home());
    EXPECT_FALSE(Serve_Until([&] { return next.Has_Ended(); }, 1)); // the folder is not free yet
    Remove_Last_File();
    m_program.reset();
    m_single_start.reset();
    EXPECT_TRUE(Comes_Up(next, Home()));
    Expect_Shown_By_The_First(Home());
    EXPECT_TRUE(next.Is_Running());
}

TEST_F(Two_Starts, A_Start_After_A_Kill_Takes_Away_The_Half_Of_A_Record_That_Was_Left)
{
    {
        Started_Corvane killed(Home());
        ASSERT_TRUE(Comes_Up(killed, Home()));
    }
    const QString store = In_Data("SentItem.ZOVA");
    Write_Bytes(store, "a record\nanother re");
    Write_Bytes(store + ".appending", "9\nanother record\n");
    const Started_Corvane next(Home());
    EXPECT_TRUE(Serve_Until([&] { return Bytes_Of(store) == "a record\n" || next.Has_Ended(); }, 60));
    EXPECT_EQ(Bytes_Of(store), "a record\n");
}

TEST_F(Two_Starts, What_The_First_Keeps_Is_Behind_A_Folder_Of_The_Users_Alone_And_The_Second_Leaves_Every_File_Alone)
{
    const mode_t mask_before = umask(0); // the user takes nothing away from what others may
    Started_Corvane first(Home());
    ASSERT_TRUE(Comes_Up(first, Home()));
    umask(mask_before);
    Expect_Shown_By_The_First(Home()); // everything is in place and quiet by then
    const auto everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    EXPECT_EQ(QDir(Home()).entryList(everything), QStringList{"corvane"});
    EXPECT_EQ(Mode_Of(Home() + "/corvane"), S_IFDIR | 0700U);
    EXPECT_EQ(Mode_Of(Home() + "/corvane/Running.lock"), S_IFREG | 0600U);
    EXPECT_EQ(Mode_Of(Home() + "/corvane/Running.socket"), S_IFSOCK | 0600U);
    for (const auto& [path, state] : Everything())
        EXPECT_FALSE(S_ISLNK(Mode_Of(QString::fromStdString(path)))) << path << " leads out of the folder";

    Write_Bytes(In_Data("Templates.ZOVA"), "kept\n");
    ASSERT_TRUE(QFile::remove(In_Data("SentItem.ZOVA"))); // which every start of its own would make again
    const auto before = Everything();
    ASSERT_GE(before.size(), 9U);
    for (const QStringList& arguments : {QStringList(), QStringList{"--demo"}, QStringList{"--device", "/dev/null"}})
        Expect_Shown_By_The_First(Home(), arguments);
    Expect_Shown_By_The_First(Home(), {}, "no such platform"); // it needs no screen
    EXPECT_EQ(Everything(), before);
    EXPECT_TRUE(first.Is_Running());
}

TEST_F(Two_Starts, Help_And_Version_And_Mistakes_Touch_No_Folder_And_Wait_For_Nobody)
{
    for (const char* option : {"--help", "--version", "--nonsense"}) {
        Started_Corvane asked(Home(), {QLatin1String(option)});
        ASSERT_TRUE(asked.Ends());
        EXPECT_EQ(asked.Status(), QLatin1String(option) == "--nonsense" ? 2 : 0);
    }
    EXPECT_TRUE(Everything().empty());
    Started_Corvane first(Home());
    ASSERT_TRUE(Comes_Up(first, Home()));
    first.Signal(SIGSTOP);
    Started_Corvane asked(Home(), {"--version"});
    ASSERT_TRUE(asked.Ends());
    EXPECT_EQ(asked.Status(), 0);
    EXPECT_THAT(asked.Output(), HasSubstr("corvane "));
}

TEST_F(Two_Starts, Without_A_Socket_The_Program_Starts_And_Is_Still_The_Only_One)
{
    ASSERT_TRUE(QDir().mkpath(Home() + "/corvane/Running.socket/in the way"));
    Started_Corvane first(Home());
    ASSERT_TRUE(Comes_Up(first, Home()));
    Expect_No_Answer();
}
