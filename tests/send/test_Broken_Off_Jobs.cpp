#include "send/Send_Test.h"

#include <QThread>
#include <csignal>

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::SizeIs;

namespace {

class Broken_Off_Jobs : public Send_Test
{
protected:
    // Starts a job whose first message has been handed over and whose answer is on its way for a second.
    std::unique_ptr<Running_Send> Start_And_Await_The_Answer(int recipients, const QStringList& more = {})
    {
        Phone_Moods moods;
        moods.m_late_prompt_ms = 300;
        m_phone.Set_Moods(moods);
        auto run = Start(To_So_Many(recipients) + more);
        EXPECT_TRUE(Soon([this] { return Submissions_Heard() == 1; }));
        moods.m_answer_delay_ms = 1000;
        m_phone.Set_Moods(moods);
        EXPECT_TRUE(Soon([this] { return m_phone.Parts().size() == 1; }));
        m_phone.Set_Moods({});
        return run;
    }

    Ended_Run Resume(const QStringList& more = {}) const
    {
        const QStringList jobs = Unfinished();
        EXPECT_EQ(jobs.size(), 1);
        return Run_With_Device(QStringList{"--resume", jobs.value(0)} + more);
    }

    void Kill(Running_Send& run)
    {
        run.Send_Signal(SIGKILL);
        EXPECT_EQ(run.Wait().status, -1);
        m_phone.Forget();
    }

    QString Journal() const { return Jobs_Folder() + "/" + Unfinished().value(0) + ".journal"; }
};

} // namespace

TEST_F(Broken_Off_Jobs, A_First_Signal_Awaits_The_Answer_Under_Way)
{
    const auto run = Start_And_Await_The_Answer(3);
    run->Send_Signal(SIGINT);
    const auto ended = run->Wait();
    EXPECT_EQ(ended.status, 4);
    EXPECT_THAT(ended.Outcomes(), ElementsAre("sent", "not-tried", "not-tried"));
    EXPECT_THAT(ended.errors, MatchesRegex("corvane-send: stopped \\([^\n]+\\)\n"));
    EXPECT_EQ(ended.lines.last().value("not_tried"), 2);

    const auto resumed = Resume();
    EXPECT_EQ(resumed.status, 0) << resumed.errors;
    EXPECT_THAT(resumed.Outcomes(), ElementsAre("sent", "sent", "sent"));
    EXPECT_EQ(resumed.Outcome(1).value("earlier"), true);
    EXPECT_FALSE(resumed.Outcome(2).contains("earlier"));
    EXPECT_THAT(Texts(), SizeIs(3));
    EXPECT_THAT(Unfinished(), IsEmpty());
}

TEST_F(Broken_Off_Jobs, Are_Kept_As_Was_Said_When_They_Began)
{
    const auto run = Start_And_Await_The_Answer(2, {"--keep"});
    run->Send_Signal(SIGINT);
    run->Wait();
    const QString journal = Journal();
    EXPECT_EQ(Resume().status, 0);
    EXPECT_TRUE(QFile::exists(journal));
    EXPECT_THAT(Unfinished(), IsEmpty());
}

TEST_F(Broken_Off_Jobs, A_Second_Signal_Ends_At_Once_And_Names_The_Part)
{
    Phone_Moods moods;
    moods.m_stop_reading_at = 1;
    m_phone.Set_Moods(moods);
    const auto run = Start(To_So_Many(2));
    ASSERT_TRUE(run->Says("job"));
    ASSERT_TRUE(Soon([this] { return Submissions_Heard() == 1; }));
    QThread::msleep(300); // the message is on its way
    run->Send_Signal(SIGTERM);
    QThread::msleep(100);
    run->Send_Signal(SIGTERM);
    const auto ended = run->Wait();
    EXPECT_EQ(ended.status, 4);
    EXPECT_THAT(ended.Outcomes(), ElementsAre("unknown", "not-tried"));
    m_phone.Set_Moods({});
    m_phone.Forget();

    const auto resumed = Resume();
    EXPECT_EQ(resumed.status, 1);
    EXPECT_THAT(resumed.Outcomes(), ElementsAre("unknown", "sent"));
    EXPECT_EQ(resumed.Outcome(1).value("earlier"), true);
    EXPECT_THAT(Texts(), SizeIs(1));
    const auto again = Resume({"--again-unknown"});
    EXPECT_EQ(again.status, 0);
    EXPECT_THAT(again.Outcomes(), ElementsAre("sent", "sent"));
    EXPECT_FALSE(again.Outcome(1).contains("earlier"));
    EXPECT_THAT(Unfinished(), IsEmpty());
}

