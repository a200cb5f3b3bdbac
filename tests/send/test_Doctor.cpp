#include "send/Send_Test.h"

#include <QFile>
#include <csignal>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

class Doctor : public Send_Test
{
protected:
    QString Phone() const { return QString::fromStdString(m_phone.Path()); }
    Ended_Run Look(const QStringList& arguments = {}) const
    {
        return Run(QStringList{"--doctor", "--device", Phone()} + arguments);
    }

    // "card:bad" and so on, in order.
    static std::vector<std::string> Marks(const Ended_Run& run)
    {
        std::vector<std::string> marks;
        for (const QJsonObject& line : run.Of("check"))
            marks.push_back((line.value("check").toString() + ':' + line.value("mark").toString()).toStdString());
        return marks;
    }

    // What an account hears that is not root and belongs to no group. The program is copied to where it may run it.
    Ended_Run As_An_Ordinary_Account() const
    {
        const QStringList arguments{"--doctor", "--json", "--device", Phone()};
        if (geteuid() != 0)
            return Run(arguments);
        const QString copy = Path("corvane-send");
        EXPECT_TRUE(QFile::copy(QStringLiteral(CORVANE_BUILD_DIR "/corvane-send"), copy));
        EXPECT_EQ(chmod(qPrintable(m_folder.path()), 0755), 0);
        EXPECT_EQ(chmod(qPrintable(copy), 0755), 0);
        QProcess account;
        account.setProcessEnvironment(m_environment);
        account.start("setpriv", QStringList{"--reuid=65534", "--regid=65534", "--clear-groups", copy} + arguments);
        EXPECT_TRUE(account.waitForFinished(60'000));
        Ended_Run run;
        run.status = account.exitStatus() == QProcess::NormalExit ? account.exitCode() : -1;
        run.output = account.readAllStandardOutput().toStdString();
        run.errors = account.readAllStandardError().toStdString();
        for (const QByteArray& line : QByteArray::fromStdString(run.output).split('\n'))
            if (line.startsWith('{'))
                run.lines.append(QJsonDocument::fromJson(line).object());
        return run;
    }
};

} // namespace

TEST_F(Doctor, Of_A_Phone_That_Could_Send_Each_Check_Is_Good_And_Nothing_Is_Sent)
{
    const auto run = Look({"--json"});
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_THAT(Marks(run), ElementsAre("port:good", "answer:good", "card:good", "network:good", "signal:good",
                                        "centre:good", "messages:good"));
    ASSERT_EQ(run.Of("looked").size(), 1);
    EXPECT_EQ(run.Of("looked").first().value("ready").toArray(), QJsonArray{Phone()});
    for (const std::string& command : m_phone.Heard())
        EXPECT_TRUE(command == "AT+CMGS=?" || !command.starts_with("AT+CMGS")) << command;
    EXPECT_THAT(m_phone.Parts(), IsEmpty());
}

TEST_F(Doctor, In_Words_Each_Line_Begins_With_Its_Sign_And_Help_Stands_Below)
{
    Phone_Moods moods;
    moods.m_no_smsc = true;
    m_phone.Set_Moods(moods);
    const auto run = Look();
    EXPECT_EQ(run.status, 3);
    EXPECT_THAT(run.output, HasSubstr("✓  The SIM card is ready.\n"));
    EXPECT_THAT(run.output, HasSubstr("✗  No service centre for messages is stored.\n     Ask the operator"));
    EXPECT_THAT(run.output, testing::EndsWith("No device could send.\n"));
    EXPECT_THAT(run.output, Not(HasSubstr("{")));
}

TEST_F(Doctor, Prints_No_Number_And_No_Text_That_The_Device_Tells)
{
    m_phone.Will_Answer("AT+CGMM", "\r\nE173 490154203237518\r\n\r\nOK\r\n");
    m_phone.Will_Answer("AT+CGMI", "\r\nof +44 7700 900-101\r\n\r\nOK\r\n");
    m_phone.Will_Answer("AT+CSCA?", "\r\n+CSCA: \"+447785016005\",145\r\n\r\nOK\r\n");
    m_phone.Will_Answer("AT+COPS?", "\r\n+COPS: 0,0,\"Secret 447700900103\"\r\n\r\nOK\r\n");
    m_phone.Says("\r\n+CMT: \"+447700900102\"\r\nSecret meeting\r\n");
    for (const QStringList& way : {QStringList(), QStringList("--json")}) {
        const auto run = Look(way);
        EXPECT_EQ(run.status, 0) << run.errors;
        for (const char* canary : {"7700", "4901", "7785", "Secret"})
            EXPECT_THAT(run.output + run.errors, Not(HasSubstr(canary))) << way.join(' ').toStdString();
        EXPECT_THAT(run.output, HasSubstr("(number left out)"));
    }
}

TEST_F(Doctor, Without_A_Device_The_Status_Says_So)
{
    const auto run = Run({"--doctor", "--json", "--device", Path("none")});
    EXPECT_EQ(run.status, 3);
    EXPECT_THAT(Marks(run), ElementsAre("port:bad"));
    EXPECT_EQ(run.Of("looked").first().value("ready").toArray(), QJsonArray());
    EXPECT_THAT(run.errors, IsEmpty());
}

TEST_F(Doctor, An_Account_Without_The_Right_Is_Told_Which_Group_Has_It)
{
    if (geteuid() == 0) {
        ASSERT_EQ(chown(m_phone.Path().c_str(), 0, 20), 0);
    }
    ASSERT_EQ(chmod(m_phone.Path().c_str(), 0060), 0);
    const auto run = As_An_Ordinary_Account();
    EXPECT_EQ(run.status, 3) << run.errors;
    ASSERT_THAT(Marks(run), ElementsAre("right:bad"));
    const QJsonObject line = run.Of("check").first();
    EXPECT_THAT(line.value("command").toString().toStdString(), testing::MatchesRegex("sudo usermod -aG .+ \\$USER"));
    EXPECT_THAT(m_phone.Heard(), IsEmpty());
}

// Root gets past such a claim, and so another account asks.
TEST_F(Doctor, A_Port_That_A_Program_Has_For_Itself_Alone_Is_Said_To_Be_In_Use)
{
    ASSERT_EQ(chmod(m_phone.Path().c_str(), 0666), 0);
    const int other = ::open(m_phone.Path().c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    ASSERT_EQ(::ioctl(other, TIOCEXCL), 0);
    const auto run = As_An_Ordinary_Account();
    ::close(other);
    EXPECT_EQ(run.status, 3) << run.errors;
    EXPECT_THAT(Marks(run), testing::Contains("holder:bad"));
    EXPECT_THAT(Marks(run), Not(testing::Contains("answer:good")));
    EXPECT_THAT(m_phone.Heard(), IsEmpty());
}

TEST_F(Doctor, A_Signal_Ends_The_Look)
{
    Phone_Moods moods;
    moods.m_silent = true;
    m_phone.Set_Moods(moods);
    m_environment.insert("CORVANE_PACE", "0.1");
    Running_Send run({"--doctor", "--json", "--device", Phone()}, m_environment);
    ASSERT_TRUE(run.Says("check"));
    run.Send_Signal(SIGTERM);
    const auto ended = run.Wait();
    EXPECT_EQ(ended.status, 4);
    EXPECT_EQ(ended.Of("looked").size(), 0);
}

TEST_F(Doctor, What_Is_For_Messages_Does_Not_Go_With_It)
{
    for (const char* option : {"--to=1", "--numbers=x", "--message=x", "--dry-run", "--list-jobs", "--resume=x",
                               "--service-centre=+1", "--fixed-waits", "--hold=1", "--keep"}) {
        const auto run = Look({option});
        EXPECT_EQ(run.status, 2) << option;
        EXPECT_THAT(run.errors, HasSubstr("--doctor and --")) << option;
    }
    EXPECT_THAT(m_phone.Heard(), IsEmpty());
}
