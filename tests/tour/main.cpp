#include "app/Demo_Phone.h"
#include "app/Program.h"
#include "platform/Interface_Thread.h"
#include "platform/Pace.h"
#include "tour/Story.h"
#include "tour/Walk.h"

#include <QApplication>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <cstdio>
#include <thread>

// A walk through the real program with the virtual phone: its windows are clicked and typed into as a person would,
// each is photographed, a list is sent, and what the phone received, what the program keeps and what it exported are
// held against what they must be. Exit status 0 only when all is the same. Usage: corvane-tour <picture folder>

namespace {

// A home of the tour's own, with nothing in it. Returns where the file panels begin.
QString Settle_In(const QString& home)
{
    const QString documents = home + "/Documents";
    QDir().mkpath(documents);
    QDir::setCurrent(documents);
    qputenv("HOME", home.toUtf8());
    qputenv("XDG_DATA_HOME", (home + "/.local/share").toUtf8());
    return documents;
}

// Collects what the phone prints; the phone prints a line for each part, and one for each complete message.
void Collect(std::vector<Story::Message>& inbox, const QByteArray& line)
{
    const auto object = QJsonDocument::fromJson(line).object();
    if (object.value("event") == "message")
        inbox.push_back({object.value("number").toString(), object.value("text").toString()});
}

int Take_The_Tour(Walk& walk, const QString& phone_path, const std::vector<Story::Message>& inbox)
{
    try {
        walk.Go(phone_path);
        const auto written = Story::Messages();
        walk.Await_Until("the phone to have everything", [&] { return inbox.size() >= written.size(); });
        if (inbox != written)
            throw Tour_Failed("the phone received something else than was written");
    } catch (const std::exception& failure) {
        printf("FAILED   %s\n", failure.what());
        return 1;
    }
    printf("The phone received exactly the %zu messages that were written.\n", inbox.size());
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        fprintf(stderr, "Usage: corvane-tour <picture folder>\n");
        return 2;
    }
    const QTemporaryDir home(QDir::tempPath() + "/tour-XXXXXX");
    const QString pictures = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
    const QString documents = Settle_In(home.filePath("choir"));
    Set_Pace(10);
    const QString pace_error = Take_Pace_From_Environment();
    if (!pace_error.isEmpty()) {
        fprintf(stderr, "corvane-tour: %s\n", qPrintable(pace_error));
        return 2;
    }
    QApplication application(argc, argv);
    Command_Line command_line;
    command_line.demo = true;
    Program program(command_line);
    if (!program.Start())
        return 1;

    std::vector<Story::Message> inbox;
    QObject::connect(program.Phone_Of_The_Demo(), &Demo_Phone::Printed, &application,
                     [&inbox](const QByteArray& line) { Collect(inbox, line); });
    int status = 1;
    std::thread thread([&] {
        Walk walk(pictures, documents);
        status = Take_The_Tour(walk, program.Phone_Of_The_Demo()->Path(), inbox);
        Run_On_Interface_Thread([&] { program.Leave(); });
    });
    program.Run();
    thread.join();
    return status;
}
