#pragma once

#include <array>

// What each character is to be sent as, written down a second time, by code point, for the tests alone:
// @£$¥èéúìòÇØøÅåΔ_ΦΓ^ΩΠΨΣΘΞÆæßÉ!“#¤%&‘{}*+,-.\:;[=]~?|¡ÄÖÑÜ§ø¿äöñüà
struct Expected_Row
{
    char16_t character;
    int code;
    bool escape = false;
};

inline constexpr std::array<Expected_Row, 65> Expected_Alphabet{
    {{0x0040, 0},        {0x00A3, 1},        {0x0024, 2},   {0x00A5, 3},        {0x00E8, 4},        {0x00E9, 5},
     {0x00FA, 6},        {0x00EC, 7},        {0x00F2, 8},   {0x00C7, 9},        {0x00D8, 11},       {0x00F8, 12},
     {0x00C5, 14},       {0x00E5, 15},       {0x0394, 16},  {0x005F, 17},       {0x03A6, 18},       {0x0393, 19},
     {0x005E, 20, true}, {0x03A9, 21},       {0x03A0, 22},  {0x03A8, 23},       {0x03A3, 24},       {0x0398, 25},
     {0x039E, 26},       {0x00C6, 28},       {0x00E6, 29},  {0x00DF, 30},       {0x00C9, 31},       {0x0021, 33},
     {0x201C, 34},       {0x0023, 35},       {0x00A4, 36},  {0x0025, 37},       {0x0026, 38},       {0x2018, 39},
     {0x007B, 40, true}, {0x007D, 41, true}, {0x002A, 42},  {0x002B, 43},       {0x002C, 44},       {0x002D, 45},
     {0x002E, 46},       {0x005C, 47, true}, {0x003A, 58},  {0x003B, 59},       {0x005B, 60, true}, {0x003D, 61},
     {0x005D, 62, true}, {0x007E, 61, true}, {0x003F, 63},  {0x007C, 64, true}, {0x00A1, 64},       {0x00C4, 91},
     {0x00D6, 92},       {0x00D1, 93},       {0x00DC, 94},  {0x00A7, 95},       {0x00F8, 96},       {0x00BF, 101, true},
     {0x00E4, 123},      {0x00F6, 124},      {0x00F1, 125}, {0x00FC, 126},      {0x00E0, 127}}};
