#pragma once

#include <array>

// What each character is to be sent as, written down a second time, by code point, for the tests alone.
struct Expected_Row
{
    char16_t character;
    int code;
    bool escape;
};

inline constexpr std::array<Expected_Row, 65> Expected_Alphabet{{
    {0x0040, 0, false},   // @
    {0x00A3, 1, false},   // £
    {0x0024, 2, false},   // $
    {0x00A5, 3, false},   // ¥
    {0x00E8, 4, false},   // è
    {0x00E9, 5, false},   // é
    {0x00FA, 6, false},   // ú
    {0x00EC, 7, false},   // ì
    {0x00F2, 8, false},   // ò
    {0x00C7, 9, false},   // Ç
    {0x00D8, 11, false},  // Ø
    {0x00F8, 12, false},  // ø
    {0x00C5, 14, false},  // Å
    {0x00E5, 15, false},  // å
    {0x0394, 16, false},  // Δ
    {0x005F, 17, false},  // _
    {0x03A6, 18, false},  // Φ
    {0x0393, 19, false},  // Γ
    {0x005E, 20, true},   // ^
    {0x03A9, 21, false},  // Ω
    {0x03A0, 22, false},  // Π
    {0x03A8, 23, false},  // Ψ
    {0x03A3, 24, false},  // Σ
    {0x0398, 25, false},  // Θ
    {0x039E, 26, false},  // Ξ
    {0x00C6, 28, false},  // Æ
    {0x00E6, 29, false},  // æ
    {0x00DF, 30, false},  // ß
    {0x00C9, 31, false},  // É
    {0x0021, 33, false},  // !
    {0x201C, 34, false},  // “
    {0x0023, 35, false},  // #
    {0x00A4, 36, false},  // ¤
    {0x0025, 37, false},  // %
    {0x0026, 38, false},  // &
    {0x2018, 39, false},  // ‘
    {0x007B, 40, true},   // {
    {0x007D, 41, true},   // }
    {0x002A, 42, false},  // *
    {0x002B, 43, false},  // +
    {0x002C, 44, false},  // ,
    {0x002D, 45, false},  // -
    {0x002E, 46, false},  // .
    {0x005C, 47, true},   // backslash
    {0x003A, 58, false},  // :
    {0x003B, 59, false},  // ;
    {0x005B, 60, true},   // [
    {0x003D, 61, false},  // =
    {0x005D, 62, true},   // ]
    {0x007E, 61, true},   // ~
    {0x003F, 63, false},  // ?
    {0x007C, 64, true},   // |
    {0x00A1, 64, false},  // ¡
    {0x00C4, 91, false},  // Ä
    {0x00D6, 92, false},  // Ö
    {0x00D1, 93, false},  // Ñ
    {0x00DC, 94, false},  // Ü
    {0x00A7, 95, false},  // §
    {0x00F8, 96, false},  // ø
    {0x00BF, 101, true},  // ¿
    {0x00E4, 123, false}, // ä
    {0x00F6, 124, false}, // ö
    {0x00F1, 125, false}, // ñ
    {0x00FC, 126, false}, // ü
    {0x00E0, 127, false}, // à
}};
