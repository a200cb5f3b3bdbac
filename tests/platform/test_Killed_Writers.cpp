#include "platform/Files_Test.h"
#include "platform/Text_Files.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <memory>
#include <sys/mman.h>
#include <sys/resource.h>

namespace {

/// A number that child processes and this one see alike.
std::atomic<int>& Shared_Number()
{
    static void* const place =
        mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (place == MAP_FAILED)
        qFatal("No memory to share");
    static std::atomic<int>* const number = std::construct_at(static_cast<std::atomic<int>*>(place), 0);
    return *number;
}

/// One piece, and then no more.
auto Once(const QByteArray& bytes)
{
    return [piece = Content(bytes)]() mutable { return std::exchange(piece, std::nullopt); };
}

class Killed_Writers : public Files_Test
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

    QString Path() const { return m_folder.filePath("Store.ZOVA"); }
    Content In_The_File() const { return Read_File(Path()); }

    /// The calls that a step makes where there is an old file and nothing fails.
    QByteArrayList Calls_Of(const std::function<bool()>& step) const
    {
        Put_In_The_File("old\n");
        const File_Calls calls({});
        EXPECT_TRUE(step());
        return calls.Made();
    }

    /// What the folder holds besides the file.
    QStringList Beside() const
    {
        QStringList names = Names();
        names.removeAll("Store.ZOVA");
        return names;
    }

    /// By other means than those under test, which would wait for the disk every time.
    void Put_In_The_File(const Content& content) const
    {
        ASSERT_TRUE(QFile::remove(Path()) || !QFile::exists(Path()));
        if (content)
            Write_Bytes(Path(), *content);
    }

    /// Kills a writer before and after each of its file-system calls: what is left is what its last whole step left, or
    /// the one after it, or one of the extra contents. Returns how often it was killed.
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
                Shared_Number() = 0;
                const bool has_lived = Lives_Through(plan, [&] {
                    for (const Step& step : steps)
                        Shared_Number() += Do(step);
                });
                const auto count = static_cast<std::size_t>(Shared_Number());
                if (has_lived) {
                    EXPECT_EQ(count, steps.size());
                    EXPECT_EQ(In_The_File(), states.back());
                    return kills;
                }
                ++kills;
                if (QFile::exists(Append_Note_Path(Path())))
                    Clear_Up_After_A_Kill(m_folder.path(), ".ZOVA");
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

    /// A killed replacement may be left under the one name, and the next one takes it away.
    void Expect_Nothing_Strange_Beside() const
    {
        const QStringList beside = Beside();
        if (beside.isEmpty())
            return;
        EXPECT_EQ(beside, QStringList{"Store.ZOVA.new"});
        EXPECT_TRUE(Replace_File(Path(), "next"));
        EXPECT_EQ(In_The_File(), "next");
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
                SCOPED_TRACE(testing::Message() << strerror(error) << " at " << call);
                EXPECT_EQ(In_The_File(), has_worked ? step.After(before) : before);
                // A note that could not be taken away is, by the next start, and has nothing to say.
                Clear_Up_After_A_Kill(m_folder.path(), ".ZOVA");
                EXPECT_EQ(In_The_File(), has_worked ? step.After(before) : before);
                EXPECT_EQ(Beside(), QStringList());
                if (made < call) {
                    EXPECT_TRUE(has_worked);
                    break;
                }
            }
        }
    }
};

QByteArray Large(char letter)
{
    return QByteArray(64 * 1024, letter) + '\n';
}

} // namespace

TEST_F(Killed_Writers, The_Calls_Of_A_Writer_Come_By_Here)
{
    EXPECT_EQ(Calls_Of([this] { return Replace_File(Path(), "new"); }),
              QByteArray("unlink open fchmod write fsync close rename open fsync close").split(' '));
    EXPECT_EQ(Calls_Of([this] { return Append_To_File(Path(), "more"); }),
              QByteArray("stat access open fstat write close").split(' '));
}

TEST_F(Killed_Writers, A_Killed_Replacement_Leaves_The_Old_Whole_Or_The_New_Whole)
{
    EXPECT_EQ(Kill_Everywhere(QByteArray("old\nfile\n"), {Replace("a new\nfile\n")}), 20);
    EXPECT_EQ(Kill_Everywhere(Large('o'), {Replace(Large('n'))}), 20);
    EXPECT_EQ(Kill_Everywhere(Large('o'), {Replace("")}), 18) << "nothing is to be written";
    EXPECT_EQ(Kill_Everywhere(QByteArray(), {Replace("new\n")}), 20);
    EXPECT_EQ(Kill_Everywhere({}, {Replace("new\n")}), 20) << "there is no old file";
    EXPECT_EQ(Kill_Everywhere(Large('o'), {Replace(Large('n'))}, {.longest = 1000}), 2 * (9 + 66)) << "many writes";
}

