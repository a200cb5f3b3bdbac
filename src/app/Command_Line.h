#pragma once

#include <QString>
#include <QStringList>

// What the program was asked for when it was started.
struct Command_Line
{
    QStringList device_paths; ///< every path given with --device
    bool demo = false;        ///< start the virtual phone and offer it in the wizard

    /// What to print before ending at once; empty if the program is to run.
    QString answer;
    /// Whether the answer reports a mistake: it then goes to standard error, and the exit status is 2.
    bool is_mistaken = false;
};

/// Reads the arguments, the program's own name first. Needs no application object.
Command_Line Read_Command_Line(const QStringList& arguments, const QString& version);
