#include "plan/Time_Words.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>
#include <algorithm>
#include <cmath>

namespace {

constexpr double Seconds_In_Minute = 60;
constexpr qint64 Minutes_In_Hour = 60;
constexpr qint64 Most_Minutes_Alone = 90;
constexpr qint64 Most_Hours_With_Minutes = 24;
constexpr double Most_Seconds = 1e9; // thirty years; a date beyond it would be no help

QString Told(const char* text)
{
    return QCoreApplication::translate("Time_Words", text);
}

/// A number with its word; one has a word of its own.
QString Counted(int count, const char* one, const char* several)
{
    return count == 1 ? Told(one) : QCoreApplication::translate("Time_Words", several, nullptr, count);
}

QString Records_Kept(const Send_Choices& choices)
{
    QStringList kept;
    if (choices.save_sent_items)
        kept.append(Told("sent items"));
    if (choices.save_templates)
        kept.append(Told("templates"));
    if (choices.confirm.confirms && choices.confirm.keeps_receipt)
        kept.append(Told("a receipt"));
    if (!kept.isEmpty())
        return Told("to be kept: %1").arg(kept.join(Told(" and ")));
    return choices.confirm.confirms ? Told("the record goes when all is done") : Told("no record will be kept");
}

} // namespace

QString Time_Words::About(double seconds)
{
    const auto minutes = static_cast<qint64>(std::ceil(std::clamp(seconds, 0.0, Most_Seconds) / Seconds_In_Minute));
    if (seconds < Seconds_In_Minute)
        return Told("less than a minute");
    if (minutes <= Most_Minutes_Alone)
        return Told("about %1 min").arg(minutes);
    const qint64 hours = minutes / Minutes_In_Hour;
    if (hours < Most_Hours_With_Minutes)
        return Told("about %1 h %2 min").arg(hours).arg(minutes % Minutes_In_Hour);
    return Told("about %1 h").arg((minutes + Minutes_In_Hour - 1) / Minutes_In_Hour);
}

QString Time_Words::Until(double seconds, const QDateTime& now)
{
    const QDateTime end = now.addSecs(static_cast<qint64>(std::clamp(seconds, 0.0, Most_Seconds)));
    const QString time = end.toString(QStringLiteral("HH:mm"));
    const qint64 days = now.date().daysTo(end.date());
    if (days == 0)
        return Told("until %1").arg(time);
    if (days == 1)
        return Told("until tomorrow, %1").arg(time);
    return Told("until %1, %2").arg(QLocale::c().toString(end.date(), QStringLiteral("d MMMM yyyy")), time);
}

QString Time_Words::Promise(const Job_Sums& sums, double seconds, const Send_Choices& choices, const QDateTime& now)
{
    if (sums.recipients == 0)
        return Told("Nobody in the list will be sent anything.");
    return QStringList{Counted(sums.recipients, "1 recipient", "%n recipients"),
                       Counted(sums.parts, "1 message", "%n messages"), About(seconds), Until(seconds, now),
                       Records_Kept(choices)}
        .join(Told(", "));
}

QString Time_Words::Left(const Time_Left::Answer& answer, const QDateTime& now)
{
    const QString left = Told("%1 left").arg(About(answer.seconds));
    if (answer.is_held)
        return Told("%1 once it goes on").arg(left);
    return left + Told(", ") + Until(answer.seconds, now);
}
