#include "records/Job_Line.h"
#include "records/Job_Reader.h"
#include "send/Send_Test.h"

#include <QCryptographicHash>
#include <algorithm>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

// Journals and lists that something else than the program has written to, as both programs that stand on the core read
// them: told in words, refused, left as they are, and nothing is sent. A journal that is merely cut off within its last
// line is one that a crash has left, and is gone on with.

using testing::HasSubstr;
using testing::MatchesRegex;

namespace {

constexpr std::size_t Most_At_A_Time = 8;
constexpr int Rows = 4; // of two parts each

struct Job_Bytes
{
    QByteArray journal;
    QByteArray list;
};

struct Damaged_Job
{
    QString id;
    Job_Bytes bytes;
    const char* words = ""; // within what is said of it
    bool has_list = true;
};

// Tells whether anybody opens a device.
class Watched_Device
{
public:
    explicit Watched_Device(const std::string& path) : m_watch(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        EXPECT_NE(inotify_add_watch(m_watch, path.c_str(), IN_OPEN), -1);
    }
    ~Watched_Device() { close(m_watch); }
    Watched_Device(const Watched_Device&) = delete;
    Watched_Device& operator=(const Watched_Device&) = delete;

    bool Was_Opened() const
    {
        alignas(inotify_event) char events[4096];
        return read(m_watch, events, sizeof events) > 0;
    }

private:
    int m_watch;
};

// A sending state for each part, by the letters of the journal's lines up to a place; 'W' where there is none.
std::map<int, std::string> States_Before(const QByteArray& journal, qsizetype end)
{
    std::map<int, std::string> states;
    for (int row = 1; row <= Rows; ++row)
        states[row] = std::string(2, 'W');
    const QByteArrayList lines = journal.first(journal.lastIndexOf('\n', end - 1) + 1).split('\n');
    for (const QByteArray& line : lines) {
        const QByteArrayList fields = line.split(' ');
        if (QByteArray("HSEU").contains(fields[0]) && !fields[0].isEmpty())
            states[fields[1].toInt()][fields[2].toULong() - 1] = fields[0].front();
    }
    return states;
}

std::string Outcome_Of(const std::string& states, bool is_later)
{
    if (states.find_first_of("HU") != std::string::npos)
        return "unknown";
    if (states.find('E') != std::string::npos)
        return "refused";
    return states.find('W') == std::string::npos || is_later ? "sent" : "not_tried";
}

class Bad_Journals : public Send_Test
{
protected:
    // Sends a job of two messages that pass, one that is refused and one without a reference, of two parts each, and
    // keeps what was written about it.
    Bad_Journals()
    {
        using Kind = Message_Manner::Kind;
        Phone_Moods moods;
        moods.m_message_manners = {{Kind::Refused, 1, INT_MAX, "02", "+CMS ERROR: 195"},
                                   {Kind::Without_Reference, 1, INT_MAX, "03", {}}};
        m_phone.Set_Moods(moods);
        const auto run = Run_With_Device({"--to", "0700900100", "--to", "0700900101", "--to", "0700900102", "--to",
                                          "0700900103", "--message", QStringLiteral("Two parts. ").repeated(16)});
        EXPECT_THAT(run.Outcomes(), testing::ElementsAre("sent", "sent", "refused", "unknown")) << run.errors;
        m_id = run.lines.value(0).value("job").toString();
        m_whole = {Bytes_Of(Journal_Of(m_id)), Bytes_Of(List_Of(m_id))};
        QFile::remove(Journal_Of(m_id));
        QFile::remove(List_Of(m_id));
        m_phone.Set_Moods({});
        m_phone.Forget();
        EXPECT_FALSE(m_phone.Somebody_Is_There());
    }

    QString Journal_Of(const QString& id) const { return Jobs_Folder() + u'/' + id + u".journal"_qs; }
    QString List_Of(const QString& id) const { return Jobs_Folder() + u'/' + id + u".list"_qs; }
    qsizetype Header_Size() const { return m_whole.journal.indexOf('\n') + 1; }

    /// The same job under another id.
    Job_Bytes Copy(const QString& id) const
    {
        Job_Bytes copy = m_whole;
        copy.list.replace(m_id.toLatin1(), id.toLatin1());
        QByteArrayList fields = m_whole.journal.first(Header_Size() - 1).split(' ');
        fields.removeLast();
        fields[1] = id.toLatin1();
        fields[7] = QCryptographicHash::hash(copy.list, QCryptographicHash::Sha256).toHex();
        copy.journal.replace(0, Header_Size(), Job_Line::Whole(fields));
        return copy;
    }

    /// As long as any.
    static QString Id(std::size_t number)
    {
        return QStringLiteral("20260101-000000-%1").arg(number, 4, 16, QLatin1Char('0'));
    }

