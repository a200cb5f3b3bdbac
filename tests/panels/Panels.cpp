#include "panels/Panels.h"

#include "support/Serve_Until.h"

#include <QBasicTimer>
#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QFileDialog>
#include <QUrl>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

const QString Service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString Place = QStringLiteral("/org/freedesktop/portal/desktop");
const QString For_Tests = QStringLiteral("org.example.Tests");

// Answers what a program asks the portal, and what the tests ask about that.
class Portal : public QDBusVirtualObject
{
public:
    explicit Portal(const QString& bus) : m_bus(QDBusConnection::connectToBus(bus, QStringLiteral("panels"))) {}

    bool Is_There() { return m_bus.registerVirtualObject(Place, this) && m_bus.registerService(Service); }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        const QString what = message.member();
        if (what == u"Get") // which version they are of
            return connection.send(message.createReply(QVariant::fromValue(QDBusVariant(4U))));
        if (what == u"Will_Pick") {
            m_picks = message.arguments().value(0).toStringList();
            m_asked.clear();
            return connection.send(message.createReply());
        }
        if (what == u"Asked")
            return connection.send(message.createReply(QVariant(m_asked)));
        if (what != u"OpenFile" && what != u"SaveFile")
            return false;
        auto options = qdbus_cast<QVariantMap>(message.arguments().value(2));
        options[QStringLiteral("what")] = what;
        m_asked.append(options);
        connection.send(message.createReply(QVariant::fromValue(QDBusObjectPath(Request()))));
        m_answer.start(50, this); // again and again: who asks begins to listen only after the question
        return true;
    }

protected:
    void timerEvent(QTimerEvent*) override
    {
        const QString pick = m_picks.value(m_asked.size() - 1, QStringLiteral("none"));
        if (pick == u"none")
            return;
        auto response = QDBusMessage::createSignal(Request(), QStringLiteral("org.freedesktop.portal.Request"),
                                                   QStringLiteral("Response"));
        QVariantMap results;
        if (!pick.isEmpty())
            results[QStringLiteral("uris")] = QStringList{QUrl::fromLocalFile(pick).toString()};
        response << (pick.isEmpty() ? 1U : 0U) << results;
        m_bus.send(response);
    }

private:
    QString Request() const { return QStringLiteral("/request/%1").arg(m_asked.size()); }

    QDBusConnection m_bus;
    QBasicTimer m_answer;
    QStringList m_picks;
    QVariantList m_asked; // of maps
};

[[noreturn]] void Be_The_Portal(const QString& bus, int ready)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    int no_arguments = 0;
    QCoreApplication application(no_arguments, nullptr);
    Portal portal(bus);
    const char is_there = portal.Is_There() ? 'y' : 'n';
    ::_exit(::write(ready, &is_there, 1) == 1 && is_there == 'y' ? QCoreApplication::exec() : 1);
}

QDBusMessage Told(const char* what, const QVariantList& arguments = {})
{
    auto message = QDBusMessage::createMethodCall(Service, Place, For_Tests, QLatin1String(what));
    message.setArguments(arguments);
    const QDBusMessage reply = QDBusConnection::sessionBus().call(message);
    EXPECT_EQ(reply.type(), QDBusMessage::ReplyMessage) << reply.errorMessage().toStdString();
    return reply;
}

} // namespace

Panels::Panels(const QString& bus)
{
    int ready[2] = {-1, -1};
    EXPECT_EQ(::pipe(ready), 0);
    m_process = ::fork();
    if (m_process == 0)
        Be_The_Portal(bus, ready[1]);
    char is_there = 'n';
    EXPECT_EQ(::read(ready[0], &is_there, 1), 1);
    EXPECT_EQ(is_there, 'y') << "there are no panels on the bus";
    ::close(ready[0]);
    ::close(ready[1]);
}

Panels::~Panels()
{
    ::kill(m_process, SIGKILL);
    ::waitpid(m_process, nullptr, 0);
}

bool Panels::Are_Known()
{
    return Serve_Until([] { return !QFileDialog().layout(); });
}

void Panels::Will_Pick(const QStringList& paths)
{
    Told("Will_Pick", {paths});
}

QList<QVariantMap> Panels::Asked()
{
    QList<QVariantMap> asked;
    const auto argument = Told("Asked").arguments().value(0).value<QDBusArgument>();
    argument.beginArray();
    while (!argument.atEnd()) {
        QVariant one;
        argument >> one;
        asked.append(qdbus_cast<QVariantMap>(one));
    }
    argument.endArray();
    return asked;
}
