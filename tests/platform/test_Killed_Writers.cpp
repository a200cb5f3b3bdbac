#include "platform/File_Calls.h"
#include "platform/Text_Files.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <gtest/gtest.h>
#include <memory>
#include <sys/mman.h>
#include <sys/resource.h>
#include <utility>
#include <vector>

namespace {

using Content = std::optional<QByteArray>; // nothing: there is no such file

/// A number that a child process and this one both see.
class Shared_Number
{
public:
    Shared_Number()
        : m_place(mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0))
    {
        if (m_place == MAP_FAILED)
            qFatal("No memory to share");
        std::construct_at(Number(), 0);
    }
    ~Shared_Number() { munmap(m_place, sizeof(std::atomic<int>)); }
    Shared_Number(const Shared_Number&) = delete;
    Shared_Number& operator=(const Shared_Number&) = delete;

    std::atomic<int>* Number() const { return static_cast<std::atomic<int>*>(m_place); }

private:
    void* m_place;
};

class Killed_Writers : public testing::Test
{
protected:
    /// One step of a writer, done to what the steps before it have left.
    struct Step
    {
        bool is_append;
        QByteArray bytes;

        Content After(const Content& before) const { return is_append ? before.value_or(QByteArray()) + bytes : bytes; }
    };

    static Step Append(const QByteArray& bytes) { return {true, bytes}; }
    static Step Replace(const QByteArray& bytes) { return {false, bytes}; }

    bool Do(const Step& step) const
    {
        return step.is_append ? Append_To_File(Path(), step.bytes) : Replace_File(Path(), step.bytes);
    }

    QString Path() const { return m_folder.filePath(QStringLiteral("Store.ZOVA")); }
    Content In_The_File() const { return Read_File(Path()); }

    /// What the folder holds besides the file.
    QStringList Beside() const
    {
        QStringList names = QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        names.removeAll(QStringLiteral("Store.ZOVA"));
        return names;
    }

    /// By other means than those under test, which would wait for the disk every time.
    void Put_In_The_File(const Content& content) const
    {
        QFile file(Path());
        ASSERT_TRUE(file.remove() || !file.exists());
        ASSERT_TRUE(!content || (file.open(QIODevice::WriteOnly) && file.write(*content) == content->size()));
    }

    /// Kills a writer just before and just after each of its file-system calls, each time from the same beginning, and
    /// looks at what is left: what its last whole step left, or the one after it; or one of the extra contents. Returns
    /// how often it was killed.
    int Kill_Everywhere(const Content& before, const std::vector<Step>& steps, const File_Call_Plan& manners = {},
                        const std::vector<Content>& extra = {})
    {
        std::vector<Content> states = {before};
        for (const Step& step : steps)
            states.push_back(step.After(states.back()));
        int kills = 0;
        for (int call = 1;; ++call) {
            for (const bool is_after : {false, true}) {
                Put_In_The_File(before);
                File_Call_Plan plan = manners;
                (is_after ? plan.kill_after : plan.kill_before) = call;
                const Shared_Number done;
                const bool has_lived = Lives_Through(plan, [&] {
                    for (const Step& step : steps) {
                        if (Do(step))
                            ++*done.Number();
                    }
                });
                const auto count = static_cast<std::size_t>(done.Number()->load());
                if (has_lived) {
                    EXPECT_EQ(count, steps.size());
                    EXPECT_EQ(In_The_File(), states.back());
                    return kills;
                }
                ++kills;
                if (QFile::exists(Append_Note_Path(Path())))
                    Clear_Up_After_A_Kill(m_folder.path(), QStringLiteral(".ZOVA"));
                const Content left = In_The_File();
                const bool is_whole = left == states.at(count) || left == states.at(count + 1);
                const bool is_extra = std::ranges::find(extra, left) != extra.end();
                if (!is_whole && !is_extra) {
                    ADD_FAILURE() << "call " << call << (is_after ? " made" : " not made") << ", step " << count;
                    return kills;
                }
                Expect_Nothing_Strange_Beside();
            }
        }
    }

    /// A killed replacement may be left under the one name, and the next one takes it away. The note of an append has
    /// gone with what it was for.
    void Expect_Nothing_Strange_Beside() const
    {
        const QStringList beside = Beside();
        if (beside.isEmpty())
            return;
        EXPECT_EQ(beside, QStringList{QStringLiteral("Store.ZOVA.new")});
        EXPECT_TRUE(Replace_File(Path(), "next"));
        EXPECT_EQ(In_The_File(), QByteArray("next"));
        EXPECT_EQ(Beside(), QStringList());
    }

