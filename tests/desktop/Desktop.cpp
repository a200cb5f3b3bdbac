#include "desktop/Desktop.h"

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

} // namespace

QString Desktop::Start()
{
    // The server picks a display that is free and writes its number; the window manager says when it is there.
    m_server.start(QStringLiteral("Xvfb"), {"-displayfd", "1", "-screen", "0", "1280x900x24", "-nolisten", "tcp"});
    const QString number = Next_Line(m_server);
    if (number.isEmpty())
        return QStringLiteral("Xvfb did not start: ") + m_server.errorString();
    qputenv("DISPLAY", QByteArray(":") + number.toLatin1());
    qputenv("QT_QPA_PLATFORM", "xcb");
    m_manager.start(QStringLiteral("openbox"), {"--sm-disable", "--startup", "echo ready"});
    for (;;) { // it may have something to say about its menus before
        const QString line = Next_Line(m_manager);
        if (line == QLatin1String("ready"))
            return {};
        if (line.isEmpty())
            return QStringLiteral("openbox did not start: ") + m_manager.errorString();
    }
}

Desktop::~Desktop()
{
    End(m_manager);
    End(m_server);
}
