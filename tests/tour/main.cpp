#include "app/Demo_Phone.h"
#include "app/Program.h"
#include "platform/Interface_Thread.h"
#include "platform/Pace.h"
#include "tour/Story.h"
#include "tour/Visitor.h"
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

struct Places
{
    QString pictures;
    QString documents; // where the file panels begin
};

// A home of the tour's own, with nothing in it: neither are the user's own files touched nor do they get into pictures.
Places Settle_In(const QString& home, const QString& pictures)
{
    const Places places{QDir(pictures).absolutePath(), home + QStringLiteral("/Documents")};
    QDir().mkpath(places.documents);
    QDir::setCurrent(places.documents);
    qputenv("HOME", home.toUtf8());
    qputenv("XDG_DATA_HOME", (home + QStringLiteral("/.local/share")).toUtf8());
    return places;
}

// Collects what the phone prints; the phone prints a line for each part, and one for each complete message.
void Collect(std::vector<Story::Message>& inbox, const QByteArray& line)
{
    const auto object = QJsonDocument::fromJson(line).object();
    if (object.value(QStringLiteral("event")) == QStringLiteral("message"))
        inbox.push_back(
            {object.value(QStringLiteral("number")).toString(), object.value(QStringLiteral("text")).toString()});
}

void Walk_Through(Walk& walk, const QString& phone_path)
{
    walk.Choose_The_Phone(phone_path);
    walk.Keep_Exclusion_Lists();
    walk.Keep_Templates();
    walk.Fill_The_List();
    walk.Edit_The_List();
    walk.Export_The_Contacts();
    walk.Send_The_List();
    walk.Look_At_Sent_Items();
    walk.Look_At_Templates();
    walk.Look_At_The_Rest();
}

int Take_The_Tour(const Places& places, const QString& phone_path, const std::vector<Story::Message>& inbox)
{
    try {
        Visitor visitor(places.pictures);
        Story::Write_Files(places.documents);
        Walk walk(visitor, places.documents);
        Walk_Through(walk, phone_path);
        const auto written = Story::Messages();
        visitor.Await_Until(QStringLiteral("the phone to have everything"),
                            [&] { return inbox.size() >= written.size(); });
        if (inbox != written)
            throw Tour_Failed(QStringLiteral("the phone received something else than was written"));
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
    const QTemporaryDir home(QDir::tempPath() + QStringLiteral("/tour-XXXXXX"));
    const Places places = Settle_In(home.filePath(QStringLiteral("choir")), QString::fromLocal8Bit(argv[1]));
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
    std::thread walk([&] {
        status = Take_The_Tour(places, program.Phone_Of_The_Demo()->Path(), inbox);
        Run_On_Interface_Thread([&] { program.Leave(); });
    });
    program.Run();
    walk.join();
    return status;
}
