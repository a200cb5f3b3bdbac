#pragma once

#include "toolkit/Window_Fit.h"

class QApplication;
class QColor;
class QWidget;

// How every window of the program looks: one background, and text that is readable on it in any desktop theme.

/// Red 241/255, green 244/255, blue 250/255 in the light look.
QColor Window_Background();

/// Gives the application one style, and the light look, and lets assistive tools tick its boxes. Called once at
/// start-up, before the first window.
void Apply_Application_Look(QApplication& application);

/// Gives a window the program's background and manages its size (Fit_Window). Called once per window, after its layout
/// is made.
void Apply_Window_Look(QWidget& window, Letters first_size = {});
