#include "toolkit/Look_Tokens.h"

// Every pair that meets on the screen is held to its contrast by a test.
const Look_Tokens& Tokens_Of(Look look)
{
    static const Look_Tokens light{
        .ground = 0xf1f4fa,
        .card = 0xffffff,
        .field = 0xfbfcfe,
        .bubble = 0xe8eef9,
        .chosen = 0xe6effb,
        .line = 0xdde3ee,
        .outline = 0xc3cbd9,
        .edge = 0x838c9d,
        .ink = 0x1d232f,
        .soft = 0x5a6475,
        .accent = 0x1f5fae,
        .on_accent = 0xffffff,
        .ok = 0x1f7a4d,
        .warn = 0x8a5a00,
        .error = 0xb3261e,
        .link = 0xc40000,
    };
    static const Look_Tokens dark{
        .ground = 0x161a22,
        .card = 0x1f2530,
        .field = 0x1a1f28,
        .bubble = 0x2a3240,
        .chosen = 0x2a3a52,
        .line = 0x343c4a,
        .outline = 0x4a5466,
        .edge = 0x727e93,
        .ink = 0xe8ecf4,
        .soft = 0xa3adbf,
        .accent = 0x7fb0f2,
        .on_accent = 0x10141b,
        .ok = 0x6cc79a,
        .warn = 0xe3b35a,
        .error = 0xff8f86,
        .link = 0xff8f86,
    };
    static const Look_Tokens high_contrast{
        .ground = 0xff000000,
        .card = 0xff000000,
        .field = 0xff000000,
        .bubble = 0x1a1a1a,
        .chosen = 0x003a75,
        .line = 0xffffff,
        .outline = 0xffffff,
        .edge = 0xffffff,
        .ink = 0xffffff,
        .soft = 0xffffff,
        .accent = 0xffd84d,
        .on_accent = 0xff000000,
        .ok = 0x7dffb0,
        .warn = 0xffd84d,
        .error = 0xff9d96,
        .link = 0xff9d96,
    };
    switch (look) {
    case Look::Dark:
        return dark;
    case Look::High_Contrast:
        return high_contrast;
    case Look::Light:
        break;
    }
    return light;
}
