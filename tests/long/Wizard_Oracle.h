#pragma once

#include "phone/Phone_Moods.h"

#include <QString>
#include <QStringList>

// What must come of a visit to the wizard: a click on the device's row, then Select.
struct Wizard_Outcome
{
    QStringList commands;  ///< that the phone hears
    QStringList details;   ///< the nine, empty where none was told
    QString told_at_click; ///< empty where no box opens
    QString told_at_select;
    bool is_lost = false; ///< the phone reads no further: only plugging in again helps
};

/// Worked out from the described steps. The custom service centre is empty for the phone's own.
Wizard_Outcome Expected_Visit(const Phone_Moods& moods, const QString& custom_centre);
