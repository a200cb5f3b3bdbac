#include "engine/Late_Reports.h"

#include "engine/Confirmed_Test.h"
#include "engine/Message_Frames.h"
#include "support/Report_Frame.h"

#include <QDeadlineTimer>
#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <sys/resource.h>
#include <thread>

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace {

// Lets everything pass.
class Nobody : public Part_Watcher
{
public:
    bool May_Be_Handed_Over() override { return true; }
    bool Is_Asked_To_Stop() override { return false; }
    void Still_Waiting(int) override {}
};

// Jobs whose reports come when nobody waits for them any more, and lie in the phone's memory.
class Late_Reports_Test : public Confirmed_Test
{
protected:
    Late_Reports_Test() { Wear({}); }

    void Wear(Phone_Moods moods)
    {
        moods.m_reports_in_memory_alone = true;
        moods.m_report_after_seconds = 0;
        m_phone.Set_Moods(moods);
    }

    Confirmed_Session Session() const { return Confirmed_Session(QString::fromStdString(m_phone.Path())); }

    /// A job that asked for reports and sent one message to each number, of which so many lie in the memory now. Its
    /// journal's path.
    QString Send(const QString& id, const QStringList& numbers, int reports, bool ends = true)
    {
        Confirmed_Session session = Session();
        EXPECT_EQ(session.Open(), Confirmed_Session::Opening::Ready);
        EXPECT_TRUE(session.Ask_For_Reports());
        Job_Options options;
        options.report_seconds = 0;
        const auto row_at = [&](int index) {
            return Frozen_Row(index + 1, numbers[index], QStringLiteral("Hello"), Job_Alphabet_Choice::Auto, false, 1,
                              false);
        };
        const auto opened = Job_Journal::Create(
            m_options.folder, {id, session.Imsi(), {}, options}, [&, index = 0]() mutable -> std::optional<Job_Row> {
                return index < numbers.size() ? std::optional(row_at(index++)) : std::nullopt;
            });
        Nobody nobody;
        for (int index = 0; index < numbers.size(); ++index) {
            EXPECT_TRUE(opened.journal->Hand_Over(index + 1, 1, 1));
            const auto result = session.Submit(Parts_Of(row_at(index), {}, true, false).front(), nobody);
            EXPECT_TRUE(opened.journal->Accepted(index + 1, 1, result.m_reference));
        }
        EXPECT_TRUE(!ends || opened.journal->End());
        session.Close();
        Expect_In_Memory(reports);
        m_phone.Forget();
        return opened.journal->Path();
    }

    /// That so many reports lie in the memory, as soon as they are there.
    void Expect_In_Memory(int count) const
    {
        Confirmed_Session session = Session();
        ASSERT_EQ(session.Open(), Confirmed_Session::Opening::Ready);
        const QDeadlineTimer deadline(20'000);
        while (session.Read_Report_Memory().size() != count && !deadline.hasExpired())
            session.Listen(0.1);
        EXPECT_EQ(session.Read_Report_Memory().size(), count);
    }

    int Collect(double seconds = 0, Serial_Calls& calls = Real_Serial_Calls())
    {
        return Collect_Late_Reports(QString::fromStdString(m_phone.Path()), m_options.folder, seconds, m_stop, calls);
    }

    /// The references and states of the reports in a journal.
    static std::vector<std::pair<int, int>> Noted(const QString& path)
    {
        std::vector<std::pair<int, int>> noted;
        const Job_Reading reading = Read_Job(path);
        EXPECT_EQ(reading.trouble, Job_Trouble::None);
        for (const Job_Report& report : reading.record->Reports())
            noted.emplace_back(report.reference, report.status);
        return noted;
    }

    bool Contains_Command(const char* command) const
    {
        const auto heard = m_phone.Heard();
        return std::find(heard.begin(), heard.end(), command) != heard.end();
    }

    const QStringList m_numbers{QStringLiteral("00447700900100"), QStringLiteral("07700900101")};
};

} // namespace

TEST_F(Late_Reports_Test, Are_Noted_In_The_Journal_Of_A_Kept_Job_And_Taken_Out_Of_The_Memory)
{
    const QString path = Send(QStringLiteral("kept"), m_numbers, 2);
    EXPECT_EQ(Collect(), 2);
    EXPECT_THAT(Noted(path), ElementsAre(std::pair(0, 0), std::pair(1, 0)));
    EXPECT_TRUE(Read_Job(path).record->Has_Ended());
    EXPECT_THAT(m_phone.Heard(), Contains("AT+CMGD=2"));
    Expect_In_Memory(0);
    m_phone.Forget();
    EXPECT_EQ(Collect(), 0);
    EXPECT_THAT(m_phone.Heard(), Contains("AT+CMGL=4"));
    EXPECT_EQ(m_phone.Heard().back(), "AT+CPMS=\"SM\"");
    EXPECT_EQ(Noted(path).size(), 2U);
}

TEST_F(Late_Reports_Test, Are_Written_Down_Before_They_Are_Deleted)
{
    // What a journal says whenever something is deleted from the device.
    class Watched_Deletions : public Serial_Calls
    {
    public:
        explicit Watched_Deletions(QString path) : m_path(std::move(path)) {}
        ssize_t Write(int descriptor, const void* bytes, size_t size) override
        {
            if (QByteArray(static_cast<const char*>(bytes), static_cast<qsizetype>(size)).startsWith("AT+CMGD="))
                m_noted.push_back(Noted(m_path).size());
            return Serial_Calls::Write(descriptor, bytes, size);
        }
        const QString m_path;
        std::vector<std::size_t> m_noted;
    };
    Watched_Deletions calls(Send(QStringLiteral("kept"), m_numbers, 2));
    EXPECT_EQ(Collect(0, calls), 2);
    EXPECT_THAT(calls.m_noted, ElementsAre(2U, 2U));
}

TEST_F(Late_Reports_Test, That_The_Disk_Has_No_Room_For_Stay_In_The_Memory)
{
    const QString path = Send(QStringLiteral("kept"), m_numbers, 2);
    rlimit limit{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &limit), 0);
    const auto at_limit = signal(SIGXFSZ, SIG_IGN);
    const rlimit no_more{static_cast<rlim_t>(QFileInfo(path).size()), limit.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &no_more), 0);
    const int counted = Collect();
    setrlimit(RLIMIT_FSIZE, &limit);
    signal(SIGXFSZ, at_limit);
    EXPECT_EQ(counted, 0);
    EXPECT_THAT(Noted(path), IsEmpty());
    Expect_In_Memory(2);
    EXPECT_EQ(Collect(), 2);
}

