#include "app/Program.h"
#include "platform/Pace.h"
#include "toolkit/Demo_Phone.h"
#include "toolkit/Languages.h"
#include "tour/Contacts_Walk.h"
#include "tour/Inbox.h"
#include "tour/Killed_Program.h"
#include "tour/Told.h"
#include "tour/Visited_Program.h"
#include "tour/Walk.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <cstdio>

// A walk through the real program with the virtual phone: its windows are clicked and typed into as a person would,
// each is photographed, a list is sent, and what the phone received, what the program keeps and what it exported are
// held against what they must be. A second list goes out message by message, in a program that is killed meanwhile and
// started again. Exit status 0 only when all is the same. Usage: corvane-tour <picture folder> [<home>]
// Given a home, the tour leaves it as the first program has made it. With CORVANE_TOUR_LANGUAGE=de all of it is in
// German.

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

int Take_The_Tour(const QString& pictures, const QString& documents)
{
    Inbox inbox;
    Command_Line command_line;
    command_line.demo = true;
    return Run_Visited(
        command_line,
        [&](Program& program) {
            QObject::connect(program.Phone_Of_The_Demo(), &Demo_Phone::Printed, qApp,
                             [&inbox](const QByteArray& line) { Collect(inbox, line); });
        },
        [&](Program& program) {
            Walk walk(pictures, documents);
            walk.Go(program.Phone_Of_The_Demo()->Path());
            auto written = Story::Messages();
            walk.Await_Until("the phone to have everything", [&] { return inbox.size() >= written.size(); });
            Expect_Exactly(inbox, written);
            Contacts_Walk(pictures).Send_To_People([&inbox, before = inbox.size()](int count) {
                return inbox.size() >= before + static_cast<std::size_t>(count);
            });
            const auto to_people = Story::Messages_To_People();
            written.insert(written.end(), to_people.begin(), to_people.end());
            walk.Await_Until("the phone to have the rest", [&] { return inbox.size() >= written.size(); });
            Expect_Exactly(inbox, written);
        });
}

} // namespace

int main(int argc, char** argv)
{
    QStringList words;
    for (int word = 1; word < argc; ++word)
        words.append(QString::fromLocal8Bit(argv[word]));
    if (words.isEmpty() || words.size() > 3) {
        fprintf(stderr, "Usage: corvane-tour <picture folder> [<home>]\n");
        return 2;
    }
    const QTemporaryDir folder(QDir::tempPath() + "/tour-XXXXXX");
    const bool is_whole = words.size() < 3;
    const QString home = words.size() == 2 ? QDir(words.at(1)).absolutePath() : folder.filePath("choir");
    const QString pictures = QDir(words.at(is_whole ? 0 : 1)).absolutePath();
    const QString documents = is_whole ? Settle_In(home) : QString();
    Set_Pace(10);
    const QString pace_error = Take_Pace_From_Environment();
    if (!pace_error.isEmpty()) {
        fprintf(stderr, "corvane-tour: %s\n", qPrintable(pace_error));
        return 2;
    }
    const QApplication application(argc, argv);
    Read_In(Told("en", "de"));
    if (words.constFirst() == Until_Killed)
        return Run_Until_Killed(pictures, words.constLast());
    if (words.constFirst() == After_The_Kill)
        return Run_After_The_Kill(pictures, words.constLast());
    const int status = Take_The_Tour(pictures, documents);
    return status != 0 ? status : Tour_Of_A_Killed_Program(pictures, folder.path());
}
