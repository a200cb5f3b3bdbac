#pragma once

class QWidget;

// How large the program's windows are: that depends on what they show, in the desktop's font, and on their screen. No
// window has a size in pixels of its own.

// A size in letters and lines of the window's own font; without one the content alone decides.
struct Letters
{
    int columns = 0;
    int lines = 0;
};

/// Keeps a window as large as its contents need and no larger than its screen; where both are impossible, what is above
/// its last row scrolls. It opens at the given size if that is larger than its contents ask for. Called once per
/// window, after its layout is made.
void Fit_Window(QWidget& window, Letters first_size);