    using Damage = std::function<void(Job_Bytes&)>;
    void Add(const char* words, const Damage& damage, bool has_list = true)
    {
        Damaged_Job job;
        job.id = Id(m_jobs.size());
        job.bytes = Copy(job.id);
        job.words = words;
        job.has_list = has_list;
        damage(job.bytes);
        Write_Bytes(Journal_Of(job.id), job.bytes.journal);
        if (has_list)
            Write_Bytes(List_Of(job.id), job.bytes.list);
        m_jobs.push_back(job);
    }

    std::map<QString, QByteArray> Files() const
    {
        std::map<QString, QByteArray> files;
        for (const QString& name :
             QDir(Jobs_Folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
            files[name] = Bytes_Of(Jobs_Folder() + u'/' + name);
        return files;
    }

    /// Each of the jobs is listed with its trouble and refused, and nothing happens.
    void Expect_All_Refused() const
    {
        const auto before = Files();
        const Watched_Device device(m_phone.Path());
        std::map<QString, std::string> listed;
        for (const QJsonObject& line : Run({"--list-jobs", "--json"}).Of("unfinished"))
            listed[line.value("job").toString()] = line.value("trouble").toString().toStdString();
        std::vector<std::unique_ptr<Running_Send>> runs;
        for (std::size_t first = 0; first < m_jobs.size() && !HasFailure(); first += Most_At_A_Time) {
            const std::size_t end = std::min(m_jobs.size(), first + Most_At_A_Time);
            for (std::size_t i = first; i < end; ++i)
                runs.push_back(Start({"--resume", m_jobs[i].id}));
            for (std::size_t i = first; i < end; ++i)
                Expect_Refused(m_jobs[i], runs[i]->Wait(), listed[m_jobs[i].id]);
        }
        EXPECT_FALSE(device.Was_Opened());
        EXPECT_TRUE(Files() == before) << "a file has changed";
        EXPECT_THAT(m_phone.Parts(), testing::IsEmpty());
    }

    void Expect_Refused(const Damaged_Job& job, const Ended_Run& run, const std::string& listed) const
    {
        SCOPED_TRACE(job.id.toStdString() + " " + job.words);
        EXPECT_EQ(run.status, 2) << run.output;
        EXPECT_EQ(run.output, "");
        EXPECT_THAT(run.errors, MatchesRegex("corvane-send: job 20260101-000000-[0-9a-f]+ [^\n]+ \\([^\n]+\\)\n"));
        EXPECT_THAT(run.errors, HasSubstr(job.words));
        EXPECT_FALSE(listed.empty());
        EXPECT_THAT(run.errors, HasSubstr("(" + listed + ")"));
        const Job_Reading reading = Read_Job(Journal_Of(job.id));
        EXPECT_FALSE(reading.record);
        EXPECT_EQ(Job_Trouble_Sentence(reading.trouble).toStdString(), listed);
    }

    QString m_id;
    Job_Bytes m_whole;
    std::vector<Damaged_Job> m_jobs;
};

constexpr char Is_Damaged[] = "its journal is damaged";
constexpr char Is_Foreign[] = "not the journal of a job";
constexpr char Has_Another_List[] = "not the one that the job began with";

} // namespace

TEST_F(Bad_Journals, Cut_Off_Before_The_Header_Ends_Are_Refused)
{
    for (qsizetype size = 0; size < Header_Size(); ++size)
        Add("", [size](Job_Bytes& job) { job.journal.truncate(size); });
    Expect_All_Refused();
}

TEST_F(Bad_Journals, Changed_By_A_Byte_Before_Their_Last_Line_Are_Refused)
{
    const qsizetype last_line = m_whole.journal.lastIndexOf('\n', -2) + 1;
    for (qsizetype at = 0; at < last_line; ++at)
        Add("", [at](Job_Bytes& job) { job.journal[at] = static_cast<char>(job.journal[at] ^ 1); });
    Expect_All_Refused();
}

TEST_F(Bad_Journals, With_Another_List_Are_Refused)
{
    for (qsizetype at = 0; at < m_whole.list.size(); at += 5) {
        Add(Has_Another_List, [at](Job_Bytes& job) { job.list[at] = static_cast<char>(job.list[at] ^ 2); });
        Add(Has_Another_List, [at](Job_Bytes& job) { job.list.truncate(at); });
    }
    Add(Has_Another_List, [](Job_Bytes& job) { job.list += '\n'; });
    Add(
        "the list beside its journal is gone", [](Job_Bytes&) {}, false);
    Expect_All_Refused();
}

TEST_F(Bad_Journals, That_Are_Something_Else_Are_Refused)
{
    const auto with_line = [](const QByteArrayList& fields) {
        return [fields](Job_Bytes& job) {
            job.journal += Job_Line::Whole(fields) + Job_Line::Whole({"Z", "2026-11-21T09:15:00Z"});
        };
    };
    for (const QByteArray& foreign :
         {QByteArray("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16), QByteArray(1 << 20, 'x'),
          QByteArray("\xFF\xFEJ\0"
                     "1\0",
                     6),
          QByteArray("#!/bin/sh\nexit 0\n"), QByteArray(4096, '\0'), QByteArray("\n\n\n"), QByteArray("j1 x\n")})
        Add(Is_Foreign, [foreign](Job_Bytes& job) { job.journal = foreign; });
    Add("newer version", [](Job_Bytes& job) { job.journal[1] = '2'; });
    Add("newer version", [](Job_Bytes& job) { job.journal.insert(1, '9'); });
    Add(Is_Damaged, [](Job_Bytes& job) { job.journal.replace('\n', "\r\n"); });
    Add(Is_Damaged, [](Job_Bytes& job) { job.journal += job.journal; });
    Add(Is_Damaged, [](Job_Bytes& job) { job.journal.remove(job.journal.indexOf('\n', 200), 1); });
    Add(Is_Damaged,
        [this](Job_Bytes& job) { job.journal.replace(0, Header_Size(), m_whole.journal.first(Header_Size())); });
    const char* time = "2026-11-21T09:15:00Z";
    Add(Is_Damaged, with_line({"H", "9", "1", "1", time})); // a row that there is not
    Add(Is_Damaged, with_line({"H", "1", "2", "3", time}));
    Add(Is_Damaged, with_line({"S", "1", "1", "256", time}));
    Add(Is_Damaged, with_line({"E", "1", "1", time}));
    Add(Is_Damaged, with_line({"R", "1", "forget", time}));
    Add(Is_Damaged, with_line({"Q", "1", time}));
    Expect_All_Refused();
}

TEST_F(Bad_Journals, That_Are_No_Files_Are_Refused)
{
    const QString folder = Id(0);
    const QString pipe = Id(1);
    const QString link = Id(2);
    Add("", [](Job_Bytes&) {});
    QFile::remove(Journal_Of(folder));
    ASSERT_TRUE(QDir().mkpath(Journal_Of(folder)));
    ASSERT_EQ(mkfifo(qPrintable(Journal_Of(pipe)), 0600), 0);
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/zero"), Journal_Of(link)));
    const Watched_Device device(m_phone.Path());
    for (const QString& id : {folder, pipe, link}) {
        const auto run = Run_With_Device({"--resume", id});
        EXPECT_EQ(run.status, 2);
        EXPECT_THAT(run.errors, MatchesRegex("corvane-send: job [^\n]+ \\([^\n]+\\)\n"));
        EXPECT_FALSE(Read_Job(Journal_Of(id)).record);
    }
    EXPECT_EQ(Run({"--list-jobs"}).status, 0);
    EXPECT_FALSE(device.Was_Opened());
}

TEST_F(Bad_Journals, Cut_Off_Behind_The_Header_Are_Listed_With_What_They_Still_Say)
{
    for (qsizetype size = Header_Size(); size < m_whole.journal.size(); ++size)
        Add("", [size, this](Job_Bytes& job) { job.journal.chop(m_whole.journal.size() - size); });
    const auto before = Files();
    const auto listed = Run({"--list-jobs", "--json"}).Of("unfinished");
    ASSERT_EQ(listed.size(), static_cast<qsizetype>(m_jobs.size()));
    for (qsizetype i = 0; i < listed.size(); ++i) {
        std::map<std::string, int> expected;
        for (const auto& [row, states] : States_Before(m_whole.journal, Header_Size() + i))
            ++expected[Outcome_Of(states, false)];
        for (const char* outcome : {"sent", "refused", "unknown", "not_tried"})
            EXPECT_EQ(listed[i].value(QLatin1String(outcome)).toInt(), expected[outcome]) << i << " " << outcome;
    }
    EXPECT_TRUE(Files() == before);
}

TEST_F(Bad_Journals, Cut_Off_Behind_The_Header_Are_Gone_On_With_From_There)
{
    for (qsizetype end = Header_Size(); end < m_whole.journal.size(); end = m_whole.journal.indexOf('\n', end) + 1)
        for (const int more : {0, 7}) // a whole line, and the beginning of the next
            Add("", [&, size = end + more](Job_Bytes& job) { job.journal.chop(m_whole.journal.size() - size); });
    for (const Damaged_Job& job : m_jobs) {
        SCOPED_TRACE(job.bytes.journal.mid(Header_Size()).toStdString());
        m_phone.Forget();
        const auto states = States_Before(job.bytes.journal, job.bytes.journal.size());
        std::vector<std::string> outcomes;
        std::size_t waiting = 0;
        for (const auto& [row, of_parts] : states) {
            outcomes.push_back(Outcome_Of(of_parts, true));
            const bool is_open = of_parts.find_first_of("EHU") == std::string::npos;
            waiting += is_open ? static_cast<std::size_t>(std::count(of_parts.begin(), of_parts.end(), 'W')) : 0;
        }
        const auto run = Run_With_Device({"--resume", job.id});
        EXPECT_EQ(run.Outcomes(), outcomes) << run.errors;
        EXPECT_EQ(m_phone.Parts().size(), waiting);
        EXPECT_EQ(Submissions_Heard(), waiting);
        const bool is_open = std::find(outcomes.begin(), outcomes.end(), "unknown") != outcomes.end();
        EXPECT_EQ(QFile::exists(Journal_Of(job.id)), is_open);
    }
}
