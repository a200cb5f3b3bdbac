#include "tour/Killed_Program.h"

#include "tour/Confirmed_Walk.h"
#include "tour/Inbox.h"
#include "tour/Visited_Program.h"

#include <QCoreApplication>
#include <QProcess>
#include <cstdio>

namespace {

constexpr int Longest_Wait = 60'000; // milliseconds, where nothing is expected to take so long
const QByteArray Kill_Me = "the job waits";

// Refuses one message, loses its network for a while, says nothing about one that was sent and takes its time for the
// next.
QStringList Troubles(const QString& link)
{
    return {"--until-stdin-closes",
            "--link",
            link,
            "--refuse",
            "*456",
            "+CMS ERROR: 500",
            "--network-lost-at",
            "3",
            "--network-back-after",
            "60",
            "--without-result",
            "*654",
            "--result-after",
            "6",
            "100000"};
}

QByteArray Next_Line(QProcess& process)
{
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(Longest_Wait))
            throw Tour_Failed(process.program() + " says nothing more");
    }
    return process.readLine().trimmed();
}

void Start(QProcess& process, const QString& program, const QStringList& arguments)
{
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    if (!process.waitForStarted(Longest_Wait))
        throw Tour_Failed(program + " does not start");
}

// Passes on what the program says, until it says the line or ends.
bool Follow(QProcess& program, const QByteArray& until)
{
    while (program.state() != QProcess::NotRunning || program.canReadLine()) {
        if (!program.canReadLine() && !program.waitForReadyRead(Longest_Wait))
            break;
        while (program.canReadLine()) {
            const QByteArray line = program.readLine().trimmed();
            if (line == until)
                return true;
            printf("%s\n", line.constData());
        }
    }
    return false;
}

void Send_And_Go_On(const QString& pictures, const QString& link)
{
    const QString own_program = QCoreApplication::applicationFilePath();
    QProcess first;
    Start(first, own_program, {Until_Killed, pictures, link});
    if (!Follow(first, Kill_Me))
        throw Tour_Failed("the program ended before it was to be killed");
    first.kill();
    first.waitForFinished(Longest_Wait);
    printf("The program was killed while it waited for the network.\n");
    QProcess second;
    Start(second, own_program, {After_The_Kill, pictures, link});
    Follow(second, {});
    second.waitForFinished(Longest_Wait);
    if (second.exitStatus() != QProcess::NormalExit || second.exitCode() != 0)
        throw Tour_Failed("the program that was started again did not go on");
}

int Run_With(const QString& phone_path, const std::function<void()>& visit)
{
    Command_Line command_line;
    command_line.device_paths = QStringList{phone_path};
    return Run_Visited(
        command_line, [](Program&) {}, [&](Program&) { visit(); });
}

} // namespace

int Tour_Of_A_Killed_Program(const QString& picture_folder, const QString& home)
{
    const QString link = home + "/phone";
    qputenv("XDG_DATA_HOME", (home + "/killed").toUtf8());
    qputenv("CORVANE_PACE", "40");
    try {
        QProcess phone;
        Start(phone, QCoreApplication::applicationDirPath() + "/corvane-phone", Troubles(link));
        Next_Line(phone); // the phone is there
        Send_And_Go_On(picture_folder, link);
        phone.closeWriteChannel();
        phone.waitForFinished(Longest_Wait);
        Inbox inbox;
        while (phone.canReadLine())
            Collect(inbox, phone.readLine());
        Expect_Exactly(inbox, Story::Messages_Of_Second_List());
        return 0;
    } catch (const std::exception& failure) {
        printf("FAILED   %s\n", failure.what());
        return 1;
    }
}

int Run_Until_Killed(const QString& picture_folder, const QString& phone_path)
{
    Confirmed_Walk walk(picture_folder);
    return Run_With(phone_path, [&] {
        walk.Send_Until_One_Hangs(phone_path);
        printf("%s\n", Kill_Me.constData());
        fflush(stdout);
        walk.Await_Until("the end", [] { return false; });
    });
}

int Run_After_The_Kill(const QString& picture_folder, const QString& phone_path)
{
    Confirmed_Walk walk(picture_folder);
    return Run_With(phone_path, [&] { walk.Go_On_With_The_Job(); });
}
