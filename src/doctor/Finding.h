#pragma once

#include <QList>
#include <QString>

/// One thing that a look at ports and devices brought out: what is so, and what helps where it is not right. A value.
struct Finding
{
    enum class Check
    {
        Port,     ///< whether there is one, and what is behind it
        Right,    ///< to open it
        Holder,   ///< another program that has it
        Answer,   ///< to AT
        Card,     ///< the SIM card
        Network,  ///< registration
        Signal,   ///< its strength
        Centre,   ///< the service centre
        Messages, ///< whether the device takes any
    };
    enum class Mark
    {
        Good,
        Note, ///< it may be in the way
        Bad   ///< it is in the way
    };

    Check check = Check::Port;
    Mark mark = Mark::Good;
    QString port; ///< its path; empty where it is about none
    QString sentence;
    QString remedy = {};  ///< empty where nothing is to be done
    QString command = {}; ///< for a terminal, where one helps
};

/// A sign that can be told from the others at a glance.
QChar Sign_Of(Finding::Mark mark);
/// "OK", "Note" or "Problem".
QString Word_Of(Finding::Mark mark);

/// "port", "right" and so on, and "good", "note" or "bad": for programs, and never changed.
QString Code_Of(Finding::Check check);
QString Code_Of(Finding::Mark mark);
