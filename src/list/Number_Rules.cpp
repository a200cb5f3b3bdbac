#include "list/Number_Rules.h"

#include "platform/String_Helpers.h"

#include <algorithm>

namespace Number_Rules {

bool Check_Ph_Number(const QString& number, bool test_flag)
{
    if (number.size() > Longest_Number)
        return true;
    return !std::all_of(number.begin(), number.end(), [test_flag](QChar character) {
        return (character >= u'0' && character <= u'9') || character == u'+' || character == u'-' ||
               (test_flag && character == u',');
    });
}

QString Normalised_Number(const QString& raw_number)
{
    QString number = raw_number;
    number.remove(u'-');
    number = Trim_Str(number);
    if (number.startsWith(u'+'))
        number.replace(0, 1, QStringLiteral("00"));
    if (number.contains(u'+') || Check_Ph_Number(number, false))
        return {};
    return number;
}

} // namespace Number_Rules
