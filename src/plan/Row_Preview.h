#pragma once

#include "plan/Plan_Manner.h"
#include "plan/Planned_Row.h"

#include <QByteArrayList>
#include <vector>

/// A character, or a stretch of them, that arrives as another.
struct Changed_Text
{
    int at = 0; ///< in UTF-16 units
    QString from;
    QString to;

    bool operator==(const Changed_Text&) const = default;
};

/// What becomes of a row's text on its way to a handset.
struct Row_Preview
{
    Job_Alphabet alphabet = Job_Alphabet::Gsm;
    int units = 0; ///< septets or UTF-16 units of the whole text as it is written
    int parts = 1;
    QString shown; ///< of the frames that would be written; empty where there can be none
    std::vector<Changed_Text> changed;
};

Row_Preview Preview_Of(const Planned_Row& row, const Plan_Manner& manner);

/// The parts of a row alone.
int Parts_Of_Row(const Planned_Row& row, const Plan_Manner& manner);

/// What a handset shows of a message's frames, given in hexadecimal as AT+CMGS takes them.
QString Shown_By_A_Handset(const QByteArrayList& frames);

/// How the text differs from what is shown; in the order of the text.
std::vector<Changed_Text> Changes_Between(const QString& text, const QString& shown);
