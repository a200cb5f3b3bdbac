#include "support/Fake_Desktop.h"

#include "support/Serve_Until.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QDBusVirtualObject>
#include <QVariantMap>
#include <algorithm>
#include <gtest/gtest.h>
#include <poll.h>
#include <set>
#include <unistd.h>
#include <utility>

namespace {

const QString Its_Name = "the desktop";
const QString Echo = "Echo";

QString Words_Of(const QVariant& value)
{
    if (value.userType() == qMetaTypeId<QDBusArgument>())
        return Words_Of(QVariant(qdbus_cast<QVariantMap>(value)));
    if (value.userType() == QMetaType::QVariantMap) {
        QStringList words;
        const QVariantMap map = value.toMap();
        for (auto entry = map.begin(); entry != map.end(); ++entry)
            words.append(entry.key() + '=' + Words_Of(entry.value()));
        return '{' + words.join(' ') + '}';
    }
    if (value.userType() == QMetaType::UChar)
        return QString::number(value.toInt());
    return value.userType() == QMetaType::QStringList ? '[' + value.toStringList().join(' ') + ']' : value.toString();
}

} // namespace

class Fake_Desktop::Services : public QDBusVirtualObject
{
    Q_OBJECT

public:
    Services(const QString& bus, const QStringList& names) : m_connection(QDBusConnection::connectToBus(bus, Its_Name))
    {
        EXPECT_TRUE(m_connection.registerVirtualObject("/", this, QDBusConnection::SubPath));
        for (const QString& name : names)
            EXPECT_TRUE(m_connection.registerService(name)) << name.toStdString();
        EXPECT_TRUE(m_connection.connect({}, {}, "com.canonical.Unity.LauncherEntry", "Update", this,
                                         SLOT(Launcher_Update(QString, QVariantMap))));
        EXPECT_TRUE(m_connection.connect({}, {}, "corvane.Test", Echo, this, SLOT(Hear_Echo())));
    }
    ~Services() override
    {
        QDBusConnection::disconnectFromBus(Its_Name);
        if (m_lock >= 0)
            close(m_lock);
    }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

    bool Is_Kept_Awake() const
    {
        pollfd end{m_lock, POLLIN, 0};
        return m_lock >= 0 && poll(&end, 1, 0) == 0;
    }

    std::set<QString> m_refusing;
    std::set<QString> m_silent;
    QStringList m_heard;
    int m_echoes = 0;

private Q_SLOTS:
    void Launcher_Update(const QString& program, const QVariantMap& values)
    {
        m_heard.append("Launcher: " + program + ' ' + Words_Of(values));
    }
    void Hear_Echo() { ++m_echoes; }

private:
    QVariantList Answer_To(const QDBusMessage& message);
    QVariant Lock();

    QDBusConnection m_connection;
    int m_lock = -1; // the end of a pipe: at its end as soon as nobody holds the other
    uint m_notifications = 0;
};

bool Fake_Desktop::Services::handleMessage(const QDBusMessage& message, const QDBusConnection& connection)
{
    QString service = message.interface();
    for (const char* longer : {Login, Power})
        if (service.startsWith(longer))
            service = longer;
    QStringList words{message.member()};
    for (const QVariant& value : message.arguments())
        words.append(Words_Of(value));
    m_heard.append(service.section('.', -1) + ": " + words.join(" | "));
    if (m_silent.count(service) > 0)
        return true;
    if (m_refusing.count(service) > 0)
        return connection.send(message.createErrorReply(QDBusError::AccessDenied, "no"));
    return connection.send(message.createReply(Answer_To(message)));
}

QVariantList Fake_Desktop::Services::Answer_To(const QDBusMessage& message)
{
    if (message.member() == "Inhibit")
        return {message.interface().startsWith(Login) ? Lock() : QVariant(7U)};
    if (message.member() == "Notify") {
        const uint replaced = message.arguments().at(1).toUInt();
        return {replaced != 0 ? replaced : ++m_notifications};
    }
    return {};
}

QVariant Fake_Desktop::Services::Lock()
{
    int ends[2] = {-1, -1};
    EXPECT_EQ(pipe(ends), 0);
    if (m_lock >= 0)
        close(m_lock);
    m_lock = ends[0];
    const QDBusUnixFileDescriptor handed_out(ends[1]); // a copy
    close(ends[1]);
    return QVariant::fromValue(handed_out);
}

Fake_Desktop::Fake_Desktop(const QString& bus, const QStringList& services)
    : m_bus(bus), m_services(std::make_unique<Services>(bus, services))
{
}

Fake_Desktop::~Fake_Desktop() = default;

void Fake_Desktop::Refuses(const QString& service)
{
    m_services->m_refusing.insert(service);
}

void Fake_Desktop::Is_Silent(const QString& service)
{
    m_services->m_silent.insert(service);
}

// Whoever calls knows that all was sent, but not whether it has come. The bus delivers in order: what was sent before
// this signal has come when the signal has.
QStringList Fake_Desktop::Heard()
{
    const int echoes = m_services->m_echoes;
    auto bus = QDBusConnection::connectToBus(m_bus, Echo);
    EXPECT_TRUE(bus.send(QDBusMessage::createSignal("/", "corvane.Test", Echo)));
    EXPECT_TRUE(Serve_Until([&] { return m_services->m_echoes > echoes; }));
    QDBusConnection::disconnectFromBus(Echo);
    return std::exchange(m_services->m_heard, {});
}

bool Fake_Desktop::Has_Heard(const QString& beginning) const
{
    return std::any_of(m_services->m_heard.begin(), m_services->m_heard.end(),
                       [&](const QString& line) { return line.startsWith(beginning); });
}

bool Fake_Desktop::Is_Kept_Awake() const
{
    return m_services->Is_Kept_Awake();
}

#include "Fake_Desktop.moc"
