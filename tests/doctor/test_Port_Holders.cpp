#include "doctor/Port_Holders.h"

#include "doctor/Fake_System.h"
#include "phone/Virtual_Phone.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// A process of its own that has the port open, with a lock where it is asked for one, as long as this lives.
class Another_Program
{
public:
    Another_Program(const std::string& path, bool locks)
    {
        int began[2];
        EXPECT_EQ(pipe(began), 0);
        EXPECT_EQ(pipe(m_end), 0);
        m_process = fork();
        if (m_process == 0) {
            const int port = open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK);
            const bool is_well = port >= 0 && (!locks || flock(port, LOCK_EX | LOCK_NB) == 0);
            close(m_end[1]);
            char byte = is_well ? 'y' : 'n';
            if (write(began[1], &byte, 1) == 1 && read(m_end[0], &byte, 1) == 0)
                _exit(0);
            _exit(1);
        }
        close(m_end[0]);
        char byte = 0;
        EXPECT_EQ(read(began[0], &byte, 1), 1);
        EXPECT_EQ(byte, 'y');
        close(began[0]);
        close(began[1]);
    }
    ~Another_Program()
    {
        close(m_end[1]);
        waitpid(m_process, nullptr, 0);
    }
    Another_Program(const Another_Program&) = delete;
    Another_Program& operator=(const Another_Program&) = delete;

    pid_t Process() const { return m_process; }

private:
    int m_end[2] = {};
    pid_t m_process = 0;
};

class Holders : public testing::Test
{
protected:
    // "123 minicom" and so on.
    std::vector<std::string> Of(const QString& path) const
    {
        std::vector<std::string> names;
        for (const Port_Holder& holder : Holders_Of_Port(path, m_system.roots))
            names.push_back((QString::number(holder.process) + ' ' + holder.program).toStdString());
        return names;
    }

    void Lock_Table(const QString& path, const QByteArray& before, const QByteArray& process)
    {
        struct stat file
        {
        };
        ASSERT_EQ(stat(qPrintable(path), &file), 0);
        char line[200];
        snprintf(line, sizeof line,
                 "1: POSIX  ADVISORY  READ 9 00:01:1 0 EOF\n2: %sFLOCK  ADVISORY  WRITE %s %02x:%02x:%lu 0 EOF\n",
                 before.constData(), process.constData(), major(file.st_dev), minor(file.st_dev),
                 static_cast<unsigned long>(file.st_ino));
        Write_Bytes(m_system.Path("proc/locks"), line);
    }

    void Lock_File(const QByteArray& content) { Write_Bytes(m_system.Path("lock/LCK..ttyUSB0"), content); }

    Fake_System m_system;
    const QString m_port = m_system.Add({});
};

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(Holders, Nobody_Has_A_Port_Of_Which_Nothing_Says_So)
{
    EXPECT_THAT(Of(m_port), IsEmpty());
    EXPECT_THAT(Of("/nowhere"), IsEmpty());
}

TEST_F(Holders, A_Lock_In_The_Kernels_Table_Names_Its_Program)
{
    m_system.Add_Process(77, "gammu-smsd");
    Lock_Table(m_port, "", "77");
    EXPECT_THAT(Of(m_port), ElementsAre("77 gammu-smsd"));
    Lock_Table(m_port, "", "0"); // of another world of processes
    EXPECT_THAT(Of(m_port), ElementsAre("0 "));
    Lock_Table(m_port, "-> ", "77"); // one that waits has nothing yet
    EXPECT_THAT(Of(m_port), IsEmpty());
    Lock_Table(m_system.Path("proc"), "", "77");
    EXPECT_THAT(Of(m_port), IsEmpty()) << "another file's";
}

TEST_F(Holders, A_Lock_File_Counts_While_Its_Program_Lives)
{
    m_system.Add_Process(1234, "minicom");
    const int as_int = 1234;
    for (const QByteArray& content :
         {QByteArray("      1234\n"), QByteArray("1234"), QByteArray(reinterpret_cast<const char*>(&as_int), 4)}) {
        Lock_File(content);
        EXPECT_THAT(Of(m_port), ElementsAre("1234 minicom"));
    }
    for (const char* content : {"4321\n", "", "minicom", "-1234", "0", "99999999999999999999"}) {
        Lock_File(content);
        EXPECT_THAT(Of(m_port), IsEmpty()) << content;
    }
}

TEST_F(Holders, A_Lock_File_Of_A_Links_Name_Counts_As_Well)
{
    m_system.Add_Process(1234, "minicom");
    const QString link = m_system.Node("modem");
    ASSERT_TRUE(QFile::link(m_port, link));
    Write_Bytes(m_system.Path("lock/LCK..modem"), "1234");
    EXPECT_THAT(Of(link), ElementsAre("1234 minicom"));
    EXPECT_THAT(Of(m_port), IsEmpty());
}

TEST_F(Holders, Programs_That_Have_It_Open_Are_Found_And_Each_Is_Named_Once)
{
    m_system.Add_Process(5, "screen");
    m_system.Add_Process(6, "cat");
    ASSERT_TRUE(QFile::link(m_port, m_system.Path("proc/5/fd/3")));
    ASSERT_TRUE(QFile::link(m_system.Node("ttyUSB1"), m_system.Path("proc/6/fd/3")));
    Lock_Table(m_port, "", "5");
    Lock_File("5");
    EXPECT_THAT(Of(m_port), ElementsAre("5 screen"));
}

TEST(Real_Holders, Are_Found_By_Their_Lock_And_By_Their_Open_File_And_Are_Gone_When_They_End)
{
    const Virtual_Phone phone;
    const QString path = QString::fromStdString(phone.Path());
    EXPECT_TRUE(Holders_Of_Port(path).isEmpty());
    for (const bool locks : {false, true}) {
        const Another_Program program(phone.Path(), locks);
        const auto holders = Holders_Of_Port(path);
        ASSERT_EQ(holders.size(), 1) << locks;
        EXPECT_EQ(holders[0].process, program.Process());
        EXPECT_FALSE(holders[0].program.isEmpty());
    }
    EXPECT_TRUE(Holders_Of_Port(path).isEmpty());
}

// The lock is seen by everyone, where open files are not.
TEST(Real_Holders, A_Lock_Is_Seen_Where_No_Open_File_Can_Be)
{
    const Virtual_Phone phone;
    const Another_Program program(phone.Path(), true);
    const QTemporaryDir processes;
    Write_Bytes(processes.filePath("locks"), Bytes_Of("/proc/locks"));
    System_Roots roots;
    roots.processes = processes.path();
    const auto holders = Holders_Of_Port(QString::fromStdString(phone.Path()), roots);
    ASSERT_EQ(holders.size(), 1);
    EXPECT_EQ(holders[0].process, program.Process());
}

} // namespace
