#pragma once

class QWidget;

// How large the windows of the program are: what they show decides it, in the desktop's font, and the screen that they
// are on. No window has a size in pixels of its own.

/// A size in letters and lines of the window's own font; nothing says that the content alone decides.
struct Letters
{
    int columns = 0;
    int lines = 0;
};

/// Keeps a window as large as what it shows needs and no larger than its screen; where both can not be, what stands
/// above its last row scrolls. It opens at the size given, if that is larger than its content asks for. Called once for
/// each window, after its layout is made.
void Fit_Window(QWidget& window, Letters first_size);
