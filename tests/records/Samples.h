#pragma once

#include "records/Sent_Item_List.h"
#include "records/Template_Item.h"

#include <QList>

// What the golden files hold.

inline QList<Sent_Item> Sample_Sent_Items()
{
    return {{QStringLiteral("00491701234567"), QStringLiteral("Hello  world\nsecond line\n\nend "),
             QStringLiteral("05/03/2024"), QString()},
            {QStringLiteral("123"), QString::fromUtf8("Gr\u00fc\u00dfe \U0001F600 <b>&\r"),
             QStringLiteral("31/12/2023"), QString()},
            {QStringLiteral("5550199"), QString(), QStringLiteral("01/01/2024"), QString()}};
}

inline QList<Template_Item> Sample_Templates()
{
    return {{QStringLiteral("Dear  customer,\nyour parcel\nis here.")},
            {QString::fromUtf8("Gr\u00fc\u00dfe \U0001F600")},
            {QStringLiteral("%1 | %@ & <i>")}};
}

inline QList<Sent_Item> All_Of(const Sent_Item_List& list)
{
    QList<Sent_Item> items;
    for (qsizetype row = 0; row < list.size(); ++row)
        items.append(list.at(row));
    return items;
}

inline void PrintTo(const Sent_Item& item, std::ostream* out)
{
    *out << '(' << qPrintable(item.Number) << "; " << qPrintable(item.Message) << "; " << qPrintable(item.Date) << "; "
         << qPrintable(item.Status) << ')';
}

inline void PrintTo(const Template_Item& item, std::ostream* out)
{
    *out << '(' << qPrintable(item.Message) << ')';
}
