#include "doctor/Connection_Facts_Finder.h"

#include "device/Device_Paths.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <fcntl.h>
#include <functional>
#include <gmock/gmock.h>
#include <grp.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Connection_Facts_Finder::Barred_Port_At;
using Connection_Facts_Finder::Process_Runs;

constexpr uid_t Nobody = 65534;

class A_Finder_That_Finds : public Port_Finder
{
public:
    explicit A_Finder_That_Finds(QList<Modem_Entry> entries) : m_entries(std::move(entries)) {}
    int Find_Ports(Modem_Iterator& iterator) const override
    {
        iterator = Modem_Iterator(m_entries);
        return 0;
    }

private:
    QList<Modem_Entry> m_entries;
};

// A port as an ordinary account meets it. Root may open everything, so root asks through a child that has become
// nobody.
class A_Port : public testing::Test
{
protected:
    A_Port()
    {
        EXPECT_EQ(chmod(qPrintable(m_folder.path()), 0755), 0);
        QFile file(m_path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    }

    void Belongs_To(gid_t group, mode_t mode)
    {
        if (getuid() == 0) {
            ASSERT_EQ(chown(qPrintable(m_path), 0, group), 0);
        }
        ASSERT_EQ(chmod(qPrintable(m_path), mode), 0);
    }

    // "-" when the port is not barred, else "group:" and the group.
    std::string As_An_Ordinary_Account_Sees_It() const
    {
        return To_An_Ordinary_Account([this] { return Seen(); });
    }

    // What a function answers to an account that is not root.
    static std::string To_An_Ordinary_Account(const std::function<std::string()>& answer)
    {
        if (getuid() != 0)
            return answer();
        int pipe_ends[2];
        EXPECT_EQ(pipe(pipe_ends), 0);
        const pid_t child = fork();
        if (child == 0) {
            const bool became_nobody = setgroups(0, nullptr) == 0 && setgid(Nobody) == 0 && setuid(Nobody) == 0;
            const std::string seen = became_nobody ? answer() : "still root";
            const auto written = write(pipe_ends[1], seen.data(), seen.size());
            _exit(written < 0 ? 1 : 0);
        }
        close(pipe_ends[1]);
        char seen[200] = {};
        const auto length = read(pipe_ends[0], seen, sizeof seen);
        close(pipe_ends[0]);
        int status = 0;
        waitpid(child, &status, 0);
        return {seen, static_cast<std::size_t>(std::max<ssize_t>(0, length))};
    }

    // How many ports a search counts that finds this port alone, and what it says of it if anything.
    std::string As_A_Search_Counts_It() const
    {
        return To_An_Ordinary_Account([this] {
            const auto facts = Connection_Facts_Finder::Find(A_Finder_That_Finds({{QFile::encodeName(m_path)}}));
            std::string counted = std::to_string(facts.ports_found);
            for (const auto& barred : facts.barred_ports)
                counted += " group:" + barred.group.toStdString();
            return counted;
        });
    }

    void Is_Named(const char* name)
    {
        const QString path = m_folder.filePath(name);
        ASSERT_TRUE(path == m_path || QFile::rename(m_path, path));
        m_path = path;
    }

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath("ttyUSB0");

private:
    std::string Seen() const
    {
        const auto barred = Barred_Port_At(m_path);
        return barred ? "group:" + barred->group.toStdString() : "-";
    }
};

gid_t A_Group()
{
    return getuid() == 0 ? 20 : getgid();
}

std::string Its_Name()
{
    const auto* entry = getgrgid(A_Group());
    return entry ? entry->gr_name : std::to_string(A_Group());
}

TEST_F(A_Port, That_Its_Group_May_Open_Is_Barred_With_The_Groups_Name)
{
    Belongs_To(A_Group(), 0060);
    EXPECT_EQ(As_An_Ordinary_Account_Sees_It(), "group:" + Its_Name());
}

TEST_F(A_Port, That_Nobody_May_Open_Is_Barred_Without_A_Group)
{
    Belongs_To(A_Group(), 0000);
    EXPECT_EQ(As_An_Ordinary_Account_Sees_It(), "group:");
}

TEST_F(A_Port, That_May_Be_Read_But_Not_Written_Is_Barred)
{
    Belongs_To(A_Group(), 0464);
    EXPECT_EQ(As_An_Ordinary_Account_Sees_It(), "group:" + Its_Name());
}

TEST_F(A_Port, That_May_Be_Opened_Is_Not_Barred)
{
    Belongs_To(A_Group(), 0666);
    EXPECT_EQ(As_An_Ordinary_Account_Sees_It(), "-");
}

TEST_F(A_Port, That_Is_Not_There_Is_Neither_Found_Nor_Barred)
{
    EXPECT_FALSE(Barred_Port_At(m_folder.filePath("missing")));
    const A_Finder_That_Finds finder({{QFile::encodeName(m_folder.filePath("missing"))}, {std::nullopt}});
    const auto facts = Connection_Facts_Finder::Find(finder);
    EXPECT_EQ(facts.ports_found, 0);
    EXPECT_TRUE(facts.barred_ports.isEmpty());
}

TEST_F(A_Port, That_Is_There_Is_Counted)
{
    const A_Finder_That_Finds finder({{QFile::encodeName(m_path)}, {QByteArray("/dev/null")}});
    EXPECT_EQ(Connection_Facts_Finder::Find(finder).ports_found, 2);
}

// A socket of the mainboard stands there whether a modem is in it or not: the advice must not begin with it.
TEST_F(A_Port, Of_The_Mainboard_Is_No_Port_Found_And_For_Root_Alone_No_News)
{
    const std::string with_group = " group:" + Its_Name();
    const struct
    {
        const char* name;
        mode_t mode;
        bool is_given_as_device;
        std::string counted;
    } cases[] = {
        {"ttyS0", 0000, false, "0"},          {"ttyS0", 0060, false, "0" + with_group},
        {"ttyS0", 0666, false, "0"},          {"ttyS0", 0000, true, "1 group:"},
        {"ttyUSB0", 0000, false, "1 group:"}, {"ttyACM0", 0060, false, "1" + with_group},
        {"rfcomm0", 0000, false, "1 group:"}, {"ttyUSB0", 0666, false, "1"},
    };
    for (const auto& one : cases) {
        Is_Named(one.name);
        Belongs_To(A_Group(), one.mode);
        Set_Extra_Device_Paths(one.is_given_as_device ? QStringList(m_path) : QStringList());
        EXPECT_EQ(As_A_Search_Counts_It(), one.counted) << one.name << ' ' << one.mode << one.is_given_as_device;
    }
    Set_Extra_Device_Paths({});
}

TEST(Connection_Facts_Finder, A_Process_Is_Known_By_Its_Whole_Name)
{
    const QTemporaryDir processes;
    const struct
    {
        const char* folder;
        const char* name;
    } entries[] = {{"1", "init\n"}, {"77", "ModemManager\n"}, {"78", "Abcdefghijklmno\n"}, {"sys", "Not a process\n"}};
    for (const auto& entry : entries) {
        ASSERT_TRUE(QDir(processes.path()).mkdir(entry.folder));
        QFile file(processes.filePath(entry.folder) + "/comm");
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(entry.name);
    }
    ASSERT_TRUE(QDir(processes.path()).mkdir("79")); // ended meanwhile: its file cannot be read
    EXPECT_TRUE(Process_Runs("ModemManager", processes.path()));
    EXPECT_TRUE(Process_Runs("init", processes.path()));
    EXPECT_TRUE(Process_Runs("AbcdefghijklmnoPQR", processes.path())) << "the kernel keeps 15 characters";
    for (const char* name : {"ModemManage", "Modem", "ModemManager2", "Not a process", ""})
        EXPECT_FALSE(Process_Runs(name, processes.path())) << name;
    EXPECT_FALSE(Process_Runs("ModemManager", processes.filePath("missing")));
}

TEST(Connection_Facts_Finder, This_Very_Process_Runs)
{
    QFile file("/proc/self/comm");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(Process_Runs(QString::fromUtf8(file.readAll().trimmed())));
}

} // namespace
