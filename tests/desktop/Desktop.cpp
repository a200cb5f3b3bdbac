#include "desktop/Desktop.h"

namespace {

constexpr int Patience = 20000; // milliseconds

QString First_Line(QProcess& process)
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
    const QString number = First_Line(m_server);
    if (number.isEmpty())
        return QStringLiteral("Xvfb did not start: ") + m_server.errorString();
    qputenv("DISPLAY", QByteArray(":") + number.toLatin1());
    qputenv("QT_QPA_PLATFORM", "xcb");
    m_manager.start(QStringLiteral("openbox"), {"--sm-disable", "--startup", "echo ready"});
    if (First_Line(m_manager) != QLatin1String("ready"))
        return QStringLiteral("openbox did not start: ") + m_manager.errorString();
    return {};
}

Desktop::~Desktop()
{
    End(m_manager);
    End(m_server);
}
