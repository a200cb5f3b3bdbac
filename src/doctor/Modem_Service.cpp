#include "doctor/Modem_Service.h"

#include "doctor/Connection_Facts_Finder.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QMap>
#include <QVariantMap>
#include <atomic>

namespace {

constexpr int Longest_Answer = 2000; // real milliseconds
constexpr char Modem_Interface[] = "org.freedesktop.ModemManager1.Modem";

using Interfaces = QMap<QString, QVariantMap>;
using Objects = QMap<QDBusObjectPath, Interfaces>;

// A connection of its own, so that its end disturbs nobody.
class Bus
{
public:
    explicit Bus(const QString& address) : m_connection(Opened(address, m_name)) {}
    ~Bus() { QDBusConnection::disconnectFromBus(m_name); }
    Bus(const Bus&) = delete;
    Bus& operator=(const Bus&) = delete;

    QDBusConnection& Connection() { return m_connection; }

private:
    static QString Fresh_Name()
    {
        static std::atomic<int> count{0};
        return QStringLiteral("corvane-doctor-") + QString::number(++count);
    }
    static QDBusConnection Opened(const QString& address, const QString& name)
    {
        return address.isEmpty() ? QDBusConnection::connectToBus(QDBusConnection::SystemBus, name)
                                 : QDBusConnection::connectToBus(address, name);
    }

    const QString m_name = Fresh_Name();
    QDBusConnection m_connection;
};

// The property is a list of a name and a kind each: "a(su)".
QStringList Ports_In(const QVariant& property)
{
    QStringList ports;
    if (property.userType() != qMetaTypeId<QDBusArgument>())
        return ports;
    const auto list = property.value<QDBusArgument>();
    if (list.currentSignature() != QLatin1String("a(su)"))
        return ports;
    list.beginArray();
    while (!list.atEnd()) {
        QString name;
        uint kind = 0;
        list.beginStructure();
        list >> name >> kind;
        list.endStructure();
        ports.append(name);
    }
    list.endArray();
    return ports;
}

QList<Service_Modem> Modems_In(const QDBusMessage& answer)
{
    QList<Service_Modem> modems;
    if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != QLatin1String("a{oa{sa{sv}}}"))
        return modems;
    Objects objects;
    answer.arguments().constFirst().value<QDBusArgument>() >> objects;
    for (const Interfaces& interfaces : std::as_const(objects))
        if (interfaces.contains(QLatin1String(Modem_Interface)))
            modems.append({Ports_In(interfaces.value(QLatin1String(Modem_Interface)).value(QStringLiteral("Ports")))});
    return modems;
}

} // namespace

QList<Service_Modem> Modems_Of_The_Service(const System_Roots& roots)
{
    if (!Connection_Facts_Finder::Process_Runs(QStringLiteral("ModemManager"), roots.processes))
        return {};
    Bus bus(roots.bus);
    if (!bus.Connection().isConnected())
        return {};
    auto question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.ModemManager1"), QStringLiteral("/org/freedesktop/ModemManager1"),
        QStringLiteral("org.freedesktop.DBus.ObjectManager"), QStringLiteral("GetManagedObjects"));
    question.setAutoStartService(false);
    return Modems_In(bus.Connection().call(question, QDBus::Block, Longest_Answer));
}
