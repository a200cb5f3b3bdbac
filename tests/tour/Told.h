#pragma once

#include <QString>

/// What is written or read in the language that the tour is told in: English, or German with CORVANE_TOUR_LANGUAGE=de.
inline QString Told(const char* english, const char* german)
{
    static const bool is_german = qgetenv("CORVANE_TOUR_LANGUAGE") == "de";
    return QString::fromUtf8(is_german ? german : english);
}
