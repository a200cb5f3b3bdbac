#include "app/Command_Line.h"
#include "app/Program.h"
#include "platform/Pace.h"

#include <QApplication>
#include <cstdio>

namespace {

QStringList Arguments(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

int Say_And_End(const QString& line, bool is_mistaken)
{
    fprintf(is_mistaken ? stderr : stdout, "%s\n", line.toLocal8Bit().constData());
    return is_mistaken ? 2 : 0;
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
    const Command_Line command_line = Read_Command_Line(Arguments(argc, argv), QStringLiteral(CORVANE_VERSION));
    if (!command_line.answer.isEmpty())
        return Say_And_End(command_line.answer, command_line.is_mistaken);
    const QString pace_error = Take_Pace_From_Environment();
    if (!pace_error.isEmpty())
        return Say_And_End(QStringLiteral("corvane: ") + pace_error, true);
    if (!Has_Display())
        return Say_And_End(QStringLiteral("corvane: there is no display to open a window on."), true);

    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("corvane"));
    QApplication::setApplicationDisplayName(QStringLiteral("Corvane"));
    QApplication::setApplicationVersion(QStringLiteral(CORVANE_VERSION));
    Program program(command_line);
    return program.Start() ? program.Run() : 1;
}
