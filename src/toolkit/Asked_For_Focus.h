#pragma once

/// From now on a window of the program becomes the active one when the X server gives it the keyboard, and not already
/// when the toolkit asks the window manager for that. The toolkit hears its own request back and takes it for granted;
/// a sheet for short work is hidden again before the window manager has come to it, the keyboard never leaves the
/// window below, and so nothing tells the toolkit that the hidden sheet is not the active window: the keyboard is dead
/// until another window is clicked. Interface thread only; may be called again; without effect where there is no X
/// server.
void Pass_Over_Asked_For_Focus();
