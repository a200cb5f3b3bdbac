#pragma once

/// From now on two things go well that the toolkit and window managers do not manage between them. Interface thread
/// only; may be called again; has no effect without an X server.
///
/// A window of the program becomes active when the X server gives it the keyboard, not as soon as the toolkit asks the
/// window manager for that. The toolkit receives a copy of its own request and takes it for granted. A sheet for short
/// work is hidden again before the window manager gets to it, so the keyboard never leaves the window below, and
/// nothing tells the toolkit that the hidden sheet is not the active window: the keyboard is dead until another window
/// is clicked.
///
/// Where a window goes that has the keyboard, the one below it gets the keyboard. A window manager gives it to the
/// window below in time, but if that has gone as well before the manager comes to it, openbox (3.6) leaves the keyboard
/// with no window at all. A window of another program that has it meanwhile keeps it.
void Mend_X_Server_Focus();
