#include "doctor/Modem_Service.h"

#include "doctor/Connection_Facts_Finder.h"
#include "doctor/Service_Answer.h"
#include "platform/Bus_Probe.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <atomic>

namespace {

constexpr int Longest_Answer = 2000; // real milliseconds
constexpr char Usual_Address[] = "unix:path=/run/dbus/system_bus_socket";

QString Address_Of_The_Bus(const System_Roots& roots)
{
    return roots.bus.isEmpty() ? qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS", QLatin1String(Usual_Address))
                               : roots.bus;
}

// A connection of its own, so that its end disturbs nobody.
class Bus
{
public:
    explicit Bus(const QString& address) : m_connection(QDBusConnection::connectToBus(address, m_name)) {}
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

    const QString m_name = Fresh_Name();
    QDBusConnection m_connection;
};

} // namespace

QList<Service_Modem> Modems_Of_The_Service(const System_Roots& roots)
{
    if (!Connection_Facts_Finder::Process_Runs(QStringLiteral("ModemManager"), roots.processes))
        return {};
    const QString address = Address_Of_The_Bus(roots);
    if (!Bus_Answers(address)) // the library would wait for one that hangs for a long time
        return {};
    Bus bus(address);
    if (!bus.Connection().isConnected())
        return {};
    auto question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.ModemManager1"), QStringLiteral("/org/freedesktop/ModemManager1"),
        QStringLiteral("org.freedesktop.DBus.ObjectManager"), QStringLiteral("GetManagedObjects"));
    question.setAutoStartService(false);
    return Modems_In(bus.Connection().call(question, QDBus::Block, Longest_Answer));
}
