#include "toolkit/Desktop_Services.h"

#include <QVariantMap>
#include <utility>

namespace {

constexpr int As_Long_As_The_Desktop_Likes = -1;
constexpr uchar Normal_Urgency = 1;

QDBusMessage Notifications_Call(const char* method)
{
    return QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.Notifications"),
                                          QStringLiteral("/org/freedesktop/Notifications"),
                                          QStringLiteral("org.freedesktop.Notifications"), QLatin1String(method));
}

// A server may take the text for markup.
QString Without_Markup(QString text)
{
    return text.replace(u'&', QLatin1String("&amp;"))
        .replace(u'<', QLatin1String("&lt;"))
        .replace(u'>', QLatin1String("&gt;"));
}

} // namespace

Desktop_Services::Desktop_Services(Desktop_Buses buses, QString desktop_id)
    : m_buses(std::move(buses)), m_desktop_id(std::move(desktop_id))
{
}

void Desktop_Services::Keep_Awake(const QString& reason)
{
    if (m_session && !m_session->Is_Open())
        m_session.reset(); // the bus went away: another may be there by now
    if (!m_session && !m_buses.session.isEmpty()) {
        m_session = std::make_unique<Desktop_Bus>(m_buses.session);
        m_notification = 0;
    }
    m_inhibitor.Hold(m_buses.system, Session(), reason);
}

void Desktop_Services::Let_Sleep()
{
    m_inhibitor.Release(Session());
}

Desktop_Bus* Desktop_Services::Session()
{
    return m_session && m_session->Is_Open() ? m_session.get() : nullptr;
}

void Desktop_Services::Show_Progress(double done)
{
    Tell_Launcher({{QStringLiteral("progress"), done}, {QStringLiteral("progress-visible"), true}});
}

void Desktop_Services::Hide_Progress()
{
    Tell_Launcher({{QStringLiteral("progress-visible"), false}});
}

// A signal: launchers that show progress listen for it, and nobody else does.
void Desktop_Services::Tell_Launcher(const QVariantMap& values)
{
    if (!Session())
        return;
    QDBusMessage signal =
        QDBusMessage::createSignal(QStringLiteral("/com/canonical/unity/launcherentry/1"),
                                   QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update"));
    signal << QString(QStringLiteral("application://") + m_desktop_id + QStringLiteral(".desktop")) << values;
    Session()->Tell(signal);
}

void Desktop_Services::Notify(const QString& title, const QString& text)
{
    if (!Session())
        return;
    QDBusMessage question = Notifications_Call("Notify");
    question << QStringLiteral("Corvane") << m_notification << m_desktop_id << title << Without_Markup(text)
             << QStringList()
             << QVariantMap{{QStringLiteral("desktop-entry"), m_desktop_id},
                            {QStringLiteral("urgency"), QVariant::fromValue(Normal_Urgency)}}
             << As_Long_As_The_Desktop_Likes;
    m_notification = Session()->Ask(question, "u", Desktop_Bus::If_Not_Running::Start).toUInt();
}

void Desktop_Services::Withdraw_Notification()
{
    if (m_notification == 0 || !Session())
        return;
    QDBusMessage question = Notifications_Call("CloseNotification");
    question << std::exchange(m_notification, 0U);
    Session()->Ask(question, "");
}
