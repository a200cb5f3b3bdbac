#pragma once

/// From now on a window of the program becomes active when the X server gives it the keyboard, not as soon as the
/// toolkit asks the window manager for that. The toolkit receives a copy of its own request and takes it for granted. A
/// sheet for short work is hidden again before the window manager gets to it, so the keyboard never leaves the window
/// below, and nothing tells the toolkit that the hidden sheet is not the active window: the keyboard is dead until
/// another window is clicked. Interface thread only; may be called again; has no effect without an X server.
void Pass_Over_Asked_For_Focus();
