#pragma once

#include "list/Skip_Words.h"

#include <QString>

/// One recipient as the input holds it.
struct Planned_Row
{
    int row = 1;    ///< as it stands in the input
    QString number; ///< as a list holds it; of an invalid one the beginning of what stood there. Never empty
    QString text;
    QString skipped;   ///< one of Skip_Words; empty for a row that is to be sent
    QString note = {}; ///< what was made of its number, or what is wrong with its row, in words; mostly empty

    bool Is_To_Be_Sent() const { return skipped.isEmpty(); }
    /// Whether somebody wanted it to be skipped, or nobody had to.
    bool Is_In_Order() const
    {
        return skipped.isEmpty() || skipped == QLatin1String(Skip_Words::Duplicate) ||
               skipped == QLatin1String(Skip_Words::Excluded);
    }
};
