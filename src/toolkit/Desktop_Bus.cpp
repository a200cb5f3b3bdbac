#include "toolkit/Desktop_Bus.h"

#include "platform/Bus_Probe.h"
#include "platform/Descriptor.h"
#include "platform/Waiting.h"

#include <QDBusPendingCall>
#include <atomic>
#include <poll.h>
#include <sys/eventfd.h>

namespace {

constexpr double Longest_Answer = 2; // real seconds
constexpr double Between_Looks = 0.005;

// The library's own wait would not end with the program.
void Await(const QDBusPendingCall& call)
{
    const Descriptor silence(eventfd(0, EFD_CLOEXEC));
    const double end = Now_Seconds() + Longest_Answer;
    while (!call.isFinished() && !Program_Is_Exiting() && Now_Seconds() < end)
        Wait_For_Descriptor(silence.Number(), POLLIN, Between_Looks);
}

// Only the place, which is what was probed: an address may name the very bus that was there when the program started,
// and another may be there by now.
QDBusConnection Connection_To(const QString& address, const QString& name)
{
    const QString place = address.section(u';', 0, 0).section(u',', 0, 0);
    return Bus_Answers(place) ? QDBusConnection::connectToBus(place, name) : QDBusConnection(name);
}

// A socket that is there, rather than a program that would be started.
QString Only_A_Socket(const QString& address)
{
    const bool starts_something =
        address.contains(QLatin1String("autolaunch:")) || address.contains(QLatin1String("unixexec:"));
    return address.startsWith(QLatin1String("unix:")) && !starts_something ? address : QString();
}

QString Address_In(const char* variable, const QString& usual)
{
    const QString address = qEnvironmentVariable(variable);
    return Only_A_Socket(address.isEmpty() ? usual : address);
}

QString Fresh_Name()
{
    static std::atomic<int> count{0};
    return QStringLiteral("corvane-desktop-") + QString::number(++count);
}

} // namespace

Desktop_Buses Desktop_Buses::Of_This_Session()
{
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    const QString usual = folder.isEmpty() ? QString() : QStringLiteral("unix:path=") + folder + QStringLiteral("/bus");
    return {Address_In("DBUS_SESSION_BUS_ADDRESS", usual),
            Address_In("DBUS_SYSTEM_BUS_ADDRESS", QStringLiteral("unix:path=/run/dbus/system_bus_socket"))};
}

Desktop_Bus::Desktop_Bus(const QString& address) : m_name(Fresh_Name()), m_connection(Connection_To(address, m_name)) {}

Desktop_Bus::~Desktop_Bus()
{
    QDBusConnection::disconnectFromBus(m_name);
}

QVariant Desktop_Bus::Ask(QDBusMessage question, const char* signature, If_Not_Running what)
{
    question.setAutoStartService(what == If_Not_Running::Start);
    const QDBusPendingCall call = m_connection.asyncCall(question);
    Await(call);
    if (!call.isFinished())
        return {};
    const QDBusMessage answer = call.reply();
    if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != QLatin1String(signature))
        return {};
    return answer.arguments().value(0);
}
