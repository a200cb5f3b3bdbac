#include "desktop/Held_Window_Manager.h"
#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"
#include "support/User.h"
#include "toolkit/X_Server_Focus.h"

#include <QApplication>
#include <QProcess>
#include <cstdio>
#include <gmock/gmock.h>

namespace {

constexpr int Patience = 20000; // milliseconds

QString Next_Line(QProcess& process)
{
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(Patience))
            return {};
    }
    return QString::fromLatin1(process.readLine()).trimmed();
}

void End(QProcess& process)
{
    process.terminate();
    if (!process.waitForFinished(Patience))
        process.kill();
}

// An X server that nobody sees and a window manager on it, for the life of this object. The windows of an application
// that is made meanwhile stand there, and get and lose the keyboard as they do on a desktop.
class Desktop
{
public:
    /// Starts both and makes the display that of this process. Empty when that went well, or what failed.
    QString Start();
    ~Desktop();

private:
    QProcess m_server;
    QProcess m_manager;
};

QString Desktop::Start()
{
    // The server picks a display that is free and writes its number; the window manager says when it is there.
    m_server.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1280x900x24", "-nolisten", "tcp"});
    const QString number = Next_Line(m_server);
    if (number.isEmpty())
        return QStringLiteral("Xvfb did not start: ") + m_server.errorString();
    qputenv("DISPLAY", QByteArray(":") + number.toLatin1());
    qputenv("QT_QPA_PLATFORM", "xcb");
    m_manager.start("openbox", {"--sm-disable", "--startup", "echo ready"});
    for (;;) { // it may have something to say about its menus before
        const QString line = Next_Line(m_manager);
        if (line == "ready") {
            Held_Window_Manager::process = static_cast<pid_t>(m_manager.processId());
            return {};
        }
        if (line.isEmpty())
            return QStringLiteral("openbox did not start: ") + m_manager.errorString();
    }
}

Desktop::~Desktop()
{
    End(m_manager);
    End(m_server);
}

} // namespace

// What LeakSanitizer, where the program is built with it, passes over: what a library of the desktop keeps until the
// process ends.
extern "C" const char* __lsan_default_suppressions() // NOLINT: the sanitizer's name
{
    return "leak:libdbus-1.so\n";
}

int main(int argument_count, char** arguments)
{
    testing::InitGoogleMock(&argument_count, arguments);
    if (GTEST_FLAG_GET(list_tests)) // which needs no desktop
        return RUN_ALL_TESTS();
    Desktop desktop;
    const QString failure = desktop.Start();
    if (!failure.isEmpty()) {
        fprintf(stderr, "%s\n", qPrintable(failure));
        return 1;
    }
    QApplication application(argument_count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    Mend_X_Server_Focus(); // as the program does at its start
    Fail_On_Boxes_Without_A_User();
    const int result = RUN_ALL_TESTS();
    Begin_Program_Exit();
    Finish_Workers();
    return result;
}
