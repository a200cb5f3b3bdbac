#include "toolkit/Heading_Font.h"

namespace {

constexpr double Heading_Size = 1.2; // of the window's letters

} // namespace

QFont Heading_Font(QFont font)
{
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * Heading_Size);
    else
        font.setPixelSize(qRound(font.pixelSize() * Heading_Size));
    font.setWeight(QFont::DemiBold);
    return font;
}
