#include "pdu/Septets.h"

#include <algorithm>

#include "pdu/Gsm_Alphabet.h"

Septet_Buffer Septets_Of_Message(QStringView message)
{
    Septet_Buffer septets(message.size() * 2);
    quint8* at = septets.data();
    for (const QChar character : message) {
        const quint8 septet = Gsm_Septet_Of(character.unicode());
        *at = Gsm_Escape; // overwritten at once unless the character is escaped; saves a branch
        at += septet >> 7;
        *at++ = septet & 0x7F;
    }
    septets.resize(at - septets.data());
    return septets;
}

Septet_Buffer Septets_Of_Carried(QStringView carried)
{
    Septet_Buffer septets(carried.size());
    std::transform(carried.begin(), carried.end(), septets.begin(),
                   [](QChar character) { return Septet_Of(character.unicode()); });
    return septets;
}
