#include "doctor/Port_Doctor.h"

#include "device/Device_Paths.h"
#include "doctor/Connection_Facts_Finder.h"
#include "doctor/Device_Findings.h"
#include "doctor/Device_Questions.h"
#include "doctor/Port_Findings.h"
#include "doctor/Wwan_Ports.h"
#include "platform/Waiting.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>

namespace {

// The modem of the service that has a port; -1 for none.
qsizetype Modem_With_Port(const QList<Service_Modem>& service, const Port_Facts& port)
{
    const QString name = QFileInfo(port.node).fileName();
    const auto modem = std::find_if(service.begin(), service.end(),
                                    [&](const Service_Modem& each) { return each.ports.contains(name); });
    return modem == service.end() ? -1 : modem - service.begin();
}

// A socket of the mainboard that is for root alone is no news; one that somebody named is meant.
bool Is_Root_Only_Socket(const Port_Facts& port, const Connection_Facts::Barred_Port& barred)
{
    return port.place == Port_Facts::Place::Mainboard && barred.group.isEmpty() &&
           !Extra_Device_Paths().contains(port.path);
}

} // namespace

QList<Finding> Obstacles_Of_Port(const Port_Facts& port, const QList<Service_Modem>& service, const System_Roots& roots)
{
    if (!May_Take_Commands(port.use))
        return {Port_Findings::On_Use(port)};
    if (const auto barred = Connection_Facts_Finder::Barred_Port_At(port.path))
        return {Port_Findings::On_Missing_Right(port, *barred)};
    if (Modem_With_Port(service, port) >= 0)
        return {Port_Findings::On_Service(port)};
    QList<Finding> findings;
    for (const Port_Holder& holder : Holders_Of_Port(port.path, roots))
        findings.append(Port_Findings::On_Holder(port, holder));
    return findings;
}

Port_Doctor::Port_Doctor(Wishes wishes, const Port_Finder& finder, Serial_Calls& calls)
    : m_wishes(std::move(wishes)), m_finder(finder), m_calls(calls)
{
}

QStringList Port_Doctor::Look()
{
    for (const auto& device :
         m_wishes.paths.isEmpty() ? Devices_In_Another_Mode(m_wishes.roots) : QList<Device_In_Another_Mode>())
        Tell(Port_Findings::On_Other_Mode(device));
    m_service = Modems_Of_The_Service(m_wishes.roots);
    const QList<Port_Facts> ports = Facts_In_Order(Paths_To_Look_At(), m_wishes.roots);
    const auto is_among = [&](const QString& path) {
        return std::any_of(ports.begin(), ports.end(), [&](const Port_Facts& port) { return port.path == path; });
    };
    const bool has_some = std::any_of(
        ports.begin(), ports.end(), [](const Port_Facts& port) { return port.place != Port_Facts::Place::Mainboard; });
    const QStringList wwan = m_wishes.paths.isEmpty() ? Wwan_Ports(m_wishes.roots) : QStringList();
    if (!has_some && wwan.isEmpty() && m_wishes.paths.isEmpty())
        Tell(Port_Findings::On_No_Port());
    QList<Port_Facts> free;
    for (const Port_Facts& port : ports)
        if (!Is_Over() && Is_Free(port))
            free.append(port);
    for (const QString& path : wwan)
        if (!Is_Over() && !is_among(path))
            Tell_About_Wwan_Port(path);
    if (m_wishes.asks_devices)
        Ask(free);
    return m_ready;
}

QStringList Port_Doctor::Paths_To_Look_At() const
{
    QStringList paths = m_wishes.paths;
    if (paths.isEmpty()) {
        Modem_Iterator found;
        m_finder.Find_Ports(found);
        while (const auto entry = found.Next())
            if (entry->m_callout_path)
                paths.append(QFile::decodeName(*entry->m_callout_path));
    }
    paths.removeDuplicates();
    return paths;
}

