#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// What is known about this computer's serial ports before a device is searched for.
struct Connection_Facts
{
    struct Barred_Port
    {
        QString path;
        QString group; ///< its members may open the port; empty when even its group may not
    };

    int ports_found = 0; ///< those that came with a device or were named, even if this account may not open them
    QList<Barred_Port> barred_ports; ///< those this account may not open, except a mainboard's that are for root alone
    bool modem_manager_runs = false;
};

// One piece of help: what to know, and a command for it if there is one.
struct Advice
{
    QString text;
    QString command;
};

// Turns facts into the help that applies, most pressing first, and into no other. Pure.
class Connection_Advice
{
public:
    static QList<Advice> For(const Connection_Facts& facts);

private:
    static Advice On_No_Port();
    static QList<Advice> On_Barred_Ports(const QList<Connection_Facts::Barred_Port>& ports);
    static Advice On_Modem_Manager();
};
