#include "pdu/Septets.h"

#include <algorithm>

#include "pdu/Gsm_Alphabet.h"

namespace {

constexpr qsizetype Block = 8;

// Most text stays on the first page and has nothing to escape, so a block is mapped optimistically. Returns whether
// that was right.
bool Map_Plain_Block(const QChar* characters, quint8* septets)
{
    constexpr const auto& page = Gsm_Direct_Index.septets[Gsm_Direct_Index.page_of[0]];
    quint8 all = 0;
    unsigned all_units = 0;
    for (qsizetype i = 0; i < Block; ++i) {
        const char16_t unit = characters[i].unicode();
        septets[i] = page[unit & 0xFF];
        all |= septets[i];
        all_units |= unit;
    }
    return (all & 0x80) == 0 && all_units <= 0xFF;
}

quint8* Map_With_Escapes(QStringView characters, quint8* at)
{
    for (const QChar character : characters) {
        const quint8 septet = Gsm_Septet_Of(character.unicode());
        *at = Gsm_Escape; // overwritten at once unless the character is escaped; saves a branch
        at += septet >> 7;
        *at++ = septet & 0x7F;
    }
    return at;
}

} // namespace

Septet_Buffer Septets_Of_Message(QStringView message)
{
    Septet_Buffer septets(message.size() * 2);
    quint8* at = septets.data();
    while (message.size() >= Block) {
        at = Map_Plain_Block(message.data(), at) ? at + Block : Map_With_Escapes(message.first(Block), at);
        message = message.sliced(Block);
    }
    at = Map_With_Escapes(message, at);
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
