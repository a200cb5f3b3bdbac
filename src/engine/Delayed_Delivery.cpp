#include "engine/Delayed_Delivery.h"

#include "platform/String_Helpers.h"

#include <algorithm>
#include <limits>

namespace Delayed_Delivery {

namespace {

constexpr int Unit_Position = 3;
constexpr int Amount_Length = 2;
constexpr int Seconds_In_Minute = 60;
constexpr int Seconds_In_Hour = 3600;

// The number that begins a text, after blanks and a sign; 0 when there is none.
int Integer_Value(const QString& text)
{
    qsizetype at = 0;
    while (at < text.size() && text[at].isSpace())
        ++at;
    const bool is_negative = at < text.size() && text[at] == u'-';
    if (at < text.size() && (text[at] == u'-' || text[at] == u'+'))
        ++at;
    qint64 value = 0;
    for (; at < text.size() && text[at] >= u'0' && text[at] <= u'9'; ++at)
        value = std::min<qint64>(value * 10 + (text[at].unicode() - u'0'), std::numeric_limits<int>::max());
    return static_cast<int>(is_negative ? -value : value);
}

qint64 Seconds_In_Unit(QChar unit)
{
    switch (unit.unicode()) {
    case u'S':
        return 1;
    case u'M':
        return Seconds_In_Minute;
    case u'H':
        return Seconds_In_Hour;
    default:
        return 0;
    }
}

qint64 Pause_In_Seconds(const QString& pause_choice)
{
    const QString choice = Trim_Str(pause_choice);
    if (choice.size() <= Unit_Position)
        return 0;
    const QString amount = Left_Str_substringToIndex(choice, Amount_Length);
    if (amount == QStringLiteral("No"))
        return 0;
    return std::max<qint64>(0, Integer_Value(Trim_Str(amount)) * Seconds_In_Unit(choice[Unit_Position]));
}

QString Part(qint64 amount, const char* unit)
{
    return QString::number(amount) + QLatin1String(unit);
}

QString Pausing_Text(const QString& time)
{
    return QStringLiteral("Pausing the process for ") + time;
}

} // namespace

QStringList Batch_Sizes()
{
    return {"1",  "2",   "3",   "4",   "5",   "10",  "15",  "20",  "25",  "50",
            "75", "100", "150", "200", "250", "300", "400", "500", "1000"};
}

QStringList Pause_Choices()
{
    return {"5  Seconds",  "10 Seconds",  "15 Seconds",  "20 Seconds",  "25 Seconds",  "30 Seconds",  "35 Seconds",
            "40 Seconds",  "45 Seconds",  "50 Seconds",  "55 Seconds",  " 1  Minute",  " 2  Minutes", " 3  Minutes",
            " 4  Minutes", " 5  Minutes", " 6  Minutes", " 7  Minutes", " 8  Minutes", " 9  Minutes", "10 Minutes",
            "20 Minutes",  "30 Minutes",  "40 Minutes",  "50 Minutes",  " 1  Hour"};
}

Setting Read_Setting(const QString& batch_size, const QString& pause_choice)
{
    return {Integer_Value(Trim_Str(batch_size)), Pause_In_Seconds(pause_choice)};
}

QString Whole_Pause_Text(qint64 seconds)
{
    const qint64 hours = seconds / Seconds_In_Hour;
    const qint64 minutes = seconds % Seconds_In_Hour / Seconds_In_Minute;
    QString time;
    if (hours >= 1)
        time += Part(hours, " Hour ");
    if (hours >= 1 || minutes >= 1)
        time += Part(minutes, " Minute ");
    return Pausing_Text(time + Part(seconds % Seconds_In_Minute, " Seconds."));
}

QString Countdown_Text(qint64 seconds)
{
    const qint64 minutes = seconds % Seconds_In_Hour / Seconds_In_Minute;
    QString time;
    if (minutes >= 1)
        time += Part(minutes, " Minute ");
    return Pausing_Text(time + Part(seconds % Seconds_In_Minute, " Seconds."));
}

} // namespace Delayed_Delivery
