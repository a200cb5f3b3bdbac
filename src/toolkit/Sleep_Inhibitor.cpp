#include "toolkit/Sleep_Inhibitor.h"

#include <array>

namespace {

// Session services that keep the computer awake, the first one without keeping the screen lit.
struct Service
{
    const char* name;
    const char* path;
    const char* interface;

    QDBusMessage Call(const char* method) const
    {
        return QDBusMessage::createMethodCall(QLatin1String(name), QLatin1String(path), QLatin1String(interface),
                                              QLatin1String(method));
    }
};

constexpr std::array<Service, 2> Services{
    {{"org.freedesktop.PowerManagement", "/org/freedesktop/PowerManagement/Inhibit",
      "org.freedesktop.PowerManagement.Inhibit"},
     {"org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver", "org.freedesktop.ScreenSaver"}}};

constexpr Service Login{"org.freedesktop.login1", "/org/freedesktop/login1", "org.freedesktop.login1.Manager"};

const QString Program = QStringLiteral("Corvane");

QDBusUnixFileDescriptor Lock_Of_The_Login_Service(const QString& bus_address, const QString& reason)
{
    if (bus_address.isEmpty())
        return {};
    Desktop_Bus bus(bus_address);
    if (!bus.Is_Open())
        return {};
    QDBusMessage question = Login.Call("Inhibit");
    question << QStringLiteral("sleep:idle") << Program << reason << QStringLiteral("block");
    return bus.Ask(question, "h").value<QDBusUnixFileDescriptor>();
}

} // namespace

void Sleep_Inhibitor::Hold(const QString& system_bus, Desktop_Bus* session, const QString& reason)
{
    if (m_lock.isValid() || m_service >= 0)
        return;
    m_lock = Lock_Of_The_Login_Service(system_bus, reason);
    if (!m_lock.isValid() && session)
        Hold_By_Session(*session, reason);
}

void Sleep_Inhibitor::Hold_By_Session(Desktop_Bus& session, const QString& reason)
{
    for (std::size_t index = 0; index < Services.size(); ++index) {
        QDBusMessage question = Services[index].Call("Inhibit");
        question << Program << reason;
        const QVariant cookie = session.Ask(question, "u");
        if (!cookie.isValid())
            continue;
        m_cookie = cookie.toUInt();
        m_service = static_cast<int>(index);
        return;
    }
}

void Sleep_Inhibitor::Release(Desktop_Bus* session)
{
    m_lock = {};
    if (m_service >= 0 && session) {
        QDBusMessage question = Services[static_cast<std::size_t>(m_service)].Call("UnInhibit");
        question << m_cookie;
        session->Ask(question, "");
    }
    m_service = -1;
}