TEST_F(Late_Reports_Test, Are_Counted_Before_The_Next_Job_Sends)
{
    Phone_Moods moods;
    moods.m_report_status = {{"101", 0x46}};
    Wear(moods);
    const QString path = Send(QStringLiteral("kept"), m_numbers, 2);
    Add(QStringLiteral("07700900200"), QStringLiteral("Another"));
    Run();
    EXPECT_THAT(Noted(path), ElementsAre(std::pair(0, 0), std::pair(1, 0x46)));
    EXPECT_THAT(m_witness.m_reports, IsEmpty()) << "they are not about this job";
    EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::Sent));
    Expect_In_Memory(0);
}

TEST_F(Late_Reports_Test, Come_In_The_Course_Of_Another_Job_As_Well)
{
    const QString path = Send(QStringLiteral("kept"), m_numbers, 2);
    m_phone.Will_Answer("AT+CMGL=4", "\r\nOK\r\n"); // at its beginning they are not there yet
    Add(QStringLiteral("07700900200"), QStringLiteral("One"));
    Add(QStringLiteral("07700900201"), QStringLiteral("Two"));
    m_options.job.report_seconds = 60;
    m_witness.m_on_row = [this] {
        if (m_witness.m_rows.size() == 1)
            m_phone.Says("\r\n+CDSI: \"SR\",1\r\n\r\n+CDSI: \"SR\",2\r\n");
    };
    Run();
    EXPECT_THAT(Noted(path), ElementsAre(std::pair(0, 0), std::pair(1, 0)));
    EXPECT_THAT(m_witness.m_reports, testing::UnorderedElementsAre(std::array{0, 1, 0}, std::array{1, 1, 0}))
        << "those of the job itself";
}

TEST_F(Late_Reports_Test, That_Come_Twice_Are_Counted_Once)
{
    Phone_Moods moods;
    moods.m_reports_twice = true;
    Wear(moods);
    const QString path = Send(QStringLiteral("kept"), m_numbers, 4);
    EXPECT_EQ(Collect(), 2);
    EXPECT_EQ(Noted(path).size(), 2U);
    Expect_In_Memory(0);
}

