#include "handset/Coding_Scheme.h"

#include "handset/Gsm_Alphabet.h"
#include "handset/Unicode_Text.h"

namespace Handset {

namespace {

// General data coding groups 00xx and 01xx: bit 5 compression, bit 4 "the class bits mean something", bits 3 and 2
// alphabet.
Coding_Scheme General_Group(std::uint8_t dcs)
{
    Coding_Scheme scheme;
    scheme.m_to_be_deleted = (dcs & 0xC0) == 0x40;
    scheme.m_compressed = (dcs & 0x20) != 0;
    scheme.m_class = (dcs & 0x10) != 0 ? dcs & 0x03 : -1;
    if ((dcs & 0x0C) == 0x04)
        scheme.m_alphabet = Alphabet::Eight_Bit;
    else if ((dcs & 0x0C) == 0x08)
        scheme.m_alphabet = Alphabet::Ucs2;
    return scheme;
}

// Message-waiting groups 1100 (discard), 1101 (store) and 1110 (store, UCS2).
Coding_Scheme Waiting_Group(std::uint8_t dcs)
{
    Coding_Scheme scheme;
    scheme.m_waiting_indication = true;
    scheme.m_alphabet = (dcs & 0xF0) == 0xE0 ? Alphabet::Ucs2 : Alphabet::Gsm_7_Bit;
    return scheme;
}

// Data coding and message class group 1111: bit 2 chooses 8-bit data.
Coding_Scheme Class_Group(std::uint8_t dcs)
{
    Coding_Scheme scheme;
    scheme.m_class = dcs & 0x03;
    scheme.m_alphabet = (dcs & 0x04) != 0 ? Alphabet::Eight_Bit : Alphabet::Gsm_7_Bit;
    return scheme;
}

} // namespace

Coding_Scheme Coding_Scheme_Of(std::uint8_t dcs)
{
    Coding_Scheme scheme;
    if ((dcs & 0x80) == 0)
        scheme = General_Group(dcs);
    else if ((dcs & 0xF0) == 0xF0)
        scheme = Class_Group(dcs);
    else if ((dcs & 0xC0) == 0xC0)
        scheme = Waiting_Group(dcs);
    scheme.m_octet = dcs;
    return scheme;
}

std::string Name_Of(Alphabet alphabet)
{
    switch (alphabet) {
    case Alphabet::Eight_Bit:
        return "8-bit";
    case Alphabet::Ucs2:
        return "UCS2";
    case Alphabet::Gsm_7_Bit:
        break;
    }
    return "GSM 7-bit";
}

std::string Shown_Text(Alphabet alphabet, const std::vector<std::uint8_t>& units)
{
    switch (alphabet) {
    case Alphabet::Eight_Bit:
        return Text_Of_Latin_1(std::string(units.begin(), units.end()));
    case Alphabet::Ucs2:
        return Text_Of_Utf16_Octets(units);
    case Alphabet::Gsm_7_Bit:
        break;
    }
    return Text_Of_Septets(units);
}

} // namespace Handset
