#include "app/Command_Line.h"
#include "app/Program.h"
#include "platform/Pace.h"
#include "platform/Single_Start.h"
#include "records/Data_Paths.h"
#include "records/Program_Settings.h"
#include "toolkit/Guarded_Application.h"
#include "toolkit/Languages.h"

#include <QFileInfo>
#include <cstdio>

namespace {

QStringList Arguments(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

int Say_And_End(const QString& line, int status)
{
    fprintf(status == 0 ? stdout : stderr, "%s\n", line.toLocal8Bit().constData());
    return status;
}

QString Version()
{
    return QStringLiteral(CORVANE_VERSION " (commit " CORVANE_COMMIT ", Qt %1)").arg(QLatin1String(qVersion()));
}

bool Has_Display()
{
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

} // namespace

int main(int argc, char** argv)
{
    // Answered before the application object is made, which needs a display.
    const Command_Line command_line = Read_Command_Line(Arguments(argc, argv), Version());
    if (!command_line.answer.isEmpty())
        return Say_And_End(command_line.answer, command_line.is_mistaken ? 2 : 0);
    const QString pace_error = Take_Pace_From_Environment();
    if (!pace_error.isEmpty())
        return Say_And_End(QStringLiteral("corvane: ") + pace_error, 2);
    if (!Has_Display())
        return Say_And_End(QStringLiteral("corvane: there is no display to open a window on."), 2);

    // Outlives everything that writes, and precedes everything that reads.
    Single_Start single_start(QFileInfo(Default_Resource_Path()).path());
    switch (single_start.Begin()) {
    case Single_Start::Outcome::First:
        break;
    case Single_Start::Outcome::Shown:
        return Say_And_End(QStringLiteral("corvane: the program is running already; here is its window."), 0);
    case Single_Start::Outcome::No_Answer:
        return Say_And_End(QStringLiteral("corvane: the program is running already, but does not answer."), 1);
    }

    Guarded_Application application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("corvane"));
    QApplication::setApplicationDisplayName(QStringLiteral("Corvane"));
    QApplication::setApplicationVersion(QStringLiteral(CORVANE_VERSION));
    QApplication::setDesktopFileName(QStringLiteral(CORVANE_ID)); // by which a desktop finds the icon
    const Program_Settings settings(Settings_Beside(Default_Resource_Path()));
    Read_In(Language_To_Read(settings.Language(), Languages_Of_The_Desktop()));
    Program program(command_line, &single_start);
    return program.Start() ? program.Run() : 1;
}
