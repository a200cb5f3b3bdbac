#include "engine/Delayed_Delivery.h"

#include "platform/String_Helpers.h"
#include "texts/Reading_Language.h"
#include "texts/Texts.h"

#include <QCoreApplication>
#include <algorithm>
#include <limits>

namespace Delayed_Delivery {

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(Delayed_Delivery)
};

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

QString Shown_Pause_Choice(const QString& choice)
{
    if (Reading_Language::Is_English())
        return choice;
    const int amount = Integer_Value(choice);
    switch (Seconds_In_Unit(Trim_Str(choice).at(Unit_Position))) {
    case 1:
        return Words::tr("%n seconds", nullptr, amount);
    case Seconds_In_Minute:
        return Words::tr("%n minutes", nullptr, amount);
    default:
        return Words::tr("%n hours", nullptr, amount);
    }
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

QStringList Shown_Pause_Choices()
{
    QStringList shown;
    for (const QString& choice : Pause_Choices())
        shown.append(Shown_Pause_Choice(choice));
    return shown;
}

QString Pause_Choice_Of(const QString& shown)
{
    if (Reading_Language::Is_English())
        return shown;
    const QString text = Trim_Str(shown);
    const auto* const letter = std::find_if(text.begin(), text.end(), [](QChar unit) { return unit.isLetter(); });
    const QString word = text.mid(letter - text.begin());
    for (const QString& choice : Pause_Choices()) {
        if (Shown_Pause_Choice(choice) == shown)
            return choice;
    }
    for (const QString& choice : Pause_Choices()) {
        const QString unit = Shown_Pause_Choice(choice).section(u' ', -1);
        if (!word.isEmpty() &&
            (unit.startsWith(word, Qt::CaseInsensitive) || word.startsWith(unit, Qt::CaseInsensitive)))
            return QString::number(Integer_Value(text)).leftJustified(Unit_Position) +
                   Trim_Str(choice).mid(Unit_Position);
    }
    return shown;
}

Setting Read_Setting(const QString& batch_size, const QString& pause_choice)
{
    return {Integer_Value(Trim_Str(batch_size)), Pause_In_Seconds(pause_choice)};
}

QString Whole_Pause_Text(qint64 seconds)
{
    const qint64 hours = seconds / Seconds_In_Hour;
    const qint64 minutes = seconds % Seconds_In_Hour / Seconds_In_Minute;
    if (hours < 1)
        return Countdown_Text(seconds);
    return QString(Texts::Pause::Hours).arg(hours).arg(minutes).arg(seconds % Seconds_In_Minute);
}

QString Countdown_Text(qint64 seconds)
{
    const qint64 minutes = seconds % Seconds_In_Hour / Seconds_In_Minute;
    if (minutes < 1)
        return QString(Texts::Pause::Seconds).arg(seconds % Seconds_In_Minute);
    return QString(Texts::Pause::Minutes).arg(minutes).arg(seconds % Seconds_In_Minute);
}

} // namespace Delayed_Delivery
