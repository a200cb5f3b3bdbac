#pragma once

#include "app/shared/Recipient_List.h"

#include <functional>

class Main_Window;
class QDialog;

// What the dialogs of the recipient list have in common. Interface thread only.

/// Changes a copy of the recipients on a worker and puts it in the list's place. The caller keeps the user away
/// meanwhile: with a sheet, or by input that waits.
void Change_Recipients(Main_Window& window, const std::function<void(Recipient_List&)>& change);

/// Runs a dialog over the main window until it ends, and returns its code; not at all, with 0, once the program exits.
int Run_Over(Main_Window& window, QDialog& dialog);