    /// Fails each of a step's calls in turn, for each reason: what says that it has failed must have changed nothing.
    void Fail_Everywhere(const Content& before, const Step& step, const File_Call_Plan& manners = {})
    {
        for (const int error : {ENOSPC, EIO, EROFS, EACCES}) {
            for (int call = 1;; ++call) {
                Put_In_The_File(before);
                File_Call_Plan plan = manners;
                plan.fail_at = call;
                plan.error = error;
                bool has_worked = false;
                qsizetype made = 0;
                {
                    const File_Calls calls(plan);
                    has_worked = Do(step);
                    made = calls.Made().size();
                }
                EXPECT_EQ(In_The_File(), has_worked ? step.After(before) : before) << strerror(error) << " at " << call;
                // A note that could not be taken away is, by the next start, and has nothing to say.
                Clear_Up_After_A_Kill(m_folder.path(), QStringLiteral(".ZOVA"));
                EXPECT_EQ(In_The_File(), has_worked ? step.After(before) : before) << strerror(error) << " at " << call;
                EXPECT_EQ(Beside(), QStringList()) << strerror(error) << " at " << call;
                if (made < call) {
                    EXPECT_TRUE(has_worked);
                    break;
                }
            }
        }
    }

    QTemporaryDir m_folder;
};

QByteArray Large(char letter)
{
    return QByteArray(64 * 1024, letter) + '\n';
}

} // namespace

TEST_F(Killed_Writers, The_Calls_Of_A_Writer_Come_By_Here)
{
    Put_In_The_File(QByteArray("old"));
    const File_Calls calls({});
    Replace_File(Path(), "new");
    EXPECT_EQ(calls.Made(), QByteArrayList({"unlink", "open", "fchmod", "write", "fsync", "close", "rename", "open",
                                            "fsync", "close"}));
    const qsizetype replaced = calls.Made().size();
    Append_To_File(Path(), "more");
    EXPECT_EQ(calls.Made().mid(replaced), QByteArrayList({"stat", "access", "open", "fstat", "write", "close"}));
}

TEST_F(Killed_Writers, A_Killed_Replacement_Leaves_The_Old_Whole_Or_The_New_Whole)
{
    EXPECT_EQ(Kill_Everywhere(QByteArray("old\nfile\n"), {Replace("a new\nfile\n")}), 20);
    EXPECT_EQ(Kill_Everywhere(Large('o'), {Replace(Large('n'))}), 20);
    EXPECT_EQ(Kill_Everywhere(Large('o'), {Replace("")}), 18) << "nothing is to be written";
    EXPECT_EQ(Kill_Everywhere(QByteArray(), {Replace("new\n")}), 20);
    EXPECT_EQ(Kill_Everywhere({}, {Replace("new\n")}), 20) << "there is no old file";
}

TEST_F(Killed_Writers, A_Replacement_Killed_Between_Its_Many_Writes_Leaves_The_Old_Whole_Or_The_New_Whole)
{
    EXPECT_EQ(Kill_Everywhere(Large('o'), {Replace(Large('n'))}, {.longest = 1000}), 2 * (9 + 66));
}

TEST_F(Killed_Writers, A_Killed_Append_Leaves_The_Record_Whole_Or_Missing)
{
    EXPECT_EQ(Kill_Everywhere(QByteArray("\a1\vone\a02/01/2024\v\n"), {Append("\a2\vtwo\a\v\n")}), 12);
    EXPECT_EQ(Kill_Everywhere(Large('o'), {Append(Large('r'))}), 22) << "with a note";
    EXPECT_EQ(Kill_Everywhere({}, {Append("first\n")}, {}, {QByteArray()}), 14) << "the file may be there";
}

TEST_F(Killed_Writers, An_Append_That_Is_Killed_Between_Its_Writes_Is_Cut_Back_By_The_Next_Start)
{
    EXPECT_EQ(Kill_Everywhere(Large('o'), {Append(Large('r'))}, {.longest = 1000}), 2 * (9 + 66 + 66));
    EXPECT_EQ(Kill_Everywhere(QByteArray(4090, 'o'), {Append("a record\n")}, {.longest = 1}), 2 * (9 + 14 + 9));
}

TEST_F(Killed_Writers, A_Writer_Killed_Anywhere_In_A_Long_Run_Misses_One_Step_At_The_Most)
{
    const QByteArray before = "old\n";
    std::vector<Step> steps;
    for (int i = 0; i < 30; ++i) {
        const QByteArray record = "record " + QByteArray::number(i) + ' ' + QByteArray(i * 20, 'm') + '\n';
        steps.push_back(i % 10 == 9 ? Replace("rewritten, " + record) : Append(record));
    }
    EXPECT_EQ(Kill_Everywhere(before, steps), 2 * (3 * 10 + 27 * 6 + 5)) << "one of them fills a page";
}

