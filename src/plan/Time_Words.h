#pragma once

#include "plan/Job_Sums.h"
#include "plan/Time_Left.h"

#include <QDateTime>
#include <QString>

/// How long something takes and until when, in words. Pure; seconds are those that pass.
namespace Time_Words {

/// "less than a minute", "about 41 min", "about 5 h 20 min".
QString About(double seconds);

/// The moment in so many seconds: "until 22:25", with the day where it is not today.
QString Until(double seconds, const QDateTime& now);

/// What Send will do: how many recipients and messages, how long it takes, and what is kept of it.
QString Promise(const Job_Sums& sums, double seconds, const Send_Choices& choices, const QDateTime& now);

/// What is left of a job that runs. Without an "until" while it is held.
QString Left(const Time_Left::Answer& answer, const QDateTime& now);

} // namespace Time_Words
