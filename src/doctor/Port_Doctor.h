#pragma once

#include "device/Port_Finder.h"
#include "device/Serial_Calls.h"
#include "doctor/Finding.h"
#include "doctor/Modem_Service.h"
#include "doctor/Port_Facts.h"

#include <QSet>
#include <functional>

// Looks why a phone or modem does not show or cannot send: at what is plugged in, the right to open it, who has it, and
// then, where it is allowed to ask, at what the device says. Nothing is sent and no PIN is tried. Made for one look, on
// a worker, which it blocks.
class Port_Doctor
{
public:
    struct Wishes
    {
        QStringList paths = {};                                 ///< these alone; empty for all that are found
        bool asks_devices = true;                               ///< whether ports are opened at all
        std::function<bool()> is_over = {};                     ///< asked time and again; yes ends the look
        std::function<void(const Finding&)> on_finding = {};    ///< as they come
        std::function<void(const QString&)> on_looking_at = {}; ///< the name of the port that is being asked
        System_Roots roots = {};
    };

    explicit Port_Doctor(Wishes wishes, const Port_Finder& finder = System_Port_Finder(),
                         Serial_Calls& calls = Real_Serial_Calls());

    /// Looks, and returns the paths of the ports on which a device could send, the best first.
    QStringList Look();

private:
    QStringList Paths_To_Look_At() const;
    void Tell(const Finding& finding) const;
    bool Is_Over() const;
    bool Is_Free(const Port_Facts& port);
    void Tell_About_Wwan_Port(const QString& path);
    void Tell_What_The_Service_Says(qsizetype modem, const QString& path);
    void Ask(const QList<Port_Facts>& ports);
    void Ask(const Port_Facts& port);
    bool Is_Worth_Asking(const Port_Facts& port) const;
    void Tell_About_The_Silent();

    const Wishes m_wishes;
    const Port_Finder& m_finder;
    Serial_Calls& m_calls;
    QList<Service_Modem> m_service;
    QSet<qsizetype> m_told_modems; // places in the service's list
    QSet<QString> m_answering_devices;
    QList<Port_Facts> m_silent;
    bool m_something_answers = false;
    QStringList m_ready;
};

/// What keeps a port from being used, as far as that shows without opening it: another use, a missing right, or
/// somebody who has it. Nothing where nothing does.
QList<Finding> Obstacles_Of_Port(const Port_Facts& port, const QList<Service_Modem>& service,
                                 const System_Roots& roots = {});
