#include "platform/File_Calls.h"
#include "platform/Text_Files.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <atomic>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using Content = std::optional<QByteArray>;

class Text_Files : public testing::Test
{
protected:
    ~Text_Files() override { umask(m_old_mask); }

    QString Path(const char* name) const { return m_folder.filePath(QString::fromUtf8(name)); }
    QByteArray Name(const char* name) const { return QFile::encodeName(Path(name)); }

    QString Put(const char* name, const QByteArray& bytes) const
    {
        EXPECT_TRUE(Replace_File(Path(name), bytes)) << name;
        return Path(name);
    }

    unsigned Permissions_Of(const char* name) const
    {
        struct stat found = {};
        return stat(Name(name).constData(), &found) == 0 ? found.st_mode & 07777U : ~0U;
    }

    QStringList Names() const
    {
        return QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    /// Makes everything that is no regular file and that a user may pick by mistake, and gives the names.
    std::vector<const char*> Make_Strange_Files() const
    {
        EXPECT_TRUE(QDir(m_folder.path()).mkdir(QStringLiteral("folder")));
        EXPECT_EQ(mkfifo(Name("pipe").constData(), 0666), 0);
        EXPECT_EQ(symlink("loop", Name("loop").constData()), 0);
        EXPECT_EQ(symlink("pipe", Name("link to a pipe").constData()), 0);
        EXPECT_EQ(symlink("/dev/zero", Name("link to zeros").constData()), 0);
        const int listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        struct sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        const QByteArray name = Name("socket");
        EXPECT_LT(static_cast<std::size_t>(name.size()), sizeof address.sun_path);
        std::copy(name.cbegin(), name.cend(), address.sun_path);
        EXPECT_EQ(bind(listener, reinterpret_cast<struct sockaddr*>(&address), sizeof address), 0);
        close(listener);
        Put("plain", "plain");
        return {"folder", "pipe", "loop", "link to a pipe", "link to zeros", "socket", "plain/below", "no folder/file"};
    }

    QTemporaryDir m_folder;
    mode_t m_old_mask = umask(022);
};

} // namespace

TEST_F(Text_Files, What_Was_Written_Is_Read_Back_Byte_For_Byte)
{
    QByteArray every;
    for (int byte = 0; byte < 256; ++byte)
        every += static_cast<char>(byte);
    const QByteArray large(3'000'000, 'x');
    for (const QByteArray& bytes : {QByteArray(), QByteArray("\n"), QByteArray("\xEF\xBB\xBFmark\r\n"), every, large})
        EXPECT_EQ(Read_File(Put("file", bytes)), bytes) << bytes.size();
    EXPECT_EQ(Read_File(QStringLiteral("/proc/self/status")).value_or("").left(5), "Name:") << "its size is given as 0";
}

TEST_F(Text_Files, Only_A_Regular_File_Is_Read)
{
    const std::vector<const char*> strange = Make_Strange_Files();
    for (const char* name : strange)
        EXPECT_EQ(Read_File(Path(name)), Content()) << name;
    for (const char* path : {"", "/", ".", "/dev/zero", "/dev/null", "/dev/tty", "/nowhere/file"})
        EXPECT_EQ(Read_File(QString::fromUtf8(path)), Content()) << path;
    EXPECT_EQ(Read_File(Path("missing")), Content());
    EXPECT_EQ(Read_File(Path("plain") + QChar() + QLatin1Char('x')), Content()) << "no name has a NUL in it";
    EXPECT_EQ(Read_File(m_folder.filePath(QString(300, QLatin1Char('n')))), Content());
    EXPECT_EQ(symlink("plain", Name("link").constData()), 0);
    EXPECT_EQ(Read_File(Path("link")), QByteArray("plain"));
}

