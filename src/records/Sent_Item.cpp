#include "records/Sent_Item.h"

QString Sent_Item::Value(const QString& identifier) const
{
    if (identifier == QStringLiteral("Number"))
        return Number;
    if (identifier == QStringLiteral("Message"))
        return Message;
    if (identifier == QStringLiteral("Date"))
        return Date;
    return identifier == QStringLiteral("Status") ? Status : QString();
}