TEST_F(Killed_Writers, A_Killed_Append_Leaves_The_Record_Whole_Or_Missing)
{
    EXPECT_EQ(Kill_Everywhere(QByteArray("\a1\vone\a02/01/2024\v\n"), {Append("\a2\vtwo\a\v\n")}), 12);
    EXPECT_EQ(Kill_Everywhere(Large('o'), {Append(Large('r'))}), 22) << "with a note";
    EXPECT_EQ(Kill_Everywhere({}, {Append("first\n")}, {}, {QByteArray()}), 14) << "the file may be there";
    // Between its writes: the next start cuts it back.
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
        Write_Bytes(Append_Note_Path(Path()), noted);
        Clear_Up_After_A_Kill(m_folder.path(), ".ZOVA");
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
    for (const QString& name : own + others)
        Write_Bytes(m_folder.filePath(name), "");
    Put_A_Folder_At(m_folder.filePath("Folder.ZOVA.new"));
    ASSERT_TRUE(QFile::link("/dev/null", m_folder.filePath("Link.ZOVA.appending")));
    Clear_Up_After_A_Kill(m_folder.path(), ".ZOVA");
    QStringList left = Beside();
    left.sort();
    QStringList expected = others.mid(1) + QStringList{"Folder.ZOVA.new"};
    expected.sort();
    EXPECT_EQ(left, expected);
    EXPECT_TRUE(QFile::exists("/dev/null"));
}

TEST_F(Killed_Writers, What_Fails_Leaves_The_Old_File_And_Nothing_Beside_It)
{
    Fail_Everywhere(QByteArray("old\n"), Replace("new\n"));
    Fail_Everywhere(QByteArray("old\n"), Replace(Large('n')), {.longest = 10000});
    Fail_Everywhere({}, Replace("new\n"));
    Fail_Everywhere(QByteArray("old\n"), Append("record\n"));
    Fail_Everywhere(QByteArray("old\n"), Append(Large('r')), {.longest = 10000});
    Fail_Everywhere(QByteArray(), Append("record\n"), {.longest = 1});
}

TEST_F(Killed_Writers, A_Disk_With_Room_For_Some_Of_The_Bytes_Gets_None)
{
    for (const Step& step : {Replace("0123456789\n"), Append("0123456789\n")}) {
        for (qsizetype room = 0; room <= step.bytes.size(); ++room) {
            const bool has_room = room == step.bytes.size();
            Put_In_The_File("old\n");
            EXPECT_EQ(Under({.room = room}, [&] { return Do(step); }), has_room) << room;
            EXPECT_EQ(In_The_File(), has_room ? step.After("old\n") : "old\n") << room;
            EXPECT_EQ(Beside(), QStringList()) << room;
        }
    }
}

TEST_F(Killed_Writers, What_Is_Written_In_Pieces_Stays_As_Far_As_It_Got)
{
    const QByteArray bytes = "0123456789";
    for (qsizetype room = 0; room <= 3 * bytes.size(); ++room) {
        Put_In_The_File("old and longer than what comes, so that it shows");
        int pieces = 3;
        const auto next = [&] { return pieces-- > 0 ? std::optional(bytes) : std::nullopt; };
        const auto write = [&] { return Write_File_In_Pieces(Path(), next); };
        EXPECT_EQ(Under({.room = room}, write), room == 3 * bytes.size()) << room;
        EXPECT_EQ(In_The_File(), bytes.repeated(3).left(room)) << room;
        EXPECT_EQ(Beside(), QStringList());
    }
}

TEST_F(Killed_Writers, A_File_System_That_Can_Not_Sync_Is_Written_To_All_The_Same)
{
    const std::function<bool()> write_in_place = [this] { return Write_File_In_Pieces(Path(), Once("new\n")); };
    const std::function<bool()> replace = [this] { return Replace_File(Path(), "new\n"); };
    for (const auto& write : {write_in_place, replace}) {
        const int sync = static_cast<int>(Calls_Of(write).indexOf("fsync")) + 1;
        ASSERT_GT(sync, 0);
        for (const int error : {EINVAL, ENOSYS, EOPNOTSUPP, EIO, ENOSPC, EDQUOT, EROFS}) {
            const bool has_synced = error == EINVAL || error == ENOSYS || error == EOPNOTSUPP;
            Put_In_The_File("old\n");
            EXPECT_EQ(Under({.fail_at = sync, .error = error}, write), has_synced) << error;
            EXPECT_TRUE(!has_synced || In_The_File() == "new\n") << error;
            EXPECT_EQ(Beside(), QStringList()) << error;
        }
    }
    const QByteArrayList made = Calls_Of(replace);
    ASSERT_EQ(made.count("fsync"), 2) << "the file, then its folder, which may fail for any reason";
    for (const int error : {EINVAL, EIO}) {
        Put_In_The_File("old\n");
        EXPECT_TRUE(Under({.fail_at = static_cast<int>(made.lastIndexOf("fsync")) + 1, .error = error}, replace));
        EXPECT_EQ(In_The_File(), "new\n") << error;
    }
}

TEST_F(Killed_Writers, The_Largest_File_That_The_System_Allows_Is_A_Full_Disk_Too)
{
    Put_In_The_File(Large('o'));
    struct rlimit before = {};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const struct rlimit limit = {static_cast<rlim_t>(Large('o').size() + 10), before.rlim_max};
    const auto old_handler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    EXPECT_FALSE(Append_To_File(Path(), "a record of more than ten bytes"));
    EXPECT_FALSE(Replace_File(Path(), Large('n') + "and ten bytes more"));
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, old_handler);
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
    const File_Calls calls(manners);
    EXPECT_TRUE(Write_File_In_Pieces(Path(), Once(bytes)));
    EXPECT_EQ(Read_File(Path()), bytes);
}
