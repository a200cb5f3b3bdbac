#include "plan/Time_Words.h"

#include "texts/Reading_Language.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>
#include <cmath>

namespace {

constexpr double Seconds_In_Minute = 60;
constexpr qint64 Minutes_In_Hour = 60;
constexpr qint64 Most_Minutes_Alone = 90;
constexpr qint64 Most_Hours_With_Minutes = 24;
constexpr double Most_Seconds = 1e9; // thirty years; a date beyond it would be no help

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(Time_Words)
};

// One has a word of its own, also where nothing is translated.
QString Recipients(int count)
{
    return count == 1 ? Words::tr("1 recipient") : Words::tr("%n recipients", nullptr, count);
}

QString Messages(int count)
{
    return count == 1 ? Words::tr("1 message") : Words::tr("%n messages", nullptr, count);
}

QString Records_Kept(const Send_Choices& choices)
{
    QStringList kept;
    if (choices.save_sent_items)
        kept.append(Words::tr("sent items"));
    if (choices.save_templates)
        kept.append(Words::tr("templates"));
    if (choices.confirm.confirms && choices.confirm.keeps_receipt)
        kept.append(Words::tr("a receipt"));
    if (!kept.isEmpty())
        return Words::tr("to be kept: %1").arg(kept.join(Words::tr(" and ")));
    return choices.confirm.confirms ? Words::tr("the record goes when all is done")
                                    : Words::tr("no record will be kept");
}

} // namespace

QString Time_Words::About(double seconds)
{
    const auto minutes = static_cast<qint64>(std::ceil(std::clamp(seconds, 0.0, Most_Seconds) / Seconds_In_Minute));
    if (seconds < Seconds_In_Minute)
        return Words::tr("less than a minute");
    if (minutes <= Most_Minutes_Alone)
        return Words::tr("about %1 min").arg(minutes);
    const qint64 hours = minutes / Minutes_In_Hour;
    if (hours < Most_Hours_With_Minutes)
        return Words::tr("about %1 h %2 min").arg(hours).arg(minutes % Minutes_In_Hour);
    return Words::tr("about %1 h").arg((minutes + Minutes_In_Hour - 1) / Minutes_In_Hour);
}

QString Time_Words::Until(double seconds, const QDateTime& now)
{
    const QDateTime end = now.addSecs(static_cast<qint64>(std::clamp(seconds, 0.0, Most_Seconds)));
    const QString time = end.toString(QStringLiteral("HH:mm"));
    const qint64 days = now.date().daysTo(end.date());
    if (days == 0)
        return Words::tr("until %1").arg(time);
    if (days == 1)
        return Words::tr("until tomorrow, %1").arg(time);
    return Words::tr("until %1, %2")
        .arg(Reading_Language::Locale().toString(end.date(), Words::tr("d MMMM yyyy")), time);
}

QString Time_Words::Promise(const Job_Sums& sums, double seconds, const Send_Choices& choices, const QDateTime& now)
{
    if (sums.recipients == 0)
        return Words::tr("Nobody in the list will be sent anything.");
    return QStringList{Recipients(sums.recipients), Messages(sums.parts), About(seconds), Until(seconds, now),
                       Records_Kept(choices)}
        .join(Words::tr(", "));
}

QString Time_Words::Left(const Time_Left::Answer& answer, const QDateTime& now)
{
    const QString left = Words::tr("%1 left").arg(About(answer.seconds));
    if (answer.is_held)
        return Words::tr("%1 once it goes on").arg(left);
    return left + Words::tr(", ") + Until(answer.seconds, now);
}
