#pragma once

#include <QProcess>
#include <csignal>
#include <gtest/gtest.h>

// A message bus of a test's own, which nobody else is on.
class Private_Bus
{
public:
    /// At this address, or at one of its own choice.
    explicit Private_Bus(const QString& address = {})
    {
        QStringList arguments{"--session", "--nofork", "--nopidfile", "--print-address"};
        if (!address.isEmpty())
            arguments.append("--address=" + address);
        m_daemon.start("dbus-daemon", arguments);
        EXPECT_TRUE(m_daemon.waitForReadyRead(20'000)) << m_daemon.errorString().toStdString();
        m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
    }
    ~Private_Bus()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    /// From now on it says nothing.
    void Hang() { ::kill(static_cast<pid_t>(m_daemon.processId()), SIGSTOP); }
    const QString& Address() const { return m_address; }

private:
    QProcess m_daemon;
    QString m_address;
};
