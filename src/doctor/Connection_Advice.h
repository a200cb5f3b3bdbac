#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// What was found out about this computer's serial ports before a device is searched for.
struct Connection_Facts
{
    struct Barred_Port
    {
        QString path;
        QString group; ///< members of it may open the port; empty when its group may not either
    };

    int ports_found = 0;             ///< that came with a device or were named, also those this account may not open
    QList<Barred_Port> barred_ports; ///< which this account may not open; no mainboard's that are for root alone
    bool modem_manager_runs = false;
};

// One piece of help: what to know, and the command for it where there is one.
struct Advice
{
    QString text;
    QString command;
};

// Turns facts into the help that applies, most pressing first. Nothing is advised that does not. Pure.
class Connection_Advice
{
public:
    static QList<Advice> For(const Connection_Facts& facts);

private:
    static Advice On_No_Port();
    static QList<Advice> On_Barred_Ports(const QList<Connection_Facts::Barred_Port>& ports);
    static Advice On_Modem_Manager();
};