TEST_F(Late_Reports_Test, Out_Of_Order_A_Final_One_Stays_Final)
{
    Phone_Moods moods;
    moods.m_report_status = {{"100", 0x00}, {"100", 0x21}};
    Wear(moods);
    const QString path = Send(QStringLiteral("kept"), {m_numbers.first()}, 2);
    EXPECT_EQ(Collect(), 1);
    EXPECT_THAT(Noted(path), ElementsAre(std::pair(0, 0)));
}

TEST_F(Late_Reports_Test, That_Nobody_Knows_Are_Left_Alone)
{
    Phone_Moods moods;
    moods.m_stray_reports = true;
    Wear(moods);
    const QString path = Send(QStringLiteral("kept"), m_numbers, 4);
    EXPECT_EQ(Collect(), 2);
    EXPECT_THAT(Noted(path), ElementsAre(std::pair(0, 0), std::pair(1, 0)));
    Expect_In_Memory(2);
}

TEST_F(Late_Reports_Test, On_What_Another_Program_Sent_Last_Week_Are_Left_Alone)
{
    const QString path = Send(QStringLiteral("kept"), {m_numbers.first()}, 1);
    const std::string last_week = Report_Frame(0, QDateTime::currentDateTimeUtc().addDays(-7));
    const std::string yesterday = Report_Frame(0, QDateTime::currentDateTimeUtc().addDays(-1));
    m_phone.Will_Answer("AT+CMGL=4", "\r\n+CMGL: 1,0,,25\r\n" + last_week + "\r\n\r\nOK\r\n");
    EXPECT_EQ(Collect(), 0);
    EXPECT_THAT(m_phone.Heard(), Not(Contains(StartsWith("AT+CMGD"))));
    m_phone.Will_Answer("AT+CMGL=4", "\r\n+CMGL: 1,0,,25\r\n" + yesterday + "\r\n\r\nOK\r\n");
    EXPECT_EQ(Collect(), 1) << "clocks and zones differ";
    EXPECT_THAT(m_phone.Heard(), Contains("AT+CMGD=1"));
}

TEST_F(Late_Reports_Test, Of_Another_Card_Are_Left_Alone)
{
    const QString path = Send(QStringLiteral("kept"), m_numbers, 2);
    m_phone.Will_Answer("AT+CIMI", "\r\n262010000000001\r\n\r\nOK\r\n");
    EXPECT_EQ(Collect(), 0);
    EXPECT_THAT(Noted(path), IsEmpty());
    Expect_In_Memory(2);
}

TEST_F(Late_Reports_Test, Go_Each_To_Its_Own_Job)
{
    const QString first = Send(QStringLiteral("first"), m_numbers, 2);
    const QString second = Send(QStringLiteral("second"), {QStringLiteral("07700900102")}, 3);
    EXPECT_EQ(Collect(), 3);
    EXPECT_THAT(Noted(first), ElementsAre(std::pair(0, 0), std::pair(1, 0)));
    EXPECT_THAT(Noted(second), ElementsAre(std::pair(2, 0)));
    Expect_In_Memory(0);
}

TEST_F(Late_Reports_Test, Of_A_Job_That_Another_Program_Works_On_Wait_For_It)
{
    const QString path = Send(QStringLiteral("kept"), m_numbers, 2);
    {
        const auto other = Job_Journal::Open_To_Go_On(path);
        ASSERT_TRUE(other.journal);
        EXPECT_EQ(Collect(), 0);
    }
    Expect_In_Memory(2);
    EXPECT_EQ(Collect(), 2);
    Expect_In_Memory(0);
}

TEST_F(Late_Reports_Test, Of_A_Job_Whose_List_Is_Gone_Stay_In_The_Memory)
{
    const QString path = Send(QStringLiteral("kept"), m_numbers, 2);
    ASSERT_TRUE(QFile::remove(Job_List_Path(path)));
    EXPECT_EQ(Collect(), 0);
    Expect_In_Memory(2);
}

TEST_F(Late_Reports_Test, Of_A_Job_That_Is_Gone_On_With_Are_Told_With_Their_Rows)
{
    const QString path = Send(QStringLiteral("broken-off"), {m_numbers.first()}, 1, false);
    Add(m_numbers.first(), QStringLiteral("Hello"));
    m_options.resumed_path = path;
    m_options.job.report_seconds = 60;
    m_options.keeps_journal = true;
    Run();
    EXPECT_THAT(m_witness.m_reports, ElementsAre(std::array{0, 1, 0}));
    EXPECT_TRUE(m_witness.m_rows.front().is_earlier);
    EXPECT_THAT(Noted(path), ElementsAre(std::pair(0, 0)));
    EXPECT_THAT(m_phone.Inbox(), IsEmpty()) << "it was sent before";
    Expect_In_Memory(0);
}