TEST_F(Text_Files, A_Pipe_With_A_Writer_Keeps_What_Is_In_It)
{
    ASSERT_EQ(mkfifo(Name("pipe").constData(), 0666), 0);
    const int both_ends = open(Name("pipe").constData(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(write(both_ends, "kept", 4), 4);
    EXPECT_EQ(Read_File(Path("pipe")), Content());
    EXPECT_FALSE(Append_To_File(Path("pipe"), "more"));
    EXPECT_FALSE(Write_File_In_Pieces(Path("pipe"), [] { return std::nullopt; }));
    char found[16] = {};
    EXPECT_EQ(read(both_ends, found, sizeof found), 4);
    EXPECT_STREQ(found, "kept");
    close(both_ends);
}

TEST_F(Text_Files, A_Pipe_Is_Not_Even_Opened_And_Holds_Nothing_Up_When_It_Comes_Late)
{
    ASSERT_EQ(mkfifo(Name("pipe").constData(), 0666), 0);
    {
        const File_Calls calls({});
        EXPECT_EQ(Read_File(Path("pipe")), Content());
        EXPECT_EQ(calls.Made(), QByteArrayList({"stat"})) << "an open would wake its writer";
    }
    const auto swap_after_look = [&](const QByteArray& call) {
        const bool is_look = call == "stat";
        EXPECT_EQ(is_look ? rename(Name("pipe").constData(), Name("file").constData()) : 0, 0);
    };
    Put("file", "file");
    const File_Calls calls({.after = swap_after_look});
    EXPECT_EQ(Read_File(Path("file")), Content());
    EXPECT_EQ(calls.Made(), QByteArrayList({"stat", "open", "fstat", "close"}));
}

TEST_F(Text_Files, A_File_That_Changes_While_It_Is_Read_Is_Read_To_Its_End_Then)
{
    const auto read_while = [&](const std::function<void(int)>& change) {
        Put("file", "0123456789");
        int reads = 0;
        const File_Calls calls({.longest = 4, .after = [&](const QByteArray& call) {
                                    if (call == "read")
                                        change(++reads);
                                }});
        return Read_File(Path("file"));
    };
    const QByteArray much(200'000, 'g');
    EXPECT_EQ(read_while([&](int reads) { reads == 2 && Append_To_File(Path("file"), "grown"); }), "0123456789grown");
    EXPECT_EQ(read_while([&](int reads) { reads == 1 && Append_To_File(Path("file"), much); }), "0123456789" + much);
    EXPECT_EQ(read_while([&](int reads) { reads == 1 && truncate(Name("file").constData(), 6) == 0; }), "012345");
    EXPECT_EQ(read_while([&](int reads) { reads == 1 && truncate(Name("file").constData(), 0) == 0; }), "0123");
    EXPECT_EQ(read_while([&](int reads) { reads == 1 && Replace_File(Path("file"), "new"); }), "0123456789");
    EXPECT_EQ(read_while([&](int reads) { reads == 1 && Remove_File(Path("file")); }), "0123456789");
}

TEST_F(Text_Files, A_Read_That_Fails_Gives_Nothing)
{
    Put("file", "0123456789");
    for (int call = 1; call <= 5; ++call) {
        const File_Calls calls({.fail_at = call, .error = EIO, .longest = 4});
        EXPECT_EQ(Read_File(Path("file")), Content()) << call;
    }
    ASSERT_EQ(truncate(Name("file").constData(), (off_t{2} << 30) + 1), 0);
    EXPECT_EQ(Read_File(Path("file")), Content()) << "more than any list can be";
}

TEST_F(Text_Files, Utf8_Is_Taken_Strictly_And_Whole)
{
    const QString text =
        QString::fromUtf8("\u0000a\r\n\u007F\u0080\u07FF\u0800\uD7FF\uE000\uFFFD\uFFFF\U00010000\U0010FFFF", 32);
    EXPECT_EQ(Decode_Utf8(text.toUtf8()), text);
    EXPECT_EQ(Decode_Utf8(""), QString());
    EXPECT_EQ(Decode_Utf8("\xEF\xBB\xBF+1\xEF\xBB\xBF"), QStringLiteral("\uFEFF+1\uFEFF")) << "marks stay";
    EXPECT_EQ(Decode_Utf8(QByteArray("\0+1\0", 4)).value_or(QString()).size(), 4) << "NULs stay";
    for (const char* bad : {"\x80", "\xBF", "\xC3", "\xC0\x80", "\xC1\xBF", "\xE0\x80\x80", "\xE0\x9F\xBF", "\xE2\x82",
                            "\xED\xA0\x80", "\xED\xBF\xBF", "\xF0\x80\x80\x80", "\xF0\x9F\x98", "\xF4\x90\x80\x80",
                            "\xF5\x80\x80\x80", "\xFE", "\xFF\xFE"}) {
        for (const char* before : {"", "plain and long enough to be looked at in blocks \xC3\xA9"}) {
            EXPECT_EQ(Decode_Utf8(QByteArray(before) + bad), std::nullopt) << QByteArray(bad).toHex().constData();
            EXPECT_EQ(Decode_Utf8(QByteArray(before) + bad + " and more"), std::nullopt)
                << QByteArray(bad).toHex().constData();
        }
    }
    EXPECT_EQ(Decode_Utf8(QByteArray("\xFF\xFE+\0"
                                     "1\0",
                                     6)),
              std::nullopt)
        << "UTF-16";
}

TEST_F(Text_Files, A_Utf8_File_Is_Read_In_One_Step)
{
    EXPECT_EQ(Read_Utf8_File(Put("file", "+44\nПривет")), QStringLiteral("+44\nПривет"));
    EXPECT_EQ(Read_Utf8_File(Put("file", "")), QString());
    EXPECT_EQ(Read_Utf8_File(Put("file", "+44\xFF")), std::nullopt);
    EXPECT_EQ(Read_Utf8_File(Path("missing")), std::nullopt);
}

TEST_F(Text_Files, A_Replaced_File_Has_All_Permissions_And_Nothing_Beside_It)
{
    for (const mode_t mask : {0000, 0022, 0777}) {
        umask(mask);
        Put("file", "one");
        EXPECT_EQ(Permissions_Of("file"), 0777U) << mask;
        chmod(Name("file").constData(), 0600);
        Put("file", "two");
        EXPECT_EQ(Permissions_Of("file"), 0777U) << mask;
        EXPECT_EQ(Read_File(Path("file")), QByteArray("two"));
        EXPECT_EQ(Names(), QStringList(QStringLiteral("file")));
        EXPECT_TRUE(Remove_File(Path("file")));
    }
    EXPECT_FALSE(
        Replacement_Path(QStringLiteral("/a/Store.ZOVA")).endsWith(QLatin1String(".ZOVA"), Qt::CaseInsensitive));
    EXPECT_EQ(QFileInfo(Replacement_Path(QStringLiteral("/a/Store.ZOVA"))).path(), QStringLiteral("/a"));
}

TEST_F(Text_Files, What_An_Earlier_Replacement_Left_Is_Overwritten)
{
    const QByteArray beside = QFile::encodeName(Replacement_Path(Path("file")));
    Put("else", "untouched");
    Put("file.new", "a half");
    EXPECT_EQ(Read_File(Put("file", "whole")), QByteArray("whole"));
    ASSERT_EQ(symlink("else", beside.constData()), 0);
    EXPECT_EQ(Read_File(Put("file", "whole again")), QByteArray("whole again"));
    EXPECT_EQ(Read_File(Path("else")), QByteArray("untouched"));
    ASSERT_EQ(mkfifo(beside.constData(), 0666), 0);
    EXPECT_EQ(Read_File(Put("file", "and again")), QByteArray("and again"));
    EXPECT_EQ(Names(), QStringList({QStringLiteral("else"), QStringLiteral("file")}));
    ASSERT_EQ(mkdir(beside.constData(), 0777), 0);
    EXPECT_FALSE(Replace_File(Path("file"), "never"));
    EXPECT_EQ(Read_File(Path("file")), QByteArray("and again"));
}

TEST_F(Text_Files, A_Folder_And_A_Path_That_Leads_Nowhere_Are_Not_Replaced)
{
    const std::vector<const char*> strange = Make_Strange_Files();
    const QStringList names = Names();
    for (const char* name : {"folder", "plain/below", "no folder/file"})
        EXPECT_FALSE(Replace_File(Path(name), "new")) << name;
    EXPECT_FALSE(Replace_File(QString(), "new"));
    EXPECT_FALSE(Replace_File(Path("folder/"), "new"));
    EXPECT_FALSE(Replace_File(Path("plain") + QChar() + QLatin1Char('x'), "new"));
    EXPECT_FALSE(Replace_File(QStringLiteral("/proc/self/file"), "new"));
    EXPECT_FALSE(Replace_File(m_folder.filePath(QString(300, QLatin1Char('n'))), "new"));
    EXPECT_EQ(Names(), names);
    EXPECT_TRUE(QDir(Path("folder")).isEmpty());
    EXPECT_EQ(Read_File(Path("plain")), QByteArray("plain"));
    for (const char* name : {"pipe", "loop", "link to zeros", "socket"})
        EXPECT_EQ(Read_File(Put(name, "new")), QByteArray("new")) << name << " is taken away as a file would be";
}

TEST_F(Text_Files, Appending_Goes_To_The_End_And_Makes_A_Missing_File)
{
    umask(0077);
    EXPECT_TRUE(Append_To_File(Path("file"), ""));
    EXPECT_EQ(Read_File(Path("file")), QByteArray()) << "opened for appending and closed again";
    EXPECT_EQ(Permissions_Of("file"), 0777U);
    EXPECT_TRUE(Append_To_File(Path("file"), "one\n"));
    EXPECT_TRUE(Append_To_File(Path("file"), QByteArray("t\0o\n", 4)));
    EXPECT_EQ(Read_File(Path("file")), QByteArray("one\nt\0o\n", 8));
    chmod(Name("file").constData(), 0640);
    EXPECT_TRUE(Append_To_File(Path("file"), "x"));
    EXPECT_EQ(Permissions_Of("file"), 0640U) << "those of a file that is there stay";
    ASSERT_EQ(symlink("file", Name("link").constData()), 0);
    EXPECT_TRUE(Append_To_File(Path("link"), "y"));
    EXPECT_EQ(Read_File(Path("file")).value_or("").right(2), QByteArray("xy"));
}

TEST_F(Text_Files, Only_A_Regular_File_Is_Written_To)
{
    const std::vector<const char*> strange = Make_Strange_Files();
    const QStringList names = Names();
    const auto no_piece = []() -> Content {
        ADD_FAILURE() << "nothing may be asked for";
        return std::nullopt;
    };
    for (const char* name : strange) {
        EXPECT_FALSE(Append_To_File(Path(name), "x")) << name;
        EXPECT_FALSE(Write_File_In_Pieces(Path(name), no_piece)) << name;
        EXPECT_FALSE(Can_Be_Written(Path(name))) << name;
    }
    for (const QString& path :
         {QString(), QStringLiteral("/dev/null"), QStringLiteral("/proc/self/x"), Path("plain") + QChar()}) {
        EXPECT_FALSE(Append_To_File(path, "x")) << path.toStdString();
        EXPECT_FALSE(Write_File_In_Pieces(path, no_piece)) << path.toStdString();
        EXPECT_FALSE(Can_Be_Written(path)) << path.toStdString();
    }
    EXPECT_EQ(Names(), names);
    EXPECT_EQ(Read_File(Path("plain")), QByteArray("plain"));
    EXPECT_TRUE(Can_Be_Written(Path("plain")));
    EXPECT_TRUE(Can_Be_Written(Path("missing")));
    EXPECT_EQ(Names(), names) << "asking makes no file";
}

TEST_F(Text_Files, Pieces_Become_One_File_In_The_Place_Of_The_Old)
{
    Put("file", "an old file that is longer than the new one");
    chmod(Name("file").constData(), 0600);
    int count = 0;
    const auto pieces = [&] { return ++count <= 3 ? Content(QByteArray::number(count)) : std::nullopt; };
    EXPECT_TRUE(Write_File_In_Pieces(Path("file"), pieces));
    EXPECT_EQ(count, 4);
    EXPECT_EQ(Read_File(Path("file")), QByteArray("123"));
    EXPECT_EQ(Permissions_Of("file"), 0600U);
    EXPECT_TRUE(Write_File_In_Pieces(Path("new"), [] { return std::nullopt; }));
    EXPECT_EQ(Read_File(Path("new")), QByteArray());
    EXPECT_EQ(Permissions_Of("new"), 0644U) << "the user's own file";
}

TEST_F(Text_Files, Files_And_Links_Are_Removed_And_Nothing_Else)
{
    Make_Strange_Files();
    for (const char* name : {"plain", "link to a pipe", "loop", "missing", "no folder/file", "plain/below"})
        EXPECT_TRUE(Remove_File(Path(name))) << name;
    for (const char* name : {"folder", "pipe", "socket"})
        EXPECT_FALSE(Remove_File(Path(name))) << name;
    EXPECT_EQ(Names(), QStringList({QStringLiteral("folder"), QStringLiteral("link to zeros"), QStringLiteral("pipe"),
                                    QStringLiteral("socket")}));
}

TEST_F(Text_Files, Without_Permission_Nothing_Is_Read_Written_Or_Removed)
{
    Put("secret", "secret");
    chmod(Name("secret").constData(), 0000);
    chmod(QFile::encodeName(m_folder.path()).constData(), 0555);
    // A child, so that it can be another user: the superuser may do everything.
    const pid_t child = fork();
    if (child == 0) {
        if (geteuid() == 0 && setresuid(65534, 65534, 65534) != 0)
            _exit(99);
        int failures = 0;
        failures += Read_File(Path("secret")) ? 1 : 0;
        failures += Append_To_File(Path("secret"), "x") ? 2 : 0;
        failures += Replace_File(Path("secret"), "x") ? 4 : 0;
        failures += Remove_File(Path("secret")) ? 8 : 0;
        failures += Can_Be_Written(Path("secret")) || Can_Be_Written(Path("new")) ? 16 : 0;
        failures += Append_To_File(Path("new"), "x") ? 32 : 0;
        _exit(failures);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    chmod(QFile::encodeName(m_folder.path()).constData(), 0755);
    chmod(Name("secret").constData(), 0600);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_EQ(Read_File(Path("secret")), QByteArray("secret"));
    EXPECT_EQ(Names(), QStringList(QStringLiteral("secret")));
}

TEST_F(Text_Files, A_Lock_Keeps_Others_Out_However_The_Path_Is_Written)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(QStringLiteral("folder")));
    ASSERT_EQ(symlink("folder", Name("link").constData()), 0);
    int count = 0; // no atomic: the lock is what keeps it right
    std::vector<std::thread> threads;
    for (const char* name : {"folder/file", "link/file", "folder/../folder/./file", "link/../link//file"}) {
        threads.emplace_back([&, path = Path(name)] {
            for (int i = 0; i < 500; ++i) {
                const File_Lock lock(path);
                const int before = count;
                std::this_thread::yield();
                count = before + 1;
            }
        });
    }
    for (auto& thread : threads)
        thread.join();
    EXPECT_EQ(count, 2000);
}

TEST_F(Text_Files, A_Thread_May_Take_Its_Lock_Again_And_Others_Take_Other_Locks)
{
    const File_Lock outer(Path("file"));
    {
        const File_Lock inner(Path("file"));
    }
    EXPECT_TRUE(Replace_File(Path("file"), "written under the lock"));
    std::atomic<bool> is_in{false};
    std::thread other([&] {
        const File_Lock lock(Path("other"));
        is_in = true;
    });
    other.join();
    EXPECT_TRUE(is_in);
    std::thread same([&] {
        const File_Lock lock(Path("missing folder/file"));
        const File_Lock again(Path("missing folder/file"));
    });
    same.join();
}

TEST_F(Text_Files, Records_Appended_At_The_Same_Time_Are_All_There_And_Whole)
{
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int writer = 0; writer < 4; ++writer) {
        threads.emplace_back([&, writer] {
            for (int i = 0; i < 100; ++i) {
                const QByteArray record = QByteArray(200 + i, static_cast<char>('a' + writer)) + '\n';
                const File_Calls calls({.longest = 50});
                EXPECT_TRUE(Append_To_File(Path("file"), record));
            }
        });
    }
    for (auto& thread : threads)
        thread.join();
    QByteArrayList lines = Read_File(Path("file")).value_or("").split('\n');
    EXPECT_EQ(lines.takeLast(), "");
    ASSERT_EQ(lines.size(), 400);
    for (const QByteArray& line : lines)
        EXPECT_EQ(line, QByteArray(line.size(), line.at(0)));
}
