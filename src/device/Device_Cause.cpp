#include "device/Device_Cause.h"

#include <algorithm>

namespace {

constexpr qsizetype Most_Digits = 9; // what an int holds for certain

// The number that a text of digits alone is.
std::optional<int> Number_Of(const QString& text)
{
    const auto is_digit = [](QChar unit) { return unit >= u'0' && unit <= u'9'; };
    if (text.isEmpty() || text.size() > Most_Digits || !std::all_of(text.begin(), text.end(), is_digit))
        return std::nullopt;
    return text.toInt();
}

// What stands behind the name of an error, which a colon or a blank must end; null for any other line.
QString Behind_The_Name(const QString& line, QLatin1String name)
{
    if (!line.startsWith(name, Qt::CaseInsensitive))
        return {};
    QString rest = line.mid(name.size());
    if (!rest.isEmpty() && rest.front() != u':' && !rest.front().isSpace())
        return {};
    rest = rest.trimmed();
    if (rest.startsWith(u':'))
        rest = rest.mid(1).trimmed();
    return rest.isNull() ? QLatin1String("") : rest;
}

Device_Cause Cause_Of(Device_Cause::Kind kind, const QString& value)
{
    if (value.isEmpty())
        return {};
    if (const auto number = Number_Of(value))
        return {kind, *number, {}};
    return {Device_Cause::Kind::Words, -1, value};
}

// Finals that some devices have instead of the standard's.
bool Is_A_Makers_Final(const QString& line)
{
    return line == QLatin1String("COMMAND NOT SUPPORT") || line == QLatin1String("NA") ||
           line.startsWith(QLatin1String("MODEM ERROR:"));
}

} // namespace

std::optional<Device_Cause> Cause_Of_Line(const QString& line)
{
    const QString text = line.trimmed();
    if (const QString value = Behind_The_Name(text, QLatin1String("+CMS ERROR")); !value.isNull())
        return Cause_Of(Device_Cause::Kind::Cms, value);
    if (const QString value = Behind_The_Name(text, QLatin1String("+CME ERROR")); !value.isNull())
        return Cause_Of(Device_Cause::Kind::Cme, value);
    if (text == QLatin1String("ERROR"))
        return Device_Cause{};
    if (Is_A_Makers_Final(text))
        return Device_Cause{Device_Cause::Kind::Words, -1, text};
    return std::nullopt;
}
