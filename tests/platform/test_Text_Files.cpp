#include "platform/Text_Files.h"

#include "platform/Files_Test.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>

const QChar Nul(u'\0');

class Text_Files : public Files_Test
{
protected:
    std::string Name(const char* name) const { return Path(name).toStdString(); }

    QString Put(const char* name, const QByteArray& bytes) const
    {
        EXPECT_TRUE(Replace_File(Path(name), bytes)) << name;
        return Path(name);
    }

    /// What is in the file of that name.
    Content In(const char* name) const { return Read_File(Path(name)); }

    /// Makes everything that is no regular file and that a user may pick by mistake, and gives the names.
    std::vector<const char*> Make_Strange_Files() const
    {
        Put_A_Folder_At(Path("folder"));
        EXPECT_EQ(mkfifo(Name("pipe").c_str(), 0666), 0);
        EXPECT_EQ(symlink("loop", Name("loop").c_str()), 0);
        EXPECT_EQ(symlink("pipe", Name("link to a pipe").c_str()), 0);
        EXPECT_EQ(symlink("/dev/zero", Name("link to zeros").c_str()), 0);
        const int listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        struct sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        EXPECT_LT(Name("socket").size(), sizeof address.sun_path);
        std::ranges::copy(Name("socket"), address.sun_path);
        EXPECT_EQ(bind(listener, reinterpret_cast<struct sockaddr*>(&address), sizeof address), 0);
        close(listener);
        Put("plain", "plain");
        return {"folder", "pipe", "loop", "link to a pipe", "link to zeros", "socket", "plain/below", "no folder/file"};
    }
};

TEST_F(Text_Files, What_Was_Written_Is_Read_Back_Byte_For_Byte)
{
    QByteArray every;
    for (int byte = 0; byte < 256; ++byte)
        every += static_cast<char>(byte);
    const QByteArray large(3'000'000, 'x');
    for (const QByteArray& bytes : {QByteArray(), QByteArray("\n"), QByteArray("\xEF\xBB\xBFmark\r\n"), every, large})
        EXPECT_EQ(Read_File(Put("file", bytes)), bytes) << bytes.size();
    EXPECT_EQ(Read_File("/proc/self/status").value_or("").left(5), "Name:") << "its size is given as 0";
}

TEST_F(Text_Files, Only_A_Regular_File_Is_Read_Or_Written_To)
{
    const std::vector<const char*> strange = Make_Strange_Files();
    const QStringList names = Names();
    QStringList paths{"", "/dev/null", "/proc/self/x", Path("plain") + Nul, Path("plain") + Nul + "x"};
    for (const char* name : strange)
        paths += Path(name);
    const auto no_piece = []() -> Content {
        ADD_FAILURE() << "nothing may be asked for";
        return std::nullopt;
    };
    for (const QString& path : paths) {
        EXPECT_EQ(Read_File(path), Content()) << path.toStdString();
        EXPECT_FALSE(Append_To_File(path, "x")) << path.toStdString();
        EXPECT_FALSE(Write_File_In_Pieces(path, no_piece)) << path.toStdString();
        EXPECT_FALSE(Can_Be_Written(path)) << path.toStdString();
    }
    for (const QString& path :
         QStringList{"/", ".", "/dev/zero", "/dev/tty", "/nowhere/file", Path("missing"), Path(QString(300, u'n'))})
        EXPECT_EQ(Read_File(path), Content()) << path.toStdString();
    EXPECT_EQ(symlink("plain", Name("link").c_str()), 0);
    EXPECT_EQ(In("link"), "plain");
    EXPECT_TRUE(Can_Be_Written(Path("plain")));
    EXPECT_TRUE(Can_Be_Written(Path("missing")));
    EXPECT_TRUE(Remove_File(Path("link")));
    EXPECT_EQ(Names(), names) << "asking makes no file";
}