TEST_F(Broken_Off_Jobs, A_Signal_While_Input_Is_Read_Ends_The_Program)
{
    QProcess program;
    program.setProcessEnvironment(m_environment);
    program.start(CORVANE_BUILD_DIR "/corvane-send", With_Device({"--numbers", "-", "--message", "Hi"}));
    ASSERT_TRUE(program.waitForStarted());
    QThread::msleep(300);
    ::kill(static_cast<pid_t>(program.processId()), SIGTERM);
    ASSERT_TRUE(program.waitForFinished(10'000));
    EXPECT_EQ(program.exitCode(), 4);
    EXPECT_THAT(program.readAllStandardError().toStdString(), MatchesRegex("corvane-send: stopped \\([^\n]+\\)\n"));
    EXPECT_TRUE(m_phone.Is_Silent());
}

TEST_F(Broken_Off_Jobs, A_Signal_While_A_Job_Is_Held_Stops_It)
{
    m_phone.Will_Answer("AT+CPIN?", "\r\n+CPIN: SIM PIN\r\n\r\nOK\r\n");
    const auto run = Start(To_So_Many(2));
    ASSERT_TRUE(run->Says("held"));
    run->Send_Signal(SIGINT);
    const auto ended = run->Wait();
    EXPECT_EQ(ended.status, 4);
    EXPECT_THAT(ended.Outcomes(), Each("not-tried"));
}

TEST_F(Broken_Off_Jobs, A_Signal_Before_A_Further_Try_Leaves_The_Message_For_Later)
{
    Cms({{1, 41}, {2, 41}});
    const auto run = Start(To_So_Many(1));
    ASSERT_TRUE(Soon([this] { return Submissions_Heard() == 2; })); // it waits thirty seconds for the third, at pace 1
    run->Send_Signal(SIGTERM);
    const auto ended = run->Wait();
    EXPECT_EQ(ended.status, 4);
    EXPECT_THAT(ended.Outcomes(), ElementsAre("not-tried"));
    EXPECT_EQ(ended.Outcome(1).value("tries"), 2);
    m_phone.Set_Moods({});
    const auto resumed = Resume();
    EXPECT_EQ(resumed.status, 0) << resumed.errors;
    EXPECT_THAT(Texts(), SizeIs(1));
}

TEST_F(Broken_Off_Jobs, A_Signal_Between_The_Parts_Of_The_Last_Message_Stops_Fixed_Waits)
{
    const auto run = Start({"--fixed-waits", "--to", "0170", "--message", QString(300, u'x')});
    ASSERT_TRUE(Soon([this] { return Submissions_Heard() == 1; }));
    run->Send_Signal(SIGINT);
    const auto ended = run->Wait();
    EXPECT_EQ(ended.status, 4);
    EXPECT_THAT(ended.Outcomes(), ElementsAre("unknown"));
    EXPECT_THAT(ended.errors, MatchesRegex("corvane-send: stopped \\([^\n]+\\)\n"));
}

TEST_F(Broken_Off_Jobs, After_A_Kill_Before_The_Message_All_Are_Sent)
{
    Phone_Moods moods;
    moods.m_late_prompt_ms = 1500;
    m_phone.Set_Moods(moods);
    const auto run = Start(To_So_Many(2));
    ASSERT_TRUE(Soon([this] { return Submissions_Heard() == 1; }));
    Kill(*run);
    m_phone.Set_Moods({});
    const auto resumed = Resume();
    EXPECT_EQ(resumed.status, 0) << resumed.errors;
    EXPECT_THAT(resumed.Outcomes(), ElementsAre("sent", "sent"));
    EXPECT_THAT(Texts(), SizeIs(2));
}

TEST_F(Broken_Off_Jobs, After_A_Kill_Before_The_Answer_The_Row_Is_Left_Alone)
{
    const auto run = Start_And_Await_The_Answer(2);
    Kill(*run);
    const auto listed = Run({"--list-jobs", "--json"}).Of("unfinished");
    ASSERT_THAT(listed, SizeIs(1));
    EXPECT_EQ(listed[0].value("recipients"), 2);
    EXPECT_EQ(listed[0].value("unknown"), 1);
    EXPECT_EQ(listed[0].value("not_tried"), 1);
    EXPECT_EQ(listed[0].value("sent"), 0);
    const auto resumed = Resume();
    EXPECT_EQ(resumed.status, 1);
    EXPECT_THAT(resumed.Outcomes(), ElementsAre("unknown", "sent"));
    EXPECT_THAT(Texts(), SizeIs(1));
}

TEST_F(Broken_Off_Jobs, After_A_Kill_Between_Messages_Nobody_Gets_One_Twice)
{
    const auto run = Start_And_Await_The_Answer(4);
    ASSERT_TRUE(run->Says("outcome"));
    run->Send_Signal(SIGKILL);
    run->Wait();
    Resume({"--again-unknown"});
    std::map<std::string, int> received;
    for (const Handset_Message& message : m_phone.Inbox())
        ++received[message.m_number];
    EXPECT_EQ(received.size(), 4u);
    EXPECT_EQ(received.at("+447700900100"), 1) << "its outcome was told";
    EXPECT_THAT(Unfinished(), IsEmpty());
}

TEST_F(Broken_Off_Jobs, Skipped_And_Refused_Rows_Stay_What_They_Were)
{
    Cms({{1, 500}, {3, 50}});
    const auto run = Run_With_Device(QStringList{"--to", "0170", "--to", "Ann", "--to", "0171", "--to", "0172", "--to",
                                                 "0173", "--to", "0171", "--skip-duplicates", "--message", "Hi"});
    EXPECT_THAT(run.Outcomes(), ElementsAre("refused", "skipped", "sent", "refused", "not-tried", "skipped"));
    m_phone.Set_Moods({});
    const auto resumed = Resume({"--keep"});
    EXPECT_EQ(resumed.status, 1);
    EXPECT_THAT(resumed.Outcomes(), ElementsAre("refused", "skipped", "sent", "refused", "sent", "skipped"));
    EXPECT_EQ(resumed.Outcome(1).value("cause"), 500);
    EXPECT_EQ(resumed.Outcome(6).value("reason"), "duplicate");
    for (const int row : {1, 2, 3, 4, 6})
        EXPECT_EQ(resumed.Outcome(row).value("earlier"), true) << row;
    EXPECT_THAT(Unfinished(), IsEmpty());
    const QString job = run.lines.first().value("job").toString();
    const auto once_more = Run({"--json", "--resume", job, "--device", "/dev/null/none"});
    EXPECT_EQ(once_more.status, 1) << "a job that has ended is told without a device";
    EXPECT_THAT(once_more.Outcomes(), ElementsAre("refused", "skipped", "sent", "refused", "sent", "skipped"));
}

TEST_F(Broken_Off_Jobs, One_That_Is_Worked_On_Is_Refused)
{
    Phone_Moods moods;
    moods.m_stop_reading_at = 1;
    m_phone.Set_Moods(moods);
    const auto run = Start(To_So_Many(2));
    ASSERT_TRUE(run->Says("job"));
    ASSERT_TRUE(Soon([this] { return Submissions_Heard() == 1; }));
    const auto other = Resume();
    EXPECT_EQ(other.status, 2);
    EXPECT_THAT(other.errors, MatchesRegex("corvane-send: job [^\n]+ \\(another program works on it\\)\n"));
    EXPECT_THAT(other.output, IsEmpty());
    EXPECT_EQ(Run({"--list-jobs", "--json"}).lines.first().value("in_use"), true);
    Kill(*run);
}

TEST_F(Broken_Off_Jobs, A_Torn_End_Loses_Nothing_Else)
{
    Kill(*Start_And_Await_The_Answer(2));
    const QByteArray journal = Bytes_Of(Journal());
    Write_Bytes(Journal(), journal + "H 2 1 1 2026");
    EXPECT_THAT(Resume().Outcomes(), ElementsAre("unknown", "sent"));
}

TEST_F(Broken_Off_Jobs, Damage_Is_Refused_In_Words)
{
    Kill(*Start_And_Await_The_Answer(2));
    const QString job = Unfinished().value(0);
    const QString journal = Journal();
    const QString list = Jobs_Folder() + "/" + job + ".list";
    const QByteArray bytes = Bytes_Of(journal);
    const auto expect_refused = [&](const char* words) {
        const auto run = Run_With_Device({"--resume", job});
        EXPECT_EQ(run.status, 2);
        EXPECT_THAT(run.errors, HasSubstr(words));
        EXPECT_THAT(run.output, IsEmpty());
    };
    QByteArray damaged = bytes;
    damaged[3] = '~';
    Write_Bytes(journal, damaged);
    expect_refused("(");
    EXPECT_THAT(Run({"--list-jobs"}).output, MatchesRegex(job.toStdString() + "  [^\n]+\n"));
    Write_Bytes(journal, bytes);
    const QByteArray rows = Bytes_Of(list);
    Write_Bytes(list, rows + "more");
    expect_refused("the list beside its journal is not the one");
    ASSERT_TRUE(QFile::remove(list));
    expect_refused("the list beside its journal is gone");
    EXPECT_EQ(Run_With_Device({"--resume", "20260101-000000-abcd"}).status, 2);
    EXPECT_EQ(Run_With_Device({"--resume", "../x"}).status, 2);
    EXPECT_THAT(Texts(), IsEmpty());
}

TEST_F(Broken_Off_Jobs, Are_Listed_In_Words_With_The_Job_First)
{
    Kill(*Start_And_Await_The_Answer(3));
    const std::string job = Unfinished().value(0).toStdString();
    EXPECT_EQ(Run({"--list-jobs"}).output, job + "  3 recipients: 1 unknown, 2 not tried\n");
    EXPECT_EQ(Run({"--list-jobs"}).status, 0);
}