void Port_Doctor::Tell(const Finding& finding) const
{
    if (m_wishes.on_finding)
        m_wishes.on_finding(finding);
}

bool Port_Doctor::Is_Over() const
{
    return Program_Is_Exiting() || (m_wishes.is_over && m_wishes.is_over());
}

bool Port_Doctor::Is_Free(const Port_Facts& port)
{
    if (!QFileInfo::exists(port.path)) {
        Tell(Port_Findings::On_Missing_Port(port.path));
        return false;
    }
    const auto barred = Connection_Facts_Finder::Barred_Port_At(port.path);
    if (barred && Is_Root_Only_Socket(port, *barred) && !m_wishes.paths.contains(port.path))
        return false;
    const QList<Finding> obstacles = Obstacles_Of_Port(port, m_service, m_wishes.roots);
    for (const Finding& obstacle : obstacles)
        Tell(obstacle);
    if (!obstacles.isEmpty())
        Tell_What_The_Service_Says(Modem_With_Port(m_service, port), port.path);
    if (obstacles.isEmpty() && port.place != Port_Facts::Place::Mainboard)
        Tell(Port_Findings::On_Use(port));
    return obstacles.isEmpty();
}

void Port_Doctor::Tell_About_Wwan_Port(const QString& path)
{
    Port_Facts port = Facts_Of_Port(path, m_wishes.roots);
    const qsizetype modem = Modem_With_Port(m_service, port);
    if (modem >= 0)
        port.product = m_service[modem].label;
    Tell(Port_Findings::On_Wwan_Port(port));
    Tell_What_The_Service_Says(modem, path);
}

// Once, however many ports the modem has.
void Port_Doctor::Tell_What_The_Service_Says(qsizetype modem, const QString& path)
{
    if (modem < 0 || m_told_modems.contains(modem))
        return;
    m_told_modems.insert(modem);
    for (const Finding& finding : Findings_About_Card_And_Network(path, m_service[modem].state))
        Tell(finding);
}

void Port_Doctor::Ask(const QList<Port_Facts>& ports)
{
    for (const Port_Facts& port : ports) {
        if (Is_Over())
            return;
        if (!Is_Worth_Asking(port))
            continue;
        if (m_wishes.on_looking_at)
            m_wishes.on_looking_at(port.Name());
        Ask(port);
    }
    if (!Is_Over())
        Tell_About_The_Silent();
}

// One port of a device is enough. Opening a Bluetooth port makes a call, and on a socket of the mainboard there is
// mostly nothing: both only where nothing else has answered, or somebody named them.
bool Port_Doctor::Is_Worth_Asking(const Port_Facts& port) const
{
    if (!port.device.isEmpty() && m_answering_devices.contains(port.device))
        return false;
    const bool is_last_resort =
        port.place == Port_Facts::Place::Bluetooth || port.place == Port_Facts::Place::Mainboard;
    return !is_last_resort || !m_something_answers || m_wishes.paths.contains(port.path);
}

void Port_Doctor::Ask(const Port_Facts& port)
{
    const Device_State state = Ask_Device(port.path, m_wishes.is_over, m_calls);
    if (Is_Over() && !state.is_whole)
        return;
    if (state.line == Device_State::Line::Silent) {
        m_silent.append(port);
        return;
    }
    if (state.line == Device_State::Line::Answers) {
        m_answering_devices.insert(port.device);
        m_something_answers = true;
    }
    const QList<Finding> findings = Findings_About_Device(port, state);
    for (const Finding& finding : findings)
        Tell(finding);
    if (Is_In_Order(findings))
        m_ready.append(port.path);
}

// A device with several ports is silent only if all of them are.
void Port_Doctor::Tell_About_The_Silent()
{
    Device_State silent;
    silent.line = Device_State::Line::Silent;
    for (const Port_Facts& port : std::as_const(m_silent))
        if (port.device.isEmpty() || !m_answering_devices.contains(port.device))
            Tell(Findings_About_Device(port, silent).constFirst());
}