TEST_F(Late_Reports_Test, That_Come_On_The_Line_While_The_Device_Is_Idle_Are_Noted)
{
    const QString path = Send(QStringLiteral("kept"), {m_numbers.first()}, 1);
    m_phone.Will_Answer("AT+CMGL=4", "\r\nOK\r\n"); // this one does not lie there
    std::thread line([&] {
        const QDeadlineTimer deadline(20'000);
        const auto until = [&](const std::function<bool()>& is_true) {
            while (!is_true() && !deadline.hasExpired())
                std::this_thread::yield();
        };
        until([&] { return Contains_Command("AT+CMGL=4"); });
        m_phone.Says("\r\n+CDS: 25\r\n" + Report_Frame(0, QDateTime::currentDateTimeUtc()) + "\r\n");
        until([&] { return !Noted(path).empty(); });
        m_stop = 1;
    });
    EXPECT_EQ(Collect(100'000), 1);
    line.join();
    EXPECT_THAT(Noted(path), ElementsAre(std::pair(0, 0)));
}

TEST_F(Late_Reports_Test, A_Device_Without_A_Memory_For_Them_Is_No_Failure)
{
    const QString path = Send(QStringLiteral("kept"), m_numbers, 2);
    m_phone.Will_Answer("AT+CPMS=\"SR\"", "\r\n+CMS ERROR: 302\r\n");
    EXPECT_EQ(Collect(), 0);
    Add(QStringLiteral("07700900200"), QStringLiteral("Another"));
    Run();
    EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::Sent));
}

TEST_F(Late_Reports_Test, Are_Awaited_By_The_Newest_Job_That_Has_Not_Got_All_Of_Them)
{
    const auto awaiting = [this] {
        const auto job = Job_That_Awaits_Reports(m_options.folder);
        return job ? job->id.toStdString() : std::string();
    };
    EXPECT_EQ(awaiting(), "");
    const QString first = Send(QStringLiteral("1"), m_numbers, 2);
    EXPECT_EQ(awaiting(), "1");
    Send(QStringLiteral("2"), m_numbers, 4);
    EXPECT_EQ(awaiting(), "2");
    EXPECT_EQ(Collect(), 4);
    EXPECT_EQ(awaiting(), "");
    Phone_Moods moods;
    moods.m_report_status = {{"101", 0x21}};
    Wear(moods);
    const QString third = Send(QStringLiteral("3"), m_numbers, 2);
    EXPECT_EQ(Collect(), 2);
    EXPECT_EQ(awaiting(), "3") << "one is still being tried";
    namespace fs = std::filesystem;
    fs::last_write_time(third.toStdString(), fs::file_time_type::clock::now() - std::chrono::hours(24 * 31));
    EXPECT_EQ(awaiting(), "") << "nobody waits as long as that";
}

TEST_F(Late_Reports_Test, Are_Left_Where_They_Are_By_Who_Is_Asked_To_Stop)
{
    const QString path = Send(QStringLiteral("kept"), m_numbers, 2);
    m_stop = 1;
    EXPECT_EQ(Collect(), 0);
    m_stop = 0;
    EXPECT_THAT(Noted(path), IsEmpty());
    Expect_In_Memory(2);
    EXPECT_EQ(Collect(), 2);
}

TEST_F(Late_Reports_Test, Where_No_Job_Awaits_Any_The_Device_Is_Not_Asked)
{
    EXPECT_EQ(Collect(), 0);
    Add(QStringLiteral("07700900200"), QStringLiteral("Kept, and no reports asked for"));
    m_options.keeps_journal = true;
    Run();
    Run();
    m_phone.Forget();
    EXPECT_EQ(Collect(), 0);
    EXPECT_TRUE(m_phone.Heard_Bytes().empty());
    Run();
    EXPECT_THAT(m_phone.Heard(), Not(Contains(StartsWith("AT+CPMS"))));
}

TEST_F(Late_Reports_Test, A_Job_Without_A_Journal_Takes_Out_What_It_Has_Told)
{
    m_options.folder.clear();
    m_options.job.report_seconds = 60;
    Add(QStringLiteral("07700900200"), QStringLiteral("Hello"));
    Run();
    EXPECT_THAT(m_witness.m_reports, ElementsAre(std::array{0, 1, 0}));
    Expect_In_Memory(0);
}