TEST_F(Text_Files, A_Pipe_Is_Not_Even_Opened_And_Holds_Nothing_Up_When_It_Comes_Late)
{
    ASSERT_EQ(mkfifo(Name("pipe").c_str(), 0666), 0);
    const int both_ends = open(Name("pipe").c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(write(both_ends, "kept", 4), 4);
    {
        const File_Calls calls({});
        EXPECT_EQ(In("pipe"), Content());
        EXPECT_EQ(calls.Made(), QByteArrayList({"stat"})) << "an open would wake its writer";
    }
    EXPECT_FALSE(Append_To_File(Path("pipe"), "more"));
    EXPECT_FALSE(Write_File_In_Pieces(Path("pipe"), [] { return std::nullopt; }));
    char found[16] = {};
    EXPECT_EQ(read(both_ends, found, sizeof found), 4);
    EXPECT_STREQ(found, "kept");
    close(both_ends);

    const auto swap_after_look = [&](const QByteArray& call) {
        EXPECT_EQ(call == "stat" ? rename(Name("pipe").c_str(), Name("file").c_str()) : 0, 0);
    };
    Put("file", "file");
    const File_Calls calls({.after = swap_after_look});
    EXPECT_EQ(In("file"), Content());
    EXPECT_EQ(calls.Made(), QByteArrayList({"stat", "open", "fstat", "close"}));
}

TEST_F(Text_Files, A_File_That_Changes_While_It_Is_Read_Is_Read_To_Its_End_Then_And_A_Read_That_Fails_Gives_Nothing)
{
    const auto read_while = [&](const std::function<void(int)>& change) {
        Put("file", "0123456789");
        int reads = 0;
        const auto after = [&](const QByteArray& call) { call == "read" ? change(++reads) : void(); };
        const File_Calls calls({.longest = 4, .after = after});
        return In("file");
    };
    const QByteArray much(200'000, 'g');
    EXPECT_EQ(read_while([&](int reads) { reads == 2 && Append_To_File(Path("file"), "grown"); }), "0123456789grown");
    EXPECT_EQ(read_while([&](int reads) { reads == 1 && Append_To_File(Path("file"), much); }), "0123456789" + much);
    EXPECT_EQ(read_while([&](int reads) { reads == 1 && truncate(Name("file").c_str(), 6) == 0; }), "012345");
    EXPECT_EQ(read_while([&](int reads) { reads == 1 && truncate(Name("file").c_str(), 0) == 0; }), "0123");
    EXPECT_EQ(read_while([&](int reads) { reads == 1 && Replace_File(Path("file"), "new"); }), "0123456789");
    EXPECT_EQ(read_while([&](int reads) { reads == 1 && Remove_File(Path("file")); }), "0123456789");

    Put("file", "0123456789");
    for (int call = 1; call <= 5; ++call) {
        const File_Calls calls({.fail_at = call, .error = EIO, .longest = 4});
        EXPECT_EQ(In("file"), Content()) << call;
    }
    ASSERT_EQ(truncate(Name("file").c_str(), (off_t{2} << 30) + 1), 0);
    EXPECT_EQ(In("file"), Content()) << "more than any list can be";
}

TEST_F(Text_Files, Utf8_Is_Taken_Strictly_And_Whole)
{
    const QString text =
        QString::fromUtf8("\u0000a\r\n\u007F\u0080\u07FF\u0800\uD7FF\uE000\uFFFD\uFFFF\U00010000\U0010FFFF", 32);
    EXPECT_EQ(Decode_Utf8(text.toUtf8()), text);
    EXPECT_EQ(Decode_Utf8(""), QString());
    EXPECT_EQ(Decode_Utf8("\xEF\xBB\xBF+1\xEF\xBB\xBF"), "\uFEFF+1\uFEFF") << "marks stay";
    EXPECT_EQ(Decode_Utf8(QByteArray("\0+1\0", 4)).value_or(QString()).size(), 4) << "NULs stay";
    for (const char* bad : {"\x80", "\xBF", "\xC3", "\xC0\x80", "\xC1\xBF", "\xE0\x80\x80", "\xE0\x9F\xBF", "\xE2\x82",
                            "\xED\xA0\x80", "\xED\xBF\xBF", "\xF0\x80\x80\x80", "\xF0\x9F\x98", "\xF4\x90\x80\x80",
                            "\xF5\x80\x80\x80", "\xFE", "\xFF\xFE"}) {
        for (const char* before : {"", "plain and long enough to be looked at in blocks \xC3\xA9"}) {
            for (const char* after : {"", " and more"})
                EXPECT_EQ(Decode_Utf8(QByteArray(before) + bad + after), std::nullopt)
                    << QByteArray(bad).toHex().data();
        }
    }
    EXPECT_EQ(Decode_Utf8(QByteArray("\xFF\xFE+\0-\0", 6)), std::nullopt) << "UTF-16";
    EXPECT_EQ(Read_Utf8_File(Put("file", "+44\nПривет")), "+44\nПривет");
    EXPECT_EQ(Read_Utf8_File(Put("file", "")), QString());
    EXPECT_EQ(Read_Utf8_File(Put("file", "+44\xFF")), std::nullopt);
    EXPECT_EQ(Read_Utf8_File(Path("missing")), std::nullopt);
}

TEST_F(Text_Files, A_Replaced_File_Has_All_Permissions_And_Nothing_Beside_It_Whatever_An_Earlier_One_Left)
{
    for (const mode_t mask : {0000, 0022, 0777}) {
        umask(mask);
        EXPECT_EQ(Permissions_Of(Put("file", "one")), 0777U) << mask;
        chmod(Name("file").c_str(), 0600);
        EXPECT_EQ(Permissions_Of(Put("file", "two")), 0777U) << mask;
        EXPECT_EQ(In("file"), "two");
        EXPECT_EQ(Names(), QStringList("file"));
        EXPECT_TRUE(Remove_File(Path("file")));
    }
    EXPECT_FALSE(Replacement_Path("/a/Store.ZOVA").endsWith(".ZOVA", Qt::CaseInsensitive));
    EXPECT_EQ(QFileInfo(Replacement_Path("/a/Store.ZOVA")).path(), "/a");

    umask(022);
    const std::string beside = Replacement_Path(Path("file")).toStdString();
    Put("else", "untouched");
    Put("file.new", "a half");
    EXPECT_EQ(Read_File(Put("file", "whole")), "whole");
    ASSERT_EQ(symlink("else", beside.c_str()), 0);
    EXPECT_EQ(Read_File(Put("file", "whole again")), "whole again");
    EXPECT_EQ(In("else"), "untouched");
    ASSERT_EQ(mkfifo(beside.c_str(), 0666), 0);
    EXPECT_EQ(Read_File(Put("file", "and again")), "and again");
    EXPECT_EQ(Names(), QStringList({"else", "file"}));
    ASSERT_EQ(mkdir(beside.c_str(), 0777), 0);
    EXPECT_FALSE(Replace_File(Path("file"), "never"));
    EXPECT_EQ(In("file"), "and again");
}

TEST_F(Text_Files, A_Folder_And_A_Path_That_Leads_Nowhere_Are_Not_Replaced_And_Files_And_Links_Alone_Removed)
{
    Make_Strange_Files();
    const QStringList names = Names();
    for (const QString& path : QStringList{Path("folder"), Path("folder/"), Path("plain/below"), Path("no folder/file"),
                                           "", "/proc/self/file", Path("plain") + Nul + "x", Path(QString(300, u'n'))})
        EXPECT_FALSE(Replace_File(path, "new")) << path.toStdString();
    EXPECT_EQ(Names(), names);
    EXPECT_TRUE(QDir(Path("folder")).isEmpty());
    EXPECT_EQ(In("plain"), "plain");
    for (const char* name : {"folder", "pipe", "socket"})
        EXPECT_FALSE(Remove_File(Path(name))) << name;
    for (const char* name : {"plain", "link to a pipe", "loop", "missing", "no folder/file", "plain/below"})
        EXPECT_TRUE(Remove_File(Path(name))) << name;
    EXPECT_EQ(Names(), QStringList({"folder", "link to zeros", "pipe", "socket"}));
    for (const char* name : {"pipe", "link to zeros", "socket"})
        EXPECT_EQ(Read_File(Put(name, "new")), "new") << name << " is taken away as a file would be";
    ASSERT_EQ(symlink("loop", Name("loop").c_str()), 0);
    EXPECT_EQ(Read_File(Put("loop", "new")), "new");
}

TEST_F(Text_Files, Appending_Goes_To_The_End_And_Makes_A_Missing_File)
{
    umask(0077);
    EXPECT_TRUE(Append_To_File(Path("file"), ""));
    EXPECT_EQ(In("file"), "") << "opened for appending and closed again";
    EXPECT_EQ(Permissions_Of(Path("file")), 0777U);
    EXPECT_TRUE(Append_To_File(Path("file"), "one\n"));
    EXPECT_TRUE(Append_To_File(Path("file"), QByteArray("t\0o\n", 4)));
    EXPECT_EQ(In("file"), QByteArray("one\nt\0o\n", 8));
    chmod(Name("file").c_str(), 0640);
    EXPECT_TRUE(Append_To_File(Path("file"), "x"));
    EXPECT_EQ(Permissions_Of(Path("file")), 0640U) << "those of a file that is there stay";
    ASSERT_EQ(symlink("file", Name("link").c_str()), 0);
    EXPECT_TRUE(Append_To_File(Path("link"), "y"));
    EXPECT_EQ(In("file").value_or("").right(2), "xy");
}

TEST_F(Text_Files, Pieces_Become_One_File_In_The_Place_Of_The_Old)
{
    chmod(qPrintable(Put("file", "an old file that is longer than the new one")), 0600);
    int count = 0;
    EXPECT_TRUE(Write_File_In_Pieces(Path("file"),
                                     [&] { return ++count <= 3 ? Content(QByteArray::number(count)) : std::nullopt; }));
    EXPECT_EQ(count, 4);
    EXPECT_EQ(In("file"), "123");
    EXPECT_EQ(Permissions_Of(Path("file")), 0600U);
    EXPECT_TRUE(Write_File_In_Pieces(Path("new"), [] { return std::nullopt; }));
    EXPECT_EQ(In("new"), "");
    EXPECT_EQ(Permissions_Of(Path("new")), 0644U) << "the user's own file";
}

TEST_F(Text_Files, Without_Permission_Nothing_Is_Read_Written_Or_Removed)
{
    chmod(qPrintable(Put("secret", "secret")), 0000);
    chmod(Name("").c_str(), 0555);
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
    chmod(Name("").c_str(), 0755);
    chmod(Name("secret").c_str(), 0600);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_EQ(In("secret"), "secret");
    EXPECT_EQ(Names(), QStringList("secret"));
}

TEST_F(Text_Files, A_Lock_Keeps_Others_Out_However_The_Path_Is_Written_And_Its_Own_Thread_Never)
{
    Put_A_Folder_At(Path("folder"));
    ASSERT_EQ(symlink("folder", Name("link").c_str()), 0);
    int count = 0; // no atomic: the lock is what keeps it right
    {
        std::vector<std::jthread> threads;
        for (const char* name : {"folder/file", "link/file", "folder/../folder/./file", "link/../link//file"})
            threads.emplace_back([&, path = Path(name)] {
                for (int i = 0; i < 100; ++i) { // on a busy machine each yield is a long one
                    const File_Lock lock(path);
                    const int before = count;
                    std::this_thread::yield();
                    count = before + 1;
                }
            });
    }
    EXPECT_EQ(count, 400);

    const File_Lock outer(Path("file"));
    std::optional<File_Lock>(std::in_place, Path("file")).reset();
    EXPECT_TRUE(Replace_File(Path("file"), "written under the lock"));
    std::jthread([&] {
        const File_Lock other(Path("other"));
        const File_Lock lock(Path("missing folder/file"));
        const File_Lock again(Path("missing folder/file"));
        count = 0;
    }).join();
    EXPECT_EQ(count, 0);
}

TEST_F(Text_Files, Records_Appended_At_The_Same_Time_Are_All_There_And_Whole)
{
    {
        std::vector<std::jthread> threads;
        for (const char writer : {'a', 'b', 'c', 'd'})
            threads.emplace_back([&, writer] {
                for (int i = 0; i < 100; ++i) {
                    const File_Calls calls({.longest = 50});
                    EXPECT_TRUE(Append_To_File(Path("file"), QByteArray(200 + i, writer) + '\n'));
                }
            });
    }
    QByteArrayList lines = In("file").value_or("").split('\n');
    EXPECT_EQ(lines.takeLast(), "");
    ASSERT_EQ(lines.size(), 400);
    for (const QByteArray& line : lines)
        EXPECT_EQ(line, QByteArray(line.size(), line.at(0)));
}
