// corvane-send: the same engine without a window.

#include "device/Stop_Flag.h"
#include "platform/Interface_Thread.h"
#include "platform/Pace.h"
#include "platform/System_Log.h"
#include "platform/Text_Files.h"
#include "send/Arguments.h"
#include "send/Help_Text.h"
#include "send/Send_Program.h"
#include "send/Stop_Signals.h"

#include <QCoreApplication>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {

int Fail(const Trouble& trouble)
{
    Complain(trouble);
    return trouble.status;
}

int Show(const QString& text)
{
    fprintf(stdout, "%s\n", text.toUtf8().constData());
    return Exit_Status::Done;
}

// A number that is free would be given to the journal or the device, which would then be printed to.
void Occupy_Standard_Descriptors()
{
    for (const int number : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (fcntl(number, F_GETFD) == -1)
            static_cast<void>(open("/dev/null", O_RDWR)); // takes the lowest that is free, and stays
}

int Run(int argc, char** argv, const Arguments& arguments)
{
    Stop_Signals::Keep_From_Threads();
    Keep_Log_Off_The_Terminal();
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("corvane"));
    int status = Exit_Status::Done;
    {
        Stop_Signals signals(Stop_SMS_Sending_Now);
        status = Send_Program(arguments, signals).Run();
    }
    Finish_Workers();
    return status;
}

} // namespace

int main(int argc, char** argv)
{
    Occupy_Standard_Descriptors();
    QStringList texts;
    for (int i = 0; i < argc; ++i) {
        const auto text = Decode_Utf8(argv[i]);
        if (!text)
            return Fail(
                {QStringLiteral("the arguments are not understood"), QStringLiteral("number %1 is no UTF-8").arg(i)});
        texts.append(*text);
    }
    const auto [arguments, trouble] = Read_Arguments(texts);
    if (trouble)
        return Fail(trouble);
    if (arguments.task == Arguments::Task::Show_Help)
        return Show(Help_Text());
    if (arguments.task == Arguments::Task::Show_Version)
        return Show(QStringLiteral("corvane-send " CORVANE_VERSION " (commit " CORVANE_COMMIT ", Qt %1)")
                        .arg(QLatin1String(qVersion())));
    if (const QString error = Take_Pace_From_Environment(); !error.isEmpty())
        return Fail({QStringLiteral("the environment cannot be used"), error.chopped(1)});
    return Run(argc, argv, arguments);
}
