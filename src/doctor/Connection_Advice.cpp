#include "doctor/Connection_Advice.h"

#include "doctor/Small_Files.h"

#include <QCoreApplication>

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(Connection_Advice)
};

QString Joined(const QStringList& paths)
{
    return paths.join(QStringLiteral(", "));
}

} // namespace

QList<Advice> Connection_Advice::For(const Connection_Facts& facts)
{
    QList<Advice> advice;
    if (facts.ports_found == 0)
        advice.append(On_No_Port());
    advice.append(On_Barred_Ports(facts.barred_ports));
    if (facts.modem_manager_runs)
        advice.append(On_Modem_Manager());
    return advice;
}

Advice Connection_Advice::On_No_Port()
{
    return {
        Words::tr(
            "No phone or modem was found on USB or Bluetooth. Switch it on and connect it as described above; it may "
            "take some seconds until it appears. A modem on a serial socket of the computer itself is offered all the "
            "same, as ttyS0 or another ttyS, where your account may open it."),
        {}};
}

// One advice per group, in order of appearance, so that one command serves all its ports.
QList<Advice> Connection_Advice::On_Barred_Ports(const QList<Connection_Facts::Barred_Port>& ports)
{
    QStringList groups;
    for (const auto& port : ports)
        if (!groups.contains(port.group))
            groups.append(port.group);

    QList<Advice> advice;
    for (const auto& group : groups) {
        QStringList paths;
        for (const auto& port : ports)
            if (port.group == group)
                paths.append(Short_Path(port.path));
        if (group.isEmpty())
            advice.append({Words::tr("Your account may not open %1. Only the system's administrator can allow it.")
                               .arg(Joined(paths)),
                           {}});
        else
            advice.append({Words::tr("Your account may not open %1. Members of this group may: %2. Join it with this "
                                     "command, then log out and in again:")
                               .arg(Joined(paths), group),
                           QStringLiteral("sudo usermod -aG ") + group + QStringLiteral(" $USER")});
    }
    return advice;
}

Advice Connection_Advice::On_Modem_Manager()
{
    return {Words::tr("The service ModemManager is running and may hold the device's port. If the device is not found "
                      "or does not "
                      "answer, stop the service until the next start of the computer:"),
            QStringLiteral("sudo systemctl stop ModemManager")};
}
