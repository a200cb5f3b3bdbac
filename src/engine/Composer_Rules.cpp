#include "engine/Composer_Rules.h"

#include "platform/String_Helpers.h"
#include "texts/Texts.h"

#include <algorithm>

namespace Composer_Rules {

int Single_SMS_Limit(bool unicode)
{
    return unicode ? Single_Unicode_SMS_Characters : Single_SMS_Characters;
}

int SMS_Count(int length, bool unicode)
{
    const int limit = Single_SMS_Limit(unicode);
    return length / limit + (length % limit > 0 ? 1 : 0);
}

QString Cut_To_Limit(const QString& message)
{
    return message.left(Most_Characters);
}

QString Characters_Text(int length)
{
    return QString(Texts::Long_Message::Characters).arg(length);
}

Counter Long_SMS_Calculation(int length, const QString& msg_char_value, bool unicode, bool open_dlg)
{
    const int characters = std::min(length, Most_Characters);
    if (characters <= Single_SMS_Limit(unicode))
        return {Characters_Text(characters), false};
    const bool was_long_already = Find_Str(msg_char_value, QStringLiteral("SMS"));
    const QString text =
        QString(Texts::Long_Message::Several)
            .arg(QString::number(characters), QString::number(SMS_Count(characters, unicode)) + QStringLiteral(" SMS"));
    return {text, open_dlg && !was_long_already};
}

QString Long_SMS_Text(bool unicode)
{
    return unicode ? Texts::Long_Message::Unicode : Texts::Long_Message::Plain;
}

} // namespace Composer_Rules
