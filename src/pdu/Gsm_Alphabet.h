#pragma once

#include <array>

#include <QtGlobal>

// The alphabet of outgoing messages: GSM 7 bit (3GPP TS 23.038, 6.2.1 and 6.2.1.1) with this program's own deviations,
// as a table and a direct index built from it at compile time. Any thread.

struct Gsm_Row
{
    char16_t character;
    quint8 code;
    bool escape;
};

/// What a character becomes: its code, and whether the escape code 27 goes before it.
struct Gsm_Code
{
    quint8 code;
    bool escape;
};

/// Searched from the top, the first match wins. Deviations from the standard are deliberate. Characters without a row
/// (letters, digits, blank, line ends, ' " ( ) / < >) keep the low byte of their own code.
// clang-format off
inline constexpr std::array<Gsm_Row, 65> Gsm_Alphabet{{
    {u'@', 0, false},
    {u'£', 1, false},
    {u'$', 2, false},
    {u'¥', 3, false},
    {u'è', 4, false},
    {u'é', 5, false},
    {u'ú', 6, false}, // the standard has ù here
    {u'ì', 7, false},
    {u'ò', 8, false},
    {u'Ç', 9, false},
    {u'Ø', 11, false},
    {u'ø', 12, false},
    {u'Å', 14, false},
    {u'å', 15, false},
    {u'Δ', 16, false},
    {u'_', 17, false},
    {u'Φ', 18, false},
    {u'Γ', 19, false},
    {u'^', 20, true},
    {u'Ω', 21, false},
    {u'Π', 22, false},
    {u'Ψ', 23, false},
    {u'Σ', 24, false},
    {u'Θ', 25, false},
    {u'Ξ', 26, false},
    {u'Æ', 28, false},
    {u'æ', 29, false},
    {u'ß', 30, false},
    {u'É', 31, false},
    {u'!', 33, false},
    {u'\u201C', 34, false}, // left double quotation mark
    {u'#', 35, false},
    {u'¤', 36, false},
    {u'%', 37, false},
    {u'&', 38, false},
    {u'\u2018', 39, false}, // left single quotation mark
    {u'{', 40, true},
    {u'}', 41, true},
    {u'*', 42, false},
    {u'+', 43, false},
    {u',', 44, false},
    {u'-', 45, false},
    {u'.', 46, false},
    {u'\\', 47, true},
    {u':', 58, false},
    {u';', 59, false},
    {u'[', 60, true},
    {u'=', 61, false},
    {u']', 62, true},
    {u'~', 61, true},
    {u'?', 63, false},
    {u'|', 64, true},
    {u'¡', 64, false},
    {u'Ä', 91, false},
    {u'Ö', 92, false},
    {u'Ñ', 93, false},
    {u'Ü', 94, false},
    {u'§', 95, false},
    {u'ø', 96, false}, // never reached: the row with 12 comes first
    {u'¿', 101, true}, // the euro sign's place in the extension table
    {u'ä', 123, false},
    {u'ö', 124, false},
    {u'ñ', 125, false},
    {u'ü', 126, false},
    {u'à', 127, false},
}};
// clang-format on

inline constexpr quint8 Gsm_Escape = 27;

/// The character that carries a code in a mapped text. The bar stands for an escaped 64, so that any other code 124 is
/// taken for it too, and code 64 for "@".
constexpr char16_t Carried_As(Gsm_Code mapped)
{
    if (mapped.code == 0)
        return u'@';
    return mapped.code == 64 && mapped.escape ? u'|' : char16_t{mapped.code};
}

/// The seven bits that a character of a mapped (or raw) text is packed as.
constexpr quint8 Septet_Of(char16_t carried)
{
    if (carried == u'@')
        return 0;
    return carried == u'|' ? quint8{64} : static_cast<quint8>(carried & 0x7F);
}

/// One page for each block of 256 characters in which the alphabet has rows, and page 0 for all others.
struct Gsm_Index
{
    std::array<quint8, 256> page_of{};
    std::array<std::array<Gsm_Code, 256>, 4> codes{};
    std::array<std::array<quint8, 256>, 4> septets{}; ///< as packed; bit 7 tells that the escape code goes before
};

consteval Gsm_Index Make_Gsm_Index()
{
    Gsm_Index index;
    for (auto& page : index.codes)
        for (unsigned low = 0; low < 256; ++low)
            page[low] = {static_cast<quint8>(low), false};
    quint8 next_page = 1;
    for (auto row = Gsm_Alphabet.rbegin(); row != Gsm_Alphabet.rend(); ++row) { // backwards: the first match wins
        quint8& page = index.page_of[row->character >> 8];
        if (page == 0)
            page = next_page++;
        index.codes.at(page)[row->character & 0xFF] = {row->code, row->escape};
    }
    for (unsigned page = 0; page < index.codes.size(); ++page) {
        for (unsigned low = 0; low < 256; ++low) {
            const Gsm_Code mapped = index.codes[page][low];
            const unsigned escape_bit = mapped.escape ? 0x80U : 0U;
            index.septets[page][low] = static_cast<quint8>(Septet_Of(Carried_As(mapped)) | escape_bit);
        }
    }
    return index;
}

inline constexpr Gsm_Index Gsm_Direct_Index = Make_Gsm_Index();

/// A UTF-16 unit's code; the low byte of the unit where the alphabet has no row.
constexpr Gsm_Code Gsm_Code_Of(char16_t unit)
{
    return Gsm_Direct_Index.codes[Gsm_Direct_Index.page_of[unit >> 8]][unit & 0xFF];
}

/// The septet that a UTF-16 unit goes out as when it is mapped and then packed; bit 7 set where escape goes before it.
constexpr quint8 Gsm_Septet_Of(char16_t unit)
{
    return Gsm_Direct_Index.septets[Gsm_Direct_Index.page_of[unit >> 8]][unit & 0xFF];
}
