#include "device/Answer_Cleaning.h"

#include "pdu/PDU.h"
#include "platform/String_Helpers.h"

#include <QCoreApplication>
#include <algorithm>
#include <limits>

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(Answer_Cleaning)
};

// The number that a text begins with, 0 when it begins with none.
int Leading_Number(const QString& text)
{
    const QString digits = text.trimmed();
    const bool is_negative = digits.startsWith(u'-');
    qint64 number = 0;
    for (qsizetype place = is_negative ? 1 : 0; place < digits.size(); ++place) {
        const char16_t digit = digits[place].unicode();
        if (digit < u'0' || digit > u'9')
            break;
        number = std::min<qint64>(number * 10 + (digit - u'0'), std::numeric_limits<int>::max());
    }
    return static_cast<int>(is_negative ? -number : number);
}

QString Without_Leading_Colon(const QString& text)
{
    const QString trimmed = Trim_Str(text);
    return trimmed.startsWith(u':') ? Trim_Str(trimmed.mid(1)) : trimmed;
}

} // namespace

QString Clean_Answer(const QString& answer, const QStringList& words, Quotes quotes)
{
    QString value = answer;
    value.remove(u'?');
    if (quotes == Quotes::Removed)
        value.remove(u'"');
    for (const char* text : {"<", ">", "OK", "\\r\\n", "\\n", "\\r"})
        value.remove(QLatin1String(text));
    for (const auto& word : words)
        value.remove(word);
    return Without_Leading_Colon(value);
}

std::optional<QString> Quoted_Text(const QString& text)
{
    const qsizetype first = text.indexOf(u'"');
    const qsizetype second = first < 0 ? -1 : text.indexOf(u'"', first + 1);
    if (second < 0)
        return std::nullopt;
    return text.mid(first + 1, second - first - 1);
}

QString Without_Leading_Word(const QString& value, const QString& word)
{
    return !word.isEmpty() && value.startsWith(word) ? Trim_Str(value.mid(word.size())) : value;
}

QString Model_Text(const QString& value)
{
    constexpr qsizetype Word_And_Separator = 6;
    const qsizetype word = value.indexOf(QLatin1String("MODEL"));
    return word < 0 ? value : Trim_Str(value.mid(word + Word_And_Separator));
}

QString No_Battery()
{
    return Words::tr("Device does not have a battery connected.");
}

QString Battery_Text(const QString& value)
{
    const QString status = value.left(1);
    const QString charge = value.mid(1).startsWith(u',') ? value.mid(2) : QString();
    if (status == u"0")
        return charge + u'%';
    if (status == u"1")
        return Words::tr("%1% ( Charging )").arg(charge);
    if (status == u"2")
        return No_Battery();
    if (status == u"3")
        return Words::tr("Recognized power fault.");
    return charge;
}

QString Signal_Text(const QString& value)
{
    const QString figure_text = value.left(value.indexOf(u','));
    if (figure_text == u"99")
        return Words::tr("Unknown");
    const int figure = Leading_Number(figure_text);
    const QString word = figure < 9    ? Words::tr("Low")
                         : figure < 15 ? Words::tr("Medium")
                         : figure < 19 ? Words::tr("Good")
                                       : Words::tr("High");
    return word + QLatin1String(" (") + QString::number(figure) + QLatin1Char(')');
}

QString Operator_Text(const QString& value)
{
    return Quoted_Text(value).value_or(value);
}

QString Service_Centre_Text(const QString& value)
{
    if (value == u"COMMAND NOT SUPPORT")
        return value;
    const QString number = Quoted_Text(value).value_or(value);
    return number.startsWith(u'+') ? number : PDU::DecodeUserData_16_bit(number);
}
