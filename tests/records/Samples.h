#pragma once

#include "records/Sent_Item_List.h"
#include "records/Template_Item.h"

#include <QList>
#include <random>

// What the golden files hold.

inline QList<Sent_Item> Sample_Sent_Items()
{
    return {{"00491701234567", "Hello  world\nsecond line\n\nend ", "05/03/2024", {}},
            {"123", "Gr\u00fc\u00dfe \U0001F600 <b>&\r", "31/12/2023", {}},
            {"5550199", {}, "01/01/2024", {}}};
}

inline QList<Template_Item> Sample_Templates()
{
    return {{"Dear  customer,\nyour parcel\nis here."}, {"Gr\u00fc\u00dfe \U0001F600"}, {"%1 | %@ & <i>"}};
}

// Texts and bytes put together from pieces, the same ones every time.
class Random_Pieces
{
public:
    explicit Random_Pieces(unsigned seed) : m_random(seed) {}

    unsigned Below(unsigned limit) { return static_cast<unsigned>(m_random() % limit); }

    template <typename Text>
    Text Some_Of(const QList<Text>& pieces, unsigned most)
    {
        Text text;
        for (unsigned left = Below(most + 1); left > 0; --left)
            text += pieces.at(Below(static_cast<unsigned>(pieces.size())));
        return text;
    }

private:
    std::mt19937 m_random;
};

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
