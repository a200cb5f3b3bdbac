#include "send/Device_Choice.h"

#include "device/Confirmed_Session.h"
#include "device/Found_Port_List.h"
#include "device/MFCSMS.h"
#include "doctor/Connection_Facts_Finder.h"
#include "doctor/Phone_Search.h"

#include <QFileInfo>

namespace {

class Found_Paths : public Found_Port_List
{
public:
    void Insert_port_in_List(const QString& path) override { m_paths.append(path); }
    const QStringList& Paths() const { return m_paths; }

private:
    QStringList m_paths;
};

QStringList Ports_That_Open()
{
    MFCSMS session;
    Found_Paths found;
    Search_Phones(session, found);
    return found.Paths();
}

bool Answers(const QString& path)
{
    Confirmed_Session session(path);
    const auto opening = session.Open();
    session.Close();
    return opening == Confirmed_Session::Opening::Ready || opening == Confirmed_Session::Opening::No_Messages;
}

QString Why_Barred(const Connection_Facts::Barred_Port& port)
{
    return port.group.isEmpty() ? QStringLiteral("this account may not open %1").arg(port.path)
                                : QStringLiteral("%1 is for the group %2").arg(port.path, port.group);
}

QString Why_Nothing_Answers(const QStringList& given)
{
    if (!given.isEmpty())
        return QStringLiteral("asked were ") + given.join(QLatin1String(", "));
    const Connection_Facts facts = Connection_Facts_Finder::Find();
    if (!facts.barred_ports.isEmpty())
        return Why_Barred(facts.barred_ports.constFirst());
    return facts.ports_found == 0 ? QStringLiteral("there is no serial port") : QStringLiteral("no serial port does");
}

} // namespace

Device_Choice Choose_Device(const QStringList& given, const QString& preferred)
{
    if (given.size() == 1)
        return {given.constFirst(), {}};
    if (given.isEmpty() && !preferred.isEmpty() && Answers(preferred))
        return {preferred, {}};
    QStringList answering;
    const QStringList asked = given.isEmpty() ? Ports_That_Open() : given;
    for (const QString& path : asked)
        if (Answers(path))
            answering.append(path);
    if (answering.size() == 1)
        return {answering.constFirst(), {}};
    if (answering.isEmpty())
        return {{}, {QStringLiteral("no modem answers"), Why_Nothing_Answers(given), Exit_Status::No_Device}};
    return {{},
            {QStringLiteral("several modems answer"),
             answering.join(QLatin1String(", ")) + QStringLiteral("; --device chooses one")}};
}

Trouble Why_It_Does_Not_Open(const QString& path)
{
    Trouble trouble{path + QLatin1String(" cannot be opened"),
                    QStringLiteral("another program uses it, or it is no serial device"), Exit_Status::No_Device};
    if (!QFileInfo::exists(path))
        trouble.why = QStringLiteral("there is no such device");
    else if (const auto barred = Connection_Facts_Finder::Barred_Port_At(path))
        trouble.why = Why_Barred(*barred);
    return trouble;
}
