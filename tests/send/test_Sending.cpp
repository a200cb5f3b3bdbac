#include "platform/Single_Start.h"
#include "send/Send_Test.h"

#include <QElapsedTimer>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::SizeIs;

using Sending_Jobs = Send_Test;

TEST_F(Sending_Jobs, A_Whole_Job_Is_Told_Line_By_Line)
{
    const auto run = Run_With_Device(To_So_Many(3));
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_THAT(run.errors, IsEmpty());
    ASSERT_EQ(run.lines.size(), 5);
    const QJsonObject job = run.lines.first();
    EXPECT_EQ(job.value("event"), "job");
    EXPECT_THAT(job.value("job").toString().toStdString(), MatchesRegex("[0-9]{8}-[0-9]{6}-[0-9a-f]{4}"));
    EXPECT_EQ(job.value("manner"), "confirmed");
    EXPECT_EQ(job.value("recipients"), 3);
    EXPECT_EQ(job.value("parts"), 3);
    EXPECT_EQ(job.value("seconds"), 12);
    EXPECT_THAT(run.Outcomes(), ElementsAre("sent", "sent", "sent"));
    const QJsonObject row = run.Outcome(2);
    EXPECT_EQ(row.value("number"), "00447700900101");
    EXPECT_EQ(row.value("parts"), 1);
    EXPECT_EQ(row.value("parts_sent"), 1);
    EXPECT_EQ(row.value("references").toArray().size(), 1);
    EXPECT_EQ(row.value("tries"), 1);
    EXPECT_FALSE(row.contains("earlier"));
    const QJsonObject end = run.lines.last();
    EXPECT_EQ(end.value("event"), "end");
    EXPECT_EQ(end.value("sent"), 3);
    for (const char* none : {"refused", "unknown", "skipped", "not_tried"})
        EXPECT_EQ(end.value(none), 0) << none;
    EXPECT_THAT(Texts(), ElementsAre("Hello", "Hello", "Hello"));
    EXPECT_EQ(m_phone.Inbox().front().m_number, "+447700900100");
    EXPECT_THAT(QDir(Jobs_Folder()).entryList(QDir::Files), IsEmpty());
    EXPECT_THAT(Unfinished(), IsEmpty());
}

TEST_F(Sending_Jobs, Words_Say_The_Same)
{
    Cms({{2, 500}});
    const auto run = Run(QStringList{"--device", QString::fromStdString(m_phone.Path())} + To_So_Many(2) +
                         QStringList{"--to", "Ann"});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.output, HasSubstr("1  00447700900100  sent\n"));
    EXPECT_THAT(run.output, HasSubstr("2  00447700900101  refused: Unknown error (CMS 500)\n"));
    EXPECT_THAT(run.output, HasSubstr("3  Ann  skipped: invalid-number\n"));
    EXPECT_THAT(run.output, HasSubstr("End: 1 sent, 1 refused, 1 skipped, after "));
    EXPECT_EQ(run.output.find('\r'), std::string::npos) << "no progress where there is no terminal";
}

TEST_F(Sending_Jobs, A_Refusal_Has_Its_Cause)
{
    Cms({{2, 500}});
    const auto run = Run_With_Device(To_So_Many(3));
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.Outcomes(), ElementsAre("sent", "refused", "sent"));
    EXPECT_EQ(run.Outcome(2).value("cause"), 500);
    EXPECT_EQ(run.Outcome(2).value("cause_kind"), "cms");
    EXPECT_EQ(run.Outcome(2).value("reason"), "Unknown error");
    EXPECT_EQ(run.Outcome(2).value("parts_sent"), 0);
}

TEST_F(Sending_Jobs, A_Cause_That_Leaves_It_Open_Is_Unknown_And_The_Job_Stays)
{
    Cms({{1, 332}});
    const auto run = Run_With_Device(To_So_Many(2));
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.Outcomes(), ElementsAre("unknown", "sent"));
    EXPECT_EQ(run.Outcome(1).value("cause"), 332);
    EXPECT_THAT(Unfinished(), ElementsAre(run.lines.first().value("job").toString()));
}

