#include "toolkit/Demo_Phone.h"

#include "platform/Pace.h"
#include "platform/Waiting.h"

Demo_Phone::Demo_Phone(QObject* parent) : QObject(parent)
{
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &Demo_Phone::Read_Lines);
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
}

Demo_Phone::~Demo_Phone()
{
    m_process.closeWriteChannel(); // the phone ends when its standard input does
    Wait_Seconds_Unless(1.0 * Pace(), [this] { return m_process.state() == QProcess::NotRunning; });
    if (!m_process.waitForFinished(500))
        m_process.kill();
    m_process.waitForFinished(500);
}

QString Demo_Phone::Start(const QString& program)
{
    const QString link = m_folder.filePath(QStringLiteral("demo-phone"));
    m_process.start(program, {QStringLiteral("--until-stdin-closes"), QStringLiteral("--link"), link});
    const double five_real_seconds = 5.0 * Pace();
    Wait_Seconds_Unless(five_real_seconds,
                        [this] { return !m_path.isEmpty() || m_process.state() == QProcess::NotRunning; });
    if (m_path.isEmpty())
        m_error = tr("The virtual phone could not be started: %1: %2").arg(program, m_process.errorString());
    return m_path;
}

void Demo_Phone::Read_Lines()
{
    while (m_process.canReadLine()) {
        const QByteArray line = m_process.readLine().trimmed();
        if (m_path.isEmpty()) // the first line is the line's own path; the link to it has a name that says what it is
            m_path = m_folder.filePath(QStringLiteral("demo-phone"));
        else
            Q_EMIT Printed(line);
    }
}
