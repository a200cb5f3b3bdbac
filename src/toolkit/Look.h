#pragma once

#include "toolkit/Look_Tokens.h"

class QPalette;
class QWidget;

/// Every window takes the look on at once. Interface thread; after Apply_Application_Look.
void Choose_Look(Look look);

/// Dark where the desktop's own colours are, else light. High contrast is told by no desktop.
Look Look_Of_The_Desktop();

QPalette Palette_Of(const Look_Tokens& tokens);

/// A text area that only shows something, with the ground of its window, whatever the look is.
void Lie_On_The_Ground(QWidget& widget);
