#include "doctor/Service_Answer.h"

#include "doctor/Small_Files.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QMap>
#include <QVariantMap>
#include <optional>

namespace {

constexpr char Modem_Interface[] = "org.freedesktop.ModemManager1.Modem";
constexpr char Network_Interface[] = "org.freedesktop.ModemManager1.Modem.Modem3gpp";
constexpr char Messaging_Interface[] = "org.freedesktop.ModemManager1.Modem.Messaging";

using Interfaces = QMap<QString, QVariantMap>;
using Objects = QMap<QDBusObjectPath, Interfaces>;
using Network = Device_State::Network;

// What the service calls MMModemState, MMModemStateFailedReason and MMModemLock.
enum State
{
    State_Failed = -1,
    State_Initializing = 1
};
enum Failed_Reason
{
    Failed_For_Missing_Card = 2,
    Failed_For_Card_Error = 3
};
enum Lock
{
    Lock_Unknown,
    Lock_None,
    Lock_Pin,
    Lock_Pin2, // this one and Lock_Puk2 are in nobody's way
    Lock_Puk,
    Lock_Puk2
};

// A property that holds a structure or a list, if it has this signature.
std::optional<QDBusArgument> Compound(const QVariant& property, const char* signature)
{
    if (property.userType() != qMetaTypeId<QDBusArgument>())
        return std::nullopt;
    const auto argument = property.value<QDBusArgument>();
    return argument.currentSignature() == QLatin1String(signature) ? std::optional(argument) : std::nullopt;
}

std::optional<int> Number(const QVariant& property)
{
    const int kind = property.userType();
    return kind == QMetaType::Int || kind == QMetaType::UInt ? std::optional(property.toInt()) : std::nullopt;
}

// The property is a list of a name and a kind each.
QStringList Ports_In(const QVariant& property)
{
    QStringList ports;
    const auto list = Compound(property, "a(su)");
    if (!list)
        return ports;
    list->beginArray();
    while (!list->atEnd()) {
        QString name;
        uint kind = 0;
        list->beginStructure();
        *list >> name >> kind;
        list->endStructure();
        ports.append(name);
    }
    list->endArray();
    return ports;
}

// Percent, and whether it is of late. Nothing at all is what a modem has that has not looked yet.
std::optional<int> Signal_In(const QVariant& property)
{
    const auto signal = Compound(property, "(ub)");
    if (!signal)
        return std::nullopt;
    uint percent = 0;
    bool is_of_late = false;
    signal->beginStructure();
    *signal >> percent >> is_of_late;
    signal->endStructure();
    return percent <= 100 && (percent > 0 || is_of_late) ? std::optional(static_cast<int>(percent)) : std::nullopt;
}

std::optional<int> Tries_In(const QVariant& property, int lock)
{
    const auto tries = Compound(property, "a{uu}");
    if (!tries)
        return std::nullopt;
    QMap<uint, uint> by_lock;
    *tries >> by_lock;
    constexpr uint Most = 10;
    const auto found = by_lock.constFind(static_cast<uint>(lock));
    return found != by_lock.cend() && *found <= Most ? std::optional(static_cast<int>(*found)) : std::nullopt;
}

Sim_State Card_In(const QVariantMap& modem)
{
    const int state = Number(modem.value(QStringLiteral("State"))).value_or(0);
    const int reason = Number(modem.value(QStringLiteral("StateFailedReason"))).value_or(0);
    if (state == State_Failed && reason == Failed_For_Missing_Card)
        return Sim_State::Missing;
    if (state == State_Failed && reason == Failed_For_Card_Error)
        return Sim_State::Failed;
    switch (Number(modem.value(QStringLiteral("UnlockRequired"))).value_or(Lock_Unknown)) {
    case Lock_Unknown:
        return state == State_Initializing ? Sim_State::Busy : Sim_State::Unknown;
    case Lock_None:
    case Lock_Pin2:
    case Lock_Puk2:
        return Sim_State::Ready;
    case Lock_Pin:
        return Sim_State::Pin_Needed;
    case Lock_Puk:
        return Sim_State::Puk_Needed;
    default:
        return Sim_State::Locked;
    }
}

// The service's numbers are those of 3GPP TS 27.007, 10.1.22.
Network Network_In(const QVariantMap& network)
{
    return Network_Of_Number(Number(network.value(QStringLiteral("RegistrationState"))).value_or(-1));
}

Service_Modem Modem_In(const Interfaces& interfaces)
{
    const QVariantMap modem = interfaces.value(QLatin1String(Modem_Interface));
    const auto name = [&](const char* property) { return Shown_Name(modem.value(QLatin1String(property)).toString()); };
    Service_Modem found;
    found.ports = Ports_In(modem.value(QStringLiteral("Ports")));
    found.label = (name("Manufacturer") + u' ' + name("Model")).trimmed();
    Device_State& state = found.state;
    state.line = Device_State::Line::Answers;
    state.card = Card_In(modem);
    if (state.card == Sim_State::Pin_Needed || state.card == Sim_State::Puk_Needed)
        state.tries = Tries_In(modem.value(QStringLiteral("UnlockRetries")),
                               state.card == Sim_State::Pin_Needed ? Lock_Pin : Lock_Puk);
    state.network = Network_In(interfaces.value(QLatin1String(Network_Interface)));
    state.signal_percent = Signal_In(modem.value(QStringLiteral("SignalQuality")));
    // Neither a modem nor its card nor its messaging has a property for the service centre that is stored. A message
    // has one: that of its sender's network, or the one that was asked for.
    state.centre = Device_State::Centre::Not_Asked;
    state.takes_messages = interfaces.contains(QLatin1String(Messaging_Interface));
    state.is_whole = state.card == Sim_State::Ready || state.card == Sim_State::Unknown;
    return found;
}

} // namespace

QList<Service_Modem> Modems_In(const QDBusMessage& answer)
{
    QList<Service_Modem> modems;
    if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != QLatin1String("a{oa{sa{sv}}}"))
        return modems;
    Objects objects;
    answer.arguments().constFirst().value<QDBusArgument>() >> objects;
    for (const Interfaces& interfaces : std::as_const(objects))
        if (interfaces.contains(QLatin1String(Modem_Interface)))
            modems.append(Modem_In(interfaces));
    return modems;
}
