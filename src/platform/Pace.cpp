#include "platform/Pace.h"

#include <atomic>
#include <cmath>

namespace {
std::atomic<double> Current_Pace{1.0};
}

std::optional<double> Parse_Pace(const QString& text)
{
    bool is_number = false;
    const double pace = text.trimmed().toDouble(&is_number);
    if (!is_number || !std::isfinite(pace) || pace <= 0)
        return std::nullopt;
    return pace;
}

QString Take_Pace_From_Environment()
{
    if (!qEnvironmentVariableIsSet("CORVANE_PACE"))
        return {};
    const QString text = qEnvironmentVariable("CORVANE_PACE");
    const auto pace = Parse_Pace(text);
    if (!pace)
        return QStringLiteral("CORVANE_PACE must be a positive number, not \"") + text + QStringLiteral("\".");
    Set_Pace(*pace);
    return {};
}

double Pace()
{
    return Current_Pace;
}

void Set_Pace(double pace)
{
    Current_Pace = pace;
}
