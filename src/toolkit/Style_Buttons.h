#pragma once

class QPainter;
class QSize;
class QStyleOption;
class QStyleOptionButton;
class QWidget;

// Buttons, and the marks of check and radio buttons. Interface thread.

namespace Style_Buttons {

void Draw_Panel(const QStyleOptionButton& option, QPainter& painter, const QWidget* widget);
void Draw_Label(const QStyleOptionButton& option, QPainter& painter, const QWidget* widget);
void Draw_Focus_Of(const QStyleOptionButton& option, QPainter& painter, const QWidget* widget);
QSize Size_Of(const QStyleOptionButton& option, const QWidget* widget);

void Draw_Check_Mark(const QStyleOption& option, QPainter& painter);
void Draw_Radio_Mark(const QStyleOption& option, QPainter& painter);

} // namespace Style_Buttons
