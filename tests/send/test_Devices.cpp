#include "send/Send_Test.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::SizeIs;

namespace {

constexpr char One_Line[] = "corvane-send: [^\n]+ \\([^\n]+\\)\n";

class Devices : public Send_Test
{
protected:
    QString Path_Of(const Virtual_Phone& phone) const { return QString::fromStdString(phone.Path()); }

    void Expect_No_Device(const Ended_Run& run, const char* words) const
    {
        EXPECT_EQ(run.status, 3);
        EXPECT_THAT(run.errors, MatchesRegex(One_Line));
        EXPECT_THAT(run.errors, HasSubstr(words));
        EXPECT_THAT(run.Outcomes(), ElementsAre("not-tried"));
        EXPECT_THAT(Texts(), IsEmpty());
    }

    void Sim_Says(const char* answer) { m_phone.Will_Answer("AT+CPIN?", answer); }
};

} // namespace

TEST_F(Devices, A_Path_That_Leads_Nowhere_Is_Named)
{
    const auto run = Run(QStringList{"--json", "--device", Path("none")} + To_So_Many(1));
    Expect_No_Device(run, "none cannot be opened (there is no such device)");
}

TEST_F(Devices, A_File_Is_No_Device)
{
    Expect_No_Device(Run(QStringList{"--json", "--device", Write("file", "x")} + To_So_Many(1)), "cannot be opened");
}

TEST_F(Devices, One_That_Another_Program_Holds_Is_Left_To_It)
{
    const int other = ::open(m_phone.Path().c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    ASSERT_EQ(::ioctl(other, TIOCEXCL), 0);
    Expect_No_Device(Run_With_Device(To_So_Many(1)), "(another program uses it");
    ::close(other); // and its claim stays behind, as after a kill; privileged users alone get past it
    EXPECT_EQ(Run_With_Device(To_So_Many(1)).status, geteuid() == 0 ? 0 : 3);
}

TEST_F(Devices, A_Device_That_Says_Nothing_Is_No_Modem)
{
    Phone_Moods moods;
    moods.m_silent = true;
    m_phone.Set_Moods(moods);
    Expect_No_Device(Run_With_Device(To_So_Many(1)), "cannot send (");
    EXPECT_THAT(QDir(Jobs_Folder()).entryList(QDir::Files), IsEmpty());
}

TEST_F(Devices, Without_A_Card_Nothing_Is_Sent)
{
    for (const char* answer : {"\r\n+CME ERROR: 10\r\n", "\r\n+CME ERROR: SIM not inserted\r\n"}) {
        Sim_Says(answer);
        Expect_No_Device(Run_With_Device(To_So_Many(1)), "There is no SIM card");
    }
}

TEST_F(Devices, A_Card_That_Wants_Its_Puk_Is_Left_Alone)
{
    for (const char* answer : {"\r\n+CPIN: SIM PUK\r\n\r\nOK\r\n", "\r\n+CME ERROR: SIM PUK required\r\n"}) {
        Sim_Says(answer);
        Expect_No_Device(Run_With_Device(To_So_Many(1)), "PUK");
    }
}

TEST_F(Devices, A_Job_Is_Held_For_The_Pin_And_Ends_In_Time)
{
    Sim_Says("\r\n+CPIN: SIM PIN\r\n\r\nOK\r\n");
    const auto run = Run_With_Device(To_So_Many(1) + QStringList{"--hold", "3"});
    Expect_No_Device(run, "cannot send (");
    ASSERT_THAT(run.Of("held"), SizeIs(1));
    EXPECT_EQ(run.Of("held").first().value("reason"), "The SIM card wants its PIN.");
    EXPECT_EQ(run.lines.first().value("event"), "job");
}

TEST_F(Devices, A_Pin_That_Is_Asked_For_In_Words_Holds_The_Job)
{
    Sim_Says("\r\n+CME ERROR: SIM PIN required\r\n");
    const auto run = Run_With_Device(To_So_Many(1) + QStringList{"--hold", "3"});
    Expect_No_Device(run, "cannot send (");
    EXPECT_THAT(run.Of("held"), SizeIs(1));
}

TEST_F(Devices, A_Hold_After_The_First_Message_Was_Handed_Over_Is_No_Missing_Device)
{
    Cms({{1, 331}});
    const auto run = Run_With_Device(To_So_Many(1) + QStringList{"--hold", "1"});
    EXPECT_EQ(run.status, 1) << "something was handed over";
    EXPECT_THAT(run.Outcomes(), ElementsAre("not-tried"));
    EXPECT_EQ(run.Outcome(1).value("tries"), 1);
    const auto listed = Run({"--list-jobs", "--json"}).Of("unfinished");
    ASSERT_THAT(listed, SizeIs(1));
    EXPECT_EQ(listed[0].value("not_tried"), 1);
    EXPECT_EQ(listed[0].value("refused"), 0);
}

TEST_F(Devices, A_Held_Job_Goes_On_By_Itself)
{
    Sim_Says("\r\n+CPIN: SIM PIN\r\n\r\nOK\r\n");
    const auto run = Start(To_So_Many(2));
    ASSERT_TRUE(run->Says("held"));
    Sim_Says("\r\n+CPIN: READY\r\n\r\nOK\r\n");
    const auto ended = run->Wait();
    EXPECT_EQ(ended.status, 0);
    EXPECT_THAT(ended.Outcomes(), ElementsAre("sent", "sent"));
}

TEST_F(Devices, A_Cable_That_Is_Pulled_Leaves_The_Rest_Untried)
{
    m_environment.insert("CORVANE_PACE", "20"); // a pulled plug has thirty seconds to come back
    Phone_Moods moods;
    moods.m_hang_up_at = 2;
    m_phone.Set_Moods(moods);
    // The number of a terminal that is gone is soon another's; a link is gone with its phone.
    const QString link = Path("modem");
    ASSERT_TRUE(QFile::link(QString::fromStdString(m_phone.Path()), link));
    m_phone.Set_Listeners({{}, {}, [link] { QFile::remove(link); }});
    const auto run = Run(QStringList{"--json", "--device", link, "--hold", "1"} + To_So_Many(3));
    EXPECT_EQ(run.status, 1) << "something was sent";
    EXPECT_THAT(run.Outcomes(), ElementsAre("sent", "not-tried", "not-tried"));
    EXPECT_THAT(run.Of("held"), SizeIs(1));
    EXPECT_THAT(Unfinished(), SizeIs(1));
}

TEST_F(Devices, Of_Several_The_One_That_Answers_Is_Taken)
{
    Phone_Moods moods;
    moods.m_silent = true;
    const Virtual_Phone silent(moods);
    const auto run = Run_With_Device(QStringList{"--device", Path_Of(silent)} + To_So_Many(1));
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_THAT(Texts(), SizeIs(1));
}

TEST_F(Devices, Several_That_Answer_Are_Listed)
{
    const Virtual_Phone other;
    const auto run = Run_With_Device(QStringList{"--device", Path_Of(other)} + To_So_Many(1));
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.errors, MatchesRegex(One_Line));
    EXPECT_THAT(run.errors, HasSubstr(m_phone.Path()));
    EXPECT_THAT(run.errors, HasSubstr(other.Path()));
    EXPECT_THAT(run.output, IsEmpty());
    EXPECT_THAT(Texts(), IsEmpty());
}