TEST_F(Killed_Writers, Only_A_Part_Of_The_Record_That_Was_Noted_Is_Cut_Off)
{
    const QByteArray old = "old\n";
    const QByteArray record = "a record\n";
    const QByteArray note = "4\n" + record;
    const auto after_a_start = [&](const Content& found, const QByteArray& noted) {
        Put_In_The_File(found);
        QFile file(Append_Note_Path(Path()));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(noted) == noted.size());
        file.close();
        Clear_Up_After_A_Kill(m_folder.path(), QStringLiteral(".ZOVA"));
        EXPECT_EQ(Beside(), QStringList());
        return In_The_File();
    };
    for (qsizetype part = 0; part < record.size(); ++part)
        EXPECT_EQ(after_a_start(old + record.left(part), note), old) << part;
    for (const QByteArray& whole : {old + record, old + "another\n", old + record + record.left(3), old.left(2)})
        EXPECT_EQ(after_a_start(whole, note), whole) << whole.constData();
    EXPECT_EQ(after_a_start({}, note), Content());
    for (const QByteArray& half_a_note : {QByteArray(), QByteArray("4"), note.left(2), QByteArray("x\na rec"),
                                          QByteArray("-4\na record\n"), QByteArray("99999999999999999999\na")})
        EXPECT_EQ(after_a_start(old + "a rec", half_a_note), old + "a rec") << half_a_note.constData();
}

