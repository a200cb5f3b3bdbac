#pragma once

#include <QColor>
#include <algorithm>
#include <cmath>

// WCAG 2.1: relative luminance, and the contrast of two colours.
inline double Luminance(const QColor& colour)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

inline double Contrast(const QColor& first, const QColor& second)
{
    const double a = Luminance(first);
    const double b = Luminance(second);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}