TEST_F(Sending_Jobs, A_Cause_That_Hits_Everybody_Stops_The_Job)
{
    Cms({{2, 50}});
    const auto run = Run_With_Device(To_So_Many(3));
    EXPECT_EQ(run.status, 1) << "something was sent";
    EXPECT_THAT(run.Outcomes(), ElementsAre("sent", "refused", "not-tried"));
    EXPECT_THAT(run.errors, MatchesRegex("corvane-send: the job ended early \\([^\n]+\\)\n"));
}

TEST_F(Sending_Jobs, Rows_That_Are_Skipped_Stand_In_Their_Places)
{
    const QString stop = Write("stop", "0171");
    const auto run = Run_With_Device({"--to", "0170", "--to", "0171", "--to", "0170", "--to", "0172", "--to", "0171",
                                      "--skip-duplicates", "--exclude", stop, "--message", "Hi"});
    EXPECT_EQ(run.status, 0) << "all was skipped as asked";
    EXPECT_THAT(run.Outcomes(), ElementsAre("sent", "skipped", "skipped", "sent", "skipped"));
    EXPECT_EQ(run.Outcome(2).value("reason"), "excluded");
    EXPECT_EQ(run.Outcome(3).value("reason"), "duplicate");
    EXPECT_EQ(run.lines.last().value("skipped"), 3);
    EXPECT_THAT(Texts(), SizeIs(2));
}

TEST_F(Sending_Jobs, A_Row_That_Cannot_Be_Used_Makes_The_Status_1)
{
    const auto run = Run_With_Device(To_So_Many(1) + QStringList{"--to", "Ann"});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.Outcomes(), ElementsAre("sent", "skipped"));
}

TEST_F(Sending_Jobs, Where_Nothing_Is_To_Be_Sent_No_Device_Is_Needed)
{
    const auto run = Run({"--json", "--device", "/dev/null/none", "--to", "Ann", "--message", "Hi"});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.Outcomes(), ElementsAre("skipped"));
    EXPECT_EQ(run.lines.last().value("event"), "end");
}

TEST_F(Sending_Jobs, Long_Texts_Take_Their_Parts)
{
    const auto run = Run_With_Device({"--to", "0170", "--message", QString(400, u'x')});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.lines.first().value("parts"), 3);
    EXPECT_EQ(run.Outcome(1).value("parts_sent"), 3);
    EXPECT_EQ(run.Outcome(1).value("references").toArray().size(), 3);
    EXPECT_THAT(Texts(), ElementsAre(std::string(400, 'x')));
}

TEST_F(Sending_Jobs, The_Options_Reach_The_Handset)
{
    const auto run = Run_With_Device(
        {"--to", "0170", "--message", "Hi", "--flash", "--alphabet", "unicode", "--service-centre", "+15550002222"});
    EXPECT_EQ(run.status, 0);
    ASSERT_THAT(m_phone.Inbox(), SizeIs(1));
    const Handset_Message message = m_phone.Inbox().front();
    EXPECT_EQ(message.m_class, 0);
    EXPECT_EQ(message.m_alphabet, "UCS2");
    EXPECT_EQ(message.m_smsc, "+15550002222");
    EXPECT_EQ(message.m_number, "0170");
}

TEST_F(Sending_Jobs, A_Kept_Journal_Is_No_Unfinished_Job)
{
    const auto run = Run_With_Device(To_So_Many(1) + QStringList{"--keep", "--journal", Path("kept/here")});
    EXPECT_EQ(run.status, 0);
    const QString job = run.lines.first().value("job").toString();
    EXPECT_TRUE(QFile::exists(Path("kept/here/" + job + ".journal")));
    EXPECT_EQ(Run({"--list-jobs", "--json", "--journal", Path("kept/here")}).output, "");
    EXPECT_FALSE(QFile::exists(Path("corvane")));
}

TEST_F(Sending_Jobs, A_Job_Without_A_Journal_Leaves_Nothing)
{
    EXPECT_EQ(Run_With_Device(To_So_Many(1) + QStringList{"--no-journal"}).status, 0);
    EXPECT_FALSE(QFile::exists(Path("corvane")));
}

