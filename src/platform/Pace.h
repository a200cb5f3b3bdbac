#pragma once

#include <QString>
#include <optional>

// The pace divides every wait of the program: 1 is real time, 10 makes an hour's pause last six minutes. It is read
// once at start-up from the environment variable CORVANE_PACE; tests and the demonstration raise it.

/// The pace a text asks for: a positive, finite number, whole or fractional, in the C locale. Nothing for any other
/// text.
std::optional<double> Parse_Pace(const QString& text);

/// Takes the pace from CORVANE_PACE. Returns an empty text, or one clear line when the variable holds no positive
/// number; the pace then stays as it was.
QString Take_Pace_From_Environment();

double Pace();
void Set_Pace(double pace);