TEST_F(Devices, A_Report_That_Comes_After_Its_Job_Is_Noted_By_The_Next)
{
    Phone_Moods moods;
    moods.m_reports_in_memory_alone = true;
    moods.m_report_after_seconds = 0;
    m_phone.Set_Moods(moods);
    const auto first = Run_With_Device(QStringList{"--keep", "--reports=0"} + To_So_Many(1));
    ASSERT_EQ(first.status, 0) << first.errors;
    const QString journal = Jobs_Folder() + "/" + first.Of("job").first().value("job").toString() + ".journal";
    const auto second = Run_With_Device(QStringList{"--reports=0"} + To_So_Many(1));
    EXPECT_EQ(second.status, 0) << second.errors;
    EXPECT_EQ(Bytes_Of(journal).count("\nD "), 1) << Bytes_Of(journal).constData();
}

TEST_F(Devices, Reports_Are_Told_As_They_Come)
{
    const auto run = Start(To_So_Many(1) + QStringList{"--reports=60"});
    ASSERT_TRUE(run->Says("outcome"));
    const int reference = m_phone.Parts().front().m_message_reference;
    const auto hex = [](int octet) { return QByteArray::number(octet, 16).rightJustified(2, '0').toUpper(); };
    const QByteArray frame = "0006" + hex(reference) +
                             "0C91447700091000"
                             "62111221000000"
                             "62111221000500"
                             "00";
    m_phone.Says("\r\n+CDS: 25\r\n" + frame.toStdString() + "\r\n");
    const auto ended = run->Wait();
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ((m_phone.Parts().front().m_first_octet & 0x20), 0x20);
    ASSERT_THAT(ended.Of("report"), SizeIs(1)) << frame.toStdString();
    const QJsonObject report = ended.Of("report").first();
    EXPECT_EQ(report.value("row"), 1);
    EXPECT_EQ(report.value("number"), "00447700900100");
    EXPECT_EQ(report.value("part"), 1);
    EXPECT_EQ(report.value("reference"), reference);
    EXPECT_EQ(report.value("status"), 0);
    EXPECT_EQ(report.value("meaning"), "delivered");
}
