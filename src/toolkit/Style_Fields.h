#pragma once

#include <QRect>

class QPainter;
class QStyleOption;
class QStyleOptionComboBox;
class QStyleOptionFrame;
class QWidget;

// What can be written in or chosen from. Interface thread.

namespace Style_Fields {

/// A line to write in. One that only shows a fact is words and no field.
void Draw_Line(const QStyleOptionFrame& option, QPainter& painter, const QWidget* widget);
QRect Words_Of_Line(const QStyleOptionFrame& option);

void Draw_Combo(const QStyleOptionComboBox& option, QPainter& painter);
/// In a box's rect, from left to right.
QRect Words_Of_Combo(const QStyleOptionComboBox& option);
QRect Arrow_Of_Combo(const QStyleOptionComboBox& option);

/// Around areas of text and lists.
void Draw_Area(const QStyleOption& option, QPainter& painter, const QWidget& area);

} // namespace Style_Fields
