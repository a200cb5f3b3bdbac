#include "doctor/Connection_Facts_Finder.h"

#include "device/Device_Paths.h"
#include "support/Files.h"

#include <QTemporaryDir>
#include <fcntl.h>
#include <functional>
#include <gmock/gmock.h>
#include <grp.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

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
        Write_Bytes(m_path, {});
    }

    void Belongs_To(gid_t group, mode_t mode)
    {
        if (getuid() == 0) {
            ASSERT_EQ(chown(qPrintable(m_path), 0, group), 0);
        }
        ASSERT_EQ(chmod(qPrintable(m_path), mode), 0);
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

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath("ttyUSB0");
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

TEST_F(A_Port, Is_Counted_When_It_Is_There_And_Otherwise_Neither_Found_Nor_Barred)
{
    const QString missing = m_folder.filePath("missing");
    EXPECT_FALSE(Connection_Facts_Finder::Barred_Port_At(missing));
    const auto facts = Connection_Facts_Finder::Find(A_Finder_That_Finds(
        {{QFile::encodeName(missing)}, {std::nullopt}, {QFile::encodeName(m_path)}, {QByteArray("/dev/null")}}));
    EXPECT_EQ(facts.ports_found, 2);
    EXPECT_TRUE(facts.barred_ports.isEmpty());
}

// A socket of the mainboard stands there whether a modem is in it or not: the advice must not begin with it.
TEST_F(A_Port, Is_Barred_Unless_It_May_Be_Opened_And_Of_The_Mainboard_No_Port_Found_And_For_Root_Alone_No_News)
{
    const std::string with_group = " group:" + Its_Name();
    const struct
    {
        const char* name;
        mode_t mode;
        bool is_given_as_device;
        std::string counted;
    } cases[] = {
        {"ttyUSB0", 0060, false, "1" + with_group},
        {"ttyUSB0", 0464, false, "1" + with_group}, // no writing
        {"ttyUSB0", 0000, false, "1 group:"},
        {"ttyUSB0", 0666, false, "1"},
        {"ttyACM0", 0060, false, "1" + with_group},
        {"rfcomm0", 0000, false, "1 group:"},
        {"ttyS0", 0000, false, "0"},
        {"ttyS0", 0060, false, "0" + with_group},
        {"ttyS0", 0666, false, "0"},
        {"ttyS0", 0000, true, "1 group:"},
    };
    for (const auto& one : cases) {
        const QString path = m_folder.filePath(one.name);
        ASSERT_TRUE(path == m_path || QFile::rename(m_path, path));
        m_path = path;
        Belongs_To(A_Group(), one.mode);
        Set_Extra_Device_Paths(one.is_given_as_device ? QStringList(m_path) : QStringList());
        EXPECT_EQ(As_A_Search_Counts_It(), one.counted) << one.name << ' ' << one.mode << one.is_given_as_device;
    }
    Set_Extra_Device_Paths({});
}

TEST(Connection_Facts_Finder, A_Process_Is_Known_By_Its_Whole_Name)
{
    const QTemporaryDir processes;
    for (const auto& [folder, name] : {std::pair("1", "init\n"), std::pair("77", "ModemManager\n"),
                                       std::pair("78", "Abcdefghijklmno\n"), std::pair("sys", "Not a process\n")}) {
        ASSERT_TRUE(QDir(processes.path()).mkdir(folder));
        Write_Bytes(processes.filePath(folder) + "/comm", name);
    }
    ASSERT_TRUE(QDir(processes.path()).mkdir("79")); // ended meanwhile: its file cannot be read
    EXPECT_TRUE(Process_Runs("ModemManager", processes.path()));
    EXPECT_TRUE(Process_Runs("init", processes.path()));
    EXPECT_TRUE(Process_Runs("AbcdefghijklmnoPQR", processes.path())) << "the kernel keeps 15 characters";
    for (const char* name : {"ModemManage", "Modem", "ModemManager2", "Not a process", ""})
        EXPECT_FALSE(Process_Runs(name, processes.path())) << name;
    EXPECT_FALSE(Process_Runs("ModemManager", processes.filePath("missing")));
    EXPECT_TRUE(Process_Runs(QString::fromUtf8(Bytes_Of("/proc/self/comm").trimmed()))) << "in /proc";
}

} // namespace