TEST_F(Killed_Writers, A_Start_Takes_Away_What_Is_The_Programs_Own_And_Nothing_Else)
{
    const QStringList own = {"Store.ZOVA.new", "a list.ZOVA.new", ".hidden.ZOVA.new", "Store.ZOVA.unreadable.new",
                             "Store.ZOVA.appending"};
    const QStringList others = {"Store.ZOVA",     "Store.ZOVA.unreadable", "Store.new", "Store.ZOVA.new.ZOVA",
                                "Store.zova.new", "Store.appending",       "new"};
    for (const QString& name : own + others) {
        QFile file(QDir(m_folder.path()).filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    ASSERT_TRUE(QDir(m_folder.path()).mkdir("Folder.ZOVA.new"));
    ASSERT_TRUE(QFile::link("/dev/null", QDir(m_folder.path()).filePath("Link.ZOVA.appending")));
    Clear_Up_After_A_Kill(m_folder.path(), QStringLiteral(".ZOVA"));
    QStringList left = Beside();
    left.sort();
    QStringList expected = others.mid(1) + QStringList{"Folder.ZOVA.new"};
    expected.sort();
    EXPECT_EQ(left, expected);
    EXPECT_TRUE(QFile::exists("/dev/null"));
}

TEST_F(Killed_Writers, A_Replacement_That_Fails_Leaves_The_Old_File_And_Nothing_Beside_It)
{
    Fail_Everywhere(QByteArray("old\n"), Replace("new\n"));
    Fail_Everywhere(QByteArray("old\n"), Replace(Large('n')), {.longest = 10000});
    Fail_Everywhere({}, Replace("new\n"));
}

TEST_F(Killed_Writers, An_Append_That_Fails_Is_Cut_Back_To_Where_It_Began)
{
    Fail_Everywhere(QByteArray("old\n"), Append("record\n"));
    Fail_Everywhere(QByteArray("old\n"), Append(Large('r')), {.longest = 10000});
    Fail_Everywhere(QByteArray(), Append("record\n"), {.longest = 1});
}

TEST_F(Killed_Writers, A_Disk_With_Room_For_Some_Of_The_Bytes_Gets_None)
{
    const QByteArray old = "old\n";
    const QByteArray bytes = "0123456789\n";
    for (qsizetype room = 0; room <= bytes.size(); ++room) {
        const bool has_room = room == bytes.size();
        for (const bool is_append : {false, true}) {
            Put_In_The_File(old);
            {
                const File_Calls calls({.room = room});
                EXPECT_EQ(is_append ? Append_To_File(Path(), bytes) : Replace_File(Path(), bytes), has_room) << room;
            }
            EXPECT_EQ(In_The_File(), !has_room ? old : is_append ? old + bytes : bytes) << room;
            EXPECT_EQ(Beside(), QStringList()) << room;
        }
    }
}

TEST_F(Killed_Writers, What_Is_Written_In_Pieces_Stays_As_Far_As_It_Got)
{
    const QByteArray bytes = "0123456789";
    for (qsizetype room = 0; room <= 3 * bytes.size(); ++room) {
        Put_In_The_File(QByteArray("old and longer than what comes, so that it shows"));
        int pieces = 3;
        const auto next = [&] { return pieces-- > 0 ? std::optional(bytes) : std::nullopt; };
        {
            const File_Calls calls({.room = room});
            EXPECT_EQ(Write_File_In_Pieces(Path(), next), room == 3 * bytes.size()) << room;
        }
        EXPECT_EQ(In_The_File(), bytes.repeated(3).left(room)) << room;
        EXPECT_EQ(Beside(), QStringList());
    }
}

TEST_F(Killed_Writers, A_File_System_That_Can_Not_Sync_Is_Written_To_All_The_Same)
{
    const auto write_in_place = [this] {
        bool is_first = true;
        return Write_File_In_Pieces(
            Path(), [&] { return std::exchange(is_first, false) ? std::optional(QByteArray("new\n")) : std::nullopt; });
    };
    const auto replace = [this] { return Replace_File(Path(), "new\n"); };
    for (const std::function<bool()>& write : {std::function<bool()>(write_in_place), std::function<bool()>(replace)}) {
        Put_In_The_File(QByteArray("old\n"));
        QByteArrayList calls_made;
        {
            const File_Calls calls({});
            ASSERT_TRUE(write());
            calls_made = calls.Made();
        }
        const int sync = static_cast<int>(calls_made.indexOf("fsync")) + 1;
        ASSERT_GT(sync, 0);
        for (const int error : {EINVAL, ENOSYS, EOPNOTSUPP, EIO, ENOSPC, EDQUOT, EROFS}) {
            const bool has_synced = error == EINVAL || error == ENOSYS || error == EOPNOTSUPP;
            Put_In_The_File(QByteArray("old\n"));
            {
                const File_Calls calls({.fail_at = sync, .error = error});
                EXPECT_EQ(write(), has_synced) << error;
            }
            EXPECT_TRUE(!has_synced || In_The_File() == "new\n") << error;
            EXPECT_EQ(Beside(), QStringList()) << error;
        }
    }
}

TEST_F(Killed_Writers, A_Folder_That_Can_Not_Be_Synced_Holds_The_New_File_All_The_Same)
{
    for (const int error : {EINVAL, EIO}) {
        Put_In_The_File(QByteArray("old\n"));
        int syncs = 0;
        int at = 0;
        {
            const File_Calls calls({});
            ASSERT_TRUE(Replace_File(Path(), "new\n"));
            at = static_cast<int>(calls.Made().lastIndexOf("fsync")) + 1;
            syncs = static_cast<int>(calls.Made().count("fsync"));
        }
        ASSERT_EQ(syncs, 2) << "the file, then its folder";
        const File_Calls calls({.fail_at = at, .error = error});
        EXPECT_TRUE(Replace_File(Path(), "newer\n")) << error;
    }
    EXPECT_EQ(In_The_File(), "newer\n");
}

TEST_F(Killed_Writers, The_Largest_File_That_The_System_Allows_Is_A_Full_Disk_Too)
{
    Put_In_The_File(Large('o'));
    struct rlimit before = {};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const struct rlimit limit = {static_cast<rlim_t>(Large('o').size() + 10), before.rlim_max};
    const auto old_handler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    const bool has_appended = Append_To_File(Path(), "a record of more than ten bytes");
    const bool has_replaced = Replace_File(Path(), Large('n') + "and ten bytes more");
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, old_handler);
    EXPECT_FALSE(has_appended);
    EXPECT_FALSE(has_replaced);
    EXPECT_EQ(In_The_File(), Large('o'));
    EXPECT_EQ(Beside(), QStringList());
}

TEST_F(Killed_Writers, Signals_And_Small_Steps_Change_Nothing)
{
    const File_Call_Plan manners = {.longest = 7, .interrupts = true};
    const QByteArray bytes = "a line that takes some steps\n";
    {
        const File_Calls calls(manners);
        EXPECT_TRUE(Replace_File(Path(), bytes));
        EXPECT_TRUE(Append_To_File(Path(), bytes));
        EXPECT_EQ(Read_File(Path()), bytes + bytes);
        EXPECT_GT(calls.Made().count("write"), 8);
        EXPECT_GT(calls.Made().count("read"), 8);
    }
    bool is_first = true;
    const auto next = [&] { return std::exchange(is_first, false) ? std::optional(bytes) : std::nullopt; };
    const File_Calls calls(manners);
    EXPECT_TRUE(Write_File_In_Pieces(Path(), next));
    EXPECT_EQ(Read_File(Path()), bytes);
}