TEST_F(Sending_Jobs, Pauses_Follow_Each_Batch)
{
    QElapsedTimer clock;
    clock.start();
    const auto run = Run_With_Device(To_So_Many(5) + QStringList{"--batch", "2", "--pause", "7"});
    EXPECT_EQ(run.status, 0);
    EXPECT_GE(clock.elapsed(), 2 * 7 * 1000 / 5) << "two pauses of seven seconds, at pace 5";
}

TEST_F(Sending_Jobs, Fixed_Waits_Say_What_Was_Written)
{
    m_environment.insert("CORVANE_PACE", "10");
    const auto run = Run_With_Device(
        {"--fixed-waits", "--to", "0170", "--to", "0170", "--skip-duplicates", "--to", "0171", "--message", "Hi"});
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.lines.first().value("manner"), "fixed-waits");
    EXPECT_THAT(run.Outcomes(), ElementsAre("written", "skipped", "written"));
    EXPECT_EQ(run.lines.last().value("written"), 2);
    EXPECT_EQ(run.lines.last().value("sent"), 0);
    EXPECT_THAT(Texts(), ElementsAre("Hi", "Hi"));
}

TEST_F(Sending_Jobs, It_Works_Beside_The_Desktop_Program)
{
    Single_Start desktop(Path("corvane"));
    ASSERT_EQ(desktop.Begin(), Single_Start::Outcome::First);
    EXPECT_EQ(Run_With_Device(To_So_Many(1)).status, 0);
}

// As cron starts it: no home, no display, no words about the language.
TEST_F(Sending_Jobs, Without_A_Home_It_Says_Where_The_Journal_Should_Be)
{
    m_environment = QProcessEnvironment();
    m_environment.insert("CORVANE_PACE", "5");
    const auto homeless = Run(With_Device(To_So_Many(1)));
    EXPECT_EQ(homeless.status, 2);
    EXPECT_THAT(homeless.errors, MatchesRegex("corvane-send: [^\n]+ \\(neither HOME nor [^\n]+\\)\n"));
    EXPECT_EQ(Run(With_Device(To_So_Many(1)) + QStringList{"--no-journal"}).status, 0);
    m_environment.insert("HOME", "/proc");
    const auto read_only = Run(With_Device(To_So_Many(1)));
    EXPECT_EQ(read_only.status, 2);
    EXPECT_THAT(read_only.errors, MatchesRegex("corvane-send: no journal can be kept in /proc[^\n]+ \\([^\n]+\\)\n"));
    EXPECT_THAT(Texts(), SizeIs(1));
}

TEST_F(Sending_Jobs, A_Reader_That_Goes_Away_Keeps_Nobody_From_Getting_The_Message)
{
    QProcess shell;
    shell.setProcessEnvironment(m_environment);
    QStringList words{"--json", "--device", QString::fromStdString(m_phone.Path())};
    words += To_So_Many(3);
    shell.start("/bin/sh", QStringList{"-c", "\"$0\" \"$@\" | true", CORVANE_BUILD_DIR "/corvane-send"} + words);
    ASSERT_TRUE(shell.waitForFinished());
    EXPECT_TRUE(Soon([this] { return Texts().size() == 3; }));
    EXPECT_THAT(shell.readAllStandardError().toStdString(), HasSubstr("not every line was printed ("));
}

TEST_F(Sending_Jobs, Lines_That_Nobody_Reads_Go_To_No_Device_And_No_Journal)
{
    QProcess shell;
    shell.setProcessEnvironment(m_environment);
    QStringList words{"--json", "--keep", "--device", QString::fromStdString(m_phone.Path())};
    words += To_So_Many(2);
    shell.start("/bin/sh",
                QStringList{"-c", "exec \"$0\" \"$@\" <&- >&- 2>&-", CORVANE_BUILD_DIR "/corvane-send"} + words);
    ASSERT_TRUE(shell.waitForFinished());
    EXPECT_EQ(shell.exitCode(), 0);
    EXPECT_THAT(Texts(), ElementsAre("Hello", "Hello"));
    EXPECT_THAT(m_phone.Heard_Bytes(), testing::Not(HasSubstr("event")));
    const QStringList journals = QDir(Jobs_Folder()).entryList({"*.journal"});
    ASSERT_EQ(journals.size(), 1);
    EXPECT_FALSE(Bytes_Of(Jobs_Folder() + "/" + journals[0]).contains("event"));
}
