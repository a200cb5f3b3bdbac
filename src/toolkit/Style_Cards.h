#pragma once

#include <QRect>

class QPainter;
class QStyleOption;
class QStyleOptionGroupBox;
class QWidget;

// Cards: boxes with a heading in them, panels and bubbles. Interface thread.

namespace Style_Cards {

void Draw_Group(const QStyleOptionGroupBox& option, QPainter& painter, const QWidget* widget);
/// Of what a card with a heading holds.
QRect Room_Of_Group(const QStyleOptionGroupBox& option, const QWidget* widget);
QRect Heading_Of_Group(const QStyleOptionGroupBox& option, const QWidget* widget);

void Draw_Panel(const QStyleOption& option, QPainter& painter, const QWidget& panel);

} // namespace Style_Cards
