#pragma once

#include <QColor>
#include <QRectF>

class QPainter;
class QStyleOption;
class QWidget;

// What the parts of the style draw with. Interface thread.

namespace Style_Paint {

constexpr int Card_Radius = 10;
constexpr int Field_Radius = 6;
constexpr int Mark_Radius = 4;

/// A length at 96 dots an inch as it is on the option's screen.
int Scaled(double length, const QStyleOption* option);

struct Box
{
    QColor fill; ///< nothing where it is not valid
    QColor line;
    double radius = Field_Radius;
    double width = 1; ///< of the line
};

void Draw_Box(QPainter& painter, const QRectF& rect, const Box& box);

/// Around what has the keyboard.
void Draw_Focus(QPainter& painter, const QRectF& rect, double radius);

/// A small angle that points down.
void Draw_Angle(QPainter& painter, const QRectF& rect, const QColor& colour);

/// Whether it lies on a card, rather than on the window's ground.
bool Is_On_A_Card(const QWidget& widget);

} // namespace Style_Paint
